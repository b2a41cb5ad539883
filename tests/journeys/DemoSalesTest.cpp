// The demonstration society's sales, held against what the screen of sales would have written.

#include "sales/frmMilkSales.h"
#include "tests/journeys/DemoSocietyTest.h"

#include "platform/text/Numbers.h"

#include <cmath>
#include <cstdlib>
#include <map>

namespace {

class DemoSalesTest : public DemoSocietyTest {
protected:
    // In thousandths of a litre.
    static qint64 Millilitres(const FieldValue& litres) { return std::llround(litres.Number() * 1000); }

    QString Customers() { return Rows("select * from CustomersMaster order by CustomerNo").join(u'\n'); }

    // A sale as texts.
    struct Sold {
        QString shift, customer, animal, litres, fat, rate;
        QString ourLitres, ourFat, ourRate, snf;
    };

    static std::vector<Sold> Read(const QString& query)
    {
        std::vector<Sold> sales;
        for (Recordset row(gCn, query); !row.Eof(); row.MoveNext())
            sales.push_back({row[u"SalesTime"].Text(), row[u"CustomerName"].Text(), row[u"Animal"].Text(),
                row[u"Liters"].Text(), row[u"Fat"].Text(), row[u"Rate"].Text(), row[u"OurLiters"].Text(),
                row[u"OurFat"].Text(), row[u"OurRate"].Text(), row[u"SNF"].Text()});
        return sales;
    }

    // From the number to the button; the focus is on the number.
    static void Sell(Clerk& clerk, const Sold& sale)
    {
        const bool isMeasured = sale.ourFat != u"0";
        const QString ours = isMeasured ? QStringLiteral("{F9}%1{ENTER}{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}")
                                              .arg(sale.ourLitres, sale.ourFat, sale.ourRate, sale.snf)
                                        : QString();
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3%4{ENTER}%5{ENTER}%6{ENTER}{ENTER}{ENTER}")
                       .arg(KeysOf(sale.customer), sale.animal == u"gaaya" ? "1" : "2", sale.litres, ours,
                           sale.fat, sale.rate));
    }

    // Takes the sale out of its customer's closing litres.
    void TakeBack(const Sold& sale)
    {
        const QString column = sale.animal == u"gaaya" ? "CowClosingLits" : "BuffClosingLits";
        Run(QStringLiteral("update CustomersMaster set %1=round(%1-%2,3) where CustomerName='%3'")
                .arg(column, sale.litres, sale.customer));
    }
};

TEST_F(DemoSalesTest, EachShiftHasSalesForCashToCustomersAndToTheFederation)
{
    EXPECT_EQ(Count("(select distinct SalesDate,SalesTime,SalesType from MilkSales)"), 61 * 2 * 3);
    EXPECT_EQ(One("select min(SalesDate) from MilkSales"), "01/04/2026");
    EXPECT_EQ(One("select max(SalesDate) from MilkSales"), "31/05/2026");
    EXPECT_EQ(Count("CustomersMaster where CustomerNo not in (select CustomerNo from MilkSales)"), 0)
        << "everybody buys";
}

// Shift by shift, in the order in which they were sold, by the formula of a new sale.
TEST_F(DemoSalesTest, TheCustomersClosingLitresAreThoseThatTheSalesLeave)
{
    std::map<std::pair<QString, QString>, qint64> closing;
    for (Recordset sale(gCn, "select * from MilkSales order by SalesDate,SalesTime desc,SalesNo");
         !sale.Eof(); sale.MoveNext()) {
        qint64& now = closing[{sale[u"CustomerName"].Text(), sale[u"Animal"].Text()}];
        const qint64 shown = (now + 5) / 10 * 10; // with two decimals; nothing was there at the opening
        now = std::abs(shown) + Millilitres(sale[u"Liters"]);
    }
    for (Recordset customer(gCn, "select * from CustomersMaster"); !customer.Eof(); customer.MoveNext()) {
        const QString name = customer[u"CustomerName"].Text();
        EXPECT_EQ(customer[u"CowOpeningLits"].Number() + customer[u"BuffOpeningLits"].Number(), 0);
        EXPECT_EQ(Millilitres(customer[u"CowClosingLits"]), (closing[{name, "gaaya"}])) << name.toStdString();
        EXPECT_EQ(Millilitres(customer[u"BuffClosingLits"]), (closing[{name, "mhOsa"}]))
            << name.toStdString();
    }
}

TEST_F(DemoSalesTest, WhatTheSocietyMeasuredIsWhatItsMembersBrought)
{
    EXPECT_EQ(Rows("select SalesDate,SalesTime,Animal,round(sum(OurLiters),3) from MilkSales "
                   "group by SalesDate,SalesTime,Animal order by SalesDate,SalesTime,Animal"),
        Rows("select CollectionDate,CollectionTime,Animal,round(sum(Liters),3) from MilkCollections "
             "group by CollectionDate,CollectionTime,Animal order by CollectionDate,CollectionTime,Animal"));
}

TEST_F(DemoSalesTest, TheFederationMeasuresALittleMoreOrLess)
{
    EXPECT_GT(Count("MilkSales where SalesType='saMGa ivaËI' and Liters>OurLiters"), 10);
    EXPECT_GT(Count("MilkSales where SalesType='saMGa ivaËI' and Liters<OurLiters"), 100);
    EXPECT_EQ(Count("MilkSales where abs(Liters-OurLiters)>OurLiters*0.015"), 0);
}

// A Sunday, when the evening's buffalo milk goes to the second federation.
TEST_F(DemoSalesTest, ADayOfSalesIsWhatTheScreenWritesOfTheSameKeys)
{
    const QString ofTheDay =
        "select * from MilkSales where SalesDate=#05/31/2026# order by SalesTime desc,SalesNo";
    const QStringList before = Rows(ofTheDay);
    const QString customers = Customers();
    const std::vector<Sold> sold = Read(ofTheDay);
    Run("delete * from MilkSales where SalesDate=#05/31/2026#");
    for (const Sold& sale : sold)
        TakeBack(sale);
    ASSERT_NE(Customers(), customers);
    for (const auto& [shift, keys] :
        {std::pair(u"sakaL", "31052026{ENTER}1{ENTER}"), {u"saMQyaakaL", "31052026{ENTER}2{ENTER}"}})
        On<frmMilkSales>([&, shift = shift, keys = keys](Clerk& clerk) {
            Type(clerk, keys);
            for (const Sold& sale : sold)
                if (sale.shift == shift)
                    Sell(clerk, sale);
        });
    EXPECT_FALSE(Failure);
    EXPECT_GE(before.size(), 14);
    EXPECT_EQ(Rows(ofTheDay).join(u'\n').toStdString(), before.join(u'\n').toStdString());
    EXPECT_EQ(Customers().toStdString(), customers.toStdString());
}

}
