// The templates of the pay slips, the registers and the balances, laid out as their golden files say.

#include "tests/reports/TemplateGoldenTest.h"

#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "society/Words.h"
#include "tests/support/PdfText.h"

namespace {

// Members of the demonstration, one of each kind, and how much milk they bring.
constexpr int CowMember = 1;
constexpr int BuffaloMember = 2;
constexpr int BothMember = 3; // and all after this one

QDate Day(const char* text)
{
    return ToDate(QString::fromLatin1(text));
}

class ShippedTemplatesOfPaymentsTest : public TemplateGoldenTest {
protected:
    ShippedTemplatesOfPaymentsTest()
    {
        for (const char* table : {"MilkCollections", "MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt",
                 "TransactionsMaster", "TransactionsDetails"})
            Run(QString("delete * from ") + table);
        Run("update MembersMaster set Animal='gaaya' where MemberNo=1");
        Run("update MembersMaster set Animal='mhOsa' where MemberNo=2");
        Run("update MembersMaster set Animal='daonhI' where MemberNo=3");
    }

    static bool Sells(int member, QStringView animal)
    {
        return member >= BothMember || (member == CowMember) == (animal == Word::Cow);
    }

    QString NameOf(int member)
    {
        return One(Sql(u"select MemberName from MembersMaster where MemberNo=", member));
    }

    // Milk on each day, in both shifts; the same figures each time.
    void Deliver(int member, const QDate& from, const QDate& to, int cansAShift = 1)
    {
        const QString name = NameOf(member);
        for (QDate day = from; day <= to; day = day.addDays(1))
            for (const QStringView shift : {Word::Morning, Word::Evening})
                for (const QStringView animal : {Word::Cow, Word::Buffalo})
                    for (int can = 1; can <= cansAShift && Sells(member, animal); ++can)
                        DeliverCan(member, name, day, shift, animal, can);
    }

    // Pays a period: deposits, heads and net amount as the payment screen leaves them.
    void Pay(int member, const char* from, const char* to)
    {
        const QString period = Sql(u" from MilkCollections where MemberNo=", member, u" and CollectionDate>=",
            SqlDay(Day(from)), u" and CollectionDate<=", SqlDay(Day(to)), u" and Animal=");
        const auto sum = [&](const char* column, QStringView animal) {
            return Val(One(QStringLiteral("select sum(") + QLatin1String(column) + u')' + period
                + QString(Quoted(animal))));
        };
        const double cow = sum("Liters", Word::Cow);
        const double buff = sum("Liters", Word::Buffalo);
        const double cowAmount = sum("Amount", Word::Cow);
        const double buffAmount = sum("Amount", Word::Buffalo);
        const double kapat = 828;
        const QDate date = Day(to);
        Run(Sql(u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
                u"Animal,Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,TotalUchal,"
                u"ThevKapatCow,ThevKapatBuff,LitersCow,LitersBuff,CowAmount,BuffAmount,FixedKapat,"
                u"PreviousAdvance) values(",
            Values(1, Day(from), date, date, member, member, NameOf(member),
                One(Sql(u"select Animal from MembersMaster where MemberNo=", member)), cow + buff,
                cowAmount + buffAmount, kapat + cow / 2 + buff / 2,
                cowAmount + buffAmount - kapat - cow / 2 - buff / 2, 500, 0.45, kapat, cow / 2, buff / 2, cow,
                buff, cowAmount, buffAmount, 5, 500),
            u")"));
        AddHeads("MilkPaymentsDetails", date, member,
            {{u"maagaIla baakI", 500}, {u"]cala", 200}, {u"KaV", 123.45}, {u"[tr", 5},
                {Word::CowThev, cow / 2}, {Word::BuffThev, buff / 2}});
        AddHeads("MilkPaymentsDetails", QDate(2026, 4, 1), member, {{Word::CowThev, 120.5}});
        AddHeads("AdvanceReceipt", date, member, {{Word::UchalKapat, kapat - 5}});
    }

