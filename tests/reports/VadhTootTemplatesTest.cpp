// The templates of the gain and loss statement, laid out as their golden files say.

#include "tests/reports/TemplateGoldenTest.h"

#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "reports/frmVadhTootReport.h"
#include "society/Words.h"

#include <algorithm>

namespace {

// Milk of both animals in both shifts on each day; the same figures each time.
class ShippedTemplatesOfVadhTootTest : public TemplateGoldenTest {
protected:
    ShippedTemplatesOfVadhTootTest()
    {
        for (const char* table : {"MilkCollections", "MilkSales", "CustomersMaster", "AccountsMaster"})
            Run(Sql(u"delete * from ", QString::fromLatin1(table)));
        Run("insert into CustomersMaster(CompanyId,CustomerName,CustomerType) "
            "values(1,'dUQa saMGa','saMGa ivaËI')");
        Run("insert into AccountsMaster(CompanyId,AccountName,GroupCode,Category) "
            "values(1,'dUQa saMGa','Debtors','saMGa')");
    }

    void FillDays(const QDate& from, const QDate& to, int litersOfAShift = 100)
    {
        for (QDate day = from; day <= to; day = day.addDays(1))
            for (const QStringView shift : {Word::Morning, Word::Evening})
                for (const QStringView animal : {Word::Cow, Word::Buffalo})
                    FillShift(day, shift, animal, litersOfAShift);
    }

    void Print(const char* from, const char* to, const char* choice)
    {
        Type<frmVadhTootReport>(
            QByteArray(QByteArray(from) + "{ENTER}" + to + "{ENTER}" + choice + "{ENTER}{ENTER}"));
        ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    }
    void InLiters(const char* from, const char* to) { Print(from, to, ""); }
    void InAmounts(const char* from, const char* to) { Print(from, to, "{DOWN}"); }

    QString Sum(const char* column, const char* pattern)
    {
        return Format(Val(One(Sql(u"select sum(", QString::fromLatin1(column), u") from VadhTootReport"))),
            QString::fromLatin1(pattern));
    }

    Report& Printed() const
    {
        Report& report = *TheWindow.Shown.back();
        report.Complete();
        return report;
    }

    // The boxes of the chart: its mark and a bar for each day.
    std::vector<QRectF> Bars() const
    {
        std::vector<QRectF> bars;
        for (std::size_t page = 0; page < Printed().PageCount(); ++page)
            for (const PlacedItem& item : Printed().PageAt(page).items)
                if (item.kind == PlacedItem::Kind::Box)
                    bars.push_back(item.Rect());
        return bars;
    }

private:
    void FillShift(const QDate& day, QStringView shift, QStringView animal, int liters)
    {
        const bool isCow = animal == Word::Cow;
        const int dice = (day.day() * 7 + (shift == Word::Morning ? 3 : 0) + (isCow ? 5 : 0)) % 20;
        const double in = liters + dice * 1.125;
        const double local = liters / 10.0 + dice / 8.0;
        const double federation = in - local + (dice - 12) / 10.0;
        const double rate = (isCow ? 30 : 45) + dice / 4.0;
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,Animal,Liters,Amount) "
                u"values(",
            Values(1, day, shift, animal, in, Val(Format(in * rate, u"0.00"))), u")"));
        Sell(day, shift, animal, QStringLiteral("dUQa saMGa"), federation, federation + 0.25, rate + 1);
        Sell(day, shift, animal, Word::Cash.toString(), local, local, rate + 8);
    }

    void Sell(const QDate& day, QStringView shift, QStringView animal, const QString& customer, double liters,
        double ourLiters, double rate)
    {
        Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,Animal,CustomerName,Liters,OurLiters,"
                u"Amount) values(",
            Values(1, day, shift, animal, customer, liters, ourLiters, Val(Format(liters * rate, u"0.00"))),
            u")"));
    }
};

