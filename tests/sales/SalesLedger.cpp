#include "tests/sales/SalesLedger.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const QString Cow = "gaaya";
const QString Buffalo = "mhOsa";
const QString Cash = "raoK";

qint64 Thousandths(double litres)
{
    return std::llround(litres * 1000);
}

// To two decimals, half away from nought.
qint64 Rounded(qint64 thousandths)
{
    const qint64 size = (std::abs(thousandths) + 5) / 10 * 10;
    return thousandths < 0 ? -size : size;
}

}

// A closing figure below the opening one has its gap counted twice.
qint64 SalesLedger::Litres::Advanced(qint64 liters) const
{
    const qint64 taken = std::abs(Rounded(opening) - Rounded(closing.value_or(0))) + liters;
    return closing ? taken + Rounded(opening) : taken;
}

qint64 SalesLedger::Litres::Recomputed() const
{
    return Rounded(sold + opening);
}

SalesLedger::SalesLedger()
{
    BeginAnew();
}

void SalesLedger::BeginAnew()
{
    m_sales = ReadSales();
    m_customers = ReadCustomers();
}

SalesLedger::Sales SalesLedger::ReadSales()
{
    Sales sales;
    for (Recordset row(gCn, "select * from MilkSales"); !row.Eof(); row.MoveNext()) {
        Sale sale{
            row[u"CustomerName"].Text(), row[u"Animal"].Text(), Thousandths(row[u"Liters"].Number()), {}};
        for (int column = 0; column < row.Columns(); ++column)
            sale.all += row.At(column).Text() + u'|';
        const auto key =
            std::tuple(row[u"SalesDate"].Text(), row[u"SalesTime"].Text(), row[u"SalesNo"].Number());
        EXPECT_TRUE(sales.emplace(key, sale).second) << "two of one number: " << sale.all.toStdString();
    }
    return sales;
}

SalesLedger::Customers SalesLedger::ReadCustomers()
{
    Customers customers;
    for (Recordset row(gCn, Sql(u"select * from CustomersMaster where CompanyId=", gAppState.gCompanyId));
         !row.Eof(); row.MoveNext()) {
        const QString name = row[u"CustomerName"].Text();
        const auto closing = [&row](QStringView column) -> std::optional<qint64> {
            return row[column].IsNull() ? std::nullopt : std::optional(Thousandths(row[column].Number()));
        };
        customers[{name, Cow}] = {
            Thousandths(row[u"CowOpeningLits"].Number()), 0, closing(u"CowClosingLits")};
        customers[{name, Buffalo}] = {
            Thousandths(row[u"BuffOpeningLits"].Number()), 0, closing(u"BuffClosingLits")};
    }
    for (Recordset row(gCn, Sql(u"select * from MilkSales where CompanyId=", gAppState.gCompanyId));
         !row.Eof(); row.MoveNext()) {
        const auto buyer = customers.find({row[u"CustomerName"].Text(), row[u"Animal"].Text()});
        if (buyer != customers.end())
            buyer->second.sold += Thousandths(row[u"Liters"].Number());
    }
    return customers;
}

void SalesLedger::Look()
{
    const Sales sales = ReadSales();
    const Customers now = ReadCustomers();
    Customers expected = now;
    for (auto& [who, litres] : expected)
        litres.closing = m_customers.at(who).closing;
    const auto recompute = [&](const QString& name, const QString& animal) {
        if (const auto who = expected.find({name, animal}); name != Cash && who != expected.end())
            who->second.closing = who->second.Recomputed();
    };

    int touched = 0;
    for (const auto& [key, sale] : sales) {
        const auto before = m_sales.find(key);
        if (before == m_sales.end()) {
            ++touched;
            ++Entered;
            if (const auto who = expected.find({sale.name, sale.animal});
                sale.name != Cash && who != expected.end())
                who->second.closing = who->second.Advanced(sale.liters);
        } else if (before->second != sale) {
            ++touched;
            ++Changed;
            for (const QString& animal : {Cow, Buffalo})
                recompute(sale.name, animal);
        }
    }
    for (const auto& [key, sale] : m_sales)
        if (!sales.contains(key)) {
            ++touched;
            ++Deleted;
            recompute(sale.name, sale.animal);
        }
    EXPECT_LE(touched, 1) << "between two looks";
    for (const auto& [who, litres] : now) {
        // A sale that was saved as it was works the figures of its customer out anew, too.
        const bool isSavedAgain = touched == 0 && litres.closing != expected.at(who).closing;
        EXPECT_EQ(
            litres.closing, isSavedAgain ? std::optional(litres.Recomputed()) : expected.at(who).closing)
            << who.first.toStdString() << ' ' << who.second.toStdString();
    }
    m_sales = sales;
    m_customers = now;
}
