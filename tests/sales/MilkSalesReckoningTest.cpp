// A shift of sales, changes and deletions, worked out a second time from the raw rows.

#include "tests/sales/MilkSalesTest.h"

#include "platform/text/Numbers.h"

#include <cmath>
#include <map>
#include <random>

namespace {

using MilkSalesReckoningTest = MilkSalesTest;

// Thousandths of a litre and paise of what the rows say, by group and animal.
struct Sums {
    qint64 millilitres = 0;
    qint64 paise = 0;
};

qint64 Whole(double value, double unit)
{
    return std::llround(value * unit);
}

// Books from elsewhere may hold more decimals than a paisa has. Each amount counts to the ten thousandth.
TEST_F(MilkSalesReckoningTest, TheSumsOfAShiftAreSumsOfCurrency)
{
    for (int sale = 1; sale <= 6; ++sale)
        AddSale(sale, "sakaL", "raoK", 0, "raoK", "gaaya", 1);
    Run("update MilkSales set Amount=0.00084");
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Label(clerk, "lblRokhCowSaleAmt"), "0.00") << "not 0.00504"; });
    Run("update MilkSales set Amount=0.00086");
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Label(clerk, "lblRokhCowSaleAmt"), "0.01") << "6 x 0.0009"; });
    EXPECT_FALSE(Failure);
}

TEST_F(MilkSalesReckoningTest, TheFiguresOfAShiftComeOutOfTheRawRowsAgain)
{
    std::mt19937 dice(20260415);
    const auto roll = [&](int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); };
    const char* keys[] = {"raoK", Hotel, "saMGa"};
    const char* names[] = {"raoK", "ha^Tola", "saMGa"};
    std::map<std::pair<int, bool>, qint64> closing; // in thousandths, by customer and whether it is cow milk
    for (const int customer : {1, 2})
        for (const bool isCow : {true, false})
            closing[{customer, isCow}] = 120000;
    const auto workOut = [&](int customer, bool isCow) {
        qint64 sum = 100000;
        for (Recordset row(gCn, "select * from MilkSales"); !row.Eof(); row.MoveNext())
            if (row[u"CustomerName"].Text() == names[customer]
                && (row[u"Animal"].Text() == u"gaaya") == isCow)
                sum += Whole(row[u"Liters"].Number(), 1000);
        closing[{customer, isCow}] = (sum + 5) / 10 * 10;
    };
    InTheMorning([&](Clerk& clerk) {
        for (int sale = 0; sale < 40; ++sale) {
            const int customer = roll(3);
            const bool isCow = roll(2) == 0;
            const std::string liters = std::to_string(1 + roll(90)) + '.' + std::to_string(100 + roll(900));
            const std::string rate = std::to_string(20 + roll(40)) + '.' + std::to_string(10 + roll(90));
            Sell(clerk, keys[customer], isCow ? "1" : "2", liters.c_str(), "4.3", rate.c_str());
            qint64& now = closing[{customer, isCow}];
            now = (now + 5) / 10 * 10 + Whole(QByteArray::fromStdString(liters).toDouble(), 1000);
            if (sale % 7 == 6) {
                Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}5.555{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
                workOut(customer, true);
                workOut(customer, false);
            } else if (sale % 11 == 10) {
                Type(clerk, "{UP}{ENTER}{F10}");
                workOut(customer, isCow);
            }
        }
        for (const int customer : {1, 2})
            EXPECT_EQ(Closing(customer),
                ShortestDecimal(static_cast<double>(closing[{customer, true}]) / 1000).toStdString() + '|'
                    + ShortestDecimal(static_cast<double>(closing[{customer, false}]) / 1000).toStdString());
        std::map<std::pair<bool, bool>, Sums> sums;
        for (Recordset row(gCn, "select * from MilkSales"); !row.Eof(); row.MoveNext()) {
            const QString type = row[u"SalesType"].Text();
            const qint64 millilitres = Whole(row[u"Liters"].Number(), 1000);
            const qint64 ratePaise = Whole(row[u"Rate"].Number(), 100);
            const qint64 paise = Whole(row[u"Amount"].Number(), 100);
            EXPECT_EQ(paise, (millilitres * ratePaise + 500) / 1000) << row[u"SalesNo"].Number();
            Sums& sum = sums[{type != u"saMGa ivaËI", row[u"Animal"].Text() == u"gaaya"}];
            sum.millilitres += millilitres;
            sum.paise += paise;
        }
        EXPECT_EQ(sums.size(), 4U);
        for (const auto& [kind, sum] : sums) {
            const std::string stem =
                std::string("lbl") + (kind.first ? "Rokh" : "Udhar") + (kind.second ? "Cow" : "Buff");
            EXPECT_EQ(Whole(Val(QString::fromStdString(Label(clerk, (stem + "SaleLiter").c_str()))), 1000),
                sum.millilitres)
                << stem;
            EXPECT_EQ(
                Whole(Val(QString::fromStdString(Label(clerk, (stem + "SaleAmt").c_str()))), 100), sum.paise)
                << stem;
        }
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Copy(), Books());
    const QStringList numbers = Rows("select SalesNo from MilkSales order by SalesNo");
    EXPECT_EQ(QSet<QString>(numbers.begin(), numbers.end()).size(), numbers.size());
}

}
