// The list of installments, and the span of the deposits.

#include "payments/frmInstallment.h"
#include "payments/frmThevDate.h"
#include "tests/support/GridHeads.h"
#include "tests/support/SocietyTest.h"

namespace {

class InstallmentListTest : public SocietyTest {
protected:
    InstallmentListTest()
    {
        AddMember(5, QStringLiteral("rama"));
        AddMember(12, QStringLiteral("saIta"));
        Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(12,'saIta',75)");
    }

    QStringList List()
    {
        return Rows("select MemberNo,MemberName,Kapat from InstallmentTable order by MemberNo,rowid");
    }
};

TEST_F(InstallmentListTest, ARowIsAddedInTheEmptyLineAndTakesTheNameOfItsNumber)
{
    On<frmInstallment>([this](Clerk& clerk) {
        Type(clerk, "{DOWN}5{ENTER}{ENTER}300.5{ENTER}");
        EXPECT_EQ(List(), (QStringList{"5|rama|300.5", "12|saIta|75"}));
        Type(clerk, "{END}{DOWN}7{ENTER}gaIta{ENTER}{ENTER}");
    });
    EXPECT_EQ(List(), (QStringList{"5|rama|300.5", "7|gaIta|NULL", "12|saIta|75"}));
    EXPECT_FALSE(Failure);
}

TEST_F(InstallmentListTest, ARowIsChangedAndRemovedInItsPlace)
{
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'rama',20)");
    On<frmInstallment>([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{RIGHT}{RIGHT}100.75{ENTER}");
        EXPECT_EQ(List(), (QStringList{"5|rama|20", "12|saIta|100.75"}));
        Type(clerk, "{HOME}{DEL}");
        EXPECT_EQ(List(), QStringList("12|saIta|100.75"));
    });
}

TEST_F(InstallmentListTest, ARowWithoutANumberOrOfAMemberThatIsThereIsRefused)
{
    On<frmInstallment>([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{RIGHT}{RIGHT}50{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "मेम्बर नंबर टाका    Esc : नोंद रद्द");
        Type(clerk, "{LEFT}{LEFT}12{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "या मेम्बरची कपात यादीत आहे    Esc : नोंद रद्द");
        EXPECT_EQ(List(), QStringList("12|saIta|75"));
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmInstallment");
        Type(clerk, "{ESC}");
        EXPECT_NE(OnTop(clerk), "frmInstallment");
    });
    EXPECT_EQ(List(), QStringList("12|saIta|75"));
}

TEST_F(InstallmentListTest, TheListHasItsCaptions)
{
    On<frmInstallment>([](Clerk& clerk) {
        EXPECT_EQ(HeadsOf(dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGrid1"))),
            "मेम्बर नं.|मेम्बरचे नाव|कपात रक्कम");
    });
    EXPECT_FALSE(Failure);
}

// The screen lets no member in twice, but books of long ago may have one so.
TEST_F(InstallmentListTest, OfTwoRowsOfAMemberOneIsChangedOrRemovedAlone)
{
    for (const char* kapat : {"20", "20", "30"})
        Run(QStringLiteral("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'rama',%1)")
                .arg(QLatin1String(kapat)));
    On<frmInstallment>([this](Clerk& clerk) {
        Type(clerk, "{DOWN}{RIGHT}{RIGHT}45{ENTER}");
        EXPECT_EQ(List(), (QStringList{"5|rama|20", "5|rama|45", "5|rama|30", "12|saIta|75"}));
        Type(clerk, "{HOME}{DEL}");
        EXPECT_EQ(List(), (QStringList{"5|rama|45", "5|rama|30", "12|saIta|75"}));
        Type(clerk, "{END}{UP}{DEL}");
    });
    EXPECT_EQ(List(), (QStringList{"5|rama|45", "12|saIta|75"}));
    EXPECT_FALSE(Failure);
}

class ThevDateTest : public SocietyTest { };

TEST_F(ThevDateTest, TheSpanIsShownAndKeptInBooksAndState)
{
    On<frmThevDate>([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "01/04/2026");
        EXPECT_EQ(Reads(clerk, "MaskEdBox1"), "31/03/2027");
        Type(clerk, "01052026{ENTER}30042027{ENTER}{ENTER}");
        EXPECT_NE(OnTop(clerk), "frmThevDate");
    });
    EXPECT_EQ(Rows("select FromDate,ToDate from CompanySelected"), QStringList("01/05/2026|30/04/2027"));
    EXPECT_EQ(gAppState.gFromDate, QDate(2026, 5, 1));
    EXPECT_EQ(gAppState.gToDate, QDate(2027, 4, 30));
    EXPECT_FALSE(Failure);
}

TEST_F(ThevDateTest, TheExitKeepsNothingAndADateThatIsNoneIsRefused)
{
    On<frmThevDate>([](Clerk& clerk) {
        Type(clerk, "01132026%s");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Label(clerk, "lblGuide"), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
        Type(clerk, "%b");
        EXPECT_NE(OnTop(clerk), "frmThevDate");
    });
    EXPECT_EQ(Rows("select FromDate,ToDate from CompanySelected"), QStringList("01/04/2026|31/03/2027"));
    EXPECT_FALSE(Failure);
}

}
