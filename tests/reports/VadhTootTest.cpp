// What is staged for the gain and loss statement.

#include "tests/reports/VadhTootTest.h"

#include "tests/reports/PaymentsTest.h"

#include <array>
#include <map>
#include <random>

namespace {

using VadhTootLitersTest = VadhTootTest;
using VadhTootAmountTest = VadhTootTest;

constexpr const char* Figures = "LitersIn,LitersLocal,LitersSangh,LitersOut,OurLiters";
constexpr const char* Place = "CollectionDate,CollectionTime,Animal,LitersIn";

}

// Litres

TEST_F(VadhTootLitersTest, TheMilkOfAShiftIsSetAgainstItsSalesAndTheSocietysOwnMeasureIsTakenAway)
{
    AddCustomer("dUQa saMGa");
    Bring({.day = "01/06/2007", .liters = 60.5});
    Bring({.day = "01/06/2007", .liters = 39.5});
    Sell({.day = "01/06/2007", .customer = "dUQa saMGa", .liters = 80, .ourLiters = 80.75});
    Sell({.day = "01/06/2007", .liters = 15, .ourLiters = 15.25});
    InLiters("01062007", "01062007");
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(), Lines({"1|01/06/2007|sakaL|gaaya|100|15|80|95|-96"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|01/06/2007|01/06/2007"}));
}

TEST_F(VadhTootLitersTest, ADayWithCollectionsButNoSalesHasARowWithNothingOut)
{
    Bring({.liters = 12.345});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"12.345|0|0|0|0"}));
}

TEST_F(VadhTootLitersTest, ADayWithSalesButNoCollectionsHasARowWithNothingIn)
{
    Sell({.liters = 7.5, .ourLiters = 7});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|7.5|0|7.5|-7"}));
}

TEST_F(VadhTootLitersTest, ADayWithNeitherHasNoRow)
{
    Bring({.day = "14/04/2026", .liters = 1});
    Bring({.day = "16/04/2026", .liters = 2});
    InLiters("14042026", "16042026");
    EXPECT_EQ(Staged(Place), Lines({"14/04/2026|sakaL|gaaya|1", "16/04/2026|sakaL|gaaya|2"}));
}

TEST_F(VadhTootLitersTest, NothingInAndNothingOutIsNoRowBelowNoughtEither)
{
    Bring({.shift = "sakaL", .liters = -4});
    Bring({.shift = "saMQyaakaL", .liters = -4});
    Sell({.shift = "sakaL", .liters = -2, .ourLiters = 50});
    Sell({.shift = "saMQyaakaL", .liters = 0.001});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"-4|0.001|0|0.001|0"}));
}

TEST_F(VadhTootLitersTest, TheRowsGoByDayShiftAndAnimal)
{
    double liters = 0;
    for (const char* day : {"16/04/2026", "15/04/2026"})
        for (const char* animal : {"mhOsa", "gaaya"})
            for (const char* shift : {"saMQyaakaL", "sakaL"})
                Bring({.day = day, .shift = shift, .animal = animal, .liters = ++liters});
    InLiters("15042026", "16042026");
    EXPECT_EQ(Staged(Place),
        Lines({"15/04/2026|sakaL|gaaya|8", "15/04/2026|sakaL|mhOsa|6", "15/04/2026|saMQyaakaL|gaaya|7",
            "15/04/2026|saMQyaakaL|mhOsa|5", "16/04/2026|sakaL|gaaya|4", "16/04/2026|sakaL|mhOsa|2",
            "16/04/2026|saMQyaakaL|gaaya|3", "16/04/2026|saMQyaakaL|mhOsa|1"}));
}

