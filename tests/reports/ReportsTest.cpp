#include "tests/reports/ReportsTest.h"

#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"

#include <QFile>

#include <utility>

void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << texts.join(u'\n').toStdString();
}

ReportsTest::ReportsTest()
{
    ReportSurroundings::Current() = {
        &TheWindow, nullptr, [](const QString& path) { return LocalPath(path); }};
}

ReportsTest::~ReportsTest()
{
    TheWindow.Shown.clear();
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
}

void ReportsTest::InCompany(int company, const std::function<void()>& action)
{
    const int before = std::exchange(gAppState.gCompanyId, company);
    action();
    gAppState.gCompanyId = before;
}

QStringList ReportsTest::ReportTexts() const
{
    QStringList texts;
    if (TheWindow.Shown.empty()) {
        ADD_FAILURE() << "no report was shown";
        return texts;
    }
    Report& report = *TheWindow.Shown.back();
    report.Complete();
    for (std::size_t page = 0; page < report.PageCount(); ++page)
        for (const PlacedItem& item : report.PageAt(page).items)
            if (item.kind == PlacedItem::Kind::Text)
                texts.append(item.text);
    return texts;
}

void ReportsTest::RemoveTemplate(const QString& name) const
{
    ASSERT_TRUE(QFile::remove(FolderFile(name)));
}

void ReportsTest::AddDelivery(const char* date, const char* shift, int number, int member, const char* name,
    const char* animal, double liters, double fat, double rate)
{
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime,SNF) values(",
        gAppState.gCompanyId, u",'", QString::fromLatin1(date), u"','", QString::fromLatin1(shift), u"',",
        number, u",", member, u",'", QString::fromLatin1(name), u"','", QString::fromLatin1(animal), u"',",
        liters, u",", fat, u",", rate, u",", liters * rate, u",0,'6.30',8.5)"));
}

void ReportsTest::AddSale(const char* date, const char* shift, int number, const char* customer,
    const char* animal, double liters, double fat, double snf)
{
    Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,"
            u"Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values(",
        gAppState.gCompanyId, u",'", QString::fromLatin1(date), u"','", QString::fromLatin1(shift),
        u"','raoK',", number, u",1,'", QString::fromLatin1(customer), u"','", QString::fromLatin1(animal),
        u"',", liters, u",", fat, u",40,", liters * 40, u",0,", snf, u",0,0,0)"));
}