    void AddHeads(const char* table, const QDate& date, int member,
        std::initializer_list<std::pair<QStringView, double>> heads)
    {
        for (const auto& [type, amount] : heads)
            Run(Sql(u"insert into ", QString::fromLatin1(table),
                u"(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
                Values(1, date, 1, member, type, amount), u")"));
    }

    // The three members for a period from the first of April on.
    void PayAll(const char* to, int cansAShift = 1)
    {
        for (int member : {CowMember, BuffaloMember, BothMember}) {
            Deliver(member, QDate(2026, 4, 1), Day(to), cansAShift);
            Pay(member, "01/04/2026", to);
        }
    }

    void PrintSlips(const char* duration, const char* keys)
    {
        gAppState.gPaymentDuration = QString::fromLatin1(duration);
        Type<frmReportMilkPayments>(keys);
        ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    }

    void PrintRegister(const char* mode, const char* keys)
    {
        gAppState.gReportMode = QString::fromLatin1(mode);
        Type<frmReportMilkPaymentsRegister>(keys);
        ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    }

    std::size_t Pages() const
    {
        Report& report = *TheWindow.Shown.back();
        report.Complete();
        return report.PageCount();
    }

private:
    void DeliverCan(
        int member, const QString& name, const QDate& day, QStringView shift, QStringView animal, int can)
    {
        const bool isCow = animal == Word::Cow;
        const int dice = (day.day() * 7 + (shift == Word::Morning ? 3 : 0) + member * 5 + can * 11) % 20;
        const double liters = (isCow ? 8 : 4) + dice / 8.0;
        const double fat = (isCow ? 35 : 62) / 10.0 + dice / 10.0;
        const double rate = (isCow ? 30 : 45) + dice / 4.0;
        const QString amount = Format(liters * rate, u"0.00");
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
            Values(1, day, shift, member * 10 + can, member, name, animal, liters, fat, rate, Val(amount), 0),
            u")"));
    }
};

TEST_F(ShippedTemplatesOfPaymentsTest, ThreeSlipsOfADayStandOnASheet)
{
    PayAll("01/04/2026");
    PrintSlips("1 idvasa", "01042026{ENTER}1{ENTER}3{ENTER}%i");
    CompareWithGolden("MilkPaymentsReport1D");
    EXPECT_EQ(Pages(), 1U);
}

TEST_F(ShippedTemplatesOfPaymentsTest, ThreeSlipsOfAWeekStandOnASheet)
{
    PayAll("07/04/2026");
    PrintSlips("7 idvasa", "07042026{ENTER}1{ENTER}3{ENTER}%i");
    CompareWithGolden("MilkPaymentsReport7D");
    EXPECT_EQ(Pages(), 1U);
}

TEST_F(ShippedTemplatesOfPaymentsTest, TwoSlipsOfTenDaysStandOnASheet)
{
    PayAll("10/04/2026");
    PrintSlips("10 idvasa", "10042026{ENTER}2{ENTER}3{ENTER}%i");
    CompareWithGolden("MilkPaymentsReport10D");
    EXPECT_EQ(Pages(), 1U);
}

TEST_F(ShippedTemplatesOfPaymentsTest, TheLongestSlipsOfBothAnimalsStandOnOneSheetToo)
{
    for (const auto& [duration, to, keys, last] :
        {std::tuple("1 idvasa", "21/05/2026", "21052026{ENTER}3{ENTER}5{ENTER}%i", 5),
            {"7 idvasa", "27/05/2026", "27052026{ENTER}3{ENTER}5{ENTER}%i", 5},
            {"10 idvasa", "31/05/2026", "31052026{ENTER}3{ENTER}4{ENTER}%i", 4},
            {"15 idvasa", "05/06/2026", "05062026{ENTER}3{ENTER}3{ENTER}%i", 3},
            {"1 maihnaa", "20/06/2026", "20062026{ENTER}3{ENTER}3{ENTER}%i", 3}}) {
        Run("delete * from MilkCollections");
        for (int member = BothMember; member <= last; ++member) {
            Run(Sql(u"update MembersMaster set Animal='daonhI' where MemberNo=", member));
            Deliver(member, QDate(2026, 5, 21), Day(to));
            Pay(member, "21/05/2026", to);
        }
        Run("update MilkPayments set NetAmount=NetAmount-0.95"); // the paise that went to the deposit
        PrintSlips(duration, keys);
        EXPECT_TRUE(ReportTexts().contains("वजा : सुटे पैसे")) << duration;
        EXPECT_EQ(Pages(), 1U) << duration;
    }
}

