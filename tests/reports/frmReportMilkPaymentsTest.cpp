// The screen of the pay slips: what is keyed, what is told, and which template prints.

#include "reports/frmReportMilkPayments.h"

#include "tests/reports/PaymentsTest.h"

namespace {

class frmReportMilkPaymentsTest : public PaymentsTest {
protected:
    frmReportMilkPaymentsTest()
    {
        AddMember(1, "rama");
        AddMember(12, "saIta");
        Pay({});
    }
};

TEST_F(frmReportMilkPaymentsTest, TheTitleAndTheButtonsAreThoseOfThePaymentReport)
{
    On<frmReportMilkPayments>([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), " dUQa pomaonT irpaoT-");
        EXPECT_EQ(Reads(clerk, "CmdReport"), "&irpaoT-");
        EXPECT_EQ(Focus(clerk), "MaskUserDate");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(frmReportMilkPaymentsTest, ADateThatIsNoneKeepsTheFocusWithoutAMessageAndTheGuideSaysWhatIsWanted)
{
    On<frmReportMilkPayments>([this](Clerk& clerk) {
        for (const char* keys : {"{ENTER}", "3104{ENTER}", "31132026{ENTER}", "31022026%i"}) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), "MaskUserDate") << keys;
            EXPECT_EQ(Label(clerk, "lblGuide"), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर") << keys;
        }
        EXPECT_EQ(TheBox.Shown, QStringList());
        EXPECT_TRUE(TheWindow.Shown.empty());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(frmReportMilkPaymentsTest, ADateWithoutPaymentsIsToldOnceAndKeepsTheFocus)
{
    Pay({.from = "01/04/2026", .to = "10/04/2026", .date = "10/04/2026", .company = 2});
    for (const char* keys : {"10042026{ENTER}", "21042026{ENTER}", "21042026%i"}) {
        TheBox.Shown.clear();
        On<frmReportMilkPayments>([&](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(TheBox.Shown, QStringList("Invalid Payment Date")) << keys;
            EXPECT_EQ(Focus(clerk), "MaskUserDate") << keys;
            EXPECT_EQ(Label(clerk, "lblGuide"), "ज्या दिवशी दुधाचे पेमेंट झाले तो दिनांक टाका    Esc : बाहेर");
        });
        EXPECT_FALSE(Failure);
    }
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(frmReportMilkPaymentsTest, TheLastMemberIsProposedAndBothNamesShow)
{
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,99,'paavaI')");
    On<frmReportMilkPayments>([](Clerk& clerk) {
        Type(clerk, "20042026{ENTER}1{ENTER}");
        EXPECT_EQ(Label(clerk, "lblFromMember"), Seen("rama").toStdString());
        EXPECT_EQ(Reads(clerk, "txtToNo"), "12");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblToMember"), Seen("saIta").toStdString());
        Type(clerk, "+{TAB}7{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToNo"), "7") << "what is typed replaces the proposal";
        EXPECT_EQ(Label(clerk, "lblToMember"), "") << "there is no such member";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(frmReportMilkPaymentsTest, ARangeWithoutPaymentsIsTold)
{
    for (const char* keys : {"20042026{ENTER}2{ENTER}{ENTER}%i", "20042026{ENTER}{ENTER}{DEL}{ENTER}%i",
             "20042026{ENTER}99999999999999999999{ENTER}{ENTER}%i"}) {
        TheBox.Shown.clear();
        TheBox.Titles.clear();
        Type<frmReportMilkPayments>(keys);
        EXPECT_FALSE(Failure) << keys;
        EXPECT_EQ(TheBox.Shown, QStringList("No Records")) << keys;
        EXPECT_EQ(TheBox.Titles, QStringList("Milk Payments"));
    }
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(Rows("select * from MilkPaymentsTemp"), QStringList());
}

TEST_F(frmReportMilkPaymentsTest, TheTemplateGoesByTheDuration)
{
    for (const auto& [duration, title] : {std::pair("1 idvasa", "दूध पेमेंट : रोजचे"),
             {"7 idvasa", "दूध पेमेंट : सात दिवसांचे"}, {"10 idvasa", "दूध पेमेंट : दहा दिवसांचे"},
             {"15 idvasa", "दूध पेमेंट : पंधरा दिवसांचे"}, {"1 maihnaa", "दूध पेमेंट : महिन्याचे"}}) {
        TheWindow.Shown.clear();
        SetDuration(duration);
        Type<frmReportMilkPayments>("20042026{ENTER}1{ENTER}{ENTER}%i");
        EXPECT_EQ(TheWindow.Titles(), QStringList(QString::fromUtf8(title))) << duration;
        EXPECT_EQ(TheWindow.Subject(), "20-04-2026");
    }
}

TEST_F(frmReportMilkPaymentsTest, WithoutADurationTheClerkIsToldWhereToChooseIt)
{
    SetDuration("");
    On<frmReportMilkPayments>([](Clerk& clerk) {
        Type(clerk, "20042026{ENTER}1{ENTER}{ENTER}%i");
        EXPECT_EQ(clerk.Message(), "ऑटो सेटींग्जमध्ये पेमेंटचा कालावधी निवडा.");
    });
    EXPECT_FALSE(Failure);
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(frmReportMilkPaymentsTest, AMissingTemplateEndsTheProgramWhenTheSlipsAreStaged)
{
    RemoveTemplate("MilkPaymentsReport10D.rpt");
    Type<frmReportMilkPayments>("20042026{ENTER}1{ENTER}{ENTER}%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(One("select count(*) from KapatDetails"), "11");
}

TEST_F(frmReportMilkPaymentsTest, ANameWithAnApostropheFailsItsStatementAndStagesNothing)
{
    Type<frmReportMilkPayments>("20042026{ENTER}1{ENTER}{ENTER}%i");
    const QStringList staged = Rows("select * from MilkCollectionsME");
    gCn.RunScript("update MilkPayments set MemberName='ra''ma'");
    Type<frmReportMilkPayments>("20042026{ENTER}1{ENTER}{ENTER}%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Rows("select * from MilkCollectionsME"), staged);
}

TEST_F(frmReportMilkPaymentsTest, TheBarStaysUntilTheSlipsArePrinted)
{
    std::unique_ptr<PaintedStaging> bar;
    bool shown = false;
    const AtThePrint look([&] { shown = bar->IsShown(); });
    On<frmReportMilkPayments>([&](Clerk& clerk) {
        Type(clerk, "20042026{ENTER}1{ENTER}{ENTER}");
        clerk.Do([&] { bar = std::make_unique<PaintedStaging>(clerk.Top()); });
        Type(clerk, "%i");
        EXPECT_TRUE(shown);
        EXPECT_FALSE(bar->IsShown());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(frmReportMilkPaymentsTest, TheBarAndTheMemberInHandAreShownWhileTheSlipsAreStaged)
{
    for (int member = 2; member <= 11; ++member)
        Pay({.member = member, .name = "gaNaoSa"});
    std::unique_ptr<PaintedStaging> bar;
    On<frmReportMilkPayments>([&](Clerk& clerk) {
        Type(clerk, "20042026{ENTER}1{ENTER}{ENTER}");
        clerk.Do([&] { bar = std::make_unique<PaintedStaging>(clerk.Top()); });
        EXPECT_FALSE(bar->IsShown());
        Type(clerk, "%i");
        EXPECT_FALSE(bar->IsShown());
    });
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->Messages.value(0), "Generating the Report");
    for (const char* seen : {"9 % 1 राम", "18 % 2 गणेश", "100 % 11 गणेश"})
        EXPECT_TRUE(bar->Seen.contains(QString::fromUtf8(seen))) << seen;
    EXPECT_FALSE(Failure);
}

}
