// The deliveries from the day of a saved chart on are priced anew, if the clerk wants it and nothing is paid.

#include "tests/rates/NewFatRatesTest.h"

#include "platform/database/Sql.h"
#include "rates/LookupFatRate.h"
#include "tests/support/EachPainting.h"

#include <QEvent>
#include <QLabel>

#include <random>

namespace {

const QString Cow = "gaaya";
const QString Buffalo = "mhOsa";

class ReRatingTest : public NewFatRatesTest {
protected:
    // Saves the chart of a day and answers the question, which must come; the screen must be back at rest.
    void SaveAndAnswer(const char* day, const char* answer, const char* before = "")
    {
        PlayOnChart(day, [&](Clerk& clerk) {
            Type(clerk, before);
            Type(clerk, "%s");
            ASSERT_EQ(clerk.Message(), "dUQa saMklana roka^D-sa\\ navaIna f^T drap`maaNao badlaayacaI ka Æ");
            Type(clerk, answer);
            if (OnTop(clerk) == "frmMessages")
                return;
            EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
            EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
        });
        EXPECT_FALSE(Failure);
    }
};

TEST_F(ReRatingTest, WithoutDeliveriesFromTheDayOnNothingIsAsked)
{
    AddDelivery("01/07/2007", Cow, 2, 4.5, 30, 60);
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60, 2);
    PlayOnChart("02072007", [](Clerk& clerk) {
        Type(clerk, "%s");
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
    });
    EXPECT_EQ(ChartDates().size(), 3);
}

TEST_F(ReRatingTest, ANoLeavesTheDeliveriesAndTheChartIsSaved)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    const QStringList before = Deliveries();
    SaveAndAnswer("02072007", "%n");
    EXPECT_EQ(Deliveries(), before);
    EXPECT_EQ(ChartDates().size(), 3);
}

TEST_F(ReRatingTest, AfterANoLaterEntriesGetTheNewChart)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    SaveAndAnswer("02072007", "%n", "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}");
    EXPECT_EQ(Deliveries(), QStringList("02/07/2007|gaaya|4.5|30|60"));
    EXPECT_DOUBLE_EQ(LookupFatRate(QDate(2007, 7, 2), 4.5, u"gaaya").rate, 20);
}

TEST_F(ReRatingTest, EnterAndTheCloseBoxAreANo)
{
    AddDelivery("01/07/2007", Cow, 2, 4.5, 30, 60);
    const QStringList before = Deliveries();
    SaveAndAnswer("01072007", "{ENTER}");
    EXPECT_EQ(Deliveries(), before);
    PlayOnChart("01072007", [](Clerk& clerk) {
        Type(clerk, "%s");
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
    });
    EXPECT_EQ(Deliveries(), before);
}

TEST_F(ReRatingTest, TheChartIsSavedBeforeTheQuestion)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    PlayOnChart("02072007", [](Clerk& clerk) {
        Type(clerk, "%s");
        ASSERT_EQ(OnTop(clerk), "frmMessages");
    }); // the clerk never answers
    Connection other; // sees what is committed only
    other.Open(Logon());
    const Recordset charts(other, "select count(*) as Charts from FatDates");
    EXPECT_EQ(charts[u"Charts"].Number(), 3);
    const Recordset rows(other, "select count(*) as Fats from Fat020707");
    EXPECT_EQ(rows[u"Fats"].Number(), 8);
}

TEST_F(ReRatingTest, AYesGivesTheDeliveriesOfTheCompanyFromTheDayOnTheRatesOfTheChart)
{
    AddDelivery("30/06/2007", Cow, 2, 4.5, 1, 2);
    AddDelivery("01/07/2007", Cow, 2, 4.5, 1, 2);
    AddDelivery("01/07/2007", Buffalo, 2.5, 4.5, 1, 2);
    AddDelivery("31/12/2030", Cow, 1.5, 4, 1, 2);
    AddDelivery("01/07/2007", Cow, 2, 4.5, 1, 2, 2);
    SaveAndAnswer("01072007", "%h");
    EXPECT_EQ(Deliveries(),
        (QStringList{"30/06/2007|gaaya|4.5|1|2", "01/07/2007|gaaya|4.5|30.45|60.9",
            "01/07/2007|mhOsa|4.5|35.45|88.625", "31/12/2030|gaaya|4|30.4|45.6"}));
    EXPECT_EQ(Deliveries(2), QStringList("01/07/2007|gaaya|4.5|1|2"));
}