TEST_F(ShippedTemplatesOfPaymentsTest, OneSlipOfFifteenDaysStandsOnASheet)
{
    PayAll("15/04/2026");
    PrintSlips("15 idvasa", "15042026{ENTER}2{ENTER}3{ENTER}%i");
    CompareWithGolden("MilkPaymentsReport15D");
    EXPECT_EQ(Pages(), 2U);
}

TEST_F(ShippedTemplatesOfPaymentsTest, OneSlipOfAMonthStandsOnASheet)
{
    PayAll("30/04/2026");
    PrintSlips("1 maihnaa", "30042026{ENTER}1{ENTER}3{ENTER}%i");
    CompareWithGolden("MilkPaymentsReport1M");
    EXPECT_EQ(Pages(), 3U);
}

TEST_F(ShippedTemplatesOfPaymentsTest, NothingIsCutOffAtThirtyDaysWithTwoDeliveriesAShift)
{
    Run("update AutoSettings set RepeatCollection='haoya'");
    PayAll("30/04/2026", 2);
    for (const char* duration : {"1 idvasa", "7 idvasa", "10 idvasa", "15 idvasa", "1 maihnaa"}) {
        PrintSlips(duration, "30042026{ENTER}1{ENTER}3{ENTER}%i");
        const QStringList texts = ReportTexts();
        // Each line has the date; there are two of each day and animal.
        qsizetype dates = 0;
        for (int day = 1; day <= 30; ++day)
            dates += texts.count(QStringLiteral("%1/04").arg(day, 2, 10, QLatin1Char('0')));
        EXPECT_EQ(dates, 30 * 2 * 4) << duration;
        for (Recordset row(gCn, QStringLiteral("select AmountM,AmountE from MilkCollectionsME")); !row.Eof();
             row.MoveNext())
            for (int column : {0, 1})
                EXPECT_TRUE(texts.contains(Format(row.At(column).Number(), u"0.00"))) << duration;
        for (const char* net : {"select NetAmount from MilkPayments where MemberNo=1",
                 "select NetAmount from MilkPayments where MemberNo=3"})
            EXPECT_TRUE(texts.contains(Format(Val(One(QString::fromLatin1(net))), u"0.00"))) << duration;
        ComparePdfWithItems(*TheWindow.Shown.back());
    }
}

TEST_F(ShippedTemplatesOfPaymentsTest, AMemberOfOneAnimalHasOneBlock)
{
    for (const auto& [duration, to, keys] :
        {std::tuple("1 idvasa", "01/04/2026", "01042026{ENTER}"),
            {"7 idvasa", "07/04/2026", "07042026{ENTER}"}, {"10 idvasa", "10/04/2026", "10042026{ENTER}"},
            {"15 idvasa", "15/04/2026", "15042026{ENTER}"}, {"1 maihnaa", "30/04/2026", "30042026{ENTER}"}}) {
        Run("delete * from MilkCollections");
        Run("delete * from MilkPayments");
        PayAll(to);
        const auto blocks = [&, keys = keys, duration = duration](const char* member) {
            PrintSlips(duration, QByteArray(QByteArray(keys) + member + "{ENTER}" + member + "{ENTER}%i"));
            const QStringList texts = ReportTexts();
            // The head of a block, and the line of the animal's sums.
            return std::pair(texts.count("गाय"), texts.count("म्हैस"));
        };
        EXPECT_EQ(blocks("1"), std::pair(qsizetype{2}, qsizetype{0})) << duration;
        EXPECT_EQ(blocks("2"), std::pair(qsizetype{0}, qsizetype{2})) << duration;
        EXPECT_EQ(blocks("3"), std::pair(qsizetype{2}, qsizetype{2})) << duration;
    }
}