TEST_F(VadhTootLitersTest, BothEndsOfTheRangeCountAndNothingBeyondThem)
{
    for (const char* day :
        {"27/02/2028", "28/02/2028", "29/02/2028", "01/03/2028", "02/03/2028", "29/02/2024"}) {
        Bring({.day = day, .liters = 3});
        Sell({.day = day, .liters = 2});
    }
    InLiters("28022028", "01032028");
    EXPECT_EQ(Staged("CollectionDate,LitersIn,LitersOut"),
        Lines({"28/02/2028|3|2", "29/02/2028|3|2", "01/03/2028|3|2"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|28/02/2028|01/03/2028"}));
}

// A year that was keyed as 0202 or 9202: some three million days, which would take longer than a test may
// last.
TEST_F(VadhTootLitersTest, TheDaysBeforeTheFirstAndAfterTheLastMilkAreNotWalkedThrough)
{
    Sell({.day = "13/04/2026", .liters = 1});
    Bring({.day = "14/04/2026", .liters = 2});
    Sell({.day = "15/04/2026", .liters = 3});
    Bring({.day = "16/04/2026", .liters = 4});
    Sell({.day = "16/04/0201", .liters = 99});
    InLiters("17040201", "14042026");
    InLiters("01010202", "31129202");
    EXPECT_EQ(Staged("CollectionDate,LitersIn,LitersOut"),
        Lines({"13/04/2026|0|1", "14/04/2026|2|0", "15/04/2026|0|3", "16/04/2026|4|0"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|01/01/0202|31/12/9202"}));
    InLiters("14042026", "15042026");
    EXPECT_EQ(Staged("CollectionDate,LitersIn,LitersOut"), Lines({"14/04/2026|2|0", "15/04/2026|0|3"}));
}

TEST_F(VadhTootLitersTest, ARangeTheWrongWayRoundStagesItsDatesAndNoRow)
{
    Bring({.liters = 3});
    for (const bool isLiters : {true, false}) {
        Run("insert into VadhTootReport(CompanyId,LitersIn) values(1,99)");
        if (isLiters)
            InLiters("20042026", "10042026");
        else
            InAmounts("20042026", "10042026");
        EXPECT_FALSE(Failure);
        EXPECT_EQ(Staged(), QStringList());
        EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|20/04/2026|10/04/2026"}));
    }
    EXPECT_EQ(TheWindow.Shown.size(), 2U) << "it is printed all the same";
}

TEST_F(VadhTootLitersTest, APeriodWithoutMilkIsAnEmptyReportWithoutAMessage)
{
    Bring({.day = "14/04/2026", .liters = 3, .amount = 90});
    for (const bool isLiters : {true, false}) {
        if (isLiters)
            InLiters();
        else
            InAmounts();
        EXPECT_FALSE(Failure);
        EXPECT_EQ(Staged(), QStringList());
        EXPECT_TRUE(ReportTexts().contains("15/04/2026 ते 15/04/2026 या काळात दुधाची नोंद नाही."));
    }
    EXPECT_EQ(TheBox.Shown, QStringList());
}

TEST_F(VadhTootLitersTest, BlanksAroundTheWordsOfShiftAndAnimalDontCount)
{
    Bring({.shift = " sakaL ", .animal = "gaaya  ", .liters = 3});
    Sell({.shift = "sakaL  ", .animal = " gaaya", .liters = 2, .ourLiters = 1});
    Bring({.shift = "sakaL", .animal = "daonhI", .liters = 99});
    Bring({.shift = "dupaar", .liters = 99});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"3|2|0|2|-1"}));
}

TEST_F(VadhTootLitersTest, AShiftThatIsWrittenInTwoWaysIsOne)
{
    Bring({.shift = "sakaL", .liters = 3});
    Bring({.shift = "sakaL ", .liters = 4});
    Bring({.shift = "saMQyaakaL", .animal = "mhOsa", .liters = 5});
    InLiters();
    EXPECT_EQ(Staged("CollectionTime,Animal,LitersIn"), Lines({"sakaL|gaaya|7", "saMQyaakaL|mhOsa|5"}));
}

TEST_F(VadhTootLitersTest, NullsCountAsNought)
{
    Bring({.liters = 3});
    Sell({.liters = 2});
    Run("update MilkSales set OurLiters=null");
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"3|2|0|2|0"}));
    Run("update MilkSales set Liters=null");
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"3|0|0|0|0"}));
}

TEST_F(VadhTootLitersTest, AFigureIsStagedInItsShortestForm)
{
    AddCustomer("dUQa saMGa");
    Sell({.customer = "dUQa saMGa", .liters = 80.1});
    Sell({.liters = 15.2, .ourLiters = 0.1});
    Sell({.liters = 0, .ourLiters = 0.2});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|15.2|80.1|95.3|-0.3"}));
    EXPECT_EQ(One("select count(*) from VadhTootReport where LitersLocal=15.2 and OurLiters=-0.3"), "1");
}

// Who the federation is

