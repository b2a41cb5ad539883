#pragma once

#include "tools/reckoning/Exact.h"

#include <QDate>
#include <QStringList>

#include <map>
#include <vector>

// What a row of the books says that a member was given, or gave back.
struct MoneyRow {
    QDate day;
    int member = 0;
    QString type;
    Exact amount;
    int number = 0;

    // The row of a table with the columns of TransactionsDetails, as a line.
    QString Line(int shownNumber) const;
};

// The vouchers of a society worked out a second time, in exact decimals and by other means than the screen.
// It is told what the clerk keys, and says what has to stand in the books.
class VoucherReckoning {
public:
    using Heads = std::vector<std::pair<QString, Exact>>;

    // Who is in the open books. They have no vouchers yet.
    void ReadMembers();

    // The vouchers that are in the books already, after ReadMembers.
    void ReadVouchers();

    void AddMember(int member, const QString& name) { m_names[member] = name; }

    // A member is deleted, and his vouchers with him.
    void Forget(int member);

    const QString& NameOf(int member) const { return m_names.at(member); }

    void Give(int member, const QDate& day, const Heads& heads);
    void TakeIn(int member, const QDate& day, Exact amount);

    // What the clerk does to the last voucher in the list of the advances or of the receipts.
    void ChangeLastAdvance(int member, const QString& head, Exact amount);
    void ChangeLastReceipt(Exact amount);
    void DeleteLastAdvance() { Delete(Last(false)); }
    void DeleteLastReceipt() { Delete(Last(true)); }
    int MemberOfLastAdvance() const { return m_vouchers[LastAt(false)].member; }

    // What has to stand in the books, as sorted lines of "select *"; of AdvanceReceipt the receipts alone.
    // Masters without the columns that are filled when a voucher is printed.
    QStringList Masters() const;
    QStringList Details() const { return LinesOf(m_given); }
    QStringList Receipts() const { return LinesOf(m_back); }

    // The two sides of a voucher, as it stands in TransactionsMaster.
    struct Posting {
        QDate day;
        int number = 0;
        QString type;
        QString debit;
        QString credit;
        Exact amount;
        QString billNo;
        QString narration;
    };
    std::vector<Posting> Postings() const; // by day and number

    // The rows of a member.
    const std::vector<MoneyRow>& Given(int member) const { return RowsOf(m_given, member); }
    const std::vector<MoneyRow>& Back(int member) const { return RowsOf(m_back, member); }

    // By how much the vouchers have raised a member's ClosingUchal, and lowered his ClosingBalance.
    Exact Moved(int member) const;

private:
    struct Voucher {
        QDate day;
        int number = 0;
        int member = 0;
        bool isReceipt = false;
        Heads heads;

        Exact Amount() const;
    };

    using RowsByMember = std::map<int, std::vector<MoneyRow>>;

    static const std::vector<MoneyRow>& RowsOf(const RowsByMember& rows, int member);
    static QStringList LinesOf(const RowsByMember& rows);
    int NextNumber(const QDate& day) const;
    std::size_t LastAt(bool isReceipt) const;
    Voucher& Last(bool isReceipt) { return m_vouchers[LastAt(isReceipt)]; }
    void Delete(const Voucher& voucher);
    void ListRows();

    std::map<int, QString> m_names;
    std::vector<Voucher> m_vouchers;
    RowsByMember m_given;
    RowsByMember m_back;
    std::map<int, Exact> m_moved;
};

// How the books write a day.
QString DayText(const QDate& day);
