// Keys without sense over the sales: they never break, and what is in the books is whole.

#include "tests/sales/MilkSalesTest.h"
#include "tests/sales/SalesLedger.h"

#include "platform/database/Sql.h"

#include <iterator>
#include <map>
#include <random>

namespace {

class MilkSalesWalksTest : public MilkSalesTest, public ::testing::WithParamInterface<unsigned> {
protected:
    MilkSalesWalksTest() : m_dice(GetParam())
    {
        AddDelivery(1, "sakaL", "gaaya", 5, 4.5);
        AddDelivery(2, "sakaL", "mhOsa", 7, 6.5);
        AddSale(1, "sakaL", "saMGa ivaËI", 2, "saMGa", "gaaya", 10);
        AddSale(1, "saMQyaakaL", "raoK", 0, "raoK", "mhOsa", 4);
    }

    int Throw(std::size_t sides) { return static_cast<int>(m_dice() % sides); }

    // Mostly what moves, then figures, orders, and stretches that lead somewhere.
    QString NextKeys()
    {
        static constexpr const char* Moves[] = {"{ENTER}", "{ENTER}", "{ENTER}", "{TAB}", "+{TAB}", "{DOWN}",
            "{UP}", "{LEFT}", "{HOME}", "{BS}", "{DEL}", "n", "a", "."};
        static constexpr const char* Orders[] = {"{F9}", "{F9}", "{F10}", "{F2}", "{ESC}", " ", " "};
        static constexpr const char* Phrases[] = {
            "{ENTER}raoK{ENTER}1{ENTER}2.5{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}",
            "{ENTER}saMGa{ENTER}2{ENTER}10.75{F9}11{ENTER} {ENTER}{ENTER}{ENTER}",
            "{ENTER}ha{^}Tola{ENTER}2{ENTER}1.015{ENTER}7{ENTER}55.55{ENTER}{ENTER}{ENTER}",
            "{UP}{ENTER}{ENTER}{ENTER}3.3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "{UP}{ENTER}{F10}",
            "{UP}{ENTER}{F10}", "{UP}{UP}{ENTER}{F10}", "+{TAB}+{TAB}15042026{ENTER}2{ENTER}",
            "+{TAB}+{TAB}14042026{ENTER}1{ENTER}"};
        const int kind = Throw(100);
        if (kind < 50)
            return QLatin1String(Moves[Throw(std::size(Moves))]);
        if (kind < 65)
            return QString(QChar(u'0' + Throw(10))) + (Throw(3) > 0 ? QStringLiteral("{ENTER}") : QString());
        if (kind < 75)
            return QLatin1String(Orders[Throw(std::size(Orders))]);
        return QLatin1String(Phrases[Throw(std::size(Phrases))]);
    }

    void ExpectWholeSales()
    {
        for (Recordset row(gCn, "select * from MilkSales"); !row.Eof(); row.MoveNext()) {
            const QString name = row[u"CustomerName"].Text();
            EXPECT_TRUE(QStringList({"raoK", "ha^Tola", "saMGa"}).contains(name)) << name.toStdString();
            EXPECT_EQ(row[u"CustomerNo"].Number(), name == u"saMGa" ? 2 : name == u"raoK" ? 0 : 1);
            EXPECT_TRUE(QStringList({"gaaya", "mhOsa"}).contains(row[u"Animal"].Text()));
            EXPECT_TRUE(QStringList({"sakaL", "saMQyaakaL"}).contains(row[u"SalesTime"].Text()));
            EXPECT_GT(row[u"Liters"].Number(), 0);
            EXPECT_GT(row[u"Rate"].Number(), 0);
            EXPECT_LE(row[u"Rate"].Number(), 60);
            EXPECT_GT(row[u"SalesNo"].Number(), 0);
        }
        const QStringList keys = Rows("select SalesDate,SalesTime,SalesNo from MilkSales");
        EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
        const QStringList books = Rows("select * from MilkSales");
        for (const QString& copied : Rows("select * from MilkSalesTemp"))
            EXPECT_TRUE(books.contains(copied)) << copied.toStdString();
    }

    // While a shift is open its list has its sales, and below it they are summed up.
    void ExpectTheOpenShift(Clerk& clerk)
    {
        if (CanEnter(clerk, "maskDate") || !CanEnter(clerk, "txtSalesNo"))
            return;
        const SqlText ofShift = Sql(u" where SalesDate=", Quoted(clerk.Reads("maskDate")), u" and SalesTime=",
            Quoted(clerk.Reads("txtTime")), u" order by SalesNo");
        EXPECT_EQ(Rows(Sql(u"select * from MilkSalesTemp", ofShift)).join(u'\n').toStdString(),
            Rows(Sql(u"select * from MilkSales", ofShift)).join(u'\n').toStdString());
        std::map<std::string, double> sums;
        for (Recordset sale(gCn, Sql(u"select * from MilkSales", ofShift)); !sale.Eof(); sale.MoveNext()) {
            const bool isOfFederation = sale[u"SalesType"].Text() == u"saMGa ivaËI";
            const bool isCow = sale[u"Animal"].Text() == u"gaaya";
            const std::string of =
                std::string(isOfFederation ? "lblUdhar" : "lblRokh") + (isCow ? "Cow" : "Buff");
            sums[of + "SaleLiter"] += sale[u"Liters"].Number();
            sums[of + "SaleAmt"] += sale[u"Amount"].Number();
        }
        for (const char* group : {"lblRokhCow", "lblRokhBuff", "lblUdharCow", "lblUdharBuff"})
            for (const auto& [sum, pattern] :
                {std::pair("SaleLiter", u"0.000"), std::pair("SaleAmt", u"0.00")}) {
                const std::string label = std::string(group) + sum;
                EXPECT_EQ(Label(clerk, label.c_str()), Format(sums[label], pattern).toStdString()) << label;
            }
    }

private:
    std::mt19937 m_dice;
};

TEST_P(MilkSalesWalksTest, ThreeThousandKeysNeverBreakItAndSalesLitresAndSumsAreWhole)
{
    constexpr int Keys = 3000;
    int typed = 0;
    SalesLedger ledger;
    while (typed < Keys && !HasFailure()) {
        QString last;
        Play([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            while (typed < Keys && !clerk.ScreenName().isEmpty() && !HasFailure()) {
                last = NextKeys();
                clerk.Type(last);
                typed += static_cast<int>(ParseKeys(last).size());
                ledger.Look();
                if (clerk.ScreenName() == u"frmMilkSales")
                    ExpectTheOpenShift(clerk);
            }
        });
        ASSERT_FALSE(Failure) << Failure->Text().toStdString() << "\nafter " << typed << " keys";
        ASSERT_FALSE(HasFailure()) << "after " << typed << " keys and " << last.toStdString();
        ExpectWholeSales();
    }
    EXPECT_GT(ledger.Entered, 5);
    EXPECT_GT(ledger.Changed, 2);
    EXPECT_GT(ledger.Deleted, 2);
}

INSTANTIATE_TEST_SUITE_P(Dice, MilkSalesWalksTest, ::testing::Values(1U, 2U));

}