TEST_F(VadhTootLitersTest, SalesToEveryCustomerOfTheFederationAreAddedUp)
{
    AddCustomer("dUQa saMGa");
    AddCustomer("taalauka saMGa", " saMGa ivaËI ");
    AddCustomer("ha^Tola", "sqaainak ivaËI");
    AddCustomer("prsaMGa", "saMGa ivaËI", 2);
    Sell({.customer = "dUQa saMGa", .liters = 10});
    Sell({.customer = "dUQa saMGa", .liters = 20});
    Sell({.customer = "taalauka saMGa", .liters = 30});
    Sell({.customer = "ha^Tola", .liters = 4});
    Sell({.customer = "prsaMGa", .liters = 5});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|9|60|69|0"}));
}

TEST_F(VadhTootLitersTest, TheTwelfthCustomerOfTheFederationCountsAsALocalOne)
{
    for (int number = 1; number <= 12; ++number) {
        const QByteArray name = "saMGa" + QByteArray::number(number);
        AddCustomer(name);
        Sell({.customer = name, .liters = number == 12 ? 1000.0 : number});
    }
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|1000|66|1066|0"}));
}

TEST_F(VadhTootLitersTest, ANameIsHeldAsItIsStoredAndTheNameOfASaleIsTrimmed)
{
    AddCustomer("dUQa saMGa");
    AddCustomer("taalauka saMGa ");
    Sell({.customer = "  dUQa saMGa ", .liters = 10});
    Sell({.customer = "taalauka saMGa ", .liters = 20});
    Sell({.customer = "taalauka saMGa", .liters = 5});
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|25|10|35|0"}));
}

