#include "reports/PaySlips.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/DayLines.h"
#include "reports/KapatSummary.h"
#include "reports/MemberDeposit.h"
#include "reports/ReportRun.h"
#include "reports/StagingProgress.h"
#include "society/PaymentPeriod.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr QStringView FixedKapatLabel = u"isqar kpat"; // स्थिर कपात

// A slip has at least these day lines of an animal, if it would have fewer than the other number.
constexpr int LeastDays = 7;
constexpr int EnoughDays = 6;

// The days of receipts that lower the balance from before, whatever the duration of the period.
constexpr int DaysOfReceipts = 9;

struct Kapat {
    QStringView label;
    double value = 0;
};

// What is kept back, by head; of two rows of one head the last stands.
struct Heads {
    double uchal = 0;
    double khadya = 0;
    double kirana = 0;
    double other = 0;
};

}

QString PaySlips::Condition() const
{
    return Sql(u"MilkPayments where CompanyId=", gAppState.gCompanyId, u" and PaymentDate=",
        SqlDay(m_wanted.paymentDate), u" and MemberNo>=", m_wanted.fromNo, u" and MemberNo<=", m_wanted.toNo);
}

bool PaySlips::Any() const
{
    return Finds(u"select * from " + Condition());
}

void PaySlips::Stage(StagingProgress& progress) const
{
    const bool repeats = ReportRun::RepeatsCollections();
    progress.Announce();
    Transaction staging(gCn);
    ReportRun::Empty({u"MilkPaymentsTemp", u"MilkCollectionsTemp", u"MilkCollectionsME", u"KapatSummary",
        u"KapatDetails"});
    const Payments payments = CopyPayments();
    CopyCollections(payments);
    const KapatSummary summary;
    progress.Begin(static_cast<int>(payments.size()));
    for (auto at = payments.begin(); at != payments.end();) {
        const auto next = std::find_if(
            at, payments.end(), [&](const Payment& payment) { return payment.memberNo != at->memberNo; });
        progress.Tell(at->memberNo, at->memberName);
        for (auto payment = at; payment != next; ++payment) {
            StageDays(*payment, repeats);
            summary.Stage(payment->memberNo, payment->from, payment->to);
            progress.Step();
        }
        StageMember(at->memberNo);
        std::for_each(at, next, [this](const Payment& payment) { RemoveEmptyAnimals(payment); });
        at = next;
    }
    ReportRun::Tidy(u"MilkPaymentsTemp");
    ReportRun::Tidy(u"MilkCollectionsTemp");
    staging.Commit();
}

PaySlips::Payments PaySlips::CopyPayments() const
{
    gCn.Execute(u"insert into MilkPaymentsTemp select * from " + Condition());
    Payments payments;
    for (Recordset row(gCn, u"select * from MilkPaymentsTemp order by MemberNo"); !row.Eof(); row.MoveNext())
        payments.push_back({row[u"MemberNo"].Number(), row[u"MemberName"].Text(), row[u"FromDate"].Date(),
            row[u"ToDate"].Date(), row[u"LitersCow"].Number(), row[u"LitersBuff"].Number()});
    return payments;
}

// From the first day of the earliest period to the last of the latest. What lies before the current data
// comes from last year's. The signs keep the engine from the index of the members: the days are few, and of
// the members mostly all.
void PaySlips::CopyCollections(const Payments& payments) const
{
    QDate from = m_wanted.from;
    QDate to = m_wanted.to;
    for (const Payment& payment : payments) {
        from = std::min(from, payment.from);
        to = std::max(to, payment.to);
    }
    const SqlText bounds = Sql(u"CollectionDate>=", SqlDay(from), u" and CollectionDate<=", SqlDay(to),
        u" and +MemberNo>=", m_wanted.fromNo, u" and +MemberNo<=", m_wanted.toNo);
    if (ReportRun::ReachesIntoLastYear(from))
        gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollectionsOld where ", bounds));
    gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=",
        gAppState.gCompanyId, u" and ", bounds));
}

void PaySlips::StageDays(const Payment& payment, bool repeats) const
{
    const DayLines lines = DayLines::OfMember({payment.memberNo, payment.memberName}, {repeats, true, false});
    for (QDate day = payment.from; day <= payment.to; day = day.addDays(1))
        for (const QStringView animal : Animals)
            lines.Write(day, animal);
}

void PaySlips::StageMember(double memberNo) const
{
    StageKapat(memberNo);
    FillUpDays(memberNo);
    StageDeposit(memberNo);
}