// What came back during the period has been taken off the heads already, and is taken off the balance from
// before as well: only the single lines say what is owed.
TEST_F(ShippedTemplatesOfPaymentsTest, AReceiptOfThePeriodIsNotSummedTwiceOnTheSlip)
{
    for (const auto& [duration, to, keys] :
        {std::tuple("1 idvasa", "01/04/2026", "01042026{ENTER}3{ENTER}3{ENTER}%i"),
            {"7 idvasa", "07/04/2026", "07042026{ENTER}3{ENTER}3{ENTER}%i"},
            {"10 idvasa", "10/04/2026", "10042026{ENTER}3{ENTER}3{ENTER}%i"},
            {"15 idvasa", "15/04/2026", "15042026{ENTER}3{ENTER}3{ENTER}%i"},
            {"1 maihnaa", "30/04/2026", "30042026{ENTER}3{ENTER}3{ENTER}%i"}}) {
        for (const char* table : {"MilkCollections", "MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt"})
            Run(QString("delete * from ") + table);
        Deliver(BothMember, QDate(2026, 4, 1), Day(to));
        Pay(BothMember, "01/04/2026", to);
        Run("delete * from MilkPaymentsDetails");
        Run("update MilkPayments set PreviousAdvance=0,FixedKapat=0");
        for (const auto& [table, type, amount] : {std::tuple("MilkPaymentsDetails", "]cala", 1200.0),
                 {"MilkPaymentsDetails", "KaV", 642.5}, {"AdvanceReceipt", "Uchal Receipt", 300.0}})
            Run(Sql(u"insert into ", QString::fromLatin1(table),
                u"(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
                Values(1, Day(to), 1, BothMember, QString::fromUtf8(type), amount), u")"));
        PrintSlips(duration, keys);
        const QStringList texts = ReportTexts();
        for (const char* line : {"-300.00", "1200.00", "642.50"})
            EXPECT_TRUE(texts.contains(line)) << duration << ' ' << line;
        EXPECT_FALSE(texts.contains("1542.50")) << duration;
    }
}

TEST_F(ShippedTemplatesOfPaymentsTest, ASlipOfSeveralPeriodsOfADateHasTheDaysOfItsOwn)
{
    Deliver(BothMember, QDate(2026, 4, 1), QDate(2026, 4, 20));
    Pay(BothMember, "01/04/2026", "10/04/2026");
    Pay(BothMember, "11/04/2026", "20/04/2026");
    Run("update MilkPayments set PaymentDate='20/04/2026'");
    PrintSlips("10 idvasa", "20042026{ENTER}3{ENTER}3{ENTER}%i");
    const QStringList texts = ReportTexts();
    for (int day = 1; day <= 20; ++day)
        EXPECT_EQ(texts.count(QStringLiteral("%1/04").arg(day, 2, 10, QLatin1Char('0'))), 2) << day;
    EXPECT_LT(texts.indexOf("10/04"), texts.indexOf("11/04/2026 ते 20/04/2026"));
    EXPECT_GT(texts.indexOf("11/04"), texts.indexOf("11/04/2026 ते 20/04/2026"));
}

// The registers, of enough members for more than a page.

class ShippedTemplatesOfRegistersTest : public ShippedTemplatesOfPaymentsTest {
protected:
    ShippedTemplatesOfRegistersTest()
    {
        Run("delete * from MembersMaster where MemberNo>3");
        const QStringList names{NameOf(1), NameOf(2), NameOf(3)};
        for (int member = 4; member <= 60; ++member)
            Run(Sql(u"insert into MembersMaster(CompanyId,MemberNo,MemberName,Animal,CowOpeningThev,"
                    u"BuffOpeningThev) values(",
                Values(1, member, names[member % 3], Word::Both, 100 * member, 0), u")"));
    }

