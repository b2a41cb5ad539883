#include "tests/sales/MilkSalesTest.h"

#include "platform/database/Sql.h"

MilkSalesTest::MilkSalesTest()
{
    TemplateReport::Engine() = [this](const TemplateReport::Run& run) { Printed.push_back(run); };
    AddCustomer(1, "ha^Tola", "sqaainak ivaËI");
    AddCustomer(2, "saMGa", "saMGa ivaËI");
}

void MilkSalesTest::InTheMorning(const std::function<void(Clerk&)>& script)
{
    Play([&](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        ASSERT_EQ(Focus(clerk), "txtSalesNo");
        script(clerk);
    });
}

void MilkSalesTest::Key(
    Clerk& clerk, const char* name, const char* animal, const char* liters, const char* fat, const char* rate)
{
    Type(clerk, "{ENTER}");
    Type(clerk, name);
    clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}{ENTER}")
                   .arg(QString::fromUtf8(animal), QString::fromUtf8(liters), QString::fromUtf8(fat),
                       QString::fromUtf8(rate)));
}

void MilkSalesTest::Sell(
    Clerk& clerk, const char* name, const char* animal, const char* liters, const char* fat, const char* rate)
{
    Key(clerk, name, animal, liters, fat, rate);
    ASSERT_EQ(Focus(clerk), "cmdGo");
    Type(clerk, "{ENTER}");
}

void MilkSalesTest::AddCustomer(int number, const QString& name, const QString& type, int company)
{
    Run(Sql(u"insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType,"
            u"CowOpeningLits,CowClosingLits,BuffOpeningLits,BuffClosingLits) values(",
        Values(company, number, name, u"daonhI", type, 100, 120, 100, 120), u")"));
}

void MilkSalesTest::AddSale(int number, const QString& time, const QString& type, int customerNo,
    const QString& name, const QString& animal, double liters, int company)
{
    Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,"
            u"Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values(",
        Values(company, u"15/04/2026", time, type, number, customerNo, name, animal, liters, 4.2, 48,
            liters * 48, liters + 1, 8.5, 4.3, 33, 99),
        u")"));
}

void MilkSalesTest::AddDelivery(
    int number, const QString& time, const QString& animal, double liters, double fat, int company)
{
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(",
        Values(company, u"15/04/2026", time, number, number, u"rama", animal, liters, fat, 30, 30 * liters, 0,
            u"6.05"),
        u")"));
}

QStringList MilkSalesTest::Books()
{
    return Rows("select SalesNo,SalesType,CustomerNo,CustomerName,Animal,Liters,Fat,Rate,Amount from "
                "MilkSales order by SalesDate,SalesTime,SalesNo");
}

QStringList MilkSalesTest::Copy()
{
    return Rows("select SalesNo,SalesType,CustomerNo,CustomerName,Animal,Liters,Fat,Rate,Amount from "
                "MilkSalesTemp order by SalesNo");
}

QStringList MilkSalesTest::Listed(const Clerk& clerk)
{
    const auto& list = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridInwards"));
    QStringList listed;
    for (int row = 0; row < list.Rows(); ++row) {
        QStringList fields;
        for (const QStringView field : {u"SalesNo", u"SalesType", u"CustomerNo", u"CustomerName", u"Animal",
                 u"Liters", u"Fat", u"Rate", u"Amount"})
            fields << list.Value(row, field).Text();
        listed << fields.join(u'|');
    }
    return listed;
}

QStringList MilkSalesTest::Ours()
{
    return Rows("select SalesNo,OurLiters,SNF,OurFat,OurRate,OurAmount from MilkSales order by SalesNo");
}

std::string MilkSalesTest::Closing(int customer, int company)
{
    return Rows(Sql(u"select CowClosingLits,BuffClosingLits from CustomersMaster where CustomerNo=", customer,
                    u" and CompanyId=", company))
        .join(u';')
        .toStdString();
}