TEST_F(VadhTootLitersTest, TheCustomersAreThoseOfTheMomentWhenTheScreenOpened)
{
    AddCustomer("dUQa saMGa");
    Sell({.customer = "dUQa saMGa", .liters = 10});
    On<frmVadhTootReport>([this](Clerk& clerk) {
        clerk.Do([this] { Run("update CustomersMaster set CustomerName='navaa saMGa'"); });
        Type(clerk, "15042026{ENTER}15042026{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Staged(Figures), Lines({"0|0|10|10|0"}));
    InLiters();
    EXPECT_EQ(Staged(Figures), Lines({"0|10|0|10|0"}));
}

TEST_F(VadhTootLitersTest, AnApostropheInACustomersNameEndsTheProgramAndChangesNothing)
{
    Run("insert into VadhTootReport(CompanyId,LitersIn) values(1,99)");
    Bring({.liters = 3});
    gCn.RunScript("insert into CustomersMaster(CompanyId,CustomerName,CustomerType) "
                  "values(1,'raama''sa','saMGa ivaËI')");
    InLiters();
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Staged("LitersIn"), Lines({"99"}));
    EXPECT_EQ(Rows("select * from ReportDates"), QStringList());
}

// Rupees

TEST_F(VadhTootAmountTest, TheSameRowsHoldRupeesAndTheOwnMeasureIsNotWritten)
{
    AddAccount("dUQa saMGa");
    Bring({.liters = 100, .amount = 3000.25});
    Bring({.liters = 50, .amount = 1500.5});
    Sell({.customer = "dUQa saMGa", .liters = 80, .ourLiters = 81, .amount = 3200.1});
    Sell({.liters = 15, .ourLiters = 15, .amount = 750});
    Bring({.shift = "saMQyaakaL", .animal = "mhOsa", .liters = 10});
    Sell({.shift = "saMQyaakaL", .animal = "mhOsa", .liters = 10, .ourLiters = 10, .amount = 0.05});
    InAmounts();
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged(),
        Lines({"1|15/04/2026|sakaL|gaaya|4500.75|750|3200.1|3950.1|NULL",
            "1|15/04/2026|saMQyaakaL|mhOsa|0|0.05|0|0.05|NULL"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|15/04/2026|15/04/2026"}));
}

TEST_F(VadhTootAmountTest, AShiftWithoutRupeesHasNoRowThoughItHasLitres)
{
    Bring({.liters = 10});
    Sell({.liters = 10, .ourLiters = 10});
    InAmounts();
    EXPECT_EQ(Staged(), QStringList());
}

TEST_F(VadhTootAmountTest, OfTwoAccountsOfTheFederationTheFirstIsItAndASaleToTheSecondIsLocal)
{
    AddAccount("taalauka saMGa");
    AddAccount("dUQa saMGa");
    Sell({.customer = "taalauka saMGa", .amount = 100});
    Sell({.customer = "dUQa saMGa", .amount = 20});
    InAmounts();
    EXPECT_EQ(Staged(Figures), Lines({"0|20|100|120|NULL"}));
}

TEST_F(VadhTootAmountTest, TheAccountIsADebtorOfTheFederationAndOfTheSelectedCompany)
{
    AddAccount("dUQa saMGa", "Debtors", "saMGa", 2);
    AddAccount("dUQa saMGa", "Bank", "saMGa");
    AddAccount("dUQa saMGa", "Debtors", "raoK");
    AddAccount("taalauka saMGa", " Debtors ", " saMGa ");
    Sell({.customer = " taalauka saMGa ", .amount = 100});
    Sell({.customer = "dUQa saMGa", .amount = 20});
    InAmounts();
    EXPECT_EQ(Staged(Figures), Lines({"0|20|100|120|NULL"}));
}

TEST_F(VadhTootAmountTest, WithoutAnAccountAllSalesAreLocal)
{
    AddCustomer("dUQa saMGa");
    Sell({.customer = "dUQa saMGa", .amount = 100});
    Sell({.customer = "", .amount = 10});
    Sell({.customer = " ", .amount = 1});
    InAmounts();
    EXPECT_EQ(Staged(Figures), Lines({"0|111|0|111|NULL"}));
}

// Both

TEST_F(VadhTootLitersTest, TheMilkOfEveryCompanyIsSummedIntoRowsOfTheSelectedOne)
{
    AddCustomer("dUQa saMGa");
    AddAccount("dUQa saMGa");
    for (int company : {1, 2}) {
        Bring({.liters = 10, .amount = 300, .company = company});
        Sell({.customer = "dUQa saMGa", .liters = 6, .ourLiters = 5, .amount = 240, .company = company});
        Sell({.liters = 3, .ourLiters = 2, .amount = 150, .company = company});
    }
    InLiters();
    EXPECT_EQ(Staged(), Lines({"1|15/04/2026|sakaL|gaaya|20|6|12|18|-14"}));
    InAmounts();
    EXPECT_EQ(Staged(), Lines({"1|15/04/2026|sakaL|gaaya|600|300|480|780|NULL"}));
    gAppState.gCompanyId = 2;
    InLiters();
    EXPECT_EQ(Staged(), Lines({"2|15/04/2026|sakaL|gaaya|20|18|0|18|-14"}));
    EXPECT_EQ(Rows("select CompanyId from ReportDates"), Lines({"2"}));
}

TEST_F(VadhTootLitersTest, TwoRunsInARowGiveTheSame)
{
    Bring({.liters = 10, .amount = 300});
    for (const bool isLiters : {true, false}) {
        QStringList rows;
        for (int run = 1; run <= 2; ++run) {
            if (isLiters)
                InLiters();
            else
                InAmounts();
            EXPECT_EQ(Staged().size(), 1);
            EXPECT_EQ(Rows("select * from ReportDates").size(), 1);
            if (run == 1)
                rows = Staged();
            EXPECT_EQ(Staged(), rows);
        }
    }
}

TEST_F(VadhTootLitersTest, RowsOfNoCompanyAreTidiedAway)
{
    gAppState.gCompanyId = 0;
    Bring({.liters = 10, .amount = 300});
    InLiters();
    EXPECT_EQ(Staged(), QStringList());
    InAmounts();
    EXPECT_EQ(Staged(), QStringList());
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"0|15/04/2026|15/04/2026"}));
}

TEST_F(VadhTootLitersTest, TheDatesAreStagedBeforeTheRows)
{
    Bring({.liters = 10, .amount = 300});
    gCn.RunScript("create trigger Watch before insert on VadhTootReport begin "
                  "insert into KapatDetails(MemberNo) select count(*) from ReportDates; end");
    InLiters();
    InAmounts();
    EXPECT_EQ(Rows("select MemberNo from KapatDetails"), Lines({"1", "1"}));
}

// The figures once more, by other code, from rows that chance has made.

namespace {

struct Reckoned {
    qint64 in = 0, federation = 0, out = 0, our = 0; // thousandths
};

class VadhTootReckoningTest : public VadhTootTest {
protected:
    using Key = std::array<int, 3>; // day, shift, animal
    std::map<Key, Reckoned> Liters, Amounts;

    VadhTootReckoningTest()
    {
        for (const char* name : Federation)
            AddCustomer(name);
        AddAccount(Federation[0]);
        std::mt19937 dice(20260415); // the same rows in every run
        const auto roll = [&dice](
                              int below) { return static_cast<int>(dice() % static_cast<unsigned>(below)); };
        for (int row = 0; row < 1500; ++row) {
            const Key key{roll(Days), roll(2), roll(2)};
            if (key[0] % 7 == 3 || (key[0] % 5 == 1 && key[1] == 1))
                continue; // days and shifts without milk
            const int liters = 1 + roll(30000);
            const int paise = 1 + roll(150000);
            if (roll(3) > 0)
                BringRow(key, liters, paise, 1 + roll(2));
            else
                SellRow(key, liters, liters + roll(200) - 100, paise, roll(4), 1 + roll(2));
        }
    }

    static constexpr const char* Federation[] = {"dUQa saMGa", "taalauka saMGa"};
    static constexpr int Days = 40;
    static QDate DayOf(const Key& key) { return QDate(2026, 3, 20).addDays(key[0]); }

    // The rows that must be staged, with the figures in thousandths.
    static QStringList Expected(const std::map<Key, Reckoned>& all, bool isLiters)
    {
        QStringList lines;
        for (const auto& [key, one] : all)
            if (one.in > 0 || one.out > 0)
                lines.append(QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8")
                                 .arg(DateText(DayOf(key)), QLatin1String(Shifts[key[1]]),
                                     QLatin1String(Animals[key[2]]))
                                 .arg(one.in)
                                 .arg(one.out - one.federation)
                                 .arg(one.federation)
                                 .arg(one.out)
                                 .arg(isLiters ? QString::number(-one.our) : QStringLiteral("NULL")));
        return lines;
    }

    QStringList StagedThousandths()
    {
        return Rows("select CollectionDate,CollectionTime,Animal,cast(round(LitersIn*1000) as integer),"
                    "cast(round(LitersLocal*1000) as integer),cast(round(LitersSangh*1000) as integer),"
                    "cast(round(LitersOut*1000) as integer),cast(round(OurLiters*1000) as integer) "
                    "from VadhTootReport");
    }

private:
    static constexpr const char* Shifts[] = {"sakaL", "saMQyaakaL"};
    static constexpr const char* Animals[] = {"gaaya", "mhOsa"};

    void BringRow(const Key& key, int liters, int paise, int company)
    {
        const QByteArray day = DateText(DayOf(key)).toLatin1();
        Bring({.day = day,
            .shift = Shifts[key[1]],
            .animal = Animals[key[2]],
            .liters = liters / 1000.0,
            .amount = paise / 100.0,
            .company = company});
        Liters[key].in += liters;
        Amounts[key].in += paise * 10LL;
    }

    void SellRow(const Key& key, int liters, int ourLiters, int paise, int customer, int company)
    {
        const QByteArray day = DateText(DayOf(key)).toLatin1();
        const char* names[] = {Federation[0], Federation[1], "raoK", "ha^Tola"};
        Sell({.day = day,
            .shift = Shifts[key[1]],
            .animal = Animals[key[2]],
            .customer = names[customer],
            .liters = liters / 1000.0,
            .ourLiters = ourLiters / 1000.0,
            .amount = paise / 100.0,
            .company = company});
        Liters[key].out += liters;
        Liters[key].our += ourLiters;
        Liters[key].federation += customer < 2 ? liters : 0;
        Amounts[key].out += paise * 10LL;
        Amounts[key].federation += customer == 0 ? paise * 10LL : 0;
    }
};

TEST_F(VadhTootReckoningTest, EveryFigureIsThatOfTheRawRows)
{
    InLiters("20032026", "28042026");
    EXPECT_FALSE(Failure);
    EXPECT_EQ(StagedThousandths(), Expected(Liters, true));
    EXPECT_GT(Staged().size(), 100);
    InAmounts("20032026", "28042026");
    EXPECT_FALSE(Failure);
    EXPECT_EQ(StagedThousandths(), Expected(Amounts, false));
}

}
