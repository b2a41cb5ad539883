#include "platform/text/Shivaji01.h"
#include "tests/tools/SetupRun.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

namespace {

class FederationTest : public testing::Test {
protected:
    QString Folder() const { return m_dir.filePath("books"); }

    // The accounts that the reports take for the federation, as they are read.
    QStringList Federations(const QString& password = "secret") const
    {
        QStringList names = Shell(Folder(), password,
            "select AccountName from AccountsMaster where CompanyId=1 and trim(GroupCode)='Debtors' and "
            "trim(Category)='saMGa' order by rowid;");
        for (QString& name : names)
            name = Shivaji01::ToUnicode(name);
        return names;
    }

private:
    QTemporaryDir m_dir;
};

TEST_F(FederationTest, HasAnAccountUnderTheNameThatIsGiven)
{
    ASSERT_EQ(RunSetup(Arguments(Folder()) << "--federation"
                                           << " कोयना दूध संघ ")
                  .exitCode,
        0);
    EXPECT_EQ(Federations(), QStringList("कोयना दूध संघ"));
    EXPECT_EQ(Shell(Folder(), "secret",
                  "select CompanyId,AccountId,OpeningBalance,OpeningDorC,ClosingBalance,ClosingDorC from "
                  "AccountsMaster where GroupCode='Debtors';"),
        QStringList("1|3|0.0|D|0.0|D"));
}

TEST_F(FederationTest, HasAUsualNameWhereNobodyCanBeAsked)
{
    ASSERT_EQ(RunSetup(Arguments(Folder())).exitCode, 0);
    EXPECT_EQ(Federations(), QStringList("जिल्हा दूध संघ"));
}

TEST_F(FederationTest, OfTheDemonstrationIsItsFirstCustomer)
{
    ASSERT_EQ(RunSetup(Arguments(Folder()) << "--demo").exitCode, 0);
    EXPECT_EQ(Federations(), QStringList({"सातारा जिल्हा दूध संघ", "कोयना दूध संघ"}));
    ASSERT_EQ(RunSetup(Arguments(Folder()) << "--demo"
                                           << "--replace"
                                           << "--federation"
                                           << "वारणा दूध संघ")
                  .exitCode,
        0);
    EXPECT_EQ(Federations(), QStringList({"वारणा दूध संघ", "कोयना दूध संघ"}));
    EXPECT_EQ(Shell(Folder(), "secret",
                  "select count(*) from CustomersMaster c join AccountsMaster a on "
                  "a.AccountName=c.CustomerName where c.CustomerType='saMGa ivaËI';"),
        QStringList("2"));
}

TEST_F(FederationTest, OfTheDemonstrationBringsNoThirdAccount)
{
    SocietyPlan plan = GoodPlan();
    plan.demo = true;
    plan.federation = "वारणा दूध संघ";
    MakeSociety(Folder(), plan);
    EXPECT_EQ(Federations(plan.password), QStringList({"वारणा दूध संघ", "कोयना दूध संघ"}));
}

TEST_F(FederationTest, WithANameThatTheBooksCanNotHoldIsRefused)
{
    for (const auto& [name, why] :
        {std::pair("Koyna", u"English letters"), std::pair("कोयना'", u"apostrophe")})
        ExpectRefusal(
            RunSetup(Arguments(Folder()) << "--federation" << QString::fromUtf8(name)), 2, QStringView(why));
}

}
