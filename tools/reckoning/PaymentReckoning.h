#pragma once

#include "tools/reckoning/Compared.h"
#include "tools/reckoning/VoucherReckoning.h"

#include <optional>

// The payments of a society worked out a second time, from the raw rows of the deliveries and from the
// vouchers, and by other means than the screens: in exact decimals. It is told what the clerk does, and says
// what has to stand in the books. Sums are of less than 65536 rupees, which single precision holds to the
// paisa.
class PaymentReckoning {
public:
    VoucherReckoning Vouchers;

    // The settings of the payments as they stand in the open books. `byInstallments`: the box is ticked.
    void ReadSettings(bool byInstallments);

    // The members with their closing columns as they stand in the books before the first voucher and payment.
    void ReadMembers();

    // A member who comes later, and one who is deleted with all that is his.
    struct Columns {
        Exact balance, cow, buff, uchal;
    };
    void AddMember(int member, const QString& name, const Columns& closing);
    void Forget(int member);

    // As ReadMembers, for books where members have vouchers and are paid already: the closing columns before
    // all of that are the opening ones, and the vouchers are those in the books.
    void ReadOpening();

    // The clerk has opened the screen.
    void OpenScreen() { m_currentBalance = Exact(); }

    struct Period {
        QDate from;
        QDate to;
        QDate bill;
    };

    // Reads the deliveries of a period, before any of it is paid.
    void ReadMilk(const Period& period);

    // What the clerk has keyed over the figures that were proposed.
    struct Keyed {
        std::optional<Exact> cowDeposit;
        std::optional<Exact> uchal;
    };

    void Pay(int member, const Period& period, const Keyed& keyed = {});

    // What is proposed to be deducted.
    Exact Proposed(int member, const Period& period) const;

    // Pays those of a range who have milk and aren't paid yet. Tells of each of the others why he isn't.
    struct Passed {
        std::vector<int> paidBefore;
        std::vector<int> withoutMilk;
    };
    Passed PayMany(int first, int last, const Period& period);

    void TakeBack(int member, const QDate& from);

    // What has to stand in the books, as sorted lines of "select *". What the books hold in single precision
    // is told to the paisa.
    QStringList Payments() const;
    QStringList Details() const;
    QStringList Recoveries() const;
    QStringList Closing() const; // MemberNo and the four columns

    // All of it, beside the rows that stand in the open books.
    std::vector<Compared> Comparison() const;

    // What a member owes at the end of a day: what was given less what came back, by voucher or by payments.
    Exact Owed(int member, const QDate& at) const;
    Exact Given(int member, const QDate& from, const QDate& to) const;
    Exact CameBack(int member, const QDate& from, const QDate& to) const;

    // All that stands in the books of a member's money.
    struct Year {
        Exact paid, cowDeposits, buffDeposits, paiseDeposits, given, receipts, recoveries;
    };
    Year YearOf(int member) const;

private:
    using Row = MoneyRow;
    struct Payment {
        Period period;
        int number = 0;
        int member = 0;
        QString name;
        QString animal;
        Exact cowLitres, buffLitres, cowAmount, buffAmount, amount;
        Exact cowDeposit, buffDeposit, uchal, net, previous, current, fixed;
    };
    struct Heads {
        std::vector<Row> rows;
        Exact previous;
        Exact owed; // what is outstanding, by installment or by all heads
        Exact deducted; // the same for the sum of what is deducted
    };

    struct Delivery {
        QDate day;
        int member = 0;
        QString animal;
        Exact litres, amount;
    };

    bool IsPaid(int member, const Period& period) const;
    Exact Milk(Exact Delivery::*figure, int member, const Period& period, const char* animal) const;
    Payment MilkOf(int member, const Period& period) const;
    std::map<QString, Exact> SumsOf(int member, const Period& period) const;
    Heads HeadsOf(int member, const Period& period) const;
    void TakeReceiptsOff(std::vector<Row>& heads, int member, const Period& period) const;
    int NextNumber(const QDate& bill) const;
    void MoveClosing(const Payment& payment, int sign);

    Exact m_cowRate, m_buffRate, m_fixed;
    QString m_paise;
    std::optional<std::map<int, Exact>> m_installments;
    Exact m_currentBalance;
    std::vector<Delivery> m_deliveries;
    std::vector<Payment> m_payments;
    std::vector<Row> m_details;
    std::vector<Row> m_recoveries;
    std::map<int, Columns> m_closing;
};