// The heads beside the days. The date of a row only puts it on the line of that day.
void PaySlips::StageKapat(double memberNo) const
{
    const SqlText ofMember = Sql(SqlDay(m_wanted.paymentDate), u" And MemberNo=", memberNo);
    const Recordset payment(
        gCn, Sql(u"Select * From MilkPayments Where PaymentDate=", ofMember, u" order by rowid"));
    const double fixedKapat = payment[u"FixedKapat"].Number();
    const double previous = PreviousBalance(memberNo, payment[u"PreviousAdvance"].Number());
    Heads heads;
    for (Recordset row(
             gCn, Sql(u"Select * From MilkPaymentsDetails Where TranDate=", ofMember, u" order by rowid"));
         !row.Eof(); row.MoveNext()) {
        const QString type = row[u"AdvanceType"].Text();
        const double amount = row[u"Amount"].Number();
        if (type == Word::Uchal)
            heads.uchal = amount;
        else if (type == Word::Khadya)
            heads.khadya = amount;
        else if (type == Word::Kirana)
            heads.kirana = amount;
        else if (type == Word::OtherUchal)
            heads.other = amount - fixedKapat;
    }
    std::vector<Kapat> lines{{Word::PreviousBalance, previous}, {Word::Uchal, heads.uchal},
        {Word::Khadya, heads.khadya}, {Word::Kirana, heads.kirana}, {Word::OtherUchal, heads.other},
        {FixedKapatLabel, fixedKapat}};
    lines.resize(gAppState.gPaymentDuration == PaymentPeriod::HalfMonth ? 16 : 11);
    QDate day = m_wanted.from;
    for (const Kapat& line : lines) {
        gCn.Execute(Sql(u"Insert Into KapatDetails(CompanyId,MemberNo,CollectionDate,Label1,Value1) Values(",
            Values(gAppState.gCompanyId, memberNo, day, line.label, line.value), u")"));
        day = day.addDays(1);
    }
}

double PaySlips::PreviousBalance(double memberNo, double previousAdvance) const
{
    double balance = previousAdvance;
    for (Recordset receipt(gCn,
             Sql(u"Select * From AdvanceReceipt Where TranDate>=",
                 SqlDay(m_wanted.paymentDate.addDays(-DaysOfReceipts)), u" And TranDate<=",
                 SqlDay(m_wanted.paymentDate), u" AND MemberNo=", memberNo, u" AND AdvanceType=",
                 Quoted(Word::UchalReceipt)));
         !receipt.Eof(); receipt.MoveNext())
        balance -= receipt[u"Amount"].Number();
    return balance;
}

void PaySlips::FillUpDays(double memberNo) const
{
    for (const QStringView animal : Animals) {
        QSet<QDate> days;
        int lines = 0;
        for (Recordset row(gCn,
                 Sql(u"Select CollectionDate From MilkCollectionsME Where CompanyId=", gAppState.gCompanyId,
                     u" And MemberNo=", memberNo, u" And Animal=", Quoted(animal)));
             !row.Eof(); row.MoveNext()) {
            days.insert(row[u"CollectionDate"].Date());
            ++lines;
        }
        for (int i = 0; lines < EnoughDays && i < LeastDays; ++i) {
            const QDate day = m_wanted.from.addDays(i);
            if (!days.contains(day))
                gCn.Execute(
                    Sql(u"Insert Into MilkCollectionsME(CompanyId,CollectionDate,MemberNo,Animal) Values(",
                        Values(gAppState.gCompanyId, day, memberNo, animal), u")"));
        }
    }
}

// The deposit now is of single precision.
void PaySlips::StageDeposit(double memberNo) const
{
    const double previous = MemberDeposit::Before(memberNo, m_wanted.paymentDate);
    const double current = MemberDeposit::On(memberNo, m_wanted.paymentDate);
    gCn.Execute(Sql(u"Update KapatSummary set PrevThev=", previous, u",CurrentThev=", current, u",BalThev=",
        static_cast<float>(previous + current), u" Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=",
        memberNo));
}

// A member who sells the milk of one animal has one block on the slip.
void PaySlips::RemoveEmptyAnimals(const Payment& payment) const
{
    const std::array sold{payment.litersCow, payment.litersBuff};
    for (std::size_t i = 0; i < sold.size(); ++i)
        if (sold.at(i) <= 0)
            gCn.Execute(Sql(u"DELETE * FROM MilkCollectionsME WHERE CollectionDate>=", SqlDay(payment.from),
                u" AND CollectionDate<=", SqlDay(payment.to), u" AND MemberNo=", payment.memberNo,
                u" AND Animal=", Quoted(Animals[i])));
}
