#pragma once

#include "tests/reports/ReportsTest.h"

#include "platform/database/Sql.h"
#include "reports/frmVadhTootReport.h"

// The gain and loss statement, with milk that came in and went out on the 15th of April unless told
// otherwise.
class VadhTootTest : public ReportsTest {
protected:
    struct Milk {
        const char* day = "15/04/2026";
        const char* shift = "sakaL";
        const char* animal = "gaaya";
        double liters = 0;
        double amount = 0;
        int company = 1;
    };

    struct Sale {
        const char* day = "15/04/2026";
        const char* shift = "sakaL";
        const char* animal = "gaaya";
        const char* customer = "raoK";
        double liters = 0;
        double ourLiters = 0;
        double amount = 0;
        int company = 1;
    };

    void Bring(const Milk& milk)
    {
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,Animal,Liters,Amount) "
                u"values(",
            Values(
                milk.company, Text(milk.day), Text(milk.shift), Text(milk.animal), milk.liters, milk.amount),
            u")"));
    }

    void Sell(const Sale& sale)
    {
        Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,Animal,CustomerName,Liters,OurLiters,"
                u"Amount) values(",
            Values(sale.company, Text(sale.day), Text(sale.shift), Text(sale.animal), Text(sale.customer),
                sale.liters, sale.ourLiters, sale.amount),
            u")"));
    }

    void AddCustomer(const char* name, const char* type = "saMGa ivaËI", int company = 1)
    {
        Run(Sql(u"insert into CustomersMaster(CompanyId,CustomerName,CustomerType) values(",
            Values(company, Text(name), Text(type)), u")"));
    }

    void AddAccount(
        const char* name, const char* group = "Debtors", const char* category = "saMGa", int company = 1)
    {
        Run(Sql(u"insert into AccountsMaster(CompanyId,AccountName,GroupCode,Category) values(",
            Values(company, Text(name), Text(group), Text(category)), u")"));
    }

    // The statement of a range, as the clerk keys it.
    void InLiters(const char* from = "15042026", const char* to = "15042026") { Print(from, to, ""); }
    void InAmounts(const char* from = "15042026", const char* to = "15042026") { Print(from, to, "{DOWN}"); }

    // What is staged; in amounts the last column stays empty.
    QStringList Staged(const char* columns = "*")
    {
        return Rows(Sql(u"select ", Text(columns), u" from VadhTootReport"));
    }

private:
    static QString Text(const char* text) { return QString::fromUtf8(text); }

    void Print(const char* from, const char* to, const char* choice)
    {
        Type<frmVadhTootReport>(
            QByteArray(QByteArray(from) + "{ENTER}" + to + "{ENTER}" + choice + "{ENTER}{ENTER}"));
    }
};
