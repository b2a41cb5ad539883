// The walks over the customers, the sales and the bonus.

#include "bonus/frmBonusPayments.h"
#include "masters/frmCustomers.h"
#include "platform/text/Numbers.h"
#include "sales/frmMilkSales.h"
#include "tests/journeys/ScreenWalks.h"
#include "tests/sales/SalesLedger.h"

#include <QSet>

#include <cmath>

namespace {

// A figure as the bonus writes it by a pattern.
double Shown(double value, QStringView pattern)
{
    return Val(Format(value, pattern));
}

constexpr QStringView Litres = u"0.000";
constexpr QStringView Rupees = u"0.00";

// The tables that customers and sales write.
const QStringList Sold{"CustomersMaster", "MilkSales"};

}

// The customers

// Nobody stands twice, each is whole, and each sale to a customer is one of somebody on record, by number and
// name.
void ScreenWalks::ExpectSoundCustomers()
{
    QSet<QString> numbers;
    QSet<QString> names;
    QSet<QString> both;
    for (Recordset row(gCn, "select * from CustomersMaster"); !row.Eof(); row.MoveNext()) {
        const QString number = row[u"CustomerNo"].Text();
        const QString name = row[u"CustomerName"].Text();
        EXPECT_GT(row[u"CustomerNo"].Number(), 0);
        EXPECT_FALSE(name.isEmpty()) << number.toStdString();
        EXPECT_EQ(name, name.trimmed());
        EXPECT_FALSE(numbers.contains(number)) << number.toStdString();
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        EXPECT_TRUE(QStringList({"gaaya", "mhOsa", "daonhI"}).contains(row[u"Animal"].Text()));
        EXPECT_TRUE(QStringList({"sqaainak ivaËI", "saMGa ivaËI"}).contains(row[u"CustomerType"].Text()));
        for (const char16_t* litres : {u"CowClosingLits", u"BuffClosingLits"})
            EXPECT_EQ(row[litres].Number(), Shown(row[litres].Number(), Rupees)) << name.toStdString();
        numbers.insert(number);
        names.insert(name);
        both.insert(number + u' ' + name);
    }
    for (Recordset sale(gCn, "select * from MilkSales where CustomerNo>0"); !sale.Eof(); sale.MoveNext()) {
        const QString buyer = sale[u"CustomerNo"].Text() + u' ' + sale[u"CustomerName"].Text();
        EXPECT_TRUE(both.contains(buyer)) << buyer.toStdString();
    }
}

void ScreenWalks::OverTheCustomers(int walks)
{
    Run("insert into CustomersMaster values(1,2,'dUQa saMGa','daonhI','saMGa ivaËI',10,110,20,20)");
    const std::string kept = Kept(Sold);
    int changes = 0;
    int deletions = 0;
    QStringList before = Rows("select * from CustomersMaster");
    Walk({"frmCustomers", Show<frmCustomers>,
             {"%r%n{ENTER}gaIta{ENTER}3{ENTER}2{ENTER}10.5{ENTER}20{ENTER}{ENTER}",
                 "%r%n{ENTER}gaaolaa{ENTER}1{ENTER}{ENTER}1.255{ENTER}{ENTER}",
                 "%r%d1{ENTER}{ENTER}3{ENTER}1{ENTER}7.25{ENTER}8{ENTER}%s%h",
                 "%r%d2{ENTER}ima{$}a{ENTER}%s%h", "%r%d{ENTER}{DOWN}{DOWN}{ENTER}2{ENTER}%s%h",
                 "%r%d2{ENTER}dUQa saMGa{ENTER}%s%n", "%r%k{ENTER}{DOWN}{DOWN}{DOWN}{ENTER}{ENTER}%h",
                 "%r%k3{ENTER}{ENTER}%h", "%r%k2{ENTER}{ENTER}{ENTER}", "%r", "3{ENTER}", "12.345{ENTER}"},
             [&] {
                 const QStringList now = Rows("select * from CustomersMaster");
                 changes += now == before ? 0 : 1;
                 deletions += now.size() < before.size() ? 1 : 0;
                 ExpectSoundCustomers();
                 EXPECT_TRUE(Kept(Sold) == kept);
                 Run("delete * from CustomersMaster where CustomerNo>9"); // so that the next number stays low
                 before = Rows("select * from CustomersMaster");
             }},
        walks);
    EXPECT_GT(changes, 5);
    EXPECT_GT(deletions, 0);
}

