#include "tests/rates/NewFatRatesTest.h"

#include "platform/database/Sql.h"

#include <QLabel>

NewFatRatesTest::NewFatRatesTest()
{
    Run("delete * from FatDates");
    AddChart("01/04/2007", "Fat010407", 20);
    AddChart("01/07/2007", "Fat010707", 30);
}

void NewFatRatesTest::PlayOnChart(const char* day, const std::function<void(Clerk&)>& script)
{
    Play([&](Clerk& clerk) {
        Type(clerk, "%d");
        Type(clerk, day);
        Type(clerk, "{ENTER}");
        ASSERT_EQ(Focus(clerk), "txtFat");
        script(clerk);
    });
}

void NewFatRatesTest::AddChart(const QString& from, const QString& table, int cowRate)
{
    Run(Sql(u"create table ", table, u"(Fat TEXT,CowRate TEXT,BuffRate TEXT)"));
    for (const double fat : {1.0, 4.0, 4.3, 4.4, 4.5, 4.6, 4.7, 30.0})
        Run(Sql(u"insert into ", table, u"(Fat,CowRate,BuffRate) values(", fat, u",", cowRate + fat / 10,
            u",", cowRate + 5 + fat / 10, u")"));
    Run(Sql(u"insert into FatDates(FromDate,FatFileName) values(", Values(from, table), u")"));
}

QStringList NewFatRatesTest::Chart(const QString& table)
{
    return Rows(Sql(u"select Fat,CowRate,BuffRate from ", table));
}

QStringList NewFatRatesTest::WorkingChart()
{
    return Rows("select Fat,CowRate,BuffRate from FatRates order by Fat");
}

QString NewFatRatesTest::WorkingRow(const char* fat)
{
    return Rows(QStringLiteral("select Fat,CowRate,BuffRate from FatRates where Fat=") + QLatin1String(fat))
        .join(u'\n');
}

QStringList NewFatRatesTest::ChartDates()
{
    return Rows("select FromDate,FatFileName from FatDates order by FromDate");
}

void NewFatRatesTest::AddDelivery(const QString& day, const QString& animal, double liters, double fat,
    double rate, double amount, int company)
{
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
        Values(company, day, u"sakaL", 1, 1, u"rama", animal, liters, fat, rate, amount, 0), u")"));
}

void NewFatRatesTest::AddPayment(const QString& to, int company)
{
    Run(Sql(u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
            u"NetAmount) values(",
        Values(company, u"21/06/2007", to, u"05/07/2007", 1, 1, u"rama", 100), u")"));
}

QStringList NewFatRatesTest::Deliveries(int company)
{
    return Rows(Sql(u"select CollectionDate,Animal,Fat,Rate,Amount from MilkCollections where CompanyId=",
        company, u" order by CollectionDate,Animal,Fat"));
}

bool IsShown(const Clerk& clerk, const char* label)
{
    const auto* found = clerk.Top().findChild<QLabel*>(QLatin1String(label));
    return found && found->isVisible();
}
