#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"
#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

namespace {

QString Rows(const QString& statement)
{
    return AskDemo(statement).join(u'\n');
}

TEST(DemoTest, IsTheSameEveryTime)
{
    QTemporaryDir again;
    SocietyPlan plan = GoodPlan();
    plan.demo = true;
    MakeSociety(again.path(), plan);
    const QStringList first = AskDemo(".dump");
    const QStringList second = Shell(again.path(), plan.password, ".dump");
    EXPECT_GT(first.size(), 5000);
    EXPECT_TRUE(first == second);
}

TEST(DemoTest, HasFortyMembersWithMarathiNames)
{
    const QStringList members = AskDemo("select MemberNo,MemberName from MembersMaster;");
    ASSERT_EQ(members.size(), 40);
    QSet<QString> names;
    const QRegularExpression threeWords("^[\\x{0900}-\\x{097F}]+( [\\x{0900}-\\x{097F}]+){2}$");
    for (qsizetype i = 0; i < members.size(); ++i) {
        const QStringList cells = members[i].split(u'|');
        EXPECT_EQ(cells[0], QString::number(i + 1));
        EXPECT_FALSE(cells[1].contains(u'\''));
        const QString seen = Shivaji01::ToUnicode(cells[1]);
        EXPECT_TRUE(threeWords.match(seen).hasMatch()) << seen.toStdString();
        names.insert(seen);
    }
    EXPECT_EQ(names.size(), 40);
    EXPECT_TRUE(names.contains("ज्ञानेश्वर एकनाथ महाडिक"));
}

TEST(DemoTest, HasMembersOfEveryKind)
{
    EXPECT_EQ(Rows("select Animal,count(*)>=8 from MembersMaster group by Animal order by Animal;"),
        "daonhI|1\ngaaya|1\nmhOsa|1");
    EXPECT_EQ(
        Rows("select PaymentType,count(*)>=8 from MembersMaster group by 1 order by 1;"), "ba^nk|1\nraoK|1");
    EXPECT_EQ(Rows("select count(*) from MembersMaster where (PaymentType='ba^nk')<>(BankName<>'' and "
                   "BankAccountNo<>'');"),
        "0");
    EXPECT_EQ(Rows("select count(*) from MembersMaster where City not in (select CityName from "
                   "CityMaster) or (BankName<>'' and BankName not in (select BankName from BankMaster));"),
        "0");
    EXPECT_EQ(Rows("select count(*)-count(distinct CityName) from CityMaster;"), "0");
}

TEST(DemoTest, HasLocalAndFederationCustomers)
{
    EXPECT_EQ(Rows("select CustomerType,count(*) from CustomersMaster group by CustomerType "
                   "order by CustomerType;"),
        "saMGa ivaËI|2\nsqaainak ivaËI|4");
    EXPECT_EQ(Rows("select count(*) from CustomersMaster c join AccountsMaster a on "
                   "a.AccountName=c.CustomerName where a.GroupCode='Debtors' and a.Category='saMGa';"),
        "2");
}

TEST(DemoTest, RunsThroughAprilAndMayTwiceADay)
{
    EXPECT_EQ(Rows("select min(CollectionDate),max(CollectionDate),count(distinct CollectionDate||"
                   "CollectionTime) from MilkCollections;"),
        "2026-04-01|2026-05-31|122");
    EXPECT_EQ(Rows("select distinct CollectionTime from MilkCollections order by 1;"), "saMQyaakaL\nsakaL");
}

TEST(DemoTest, NumbersRunThroughEachShift)
{
    EXPECT_EQ(Rows("select count(*) from (select min(CollectionNo) a,max(CollectionNo) b,count(*) n,"
                   "count(distinct CollectionNo) d from MilkCollections group by CollectionDate,"
                   "CollectionTime) where a<>1 or b<>n or d<>n or n<30;"),
        "0");
}

TEST(DemoTest, EachDeliveryIsPricedAsTheCounterWould)
{
    const QStringList rows = AskDemo(
        "select c.Liters,c.Fat,c.Rate,c.Amount,case c.Animal when 'gaaya' then f.CowRate when 'mhOsa' then "
        "f.BuffRate end from MilkCollections c left join Fat010426 f on f.Fat=rtrim(rtrim(cast(c.Fat as "
        "text),'0'),'.');");
    ASSERT_GT(rows.size(), 4000);
    for (const QString& row : rows) {
        const QStringList cells = row.split(u'|');
        ASSERT_EQ(cells.size(), 5);
        const double liters = Val(cells[0]);
        EXPECT_GT(liters, 0);
        EXPECT_EQ(Format(liters, u"########0.000"),
            Format(Val(Format(liters, u"########0.000")), u"########0.000"));
        EXPECT_EQ(Val(cells[1]), Val(Format(Val(cells[1]), u"#########0.0")));
        EXPECT_EQ(Val(cells[2]), Val(cells[4])) << row.toStdString();
        EXPECT_EQ(Val(cells[3]), Val(Format(liters * Val(cells[2]), u"#########0.00"))) << row.toStdString();
    }
}

TEST(DemoTest, MembersBringWhatTheirAnimalsGiveOnceAShift)
{
    EXPECT_EQ(Rows("select count(*) from MilkCollections c join MembersMaster m using (MemberNo) where "
                   "m.MemberName<>c.MemberName or m.Animal not in ('daonhI',c.Animal);"),
        "0");
    EXPECT_EQ(Rows("select count(*) from (select 1 from MilkCollections group by CollectionDate,"
                   "CollectionTime,MemberNo,Animal having count(*)>1);"),
        "0");
}

TEST(DemoTest, ClosingLitresAreTheOpeningAndTheDeliveries)
{
    const QStringList rows = AskDemo(
        "select CowOpeningLits,CowClosingLits,(select total(Liters) from MilkCollections c where "
        "c.MemberNo=m.MemberNo and c.Animal='gaaya'),BuffOpeningLits,BuffClosingLits,(select total(Liters) "
        "from "
        "MilkCollections c where c.MemberNo=m.MemberNo and c.Animal='mhOsa') from MembersMaster m;");
    ASSERT_EQ(rows.size(), 40);
    for (const QString& row : rows) {
        const QStringList cells = row.split(u'|');
        for (const qsizetype at : {0, 3}) {
            const float closing = static_cast<float>(Val(cells[at])) + static_cast<float>(Val(cells[at + 2]));
            EXPECT_EQ(ShortestDecimal(Val(cells[at + 1])), ShortestDecimal(closing)) << row.toStdString();
        }
    }
}

TEST(DemoTest, ClosingBalancesAreTheOpeningTheVouchersAndThePayment)
{
    EXPECT_EQ(Rows("select PurchaseEntry from AutoSettings;"), "Payment");
    EXPECT_EQ(
        Rows("select count(*) from MembersMaster m join MilkPayments p using (MemberNo) where "
             "abs(m.ClosingBalance-(m.OpeningBalance-(select total(Amount) from TransactionsDetails t where "
             "t.MemberNo=m.MemberNo)+(select total(Amount) from AdvanceReceipt a where "
             "a.MemberNo=m.MemberNo and a.AdvanceType='Uchal Receipt')-p.NetAmount-p.ThevKapatCow-"
             "p.ThevKapatBuff+p.TotalUchal))<0.0001;"),
        "40");
    EXPECT_EQ(Rows("select count(*) from MembersMaster where ClosingDorC<>OpeningDorC or "
                   "OpeningDorC not in ('C','D') or OpeningBalance<0;"),
        "0");
    EXPECT_EQ(Rows("select count(*)>5 from MembersMaster where OpeningBalance>0;"), "1");
}

TEST(DemoTest, SalesAreNumberedThroughEachShift)
{
    EXPECT_EQ(Rows("select count(*),sum(a<>1 or b<>n or d<>n) from (select min(SalesNo) a,max(SalesNo) b,"
                   "count(*) n,count(distinct SalesNo) d from MilkSales group by SalesDate,SalesTime);"),
        "122|0");
}

TEST(DemoTest, EachSaleIsPricedAsItsScreenWould)
{
    const QStringList rows = AskDemo(
        "select s.Liters,s.Rate,s.Amount,s.OurLiters,s.OurRate,s.OurAmount,case when s.OurFat=0 then 0 when "
        "s.Animal='gaaya' then f.CowRate else f.BuffRate end from MilkSales s left join Fat010426 f on "
        "f.Fat=rtrim(rtrim(cast(s.OurFat as text),'0'),'.');");
    ASSERT_GT(rows.size(), 800);
    for (const QString& row : rows) {
        const QStringList cells = row.split(u'|');
        ASSERT_EQ(cells.size(), 7);
        const auto product = [&cells](int litres, int rate) {
            return Val(Format(Val(cells[litres]) * Val(cells[rate]), u"#######0.00"));
        };
        EXPECT_GT(Val(cells[1]), 0);
        EXPECT_LE(Val(cells[1]), 60);
        EXPECT_EQ(Val(cells[2]), product(0, 1)) << row.toStdString();
        EXPECT_EQ(Val(cells[5]), product(3, 4)) << row.toStdString();
        EXPECT_EQ(Val(cells[4]), Val(cells[6])) << row.toStdString();
    }
}

TEST(DemoTest, ASaleNamesItsCustomerAsTheyAreStoredAndCashNobody)
{
    EXPECT_EQ(Rows("select count(*) from MilkSales s left join CustomersMaster c using (CustomerNo) where "
                   "case s.CustomerNo when 0 then s.CustomerName<>'raoK' or s.SalesType<>'raoK' else "
                   "s.CustomerName<>c.CustomerName or s.SalesType<>c.CustomerType or c.Animal not in "
                   "('daonhI',s.Animal) end;"),
        "0");
}

TEST(DemoTest, CashAndBankHoldMoneyOnTheFirstDay)
{
    EXPECT_EQ(
        Rows("select GroupCode,OpeningBalance,OpeningDorC from AccountsMaster where OpeningBalance<>0;"),
        "Cash|-60000.0|D\nBank|-184500.0|D");
}

TEST(DemoTest, ClocksAreInTheCountersForm)
{
    const QStringList clocks =
        AskDemo("select distinct ActualCollectionTime from MilkCollections order by ActualCollectionTime;");
    EXPECT_GT(clocks.size(), 40);
    const QRegularExpression form("^[6-8]\\.[0-5][0-9]$");
    for (const QString& clock : clocks)
        EXPECT_TRUE(form.match(clock).hasMatch()) << clock.toStdString();
}

}
