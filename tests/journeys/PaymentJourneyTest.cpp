// Some members paid over three periods through the real screens, against the reckoning from the raw rows.

#include "payments/frmNewMilkPayment.h"
#include "platform/database/Sql.h"
#include "tests/support/SocietyTest.h"
#include "tools/reckoning/PaymentReckoning.h"

#include <random>
#include <tuple>

namespace {

constexpr int LastMember = 8;

using Setup = std::tuple<const char*, bool>; // what becomes of paise, and whether installments are followed

class PaymentJourneyTest : public SocietyTest, public ::testing::WithParamInterface<Setup> {
protected:
    PaymentJourneyTest()
    {
        const auto [paise, byInstallments] = GetParam();
        Run(QStringLiteral("update AutoSettings set "
                           "ThevKapatCow=0.35,ThevKapatBuff=0.55,FixedKapat=5.50,DecimalPayment='%1'")
                .arg(QLatin1String(paise)));
        if (byInstallments)
            Run(QStringLiteral("update CompanySelected set CostCenter=-1"));
        for (int member = 1; member <= LastMember; ++member) {
            AddMember(member, QStringLiteral("naava") + QChar(u'a' + member));
            if (member % 2 == 0)
                Run(Sql(u"insert into InstallmentTable(MemberNo,MemberName,Kapat) values(",
                    Values(member, u"naava", 50.0 * member), u")"));
        }
        Run(QStringLiteral("update MembersMaster set ClosingBalance=MemberNo*100.25,CowClosingThev=MemberNo,"
                           "BuffClosingThev=MemberNo*2,ClosingUchal=MemberNo*500.5"));
        FillRows();
        Reckoning.ReadSettings(byInstallments);
        Reckoning.ReadClosing();
    }

    // Deliveries of all days, and vouchers and receipts before and in the periods. Member 7 brings nothing in
    // the second period, and member 8 owes more than his milk brings.
    void FillRows()
    {
        for (QDate day(2026, 4, 1); day <= QDate(2026, 4, 30); day = day.addDays(1))
            for (const QStringView time : {u"sakaL", u"saMQyaakaL"})
                for (int member = 1; member <= LastMember; ++member)
                    if ((member != 7 || day.day() <= 10 || day.day() > 20) && Throw(10) > 0)
                        AddDelivery(member, day, time);
        static constexpr QStringView Heads[] = {u"]cala", u"KaV", u"ikraNaa maalaÀroSana", u"[tr"};
        for (int voucher = 0; voucher < 80; ++voucher)
            AddRow(u"TransactionsDetails", Heads[Throw(4)], 1 + Throw(LastMember), Throw(40000));
        for (int receipt = 0; receipt < 24; ++receipt)
            AddRow(u"AdvanceReceipt", u"Uchal Receipt", 1 + Throw(LastMember), Throw(30000));
        AddRow(u"TransactionsDetails", u"]cala", 8, 4500025);
    }