TEST_F(ShippedTemplatesOfVadhTootTest, TheLitresOfTenDaysWithTheirSumsAndTheChartBelow)
{
    FillDays(QDate(2026, 4, 1), QDate(2026, 4, 10));
    InLiters("01042026", "10042026");
    CompareWithGolden("VadhTootLitersPatrak");
    const QStringList texts = ReportTexts();
    for (const char* figure : {"LitersIn", "LitersLocal", "LitersSangh", "LitersOut", "LitersOut-LitersIn"})
        EXPECT_EQ(texts.count(Sum(figure, "0.000")), 2) << figure << " below both tables";
    EXPECT_TRUE(texts.contains(Sum("-OurLiters", "0.000")));
    EXPECT_TRUE(texts.contains(Sum("-OurLiters-LitersIn", "0.000")));
    EXPECT_TRUE(texts.contains("05/04/2026 एकूण"));
    EXPECT_EQ(Bars().size(), 11U);
}

TEST_F(ShippedTemplatesOfVadhTootTest, TheRupeesOfThreeDaysWithTheirSumsAndTheChartBelow)
{
    FillDays(QDate(2026, 4, 1), QDate(2026, 4, 3));
    InAmounts("01042026", "03042026");
    CompareWithGolden("VadhTootAmountPatrak");
    const QStringList texts = ReportTexts();
    for (const char* figure : {"LitersIn", "LitersLocal", "LitersSangh", "LitersOut", "LitersOut-LitersIn"})
        EXPECT_EQ(texts.count(Sum(figure, "0.00")), 2) << figure << " below both tables";
    EXPECT_FALSE(texts.contains("आपले माप"));
    EXPECT_EQ(Bars().size(), 4U);
}

TEST_F(ShippedTemplatesOfVadhTootTest, ALossHangsBelowAGainInTheChart)
{
    for (const auto& [day, in, out] :
        {std::tuple("01/04/2026", 100, 95), {"02/04/2026", 100, 110}, {"03/04/2026", 50, 50}}) {
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,Animal,Liters) values(",
            Values(1, QString::fromLatin1(day), Word::Morning, Word::Cow, in), u")"));
        Run(Sql(u"insert into MilkSales(CompanyId,SalesDate,SalesTime,Animal,Liters) values(",
            Values(1, QString::fromLatin1(day), Word::Morning, Word::Cow, out), u")"));
    }
    InLiters("01042026", "03042026");
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("-5.000"));
    EXPECT_TRUE(texts.contains("10.000"));
    const std::vector<QRectF> bars = Bars();
    ASSERT_EQ(bars.size(), 4U) << "the mark and three days";
    EXPECT_NEAR(bars[1].top(), bars[2].bottom(), 0.01) << "the line of nought";
    EXPECT_NEAR(bars[2].height(), 2 * bars[1].height(), 0.01);
    EXPECT_NEAR(bars[3].height(), 0, 0.01);
}

TEST_F(ShippedTemplatesOfVadhTootTest, AYearOfLargeFiguresIsCutOffNowhere)
{
    FillDays(QDate(2026, 4, 1), QDate(2027, 3, 31), 98765);
    for (const bool isLiters : {true, false}) {
        if (isLiters)
            InLiters("01042026", "31032027");
        else
            InAmounts("01042026", "31032027");
        const QStringList texts = ReportTexts();
        const char* pattern = isLiters ? "0.000" : "0.00";
        EXPECT_TRUE(texts.contains(Sum("LitersIn", pattern)));
        EXPECT_TRUE(texts.contains(Sum("LitersOut-LitersIn", pattern)));
        EXPECT_GT(texts.count("पुढील पानावर"), 10);
        EXPECT_FALSE(
            std::any_of(texts.begin(), texts.end(), [](const QString& text) { return text.contains(u'…'); }));
        EXPECT_EQ(Bars().size(), 366U);
        ComparePdfWithItems(Printed());
    }
}

TEST_F(ShippedTemplatesOfVadhTootTest, APeriodWithoutMilkSaysSo)
{
    InLiters("01042026", "10042026");
    EXPECT_TRUE(ReportTexts().contains("01/04/2026 ते 10/04/2026 या काळात दुधाची नोंद नाही."));
    EXPECT_EQ(Bars().size(), 0U);
}

}
