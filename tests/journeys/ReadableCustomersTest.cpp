// The customers, with a long name and large figures.

#include "masters/frmCustomers.h"
#include "tests/journeys/ReadableTest.h"

#include "platform/database/Sql.h"

namespace {

class ReadableCustomersTest : public ReadableTest {
protected:
    ReadableCustomersTest()
    {
        Run(Sql(u"insert into CustomersMaster values(1,32766,",
            Quoted(Stored(u"श्री महालक्ष्मी जिल्हा सहकारी दूध उत्पादक संघ मर्यादित, कोल्हापूर")),
            u",'daonhI','sqaainak ivaËI',1234567.891,1234567.89,1234567.891,1234567.89)"));
    }
};

}

TEST_F(ReadableCustomersTest, AtRestAndInEveryMode)
{
    for (const char* mode : {"", "%n", "%d", "%k"}) {
        On<frmCustomers>([mode](Clerk& clerk) {
            Type(clerk, mode);
            ExpectReadable(clerk, std::string("after ") + mode);
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(ReadableCustomersTest, ACustomerWithLargeFiguresAtEveryField)
{
    On<frmCustomers>([](Clerk& clerk) {
        Type(clerk, "%d32766{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBuffOpeningLits"), "1234567.891");
        WalkAndLook(clerk, "modify");
        EXPECT_EQ(OnTop(clerk), "frmMessages") << "the last of them is the button that saves";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableCustomersTest, ACustomerToDeleteAndTheQuestion)
{
    On<frmCustomers>([](Clerk& clerk) {
        Type(clerk, "%k32766{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        ExpectReadable(clerk, "before the delete");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        ExpectReadable(clerk, "delete");
    });
    EXPECT_FALSE(Failure);
}