// The sales

// Each sale is whole and of a buyer who is on record under its number, and our amount is our litres at our
// rate.
void ScreenWalks::ExpectSoundSales()
{
    for (Recordset row(gCn, "select * from MilkSales"); !row.Eof(); row.MoveNext()) {
        const std::string name = row[u"CustomerName"].Text().toStdString();
        EXPECT_EQ(name,
            row[u"CustomerNo"].Number() == 0       ? "raoK"
                : row[u"CustomerNo"].Number() == 1 ? "ha^Tola"
                                                   : "dUQa saMGa");
        EXPECT_TRUE(QStringList({"gaaya", "mhOsa"}).contains(row[u"Animal"].Text())) << name;
        EXPECT_TRUE(QStringList({"sakaL", "saMQyaakaL"}).contains(row[u"SalesTime"].Text())) << name;
        EXPECT_GT(row[u"SalesNo"].Number(), 0) << name;
        EXPECT_GT(row[u"Liters"].Number(), 0) << name;
        EXPECT_GT(row[u"Rate"].Number(), 0) << name;
        EXPECT_LE(row[u"Rate"].Number(), 60) << name;
        EXPECT_EQ(
            row[u"OurAmount"].Number(), Shown(row[u"OurLiters"].Number() * row[u"OurRate"].Number(), Rupees))
            << name;
    }
}

void ScreenWalks::OverTheSales(int walks)
{
    Run("insert into CustomersMaster values(1,2,'dUQa saMGa','daonhI','saMGa ivaËI',100,90,20.5,null)");
    Run("update MilkSales set SalesNo=3 where CustomerNo=2"); // a number of its own
    const std::string kept = Kept(Sold);
    const auto onRecord = [this] {
        return Rows("select CompanyId,CustomerNo,CustomerName,Animal,CustomerType,CowOpeningLits,"
                    "BuffOpeningLits from CustomersMaster");
    };
    const QStringList customers = onRecord();
    SalesLedger ledger;
    Walk({"frmMilkSales", Show<frmMilkSales>,
             {"{ENTER}1{ENTER}", "{ENTER}1{ENTER}", "{ENTER}2{ENTER}", "+{TAB}+{TAB}14042026{ENTER}1{ENTER}",
                 "{ENTER}raoK{ENTER}1{ENTER}2.5{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}",
                 "{ENTER}ha{^}Tola{ENTER}2{ENTER}1.015{ENTER}7{ENTER}55.55{ENTER}{ENTER}{ENTER}",
                 "{ENTER}dUQa saMGa{ENTER}1{ENTER}10.75{F9}11.005{ENTER} {ENTER}33.35{ENTER}8.5{ENTER}"
                 "{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}",
                 "{ENTER}dUQa saMGa{ENTER}2{ENTER}3.334{ENTER}6{ENTER}60{ENTER}200{ENTER}{ENTER}",
                 "{UP}{ENTER}{ENTER}{ENTER}3.3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}",
                 "{UP}{ENTER}raoK{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "{UP}{ENTER}{F10}",
                 "{UP}{UP}{ENTER}{F10}", "{F9}", "{F10}", " "},
             [&] {
                 ExpectSoundSales();
                 EXPECT_TRUE(onRecord() == customers);
                 EXPECT_TRUE(Kept(Sold) == kept);
                 Run("delete * from MilkSales where SalesNo>9"); // so that the books stay small
                 ledger.BeginAnew();
             },
             [&] { ledger.Look(); }},
        walks);
    EXPECT_GT(ledger.Entered, walks / 50);
    EXPECT_GT(ledger.Changed, walks / 100);
    EXPECT_GT(ledger.Deleted, walks / 100);
}

// The bonus

