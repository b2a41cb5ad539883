#pragma once

#include <QDate>
#include <QStringList>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

// A figure in exact decimals, in hundred-thousandths: rupees, litres, rupees a litre.
class Exact {
public:
    Exact() = default;
    static Exact Of(double figure); // one of at most five decimals
    static Exact OfUnits(std::int64_t units) { return Exact(units); }

    Exact operator+(Exact other) const { return Exact(m_units + other.m_units); }
    Exact operator-(Exact other) const { return Exact(m_units - other.m_units); }
    Exact operator-() const { return Exact(-m_units); }
    Exact& operator+=(Exact other) { return *this = *this + other; }
    auto operator<=>(const Exact& other) const = default;

    // Litres at a rate, to the paisa, half away from zero.
    Exact Times(Exact rate) const;

    // Half a paisa goes away from zero.
    Exact ToThePaisa() const;

    // The digits behind the point, whatever the sign.
    Exact Paise() const;

    // Its shortest form: "12.5".
    QString Text() const;

private:
    explicit Exact(std::int64_t units) : m_units(units) { }
    std::int64_t m_units = 0;
};

// The payments of a society worked out a second time, from the raw rows of deliveries, vouchers and receipts,
// and by other means than the screens: in exact decimals. It is told what the clerk does, and says what has
// to stand in the books. Sums are of less than 100000 rupees, which single precision holds to the paisa.
class PaymentReckoning {
public:
    // The settings of the payments as they stand in the open books. `byInstallments`: the box is ticked.
    void ReadSettings(bool byInstallments);

    // The closing columns as they stand in the books before the first payment.
    void ReadClosing();

    // The closing columns before the first payment as the members' opening columns and all vouchers and
    // receipts make them, for books where members are paid already.
    void ReadOpening();

    // The clerk has opened the screen.
    void OpenScreen() { m_currentBalance = Exact(); }

    // Pays a member for a period. `uchal`: what the clerk has keyed as the deduction.
    struct Period {
        QDate from;
        QDate to;
        QDate bill;
    };
    void Pay(int member, const Period& period, const std::optional<Exact>& uchal = std::nullopt);

    // Pays those of a range who have milk and aren't paid yet.
    void PayMany(int first, int last, const Period& period);

    void TakeBack(int member, const QDate& from);

    // What has to stand in the books, as rows of "select *" in an order of their own.
    QStringList Payments() const;
    QStringList Details() const;
    QStringList Recoveries() const;
    QStringList Closing() const; // MemberNo and the four columns

    // What a member owes: what was given less what came back, by voucher or by payments.
    Exact Owed(int member) const;

private:
    struct Row { // of a voucher, a receipt, a recovery or a detail
        QDate day;
        int member = 0;
        QString type;
        Exact amount;
        int number = 0;
    };
    struct Payment {
        Period period;
        int number = 0;
        int member = 0;
        QString name;
        QString animal;
        Exact cowLitres, buffLitres, cowAmount, buffAmount, amount;
        Exact cowDeposit, buffDeposit, uchal, net, previous, current, fixed;
    };
    struct Columns {
        Exact balance, cow, buff, uchal;
    };
    struct Heads {
        std::vector<Row> rows;
        Exact previous;
        Exact owed; // what is outstanding, by installment or by all heads
        Exact deducted; // the same for the sum of what is deducted
    };

    static std::vector<Row> RowsOf(const char* table, int member);
    static Exact Milk(const char* column, int member, const Period& period, const char* animal);
    Heads HeadsOf(int member, const Period& period) const;
    void TakeReceiptsOff(std::vector<Row>& heads, int member, const Period& period) const;
    int NextNumber(const QDate& bill) const;
    void MoveClosing(const Payment& payment, int sign);

    Exact m_cowRate, m_buffRate, m_fixed;
    QString m_paise;
    std::optional<std::map<int, Exact>> m_installments;
    Exact m_currentBalance;
    std::vector<Payment> m_payments;
    std::vector<Row> m_details;
    std::vector<Row> m_recoveries;
    std::map<int, Columns> m_closing;
};
