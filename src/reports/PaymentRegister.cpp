#include "reports/PaymentRegister.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/AmountsUpTo.h"
#include "reports/DayLines.h"
#include "reports/KapatSummary.h"
#include "reports/MemberDeposit.h"
#include "reports/ReportRun.h"
#include "reports/StagingProgress.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <algorithm>
#include <optional>

namespace {

double LitersOf(double memberNo, QStringView animal)
{
    return Figure(Sql(u"select sum(Liters) as ", animal == Word::Cow ? u"CLit" : u"BLit",
        u" from MilkCollectionsTemp where MemberNo=", memberNo, u" and Animal=", Quoted(animal)));
}

SqlText OfMember(double memberNo, const SqlText& dates)
{
    return Sql(u" where CompanyId=", gAppState.gCompanyId, u" and MemberNo=", memberNo, dates);
}

// What the payments of a day kept back under all heads but the deposits.
double SumOfHeads(double memberNo, const QDate& day)
{
    return Figure(Sql(u"select sum(Amount) as UKapat from MilkPaymentsDetails",
        OfMember(memberNo, Sql(u" and TranDate=", SqlDay(day))), AmountsUpTo::ButDeposits()));
}

double OpeningDeposit(double memberNo)
{
    const Recordset member(
        gCn, Sql(u"Select CowOpeningThev,BuffOpeningThev From MembersMaster", OfMember(memberNo, {})));
    return member.Eof() ? 0 : member[u"CowOpeningThev"].Number() + member[u"BuffOpeningThev"].Number();
}

}

// What the members of the staged payments owed at the end of a day.
class PaymentRegister::Owed {
public:
    explicit Owed(const QDate& day)
        : m_given(u"TransactionsDetails", day, Members(), AmountsUpTo::Heads::ButDeposits)
        , m_received(u"AdvanceReceipt", day, Members())
        , m_keptBack(u"MilkPaymentsDetails", day, Members(), AmountsUpTo::Heads::ButDeposits)
    {
    }

    double By(double memberNo) const
    {
        return m_given.Of(memberNo) - m_received.Of(memberNo) - m_keptBack.Of(memberNo);
    }

private:
    static SqlText Members() { return u"select MemberNo from MilkPaymentsTemp"; }

    AmountsUpTo m_given;
    AmountsUpTo m_received;
    AmountsUpTo m_keptBack;
};

QString PaymentRegister::Condition() const
{
    return Sql(u"MilkPayments where CompanyId=", gAppState.gCompanyId, u" and FromDate=",
        SqlDay(m_wanted.from), u" and ToDate=", SqlDay(m_wanted.to), u" and MemberNo>=", m_wanted.fromNo,
        u" and MemberNo<=", m_wanted.toNo);
}

bool PaymentRegister::Any() const
{
    return Finds(u"select * from " + Condition());
}

void PaymentRegister::Stage(StagingProgress& progress) const
{
    progress.Announce();
    Transaction staging(gCn);
    ReportRun::Empty({u"ReportDates", u"MilkPaymentsTemp", u"MilkPaymentsRegister", u"KapatSummary",
        u"MilkCollectionsTemp"});
    CopyCollections();
    const Payments payments = CopyPayments();
    const KapatSummary summary;
    std::optional<Owed> owed;
    if (m_kind == Kind::Advances)
        owed.emplace(m_wanted.from.addDays(-1));
    progress.Begin(static_cast<int>(payments.size()));
    for (const Payment& payment : payments) {
        progress.Tell(payment.memberNo, payment.memberName);
        StageRow(payment, owed ? &*owed : nullptr);
        if (m_kind == Kind::Payments)
            summary.Stage(payment.memberNo, m_wanted.from, m_wanted.to);
        progress.Step();
    }
    if (m_kind == Kind::Payments)
        std::for_each(payments.begin(), payments.end(),
            [this](const Payment& payment) { AddPreviousBalances(payment); });
    ReportRun::StageDates(DateText(m_wanted.from), DateText(m_wanted.to));
    for (const QStringView table : {u"MilkPaymentsTemp", u"MilkCollectionsTemp", u"MilkpaymentsRegister"})
        ReportRun::Tidy(table);
    staging.Commit();
}

