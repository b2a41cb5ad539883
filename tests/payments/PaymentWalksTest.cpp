// Keys without sense over the payments: it never breaks, and the balances hold.

#include "tests/payments/PaymentsTest.h"

#include "platform/database/Sql.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <random>
#include <tuple>

namespace {

// Follows the payments that come and go, and says what has to stand behind them in the recoveries and in the
// details. The vouchers and receipts of the society stay as they are.
class PaymentTrail {
public:
    // Looks at the payments: at most one was saved or taken back since the last look, or a run was made.
    // Returns how many have come.
    int Follow()
    {
        const Payments now = Read();
        int come = 0;
        for (const auto& [key, payment] : m_payments)
            if (!now.contains(key))
                TakeBack(payment);
        for (const auto& [key, payment] : now)
            if (!m_payments.contains(key)) {
                Pay(payment);
                ++come;
            }
        m_payments = now;
        return come;
    }

    // Whether the recoveries are those of the payments, the details too, and each member owes what he was
    // given less what came back.
    void ExpectBooks() const
    {
        ExpectAlike(m_recoveries, RowsOf(u"AdvanceReceipt", u" where AdvanceType='Uchal Kapat'"));
        ExpectAlike(m_details, RowsOf(u"MilkPaymentsDetails", u""));
        for (const int member : {5, 12}) {
            double recovered = 0;
            for (const Row& row : m_recoveries)
                recovered += row.member == member ? row.amount : 0;
            const SqlText his = Sql(u" where MemberNo=", member);
            const double received = Sum(u"AdvanceReceipt", Sql(his, u" and AdvanceType='Uchal Receipt'"));
            const double given = Sum(u"TransactionsDetails", his);
            EXPECT_NEAR(given - Sum(u"AdvanceReceipt", his), given - received - recovered, Near(recovered));
        }
    }

private:
    // To the paisa, as long as single precision holds the figure so.
    static double Near(double figure) { return std::max(0.005, std::abs(figure) * 1e-6); }

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

    static Payments Read()
    {
        Payments payments;
        for (Recordset row(gCn, u"select * from MilkPayments"); !row.Eof(); row.MoveNext()) {
            const auto number = [&](QStringView column) { return row[column].Number(); };
            const Payment payment{static_cast<int>(number(u"MemberNo")), row[u"FromDate"].Date(),
                row[u"ToDate"].Date(), row[u"PaymentDate"].Date(), static_cast<int>(number(u"TranId")),
                number(u"Amount"), number(u"Kapat"), number(u"NetAmount"), number(u"TotalUchal"),
                number(u"ThevKapatCow"), number(u"ThevKapatBuff"), number(u"FixedKapat"),
                number(u"PreviousAdvance")};
            payments[{payment.member, payment.from}] = payment;
        }
        return payments;
    }

    static double Sum(QStringView table, const SqlText& rows)
    {
        return Recordset(gCn, Sql(u"select sum(Amount) as TAmount from ", table, rows))[u"TAmount"].Number();
    }

    // As they stand in the books, those of the heads in one.
    static std::vector<Row> RowsOf(QStringView table, const SqlText& which)
    {
        std::vector<Row> rows;
        for (Recordset row(gCn, Sql(u"select * from ", table, which)); !row.Eof(); row.MoveNext()) {
            QString type = row[u"AdvanceType"].Text();
            if (!type.endsWith(u"zova") && type != u"Uchal Kapat")
                type.clear();
            Add(rows,
                {static_cast<int>(row[u"MemberNo"].Number()), row[u"TranDate"].Date(),
                    static_cast<int>(row[u"TranId"].Number()), type, row[u"Amount"].Number()});
        }
        return rows;
    }

    static bool AreAlike(const Row& one, const Row& other)
    {
        return std::tie(one.member, one.day, one.number, one.type)
            == std::tie(other.member, other.day, other.number, other.type);
    }

    static void Add(std::vector<Row>& rows, const Row& added)
    {
        for (Row& row : rows)
            if (AreAlike(row, added)) {
                row.amount += added.amount;
                return;
            }
        rows.push_back(added);
    }

    static void ExpectAlike(const std::vector<Row>& wanted, const std::vector<Row>& found)
    {
        EXPECT_EQ(found.size(), wanted.size());
        for (const Row& row : wanted) {
            const auto same =
                std::ranges::find_if(found, [&](const Row& other) { return AreAlike(row, other); });
            ASSERT_NE(same, found.end()) << row.member << " on " << DateText(row.day).toStdString()
                                         << " number " << row.number << ' ' << row.type.toStdString();
            EXPECT_NEAR(same->amount, row.amount, Near(row.amount)) << row.type.toStdString();
        }
    }

