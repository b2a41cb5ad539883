#include "tests/core/ScreenFace.h"
#include "tests/core/menu/MenuTest.h"

#include "platform/forms/Look.h"

#include <QDir>
#include <QFile>

namespace {

class DayAtAGlanceTest : public MenuTest {
protected:
    void AddDelivery(
        const char* day, const char* time, const char* litres, const char* amount, int company = 1)
    {
        Run(QStringLiteral("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,"
                           "MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount) "
                           "values(%1,'%2','%3',%4,1,'rama','gaaya',%5,4,35,%6)")
                .arg(company)
                .arg(QLatin1String(day), QLatin1String(time))
                .arg(++m_number)
                .arg(QLatin1String(litres), QLatin1String(amount)));
    }

    // "litres amount" of the morning and of the evening.
    static std::string Shifts(Clerk& clerk)
    {
        QStringList figures;
        for (const char* label :
            {"lblMorningLiters", "lblMorningAmount", "lblEveningLiters", "lblEveningAmount"})
            figures.append(LabelOf(clerk, label));
        return figures.join(u' ').toStdString();
    }

    void KeepCopy(const char* name, const QDateTime& time)
    {
        const QString folder = FolderFile("Backup");
        QDir().mkpath(folder);
        QFile copy(folder + u'/' + QLatin1String(name));
        ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
        ASSERT_TRUE(copy.setFileTime(time, QFileDevice::FileModificationTime));
    }

private:
    int m_number = 0;
};

TEST_F(DayAtAGlanceTest, TheShiftsOfTheWorkingDayAreSummed)
{
    AddDelivery("14/04/2026", "sakaL", "5.125", "180.55");
    AddDelivery("15/04/2026", "sakaL", "5.125", "180.55");
    AddDelivery("15/04/2026", "sakaL", "1.500", "52.50");
    AddDelivery("15/04/2026", "saMQyaakaL", "7.250", "300.10");
    AddDelivery("15/04/2026", "saMQyaakaL", "9.000", "400.00", 2);
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblWorkingDay"), "कामाचा दिवस  15/04/2026");
        EXPECT_EQ(Shifts(clerk), "6.625 233.05 7.250 300.10");
    });
}

TEST_F(DayAtAGlanceTest, TheShiftsAreNamedAsTheyAreRead)
{
    Menu([](Clerk& clerk) {
        QStringList named;
        for (const QLabel* label : clerk.Top().findChildren<QLabel*>())
            named.append(label->text());
        EXPECT_TRUE(named.contains("सकाळ")) << named.join(u' ').toStdString();
        EXPECT_TRUE(named.contains("संध्याकाळ")) << named.join(u' ').toStdString();
    });
}

TEST_F(DayAtAGlanceTest, AShiftWithoutMilkHasZeros)
{
    Menu([](Clerk& clerk) { EXPECT_EQ(Shifts(clerk), "0.000 0.00 0.000 0.00"); });
}

TEST_F(DayAtAGlanceTest, WhatAScreenHasSavedIsSeenWhenItIsLeft)
{
    Menu([&](Clerk& clerk) {
        const QString day = LabelOf(clerk, "lblWorkingDay").right(10);
        AddDelivery(qPrintable(day), "sakaL", "5.125", "180.55");
        EXPECT_EQ(Shifts(clerk), "0.000 0.00 0.000 0.00");
        Type(clerk, "{F7}{ESC}");
        EXPECT_EQ(Shifts(clerk), "5.125 180.55 0.000 0.00");
    });
}

TEST_F(DayAtAGlanceTest, TheNewestCopyOfTheBooksTellsTheLastBackup)
{
    KeepCopy("first.mdb", QDateTime(QDate(2026, 4, 1), QTime(18, 0)));
    KeepCopy("second.mdb", QDateTime(QDate(2026, 4, 9), QTime(18, 0)));
    KeepCopy("note.txt", QDateTime(QDate(2026, 4, 12), QTime(18, 0)));
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblLastBackup"), "शेवटचा बॅकअप  09/04/2026, 6 दिवसांपूर्वी");
    });
}

TEST_F(DayAtAGlanceTest, TheAgeOfTheBackupIsToldAndAfterSevenDaysThatItIsOld)
{
    const std::initializer_list<std::pair<int, const char*>> ages = {{16, "शेवटचा बॅकअप  16/04/2026"},
        {15, "शेवटचा बॅकअप  15/04/2026, आज"}, {14, "शेवटचा बॅकअप  14/04/2026, काल"},
        {13, "शेवटचा बॅकअप  13/04/2026, 2 दिवसांपूर्वी"}, {9, "शेवटचा बॅकअप  09/04/2026, 6 दिवसांपूर्वी"},
        {8, "बॅकअप 7 दिवस जुना आहे; नवीन घ्या"}, {1, "बॅकअप 14 दिवस जुना आहे; नवीन घ्या"}};
    for (const auto& [day, line] : ages) {
        KeepCopy("copy.mdb", QDateTime(QDate(2026, 4, day), QTime(18, 0)));
        Menu([line = line, isOld = day <= 8](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblLastBackup"), QString::fromUtf8(line));
            const auto* label = clerk.Top().findChild<QLabel*>("lblLastBackup");
            EXPECT_EQ(
                label->palette().color(QPalette::WindowText), QColor(isOld ? Look::GuideInk : Look::Ink))
                << line;
        });
    }
}

TEST_F(DayAtAGlanceTest, WithoutACopyItIsSaid)
{
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblLastBackup"), "बॅकअप अजून घेतलेला नाही");
        const auto* label = clerk.Top().findChild<QLabel*>("lblLastBackup");
        EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Look::GuideInk));
    });
}

TEST_F(DayAtAGlanceTest, ThePeriodThatWasPaidLastIsToldByTheDateOfItsBill)
{
    Menu([](Clerk& clerk) { EXPECT_EQ(LabelOf(clerk, "lblLastPayment"), "पेमेंट अजून झालेले नाही"); });
    for (const char* row :
        {"1,'01/04/2026','10/04/2026','12/04/2026'", "1,'11/04/2026','20/04/2026','20/04/2026'",
            "1,'01/05/2026','10/05/2026','11/04/2026'", "2,'21/04/2026','30/04/2026','30/04/2026'"})
        Run(QStringLiteral(
                "insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) values(")
            + QLatin1String(row) + QStringLiteral(",1,1)"));
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblLastPayment"), "शेवटचे पेमेंट  11/04/2026 ते 20/04/2026");
    });
}

TEST_F(DayAtAGlanceTest, OfSeveralPeriodsPaidOnOneDateTheLatestIsTold)
{
    for (const char* row :
        {"'01/04/2026','10/04/2026'", "'11/04/2026','20/04/2026'", "'21/03/2026','31/03/2026'"})
        Run(QStringLiteral("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
                           "values(1,")
            + QLatin1String(row) + QStringLiteral(",'20/04/2026',1,1)"));
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblLastPayment"), "शेवटचे पेमेंट  11/04/2026 ते 20/04/2026");
    });
}

}