    void AddDelivery(int member, const QDate& day, QStringView time)
    {
        const bool isCow = member % 3 == 0 || (member % 3 == 1 && time == u"sakaL");
        const double litres = (1000 + Throw(6000)) / 1000.0;
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
            Values(1, day, time, 1, member, u"x", isCow ? u"gaaya" : u"mhOsa", litres, 4.5, 35.0,
                (10000 + Throw(30000)) / 100.0, 0),
            u")"));
    }

    // On a day between the 20th of March and the 30th of April.
    void AddRow(QStringView table, QStringView type, int member, int paise)
    {
        Run(Sql(u"insert into ", table, u"(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
            Values(1, QDate(2026, 3, 20).addDays(Throw(42)), 1, member, type, paise / 100.0), u")"));
    }

    int Throw(int sides) { return static_cast<int>(m_dice() % static_cast<unsigned>(sides)); }

    // Pays one member; `uchal` as it is keyed, or as it was proposed.
    void Pay(Clerk& clerk, int member, const QDate& from, const QDate& to, const QString& uchal = {})
    {
        clerk.Type(QStringLiteral("%n%1{ENTER}{ENTER}%2{ENTER}")
                       .arg(from.toString(QStringLiteral("ddMMyyyy")), QString::number(member)));
        if (!uchal.isEmpty())
            clerk.Type(QStringLiteral("{ENTER}{ENTER}{ENTER}%1{ENTER}").arg(uchal));
        clerk.Type(QStringLiteral("%s%h"));
        Reckoning.Pay(member, {from, to, to},
            uchal.isEmpty() ? std::nullopt : std::optional(Exact::Of(uchal.toDouble())));
        ExpectAgreement();
    }

    void TakeBack(Clerk& clerk, int member, const QDate& from)
    {
        clerk.Type(QStringLiteral("%k%1{ENTER}%2{ENTER}{ENTER}")
                       .arg(from.toString(QStringLiteral("ddMMyyyy")), QString::number(member)));
        Reckoning.TakeBack(member, from);
        ExpectAgreement();
    }

    // In a screen of its own.
    void PayMany(const QDate& from, const QDate& to)
    {
        Reckoning.OpenScreen();
        On<frmNewMilkPayment>([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{DOWN}{DOWN}{ENTER}%1{ENTER}{ENTER}1{ENTER}%2{ENTER}{ENTER}")
                           .arg(from.toString(QStringLiteral("ddMMyyyy")), QString::number(LastMember)));
        });
        EXPECT_FALSE(Failure);
        Reckoning.PayMany(1, LastMember, {from, to, to});
        ExpectAgreement();
    }

    void PlaySingle(const std::function<void(Clerk&)>& script)
    {
        Reckoning.OpenScreen();
        On<frmNewMilkPayment>([&](Clerk& clerk) {
            Type(clerk, "{DOWN}{ENTER}{ENTER}");
            script(clerk);
        });
        EXPECT_FALSE(Failure);
    }

    QStringList SortedRows(const char* query)
    {
        QStringList rows = Rows(QString::fromLatin1(query));
        rows.sort();
        return rows;
    }

    void ExpectAgreement()
    {
        ExpectSame(Reckoning.Payments(), SortedRows("select * from MilkPayments"));
        ExpectSame(Reckoning.Details(), SortedRows("select * from MilkPaymentsDetails"));
        ExpectSame(Reckoning.Recoveries(),
            SortedRows("select * from AdvanceReceipt where AdvanceType='Uchal Kapat'"));
        ExpectSame(Reckoning.Closing(),
            SortedRows("select MemberNo,ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from "
                       "MembersMaster"));
        for (int member = 1; member <= LastMember; ++member) {
            const double given =
                One(Sql(u"select sum(Amount) from TransactionsDetails where MemberNo=", member)).toDouble();
            const double back =
                One(Sql(u"select sum(Amount) from AdvanceReceipt where MemberNo=", member)).toDouble();
            EXPECT_EQ(Reckoning.Owed(member).Text().toDouble(), std::round((given - back) * 100) / 100);
        }
    }

    static void ExpectSame(const QStringList& reckoned, const QStringList& stored)
    {
        EXPECT_EQ(reckoned.join(u'\n').toStdString(), stored.join(u'\n').toStdString());
    }

    PaymentReckoning Reckoning;

private:
    std::mt19937 m_dice{20260401};
};

std::string NameOf(const ::testing::TestParamInfo<Setup>& info)
{
    return std::string(std::get<0>(info.param)) + (std::get<1>(info.param) ? "ByInstallments" : "");
}

INSTANTIATE_TEST_SUITE_P(Under, PaymentJourneyTest,
    ::testing::Combine(::testing::Values("AddThev", "Payable", "PayIt", "Discount"), ::testing::Bool()),
    NameOf);

TEST_P(PaymentJourneyTest, ThreePeriodsOfPaymentsReversalsAndRunsAgreeWithTheRawRows)
{
    const QDate first(2026, 4, 1);
    const QDate second(2026, 4, 11);
    const QDate third(2026, 4, 21);
    PlaySingle([&](Clerk& clerk) {
        Pay(clerk, 1, first, QDate(2026, 4, 10));
        Pay(clerk, 3, first, QDate(2026, 4, 10), QStringLiteral("20.75"));
        TakeBack(clerk, 1, first);
        Pay(clerk, 1, first, QDate(2026, 4, 10), QStringLiteral("0"));
    });
    PayMany(first, QDate(2026, 4, 10));
    PayMany(second, QDate(2026, 4, 20));
    PlaySingle([&](Clerk& clerk) {
        TakeBack(clerk, 5, second);
        Pay(clerk, 5, second, QDate(2026, 4, 20));
        Pay(clerk, 6, third, QDate(2026, 4, 30));
        TakeBack(clerk, 6, third);
        TakeBack(clerk, 6, second);
    });
    PayMany(third, QDate(2026, 4, 30));
    EXPECT_EQ(One(QStringLiteral("select count(*) from MilkPayments")), QStringLiteral("22"));
}

}