// Each member of the range has a row, numbered from one. Where the clerk hasn't passed, litres and bonus are
// those of the run in single precision; where he has, each figure is made of the others as they are shown.
// Returns how many he has passed.
int ScreenWalks::ExpectSoundBonus()
{
    int serial = 0;
    int passed = 0;
    double last = 0;
    for (Recordset row(gCn, "select * from BonusPayments"); !row.Eof(); row.MoveNext()) {
        const auto of = [&row](QStringView column) { return row[column].Number(); };
        const double cowRate = of(u"CowBonusRate");
        const double buffRate = of(u"BuffBonusRate");
        EXPECT_EQ(of(u"SerialNo"), ++serial);
        EXPECT_GT(of(u"MemberNo"), last);
        last = of(u"MemberNo");
        EXPECT_GE(last, of(u"FromAcNo"));
        EXPECT_LE(last, of(u"ToAcNo"));
        if (row[u"RemainingBonus"].IsNull()) {
            for (const auto& [total, now] : {std::pair(u"TotalCowLiters", u"CurrentCowLiters"),
                     std::pair(u"TotalBuffLiters", u"CurrentBuffLiters")})
                EXPECT_EQ(of(total), of(now));
            EXPECT_FLOAT_EQ(static_cast<float>(of(u"TotalCowBonus")),
                static_cast<float>(of(u"TotalCowLiters") * cowRate));
            EXPECT_FLOAT_EQ(static_cast<float>(of(u"TotalBuffBonus")),
                static_cast<float>(of(u"TotalBuffLiters") * buffRate));
            EXPECT_FLOAT_EQ(static_cast<float>(of(u"TotalBonus")),
                static_cast<float>(of(u"TotalCowBonus") + of(u"TotalBuffBonus")));
            continue;
        }
        ++passed;
        EXPECT_EQ(of(u"TotalCowLiters"),
            Shown(of(u"PreviousCowLiters") + Shown(of(u"CurrentCowLiters"), Litres), Litres));
        EXPECT_EQ(of(u"TotalCowBonus"), Shown(of(u"TotalCowLiters") * cowRate, Rupees));
        EXPECT_EQ(of(u"TotalBuffBonus"), Shown(of(u"TotalBuffLiters") * buffRate, Rupees));
        EXPECT_EQ(of(u"TotalBuffLiters"),
            Shown(of(u"PreviousBuffLiters") + Shown(of(u"CurrentBuffLiters"), Litres), Rupees));
        EXPECT_EQ(of(u"TotalBonus"), Shown(of(u"TotalCowBonus") + of(u"TotalBuffBonus"), Rupees));
        EXPECT_EQ(
            of(u"RemainingBonus"), Shown(of(u"TotalBonus") - of(u"Advance") + of(u"PreviousThev"), Rupees));
    }
    return passed;
}

void ScreenWalks::OverTheBonus(int walks)
{
    Run("update TransactionsMaster set Narration=']cala idlaI.' where TranType='pomaonT'");
    const auto restoreRates = [this] { Run("update AutoSettings set CowBonusRate=.5,BuffBonusRate=.75"); };
    restoreRates();
    const std::string kept = Kept();
    int runs = 0;
    int passed = 0;
    Walk({"frmBonusPayments", Show<frmBonusPayments>,
             {"01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}",
                 "01042026{ENTER}14042026{ENTER}1{ENTER}2{ENTER}1{ENTER}.37{ENTER}.53{ENTER} {ENTER}{ENTER}",
                 "1{ENTER}{ENTER}10.125{ENTER}20.126{ENTER}30{ENTER}12.5{ENTER}{ENTER}",
                 "2{ENTER}{ENTER}{ENTER}5.555{ENTER}{ENTER}{ENTER}{ENTER}", "3{ENTER}{ENTER}1{ENTER}",
                 "{F5}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}.4{ENTER}{ENTER}{ENTER}{ENTER}",
                 "{F5}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "{F5}", "%i",
                 "%i{TAB}"},
             [&] {
                 passed += ExpectSoundBonus();
                 runs += Rows("select * from BonusPayments").isEmpty() ? 0 : 1;
                 restoreRates();
                 EXPECT_TRUE(Kept() == kept);
                 EXPECT_EQ(Rows("select * from BonusPaymentsTemp"), QStringList());
             }},
        walks);
    EXPECT_GT(runs, walks / 100);
    EXPECT_GT(passed, walks / 100);
}
