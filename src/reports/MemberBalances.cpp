#include "reports/MemberBalances.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/AmountsUpTo.h"
#include "reports/ReportRun.h"
#include "reports/StagingProgress.h"
#include "society/Queries.h"

#include <functional>
#include <vector>

namespace {

struct Member {
    double number = 0;
    QString name;
};

// Two figures of a member, of single precision: what was given and what was received, or the deposits on the
// milk of the cow and of the buffalo.
struct Pair {
    float first = 0;
    float second = 0;
};
using PairOf = std::function<Pair(double memberNo)>;

std::vector<Member> MembersOf(const MemberBalances::Wanted& wanted)
{
    std::vector<Member> members;
    for (Recordset row(gCn,
             Sql(u"SELECT * FROM MembersMaster WHERE MemberNo>=", wanted.fromNo, u" AND MemberNo<=",
                 wanted.toNo, u" ORDER BY MemberNo"));
         !row.Eof(); row.MoveNext())
        members.push_back({row[u"MemberNo"].Number(), row[u"MemberName"].Text()});
    return members;
}

SqlText SumOfAmounts(QStringView name, QStringView table, const SqlText& dates, double memberNo)
{
    return Sql(u"Select Sum(Amount) as ", name, u" From ", table, u" Where CompanyId=", gAppState.gCompanyId,
        dates, u" And MemberNo=", memberNo);
}

Pair DepositsOf(double memberNo, const MemberBalances::Wanted& wanted)
{
    const Recordset sums(gCn,
        Sql(u"Select sum(ThevKapatCow) as UchalPaid, sum(ThevKapatBuff) as UchalReceived From MilkPayments "
            u"Where CompanyId=",
            gAppState.gCompanyId, u" And PaymentDate>=", SqlDay(wanted.from), u" And PaymentDate<=",
            SqlDay(wanted.to), u" AND MemberNo=", memberNo));
    return {
        static_cast<float>(sums[u"UchalPaid"].Number()), static_cast<float>(sums[u"UchalReceived"].Number())};
}

// How the statement of each row begins.
SqlText RowOf(const MemberBalances::Wanted& wanted)
{
    return Sql(u"INSERT INTO MilkPaymentsRegister(CompanyId,FromDate, ToDate,PaymentDate,TranId,MemberNo,"
               u"MemberName, Animal,CowLiters,BuffLiters,Amount,ThevKapat, OtherKapat,NetAmount,"
               u"PreviousBalance, CurrentBalance,ActualKapat,PreviousAdvance) VALUES(",
        Values(gAppState.gCompanyId, wanted.from, wanted.to, wanted.to, 0), u",");
}

void StageRow(const SqlText& row, const Member& member, const Pair& figures, float thevKapat)
{
    gCn.Execute(Sql(row,
        Values(member.number, member.name, QStringView(u"N/AP"), 0, 0, 0, thevKapat, 0, figures.first,
            figures.second, figures.first - figures.second, 0, 0),
        u")"));
}

// Writes a row for each member; those with nothing in the column are dropped again. Without members only the
// old rows are deleted, and it returns false.
bool StageMembers(const MemberBalances::Wanted& wanted, StagingProgress& progress, const PairOf& figuresOf,
    bool areDeposits)
{
    Transaction staging(gCn);
    ReportRun::Empty({u"MilkPaymentsRegister"});
    const std::vector<Member> members = MembersOf(wanted);
    if (members.empty()) {
        staging.Commit();
        return false;
    }
    ReportRun::Empty({u"ReportDates"});
    progress.Begin(static_cast<int>(members.size()));
    const SqlText row = RowOf(wanted);
    for (const Member& member : members) {
        progress.Tell(member.number, member.name);
        const Pair figures = figuresOf(member.number);
        StageRow(row, member, figures, areDeposits ? figures.first + figures.second : 0);
        progress.Step();
    }
    gCn.Execute(Sql(
        u"DELETE * FROM MilkPaymentsRegister WHERE ", areDeposits ? u"ThevKapat" : u"CurrentBalance", u"=0"));
    gCn.Execute(u"DELETE * FROM MilkPaymentsRegister WHERE CompanyID=992");
    ReportRun::StageDates(DateText(wanted.from), DateText(wanted.to));
    staging.Commit();
    return true;
}

}

bool MemberBalances::StageAdvances(const Wanted& wanted, StagingProgress& progress)
{
    const SqlText members = Sql(u"Select MemberNo From MembersMaster Where MemberNo>=", wanted.fromNo,
        u" And MemberNo<=", wanted.toNo);
    const AmountsUpTo given(u"TransactionsDetails", wanted.to, members);
    const AmountsUpTo received(u"AdvanceReceipt", wanted.to, members);
    return StageMembers(
        wanted, progress,
        [&](double memberNo) {
            return Pair{static_cast<float>(given.Of(memberNo)), static_cast<float>(received.Of(memberNo))};
        },
        false);
}

bool MemberBalances::StageDeposits(const Wanted& wanted, StagingProgress& progress)
{
    return StageMembers(
        wanted, progress, [&](double memberNo) { return DepositsOf(memberNo, wanted); }, true);
}

// The opening balance is dated long ago, so that it stands before everything else.
void MemberBalances::StageStatement(const Wanted& wanted)
{
    const double member = wanted.fromNo;
    Transaction staging(gCn);
    ReportRun::Empty({u"ReportDates", u"Advancetemp"});
    ReportRun::StageDates(DateText(wanted.from), DateText(wanted.to));
    const SqlText before = Sql(u" And Trandate<", SqlDay(wanted.from));
    const double opening = Figure(SumOfAmounts(u"Uchalpaid", u"TransactionsDetails", before, member))
        - Figure(SumOfAmounts(u"UchalReceived", u"AdvanceReceipt", before, member));
    gCn.Execute(Sql(u"Insert Into Advancetemp(CompanyId,Trandate,TranId,MemberNo,Advancetype,Amount) Values(",
        Values(gAppState.gCompanyId, QDate(1940, 1, 1), 0, member, QStringView(u"OpeningBalance"), opening),
        u")"));
    const SqlText rows = Sql(u" Where TranDate>=", SqlDay(wanted.from), u" And Trandate<=", SqlDay(wanted.to),
        u" And Memberno=", member);
    gCn.Execute(Sql(u"Insert Into AdvanceTemp Select * From TransactionsDetails", rows, u" order by rowid"));
    gCn.Execute(Sql(u"Insert Into AdvanceTemp Select * From AdvanceReceipt", rows, u" order by rowid"));
    ReportRun::Tidy(u"Advancetemp");
    staging.Commit();
}