TEST_F(ReRatingTest, AFatWithoutARowAndARateOfZeroKeepTheirRateAndGetTheirAmount)
{
    Run("update Fat010707 set CowRate='0' where Fat='4.5'");
    Run("update Fat010707 set BuffRate='0' where Fat='4.6'");
    AddDelivery("01/07/2007", Cow, 2, 4.5, 31.25, 7);
    AddDelivery("01/07/2007", Buffalo, 2, 4.5, 31.25, 7);
    AddDelivery("01/07/2007", Buffalo, 2, 4.6, 31.25, 7);
    AddDelivery("01/07/2007", Cow, 2.125, 5.5, 31.25, 7);
    AddDelivery("01/07/2007", "daonhI", 2, 4.5, 31.25, 7);
    SaveAndAnswer("01072007", "%h");
    EXPECT_EQ(Deliveries(),
        (QStringList{"01/07/2007|daonhI|4.5|31.25|62.5", "01/07/2007|gaaya|4.5|31.25|62.5",
            "01/07/2007|gaaya|5.5|31.25|66.40625", "01/07/2007|mhOsa|4.5|35.45|70.9",
            "01/07/2007|mhOsa|4.6|31.25|62.5"}));
}

TEST_F(ReRatingTest, TheRateIsThatUnderEditWithAllItsDecimalsAndNotThatOfTheNewChart)
{
    AddDelivery("02/07/2007", Cow, 2, 4.3, 30, 60);
    SaveAndAnswer("02072007", "%h", "{F5}6{ENTER}5.57{ENTER}{ENTER}");
    EXPECT_EQ(One("select CowRate from Fat020707 where Fat='4.3'"), "23.95");
    EXPECT_EQ(Deliveries(), QStringList("02/07/2007|gaaya|4.3|23.951|47.902"));
}

TEST_F(ReRatingTest, APaymentThatEndsOnTheDayBlocksIt)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    AddPayment("02/07/2007");
    const QStringList before = Deliveries();
    PlayOnChart("02072007", [](Clerk& clerk) {
        Type(clerk, "%s%h");
        EXPECT_EQ(clerk.Message(), "f^T dr badlalyaanaMtrcaI pomaonT roka^D-sa\\ Agaaodr KaoDa");
        EXPECT_TRUE(CanEnter(clerk, "cmdExit"));
        EXPECT_FALSE(CanEnter(clerk, "cmdOkYes"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
    });
    EXPECT_EQ(Deliveries(), before);
    EXPECT_EQ(ChartDates().size(), 3) << "the chart stays saved";
}

TEST_F(ReRatingTest, APaymentThatEndsTheDayBeforeOrOfAnotherCompanyDoesNotBlockIt)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    AddPayment("01/07/2007");
    AddPayment("31/07/2007", 2);
    SaveAndAnswer("02072007", "%h");
    EXPECT_EQ(Deliveries(), QStringList("02/07/2007|gaaya|4.5|30.45|60.9"));
}

TEST_F(ReRatingTest, SalesAndPaymentsStayAsTheyAre)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    AddPayment("01/07/2007");
    Run("insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesNo,Animal,Liters) "
        "values(1,'02/07/2007','sakaL',1,'gaaya',2)");
    const QStringList sales = Rows("select * from MilkSales");
    const QStringList payments = Rows("select * from MilkPayments");
    SaveAndAnswer("02072007", "%h");
    EXPECT_EQ(Rows("select * from MilkSales"), sales);
    EXPECT_EQ(Rows("select * from MilkPayments"), payments);
}

// Writes down what is painted of the bar while the deliveries are priced.
class PaintedBar final : public QObject {
public:
    explicit PaintedBar(const Screen& screen)
        : m_percent(screen.findChild<QLabel*>("lblPercent"))
        , m_fat(screen.findChild<QLabel*>("lblMessage"))
    {
        m_percent->installEventFilter(this);
    }

    QStringList Seen;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            Seen.append(m_percent->text() + u' ' + m_fat->text());
        return false;
    }

private:
    const EachPainting m_each;
    QLabel* m_percent;
    QLabel* m_fat;
};