    // What was given before or in a period, less what came back then, recoveries as they stood at that time.
    double Owed(const Payment& payment) const
    {
        const SqlText before =
            Sql(u" where MemberNo=", payment.member, u" and TranDate<", SqlDay(payment.from));
        double owed = Sum(u"TransactionsDetails", before)
            - Sum(u"AdvanceReceipt", Sql(before, u" and AdvanceType='Uchal Receipt'"));
        for (const Row& row : m_recoveries)
            if (row.member == payment.member && row.day < payment.from)
                owed -= row.amount;
        return owed;
    }

    double HeadsOf(const Payment& payment) const
    {
        const SqlText within = Sql(u" where MemberNo=", payment.member, u" and TranDate>=",
            SqlDay(payment.from), u" and TranDate<=", SqlDay(payment.to));
        double heads = std::max(Owed(payment), 0.0) + Sum(u"TransactionsDetails", within);
        if (payment.bill >= payment.from && payment.bill <= payment.to)
            heads -= Sum(u"AdvanceReceipt", Sql(within, u" and AdvanceType='Uchal Receipt'"));
        return std::max(heads, 0.0) + payment.fixed;
    }

    void Pay(const Payment& payment)
    {
        EXPECT_NEAR(payment.previous, Owed(payment), Near(payment.previous));
        const auto detail = [&](const QString& type, double amount) {
            if (amount > 0)
                Add(m_details, {payment.member, payment.bill, 0, type, amount});
        };
        const double heads = HeadsOf(payment);
        detail({}, heads);
        detail(QStringLiteral("gaaya zova"), payment.cow);
        detail(QStringLiteral("mhOsa zova"), payment.buff);
        detail(QStringLiteral("zova"), PaiseToDeposit(payment, heads));
        if (payment.uchal != 0)
            Add(m_recoveries,
                {payment.member, payment.bill, payment.number + 1, QStringLiteral("Uchal Kapat"),
                    payment.uchal - payment.fixed});
    }

    // What of the milk is neither deducted nor paid out: the paise. A deduction that the clerk has left as it
    // was proposed leaves out the paise of the heads, too.
    double PaiseToDeposit(const Payment& payment, double heads) const
    {
        double had = 0;
        for (const Row& row : m_details)
            if (row.member == payment.member && row.day == payment.bill && row.type == u"zova")
                had = row.amount;
        const double paise = Sum(u"MilkPaymentsDetails",
                                 Sql(u" where MemberNo=", payment.member, u" and TranDate=",
                                     SqlDay(payment.bill), u" and AdvanceType='zova'"))
            - had;
        EXPECT_GE(paise, -Near(0));
        EXPECT_LT(paise, 1);
        const double rest = payment.amount - payment.kapat - payment.net - paise;
        EXPECT_TRUE(std::abs(rest) < Near(0) || std::abs(rest - (heads - std::floor(heads))) < Near(heads))
            << rest;
        return paise;
    }

    // All recoveries of the bill's date go, and the details by the days of the period.
    void TakeBack(const Payment& payment)
    {
        std::erase_if(m_recoveries,
            [&](const Row& row) { return row.member == payment.member && row.day == payment.bill; });
        std::erase_if(m_details, [&](const Row& row) {
            return row.member == payment.member && row.day >= payment.from && row.day <= payment.to;
        });
    }

    Payments m_payments;
    std::vector<Row> m_recoveries;
    std::vector<Row> m_details;
};

class PaymentWalksTest : public PaymentsTest, public ::testing::WithParamInterface<unsigned> {
protected:
    PaymentWalksTest() : m_dice(GetParam())
    {
        AddExample();
        AddMilk(12, "05/04/2026", "mhOsa", 40, 2000.25);
        AddMilk(12, "15/04/2026", "mhOsa", 30, 1500.75);
        AddMilk(5, "15/04/2026", "gaaya", 20, 700.55);
        AddVoucher("14/04/2026", 12, "]cala", 300);
        AddReceipt("16/04/2026", 12, "Uchal Receipt", 120.5);
        Set("DecimalPayment='AddThev'");
    }

    int Throw(std::size_t sides) { return static_cast<int>(m_dice() % sides); }