    void PayEverybody()
    {
        PayAll("10/04/2026");
        for (int member = 4; member <= 60; ++member) {
            Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,"
                    u"MemberNo,Animal,Liters,Amount) values(",
                Values(1, QDate(2026, 4, 5), Word::Morning, member, member, Word::Cow, 100 + member,
                    3000 + member * 10.25),
                u")"));
            Pay(member, "01/04/2026", "10/04/2026");
        }
    }

    void GiveAdvances()
    {
        for (int member = 1; member <= 60; ++member) {
            AddHeads("TransactionsDetails", QDate(2026, 3, 20), member, {{u"]cala", 1000.0 + member}});
            if (member % 4 == 0)
                AddHeads("AdvanceReceipt", QDate(2026, 3, 25), member, {{Word::UchalReceipt, 250.5}});
        }
    }

    static constexpr const char* Keys = "01042026{ENTER}10042026{ENTER}1{ENTER}{ENTER}%i";
};

TEST_F(ShippedTemplatesOfRegistersTest, MilkPaymentsRegisterPortraitCarriesItsPageTotalsForward)
{
    PayEverybody();
    PrintRegister("PR", Keys);
    CompareWithGolden("MilkPaymentsRegisterPortrait");
    const QStringList texts = ReportTexts();
    EXPECT_EQ(Pages(), 3U);
    for (const char* line : {"पानाची बेरीज", "पुढील पानावर", "मागील पानावरून"})
        EXPECT_EQ(texts.count(QString::fromUtf8(line)), 2) << line;
    EXPECT_TRUE(texts.contains("एकूण (60)"));
    EXPECT_TRUE(texts.contains(Format(Val(One("select sum(NetAmount) from MilkPayments")), u"0.00")));
}

TEST_F(ShippedTemplatesOfRegistersTest, MilkPaymentsRegisterLandscapeTellsTheHeadsToo)
{
    PayEverybody();
    PrintRegister("PR", "01042026{ENTER}10042026{ENTER}1{ENTER}{ENTER}{DOWN}%i");
    CompareWithGolden("MilkPaymentsRegisterLandscape");
    EXPECT_TRUE(ReportTexts().contains("पुढील पानावर"));
}

TEST_F(ShippedTemplatesOfRegistersTest, ThevRegisterTellsTheDepositBeforeOfAndAfterThePeriod)
{
    PayEverybody();
    PrintRegister("TR", Keys);
    CompareWithGolden("ThevRegister");
}

TEST_F(ShippedTemplatesOfRegistersTest, UchalRegisterNewTellsWhatIsOwedBeforeAndAfterThePeriod)
{
    PayEverybody();
    GiveAdvances();
    PrintRegister("UR", Keys);
    CompareWithGolden("UchalRegisterNew");
}

TEST_F(ShippedTemplatesOfRegistersTest, UchalBalanceStatementListsThoseWhoOwe)
{
    GiveAdvances();
    PrintRegister("UchalBalanceStatement", Keys);
    CompareWithGolden("UchalBalanceStatement");
}

TEST_F(ShippedTemplatesOfRegistersTest, ThevBalanceStatementListsTheDeposits)
{
    PayEverybody();
    PrintRegister("ThevBalanceStatement", Keys);
    CompareWithGolden("ThevBalanceStatement");
}

TEST_F(ShippedTemplatesOfRegistersTest, PersonalUchalReportRunsABalanceOverItsPages)
{
    GiveAdvances();
    for (int day = 1; day <= 30; ++day) {
        AddHeads("TransactionsDetails", QDate(2026, 4, day), BothMember, {{u"]cala", 100.25 * day}});
        AddHeads("AdvanceReceipt", QDate(2026, 4, day), BothMember, {{Word::UchalKapat, 95.5 * day}});
    }
    AddHeads("AdvanceReceipt", QDate(2026, 4, 30), BothMember, {{Word::UchalReceipt, 5000}});
    PrintRegister("UD", "01042026{ENTER}30042026{ENTER}3{ENTER}%i");
    CompareWithGolden("PersonalUchalReport");
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("मागील पानावरून"));
    EXPECT_TRUE(texts.contains("आरंभीची शिल्लक"));
    EXPECT_TRUE(texts.contains(Format(1003 + (100.25 - 95.5) * 465 - 5000, u"0.00")));
}

}