// The signs keep the engine from the index of the members: the days are few, and of the members mostly all.
void PaymentRegister::CopyCollections() const
{
    const SqlText bounds = Sql(u" where CompanyId=", gAppState.gCompanyId, u" and CollectionDate>=",
        SqlDay(m_wanted.from), u" and CollectionDate<=", SqlDay(m_wanted.to), u" and +MemberNo>=",
        m_wanted.fromNo, u" and +MemberNo<=", m_wanted.toNo);
    gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollections", bounds));
    if (ReportRun::ReachesIntoLastYear(m_wanted.from))
        gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollectionsOld", bounds));
}

PaymentRegister::Payments PaymentRegister::CopyPayments() const
{
    gCn.Execute(u"insert into MilkPaymentsTemp select * from " + Condition());
    Payments payments;
    for (Recordset row(gCn, u"select * from MilkPaymentsTemp order by MemberNo"); !row.Eof(); row.MoveNext())
        payments.push_back({row[u"PaymentDate"].Date(), row[u"TranId"].Number(), row[u"MemberNo"].Number(),
            row[u"MemberName"].Text(), row[u"Animal"].Text(), row[u"Amount"].Number(), row[u"Kapat"].Number(),
            row[u"NetAmount"].Number(), row[u"PreviousBalance"].Number(), row[u"CurrentBalance"].Number(),
            row[u"ThevKapatCow"].Number() + row[u"ThevKapatBuff"].Number(),
            row[u"PreviousAdvance"].Number()});
    return payments;
}

void PaymentRegister::StageRow(const Payment& payment, const Owed* owed) const
{
    switch (m_kind) {
    case Kind::Payments:
        return StagePayment(payment);
    case Kind::Deposits:
        return StageDeposit(payment);
    case Kind::Advances:
        return StageAdvance(payment, owed->By(payment.memberNo));
    }
}

void PaymentRegister::StagePayment(const Payment& payment) const
{
    gCn.Execute(Sql(u"insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,"
                    u"MemberName,Animal,CowLiters,BuffLiters,Amount,ThevKapat,OtherKapat,NetAmount,"
                    u"PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) values(",
        Values(gAppState.gCompanyId, m_wanted.from, m_wanted.to, payment.date, payment.tranId,
            payment.memberNo, payment.memberName, payment.animal, LitersOf(payment.memberNo, Word::Cow),
            LitersOf(payment.memberNo, Word::Buffalo), payment.amount,
            MemberDeposit::On(payment.memberNo, payment.date), payment.kapat, payment.netAmount,
            payment.previousBalance + payment.previousAdvance,
            payment.currentBalance + payment.previousAdvance, payment.ActualKapat(), payment.previousAdvance),
        u")"));
}

void PaymentRegister::StageDeposit(const Payment& payment) const
{
    const double current = MemberDeposit::On(payment.memberNo, payment.date);
    const double before =
        OpeningDeposit(payment.memberNo) + MemberDeposit::Before(payment.memberNo, payment.date);
    gCn.Execute(
        Sql(u"insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,"
            u"MemberName,ThevKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) values(",
            Values(gAppState.gCompanyId, m_wanted.from, m_wanted.to, payment.date, payment.tranId,
                payment.memberNo, payment.memberName, current, before, before + current,
                payment.ActualKapat(), payment.previousAdvance),
            u")"));
}

// What the payment took back of the advance is its whole deduction, less the deposit.
void PaymentRegister::StageAdvance(const Payment& payment, double previous) const
{
    const double current = SumOfHeads(payment.memberNo, payment.date);
    gCn.Execute(
        Sql(u"insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,"
            u"MemberName,OtherKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) values(",
            Values(gAppState.gCompanyId, m_wanted.from, m_wanted.to, payment.date, payment.tranId,
                payment.memberNo, payment.memberName, current, previous, previous - payment.ActualKapat(),
                payment.ActualKapat(), payment.previousAdvance),
            u")"));
}

// What was unpaid before the period is no head of the summary; it counts as an advance.
void PaymentRegister::AddPreviousBalances(const Payment& payment) const
{
    for (Recordset row(gCn,
             Sql(u"Select * From MilkPaymentsDetails Where CompanyId=", gAppState.gCompanyId,
                 u" And TranDate=", SqlDay(payment.date), u" And MemberNo=", payment.memberNo,
                 u" And AdvanceType=", Quoted(Word::PreviousBalance)));
         !row.Eof(); row.MoveNext())
        gCn.Execute(Sql(u"Update KapatSummary Set Uchal=Uchal +", row[u"Amount"].Number(),
            u" Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=", payment.memberNo));
}
