#pragma once

#include "platform/database/Sql.h"

#include <QDate>
#include <QString>

#include <map>
#include <utility>
#include <vector>

// Follows the payments that come and go, and says what has to stand behind them in the recoveries, in the
// details and in the members' closing columns. It begins with none of them, and with columns of 0. The
// vouchers and receipts of the society stay as they are.
class PaymentTrail {
public:
    // Looks at the payments: at most one was saved or taken back since the last look, or a run was made.
    // Returns how many have come.
    int Follow();

    // Whether the recoveries are those of the payments, the details too, and each member owes what he was
    // given less what came back.
    void ExpectBooks() const;

    // Whether what the closing columns were moved by is what the payments that stand say. The larger the
    // figures, the more of them single precision has rounded away.
    void ExpectBalances() const;

    int Saved = 0;
    int TakenBack = 0;

private:
    struct Payment {
        int member = 0;
        QDate from, to, bill;
        int number = 0;
        double amount = 0, kapat = 0, net = 0, uchal = 0, cow = 0, buff = 0, fixed = 0, previous = 0;
    };
    using Payments = std::map<std::pair<int, QDate>, Payment>;
    struct Row {
        int member = 0;
        QDate day;
        int number = 0;
        QString type; // the heads of what is owed have none
        double amount = 0;
    };

    static Payments Read();
    static std::vector<Row> RowsOf(QStringView table, const SqlText& which);
    static bool AreAlike(const Row& one, const Row& other);
    static void Add(std::vector<Row>& rows, const Row& added);
    static void ExpectAlike(const std::vector<Row>& wanted, const std::vector<Row>& found);

    double Owed(const Payment& payment) const;
    double HeadsOf(const Payment& payment) const;
    void Pay(const Payment& payment);
    static double LeftByInstallment(const Payment& payment, double heads);
    double PaiseToDeposit(const Payment& payment, double heads) const;
    void TakeBack(const Payment& payment);

    Payments m_payments;
    std::vector<Row> m_recoveries;
    std::vector<Row> m_details;
    double m_largest = 0; // of all figures that were ever posted
};
