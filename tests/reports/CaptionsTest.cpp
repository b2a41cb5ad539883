// What the report screens call themselves, their fields and their choices.

#include "platform/forms/OptionButton.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "reports/frmReportPaymentList.h"
#include "tests/reports/ReportsTest.h"

#include <QLabel>

namespace {

class CaptionsTest : public ReportsTest {
protected:
    struct Choice {
        const char* control;
        const char* caption;
    };

    static QString CaptionOf(Clerk& clerk, const char* option)
    {
        return dynamic_cast<const OptionButton&>(*clerk.Top().Find(QString::fromLatin1(option)))
            .Shown()
            .Text();
    }

    // Whether a caption stands on the screen on top.
    static bool Tells(Clerk& clerk, const char* caption)
    {
        for (const QLabel* label : clerk.Top().findChildren<QLabel*>())
            if (label->isVisible() && label->text() == Seen(caption))
                return true;
        return false;
    }

    template <class S> void Expect(const char* title, std::initializer_list<Choice> choices)
    {
        On<S>([&](Clerk& clerk) {
            EXPECT_EQ(clerk.Top().Title().Text(), QString::fromUtf8(title));
            for (const Choice& choice : choices)
                EXPECT_EQ(CaptionOf(clerk, choice.control), QString::fromUtf8(choice.caption));
            EXPECT_EQ(Reads(clerk, "cmdReport"), "&irpaoT-");
        });
        EXPECT_FALSE(Failure);
    }
};

}

TEST_F(CaptionsTest, TheStatementOfCollectionsOrSales)
{
    Expect<frmReportMilkPS>(
        " dUQa saMklana À ivaËI irpaoT-", {{"OptionCollections", " saMklana"}, {"OptionSales", " ivaËI"}});
}

TEST_F(CaptionsTest, TheCollectionList)
{
    Expect<frmReportMilkCollections>(" dUQa saMklana irpaoT-",
        {{"OptionMorning", "&sakaL"}, {"OptionEvening", "saMQyaa&kaL"}, {"OptionBoth", "&daonhI"}});
}

TEST_F(CaptionsTest, TheMembersList)
{
    Expect<frmReportMembersList>(" maombar yaadI",
        {{"OptionList", "  &1 pUNa- yaadI"}, {"OptionArea", "  &2 ivaBaaga"}, {"OptionMilk", "  &3 dUQa"}});
}

TEST_F(CaptionsTest, ThePaySlips)
{
    On<frmReportMilkPayments>([](Clerk& clerk) {
        for (const char* caption : {"pomaonT idnaaMk", "pasaUna", "pya-nt"})
            EXPECT_TRUE(Tells(clerk, caption)) << caption;
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CaptionsTest, TheRegisters)
{
    gAppState.gReportMode = "PR";
    Expect<frmReportMilkPaymentsRegister>(
        " dUQa pomaonT rijasTr irpaoT-", {{"OptionPT", "paoT/o-T"}, {"OptionLS", "la^nDskop"}});
    On<frmReportMilkPaymentsRegister>([](Clerk& clerk) {
        for (const char* caption : {"kalaavaQaI", "pasaUna", "pya-nt"})
            EXPECT_TRUE(Tells(clerk, caption)) << caption;
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CaptionsTest, ThePaymentList)
{
    Expect<frmReportPaymentList>(" dUQa pomaoMT ilasT", {{"Option1", "raoK"}, {"Option2", "baÐMk"}});
}
