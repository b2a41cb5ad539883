// Two companies in one file: whose rows the statement and the list of members stage, and that what belongs to
// no company is tidied away.

#include "tests/reports/ReportsTest.h"

#include "platform/database/Sql.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkPS.h"

#include <QApplication>
#include <QEvent>

namespace {

constexpr const char* OfTheMember = "13042026{ENTER}15042026{ENTER}{ENTER}gaNaoSa%i";
constexpr const char* OfTheCustomer = "13042026{ENTER}15042026{ENTER}{DOWN}{ENTER}dUQa saMGa%i";

// The second company has a member and a customer of the same names; theirs stand first in the books.
class StatementCompaniesTest : public ReportsTest {
protected:
    StatementCompaniesTest()
    {
        InCompany(2, [this] {
            AddMember(33, "gaNaoSa");
            AddDelivery("13/04/2026", "sakaL", 1, 33, "gaNaoSa", "gaaya", 99, 4, 30);
            AddSale("13/04/2026", "sakaL", 1, "dUQa saMGa", "gaaya", 88, 4, 8.5);
        });
        AddMember(3, "gaNaoSa");
    }

    QStringList Staged() { return Rows("select CompanyId,MemberNo,LitersM,LitersE from MilkCollectionsME"); }

    // Lets a counter open the screen over what lies in the copy.
    void StageForACounter()
    {
        Run("insert into MilkCollectionsTemp select * from MilkCollections");
        gAppState.gReportMode = "ShowMilkCollection";
        On<frmReportMilkPS>([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); });
        EXPECT_FALSE(Failure);
    }
};

TEST_F(StatementCompaniesTest, AMembersStatementHasTheRowsAndTheNumberOfItsOwnCompany)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    Type<frmReportMilkPS>(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), QStringList("1|3|10|0"));
    EXPECT_EQ(Rows("select CompanyId,Liters from MilkCollectionsTemp"), QStringList("1|10"));
    EXPECT_EQ(Rows("select CompanyId from ReportDates"), QStringList("1"));
}

TEST_F(StatementCompaniesTest, ACustomersStatementHasTheSalesOfItsOwnCompany)
{
    AddSale("13/04/2026", "sakaL", 5, "dUQa saMGa", "gaaya", 10, 4, 8.5);
    Type<frmReportMilkPS>(OfTheCustomer);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), QStringList("1|0|10|0"));
    EXPECT_EQ(Rows("select CompanyId,Liters from MilkSalesTemp"), QStringList("1|10"));
}

TEST_F(StatementCompaniesTest, ACountersCopyMayHoldBothAndItsLinesAreThoseOfTheSelectedOne)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    StageForACounter();
    EXPECT_EQ(Rows("select CompanyId,LitersM from MilkCollectionsME"), QStringList("1|10"));
}

TEST_F(StatementCompaniesTest, TheDatesAreStagedWhenTheLinesStand)
{
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    gCn.RunScript("create trigger Watch before insert on ReportDates begin "
                  "insert into KapatDetails(MemberNo) "
                  "select count(*) from MilkCollectionsME; end");
    Type<frmReportMilkPS>(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select MemberNo from KapatDetails"), QStringList("1"));
}

TEST_F(StatementCompaniesTest, LinesOfNoCompanyAreTidiedAway)
{
    gAppState.gCompanyId = 0;
    AddDelivery("13/04/2026", "sakaL", 5, 3, "gaNaoSa", "gaaya", 10, 4, 30);
    Type<frmReportMilkPS>(OfTheMember);
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select count(*) from MilkCollectionsTemp"), "1");
    EXPECT_EQ(Staged(), QStringList());
    StageForACounter();
    EXPECT_EQ(Staged(), QStringList());
}

// Notes when a report screen is shown.
class ShowWatch final : public QObject {
public:
    ShowWatch() { qApp->installEventFilter(this); }
    int Shown = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && dynamic_cast<frmReportMilkPS*>(watched))
            ++Shown;
        return false;
    }
};

TEST_F(StatementCompaniesTest, ForACounterTheScreenComesUpAndIsLeftByTheEscThatIsSent)
{
    ShowWatch watch;
    StageForACounter();
    EXPECT_EQ(watch.Shown, 1);
}

// The list of members

using MembersCompaniesTest = StatementCompaniesTest;

TEST_F(MembersCompaniesTest, TheListHasTheMembersOfBothAsRowsOfTheSelectedOne)
{
    Type<frmReportMembersList>("%i");
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select CompanyId,MemberNo from MembersListReport"), QStringList({"1|33", "1|3"}));
}

TEST_F(MembersCompaniesTest, RowsOfNoCompanyAreTidiedAway)
{
    gAppState.gCompanyId = 0;
    Type<frmReportMembersList>("%i");
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select count(*) from MembersListReport"), "0");
    EXPECT_EQ(TheWindow.Shown.size(), 1U);
}

}