TEST_F(ReRatingTest, TheBarShowsPercentAndFatWhileItRunsAndIsGoneBehindIt)
{
    AddDelivery("02/07/2007", Cow, 2, 4.5, 30, 60);
    std::unique_ptr<PaintedBar> bar;
    PlayOnChart("02072007", [&](Clerk& clerk) {
        clerk.Do([&] { bar = std::make_unique<PaintedBar>(clerk.Top()); });
        EXPECT_FALSE(IsShown(clerk, "lblBack"));
        Type(clerk, "%s%h");
        EXPECT_FALSE(IsShown(clerk, "lblBack"));
        EXPECT_FALSE(IsShown(clerk, "lblMessage"));
    });
    ASSERT_TRUE(bar);
    for (const char* seen : {"12 % फॅट 1.0", "25 % फॅट 4.0", "100 % फॅट 30.0"})
        EXPECT_TRUE(bar->Seen.contains(QString::fromUtf8(seen))) << seen;
}

// A second way to the figures: in whole numbers, from the rows as they were

// A number of the books, exactly: digits / 10^decimals.
struct Decimal {
    qint64 digits = 0;
    int decimals = 0;

    static Decimal Of(const QString& text)
    {
        const qsizetype point = text.indexOf(u'.');
        return {QString(text).remove(u'.').toLongLong(),
            point < 0 ? 0 : static_cast<int>(text.size() - point - 1)};
    }

    Decimal operator*(const Decimal& other) const
    {
        return {digits * other.digits, decimals + other.decimals};
    }

    // To so many decimals, halves away from zero.
    Decimal Rounded(int wanted) const
    {
        Decimal rounded = *this;
        while (rounded.decimals > wanted + 1) {
            rounded.digits /= 10; // positive numbers: what is cut off can't make a half
            --rounded.decimals;
        }
        return rounded.decimals <= wanted ? rounded : Decimal{(rounded.digits + 5) / 10, wanted};
    }

    QString Text() const
    {
        QString text = QString::number(digits).rightJustified(decimals + 1, u'0');
        if (decimals > 0) {
            text.insert(text.size() - decimals, u'.');
            while (text.endsWith(u'0'))
                text.chop(1);
            if (text.endsWith(u'.'))
                text.chop(1);
        }
        return text;
    }
};

class ReckonedReRatingTest : public ReRatingTest {
protected:
    void AddManyDeliveries()
    {
        std::mt19937 dice(20070702);
        const auto upTo = [&](int most) { return static_cast<int>(dice() % static_cast<unsigned>(most)); };
        const QStringList days{"30/06/2007", "01/07/2007", "02/07/2007", "03/07/2007", "15/04/2026"};
        const QList<double> fats{1, 4, 4.1, 4.3, 4.4, 4.5, 4.6, 4.7, 5.2, 30};
        for (int number = 0; number < 300; ++number) {
            const double liters = (1 + upTo(20000)) / 1000.0;
            AddDelivery(days[upTo(5)], upTo(2) == 0 ? Cow : Buffalo, liters, fats[upTo(10)],
                (2000 + upTo(2000)) / 100.0, 1 + upTo(500), 1 + upTo(2));
        }
    }
};

TEST_F(ReckonedReRatingTest, EveryRowAgreesWithItsReckoningInWholeNumbers)
{
    AddManyDeliveries();
    const QString query =
        "select CompanyId,CollectionDate,Animal,Liters,Fat,Rate,Amount from MilkCollections";
    const QStringList before = Rows(query);
    SaveAndAnswer("02072007", "%h", "{F5}6.123{ENTER}5.57{ENTER}{ENTER}");

    QStringList expected;
    for (const QString& row : before) {
        QStringList field = row.split(u'|');
        const QDate day = QDate::fromString(field[1], "dd/MM/yyyy");
        if (field[0] == u"1" && day >= QDate(2007, 7, 2)) {
            if (field[4] != u"4.1" && field[4] != u"5.2") // the chart hasn't these
                field[5] = (Decimal::Of(field[4]) * Decimal{field[2] == Cow ? 5570 : 6123, 3}).Text();
            field[6] = (Decimal::Of(field[3]) * Decimal::Of(field[5])).Text();
        }
        expected.append(field.join(u'|'));
    }
    EXPECT_NE(expected, before);
    EXPECT_EQ(Rows(query), expected);

    for (const QString& row : Rows("select Fat,CowRate,BuffRate from Fat020707")) {
        const QStringList field = row.split(u'|');
        EXPECT_EQ(field[1], (Decimal::Of(field[0]) * Decimal{557, 2}).Rounded(2).Text());
        EXPECT_EQ(field[2], (Decimal::Of(field[0]) * Decimal{6123, 3}).Rounded(2).Text());
    }
}

}
