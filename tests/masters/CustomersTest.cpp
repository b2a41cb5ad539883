#include "tests/masters/CustomersTest.h"

#include "platform/database/Sql.h"

void CustomersTest::AddCustomer(int number, const QString& name, const QString& animal, int company)
{
    Run(Sql(u"insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType,"
            u"CowOpeningLits,CowClosingLits,BuffOpeningLits,BuffClosingLits) values(",
        Values(company, number, name, animal, u"saMGa ivaËI", 5, 8, 5, 9), u")"));
}

void CustomersTest::AddSale(int number, const QString& name, int company)
{
    Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesNo,CustomerNo,CustomerName,Animal,"
            u"Liters) values(",
        Values(company, u"10/04/2026", u"sakaL", 1, number, name, u"gaaya", 3), u")"));
}

QStringList NamesOnList(const Clerk& clerk)
{
    const auto* names = dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboCustomerName"));
    return names ? names->Items() : QStringList();
}