    // Mostly what moves, then figures, orders, and stretches that lead somewhere.
    QString NextKeys()
    {
        static constexpr const char* Moves[] = {"{ENTER}", "{ENTER}", "{ENTER}", "{TAB}", "+{TAB}", "{DOWN}",
            "{UP}", "{LEFT}", "{HOME}", "{BS}", "{DEL}", "n", "a", "."};
        static constexpr const char* Orders[] = {
            "%n", "%s", "%s", "%h", "%h", "%k", "%r", "%d", "%n", "{F5}", "{F2}", "{ESC}", " ", "%b"};
        static constexpr const char* Phrases[] = {"%n01042026{ENTER}{ENTER}5{ENTER}", "%s%h",
            "%n11042026{ENTER}{ENTER}12{ENTER}", "%n01042026{ENTER}20042026{ENTER}12{ENTER}",
            "%k01042026{ENTER}5{ENTER}", "%k11042026{ENTER}12{ENTER}", "%k",
            "{ENTER}{ENTER}{ENTER}100{ENTER}", "11042026{ENTER}{ENTER}1{ENTER}12{ENTER}{ENTER}",
            "+{TAB}+{TAB}01042026{ENTER}"};
        const int kind = Throw(100);
        if (kind < 50)
            return QLatin1String(Moves[Throw(std::size(Moves))]);
        if (kind < 65)
            return QString(QChar(u'0' + Throw(10))) + (Throw(3) > 0 ? QStringLiteral("{ENTER}") : QString());
        if (kind < 80)
            return QLatin1String(Orders[Throw(std::size(Orders))]);
        return QLatin1String(Phrases[Throw(std::size(Phrases))]);
    }

    double Sum(const char* expression, int member)
    {
        return One(QStringLiteral("select sum(%1) from MilkPayments where MemberNo=%2")
                       .arg(QLatin1String(expression))
                       .arg(member))
            .toDouble();
    }

    double Closing(const char* column, int member)
    {
        return One(QStringLiteral("select %1 from MembersMaster where MemberNo=%2")
                       .arg(QLatin1String(column))
                       .arg(member))
            .toDouble();
    }

    // What the closing columns were moved by is what the payments that stand say. The larger the figures, the
    // more of them single precision has rounded away.
    void ExpectBalances(double largest)
    {
        const double near = std::max(0.02, largest * 1e-5);
        for (const int member : {5, 12}) {
            EXPECT_NEAR(Closing("ClosingUchal", member), -Sum("TotalUchal", member), near);
            EXPECT_NEAR(Closing("CowClosingThev", member), Sum("ThevKapatCow", member), near);
            EXPECT_NEAR(Closing("BuffClosingThev", member), Sum("ThevKapatBuff", member), near);
            EXPECT_NEAR(Closing("ClosingBalance", member),
                Sum("TotalUchal-NetAmount-ThevKapatCow-ThevKapatBuff", member), near);
            EXPECT_NEAR(Sum("Kapat", member), Sum("TotalUchal+ThevKapatCow+ThevKapatBuff", member), near);
        }
    }

private:
    std::mt19937 m_dice;
};

TEST_P(PaymentWalksTest, FiveThousandKeysNeverBreakItAndTheBalancesHold)
{
    constexpr int Keys = 5000;
    int typed = 0;
    int saved = 0;
    int reversed = 0;
    double largest = 0;
    int paidByRuns = 0;
    PaymentTrail trail;
    while (typed < Keys) {
        Play([&](Clerk& clerk) {
            if (Throw(4) > 0) {
                Type(clerk, "{DOWN}{ENTER}{ENTER}");
            } else if (Throw(2) > 0) {
                Type(clerk, "{DOWN}{DOWN}{ENTER}");
            } else {
                PayMany(clerk, "11042026", "1", "12");
                paidByRuns += trail.Follow();
            }
            int payments = One("select count(*) from MilkPayments").toInt();
            while (typed < Keys && !clerk.ScreenName().isEmpty()) {
                const QString keys = NextKeys();
                clerk.Type(keys);
                typed += static_cast<int>(ParseKeys(keys).size());
                const int now = One("select count(*) from MilkPayments").toInt();
                saved += now > payments ? 1 : 0;
                reversed += now < payments ? 1 : 0;
                if (now != payments)
                    trail.Follow();
                payments = now;
                for (const char* column :
                    {"Amount", "TotalUchal", "ThevKapatCow", "ThevKapatBuff", "NetAmount"})
                    for (const QString& figure :
                        Rows(QStringLiteral("select %1 from MilkPayments").arg(QLatin1String(column))))
                        largest = std::max(largest, std::abs(figure.toDouble()));
            }
        });
        ASSERT_FALSE(Failure) << "after " << typed << " keys";
        ExpectBalances(largest);
        trail.ExpectBooks();
        ASSERT_FALSE(HasFailure()) << "after " << typed << " keys";
    }
    EXPECT_GT(saved, 5);
    EXPECT_GT(reversed, 3);
    EXPECT_GT(paidByRuns, 0);
}

INSTANTIATE_TEST_SUITE_P(Dice, PaymentWalksTest, ::testing::Values(1U, 2U, 3U, 4U));

}
