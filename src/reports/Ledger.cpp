#include "reports/Ledger.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Painting.h"
#include "reports/ReportRun.h"
#include "reports/StagingProgress.h"

#include <algorithm>

namespace {

constexpr QStringView DebitSide = u"D";
constexpr QStringView CreditSide = u"C";

Currency WithoutSign(Currency amount)
{
    return amount < Currency() ? Currency() - amount : amount;
}

}

bool Ledger::Stage(StagingProgress& progress)
{
    Transaction staging(gCn);
    Open();
    BringForward(progress);
    ReportRun::Empty({u"LedgersMaster"});
    Entries entries;
    Read(Sql(u"TranDate>=", SqlDay(m_wanted.from), u" And TranDate<=", SqlDay(m_wanted.to),
             u" order by TranDate,tranId"),
        [&](const Recordset& row) { entries.push_back(EntryOf(row)); });
    StageEntries(entries, progress);
    const bool isFilled = !entries.empty() || StageBalance();
    gCn.Execute(u"Delete * from LedgersMaster where DAmount=0 and CAmount=0");
    staging.Commit();
    progress.End();
    return isFilled;
}

void Ledger::Read(const SqlText& days, const std::function<void(const Recordset&)>& take) const
{
    const SqlText name = Quoted(m_wanted.name);
    for (Recordset row(gCn,
             Sql(u"Select * from TransactionsMaster where CompanyId=", gAppState.gCompanyId,
                 u" And (trim(DAccountName)=", name, u" Or trim(CAccountName)=", name, u") And ", days));
         !row.Eof(); row.MoveNext()) {
        take(row);
        Painting::RepaintInTime();
    }
}

Ledger::Posting Ledger::PostingOf(const Recordset& row)
{
    return {row[u"DAccountName"].Text(), row[u"CAccountName"].Text(), row[u"Amount"].Number()};
}

Ledger::Entry Ledger::EntryOf(const Recordset& row)
{
    return {row[u"TranDate"].Date(), row[u"TranId"].Number(), row[u"TranType"].Text(), PostingOf(row),
        {row[u"Narration"].Text(), row[u"Narration2"].Text(), row[u"Narration3"].Text()}};
}

// The opening of the year, with the side that is written beside it. Nobody looks whether there is such an
// account.
void Ledger::Open()
{
    const Recordset account(gCn,
        Sql(u"Select * from AccountsMaster where CompanyId=", gAppState.gCompanyId, u" And AccountName=",
            Quoted(m_wanted.name)));
    if (account.Eof())
        return;
    m_balance = Currency(account[u"OpeningBalance"].Number());
    m_side = account[u"OpeningDorC"].Text();
}

// The opening of the first day; the side of the year's opening stands if nothing happened before.
void Ledger::BringForward(StagingProgress& progress)
{
    const bool hasYears = TakeYears();
    const QDate yearBegins(m_wanted.from.year(), 1, 1);
    std::vector<Posting> before;
    Read(Sql(u"TranDate>=", SqlDay(yearBegins), u" And TranDate<", SqlDay(m_wanted.from),
             u" order by TranDate,TranId"),
        [&](const Recordset& row) { before.push_back(PostingOf(row)); });
    progress.Begin(static_cast<int>(before.size()));
    for (const Posting& posting : before) {
        Take(posting);
        progress.Step();
    }
    if (hasYears || !before.empty())
        m_side = Side();
    m_debits = Side() == DebitSide ? WithoutSign(m_balance) : Currency();
    m_credits = Side() == CreditSide ? m_balance : Currency();
}

// The whole years before that of the first day, whose sums the engine keeps: so the opening costs what its
// year costs, however old the society is. Returns whether anything happened in them.
bool Ledger::TakeYears()
{
    const Recordset years(gCn,
        Sql(u"Select sum(Entries) as Entries,sum(Amount) as Amount from AccountYearSums where CompanyId=",
            gAppState.gCompanyId, u" And AccountName=", Quoted(m_wanted.name), u" And Year<",
            Quoted(m_wanted.from.toString(u"yyyy"))));
    m_balance += Currency(years[u"Amount"].Number());
    return years[u"Entries"].Number() > 0;
}

void Ledger::StageEntries(const Entries& entries, StagingProgress& progress)
{
    progress.Begin(static_cast<int>(entries.size()));
    QDate day;
    for (const Entry& entry : entries) {
        if (entry.date != day)
            BeginDay(entry.date);
        day = entry.date;
        StageLine(entry);
        progress.Step();
    }
}

// A day's totals begin with the balance, on its own side. What its lines have in common is written once.
void Ledger::BeginDay(const QDate& day)
{
    m_beginning =
        Sql(u"Insert into LedgersMaster(LedgerName,FromDate,ToDate,CompanyId,TranDate,TranId,TranType,"
            u"AccountName,DAmount,CAmount,Narration,Narration2,Narration3,OpeningBalance,OpeningDorC,"
            u"ClosingBalance,ClosingDorC,Total) values(",
            Values(m_wanted.name, m_wanted.from, m_wanted.to, gAppState.gCompanyId), u",", SqlDay(day));
    const Currency balance = WithoutSign(m_balance);
    if (m_side == DebitSide) {
        m_debits = balance;
        m_credits = {};
    } else if (m_side == CreditSide) {
        m_debits = {};
        m_credits = balance;
    }
}

// Moves balance and totals. With the account on both sides both are moved, and the credit is what is told.
Ledger::Line Ledger::Take(const Posting& posting)
{
    const Currency amount(posting.amount);
    Line line;
    if (posting.debited.trimmed() == m_wanted.name) {
        line = {posting.credited, posting.amount, 0};
        m_balance -= amount;
        m_debits += amount;
    }
    if (posting.credited.trimmed() == m_wanted.name) {
        line = {posting.debited, 0, posting.amount};
        m_balance += amount;
        m_credits += amount;
    }
    return line;
}

void Ledger::StageLine(const Entry& entry)
{
    const double opening = Balance();
    const QString openingSide = m_side;
    const Line line = Take(entry.posting);
    m_side = Side();
    const auto& [narration, narration2, narration3] = entry.narrations;
    gCn.Execute(Sql(m_beginning, u",",
        Values(entry.tranId, entry.type, line.contra, line.debit, line.credit, narration, narration2,
            narration3, opening, openingSide, Balance(), m_side, std::max(m_debits, m_credits).Number()),
        u")"));
}

double Ledger::Balance() const
{
    return WithoutSign(m_balance).Number();
}

// Without a transaction the balance is the only row, and a balance of nought is none.
bool Ledger::StageBalance() const
{
    if (m_balance == Currency())
        return false;
    const double balance = Balance();
    const bool isDebit = Side() == DebitSide;
    gCn.Execute(Sql(
        u"Insert into LedgersMaster(LedgerName,FromDate,ToDate,CompanyId,TranDate,DAmount,CAmount) values(",
        Values(m_wanted.name, m_wanted.from, m_wanted.to, gAppState.gCompanyId, m_wanted.from,
            isDebit ? balance : 0.0, isDebit ? 0.0 : balance),
        u")"));
    return true;
}

QString Ledger::Side() const
{
    return (m_balance > Currency() ? CreditSide : DebitSide).toString();
}
