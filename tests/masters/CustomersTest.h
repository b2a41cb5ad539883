#pragma once

#include "tests/masters/MasterTest.h"

#include "masters/frmCustomers.h"

// A clerk at the screen of the customers.
class CustomersTest : public SocietyTest {
protected:
    void Play(const std::function<void(Clerk&)>& script) { On<frmCustomers>(script); }

    // A customer with 5 litres of each milk at the opening, and 8 of the cows and 9 of the buffaloes now.
    void AddCustomer(
        int number, const QString& name, const QString& animal = QStringLiteral("daonhI"), int company = 1);

    // A sale to a customer.
    void AddSale(int number, const QString& name, int company = 1);

    // All rows of the customers and of their sales.
    QStringList Customers() { return Rows("select * from CustomersMaster"); }
    QStringList Sales() { return Rows("select CompanyId,CustomerNo,CustomerName from MilkSales"); }
};

// The list of names, as the query has them.
QStringList NamesOnList(const Clerk& clerk);
