#pragma once

#include "platform/database/Sql.h"
#include "platform/text/Currency.h"

#include <QDate>
#include <QString>

#include <array>
#include <functional>
#include <vector>

class Recordset;
class StagingProgress;

// Stages the ledger of one account: what is brought forward to the first day, then its transactions, each
// with the balance before and after it. A balance at or below nought is on the debit side. Sums are exact.
class Ledger {
public:
    struct Wanted {
        QString name; // of the account, without blanks at its ends
        QDate from, to;
    };

    explicit Ledger(const Wanted& wanted) : m_wanted(wanted) { }

    // Fills LedgersMaster anew. False if there is nothing to print: no transaction in the days, and no
    // balance.
    bool Stage(StagingProgress& progress);

private:
    // What a transaction moves: an amount between two accounts.
    struct Posting {
        QString debited, credited;
        double amount = 0;
    };

    // A transaction of the account.
    struct Entry {
        QDate date;
        double tranId = 0;
        QString type;
        Posting posting;
        std::array<QString, 3> narrations;
    };
    using Entries = std::vector<Entry>;

    // What a transaction is in this ledger.
    struct Line {
        QString contra;
        double debit = 0;
        double credit = 0;
    };

    // Calls `take` with each transaction of the account in some days, in their order.
    void Read(const SqlText& days, const std::function<void(const Recordset&)>& take) const;
    static Posting PostingOf(const Recordset& row);
    static Entry EntryOf(const Recordset& row);

    void Open();
    void BringForward(StagingProgress& progress);
    bool TakeYears();
    void StageEntries(const Entries& entries, StagingProgress& progress);
    void BeginDay(const QDate& day);
    Line Take(const Posting& posting);
    void StageLine(const Entry& entry);
    double Balance() const;
    bool StageBalance() const;
    QString Side() const;

    Wanted m_wanted;
    Currency m_balance; // below nought on the debit side
    QString m_side; // "D" or "C"; for an account that isn't among the accounts, empty
    Currency m_debits, m_credits; // of the day, with what it began with
    SqlText m_beginning; // of the statement that stages a line of the day, up to the date
};
