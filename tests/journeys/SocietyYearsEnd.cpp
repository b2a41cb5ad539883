// What has to balance at the end of a society's year.

#include "bonus/frmBonusPayments.h"
#include "masters/frmMembers.h"
#include "platform/text/Numbers.h"
#include "reports/frmReportCashBook.h"
#include "reports/frmReportPurchaseSales.h"
#include "reports/frmVadhTootReport.h"
#include "tests/journeys/SocietyYear.h"
#include "tools/reckoning/BonusReckoning.h"
#include "tools/reckoning/LedgerReckoning.h"

namespace {

const QDate FirstDay(2026, 4, 1);

// What is summed in binary, told as it is meant.
std::string Litres(const QString& sum)
{
    return ShortestDecimal(Val(Format(Val(sum), u"0.000"))).toStdString();
}

std::string Told(Exact figure)
{
    return figure.Text().toStdString();
}

}

void SocietyYear::ExpectSome(const Compared& rows)
{
    EXPECT_FALSE(rows.reckoned.isEmpty()) << rows.what.toStdString();
    Expect(rows);
}

// Milk in = milk out less what was gained, day by day and in all.
void SocietyYear::ExpectMilkBalances()
{
    const auto show = [this](const char* choice) {
        On<frmVadhTootReport>([&](Clerk& clerk) {
            clerk.Type(
                QString("%1{ENTER}%2{ENTER}%3{ENTER}{ENTER}").arg(Typed(FirstDay), Typed(LastDay()), choice));
        });
        EXPECT_FALSE(Failure);
    };
    show("{DOWN}");
    ExpectSome(m_milk.GainAndLossInRupees(FirstDay, LastDay(), "dUQa saMGa"));
    show("");
    ExpectSome(m_milk.GainAndLossInLitres(FirstDay, LastDay()));
    EXPECT_EQ(Told(m_milk.In() + m_gained), Told(m_milk.Out()));
    EXPECT_EQ(Litres(One("select sum(LitersIn) from VadhTootReport")), Told(m_milk.In()));
    EXPECT_EQ(Litres(One("select sum(LitersOut) from VadhTootReport")), Told(m_milk.Out()));
    EXPECT_EQ(Litres(One("select sum(LitersOut)-sum(LitersIn) from VadhTootReport")), Told(m_gained));
}

void SocietyYear::ExpectTheMilkBooks()
{
    const auto list = [this](const char* mode) {
        gAppState.gReportMode = mode;
        On<frmReportPurchaseSales>([&](Clerk& clerk) {
            clerk.Type(QString("%1{ENTER}%2{ENTER}%i").arg(Typed(FirstDay), Typed(LastDay())));
        });
        EXPECT_FALSE(Failure);
    };
    list("MP");
    ExpectSome(m_milk.Purchases(FirstDay, LastDay()));
    list("MS");
    ExpectSome(m_milk.Sales(FirstDay, LastDay()));
    list("PS");
    EXPECT_EQ(Rows("select count(*),sum(CAmount),sum(DAmount) from LedgersMaster"),
        QStringList(QString("%1|0|0").arg(FirstDay.daysTo(LastDay()) + 1)))
        << "no screen writes a sale or a purchase into the accounts";
    gAppState.gReportMode = "V";
    On<frmReportCashBook>([&](Clerk& clerk) {
        clerk.Type(QString("%1{ENTER}%2{ENTER}dUQa saMGa{ENTER}%i").arg(Typed(FirstDay), Typed(LastDay())));
    });
    EXPECT_FALSE(Failure);
    ExpectSome(m_milk.SalesTo("dUQa saMGa", FirstDay, LastDay()));
}

// The whole of it, and from its midst on.
void SocietyYear::ExpectTheCashBook()
{
    const LedgerReckoning cash("raoK", Exact::Of(-1500.75), "D");
    const std::vector<VoucherReckoning::Posting> postings = Reckoning.Vouchers.Postings();
    const auto show = [&](const QDate& from) {
        gAppState.gReportMode = "C";
        On<frmReportCashBook>([&](Clerk& clerk) {
            clerk.Type(QString("%1{ENTER}%2{ENTER}%i").arg(Typed(from), Typed(LastDay())));
        });
        EXPECT_FALSE(Failure);
        ExpectSome(cash.Comparison(postings, from, LastDay()));
        EXPECT_GT(One("select count(*) from LedgersMaster").toInt(), 5);
    };
    show(FirstDay);
    show(FirstDay.addDays(FirstDay.daysTo(LastDay()) / 2));
    const std::string closing = Told(cash.Closing(postings));
    EXPECT_EQ(One("select -1500.75+total(case when CAccountName='raoK' then Amount else -Amount end) from "
                  "TransactionsMaster")
                  .toStdString(),
        closing);
    EXPECT_EQ(One("select case ClosingDorC when 'D' then -ClosingBalance else ClosingBalance end from "
                  "LedgersMaster order by TranDate desc,TranId desc")
                  .toStdString(),
        closing);
}

void SocietyYear::ExpectTheBonus()
{
    const BonusReckoning::Asked asked{FirstDay, LastDay(), m_members.back(), Exact::Of(0.35), Exact::Of(0.6)};
    BonusReckoning bonus(asked, m_members, m_milk, Reckoning);
    On<frmBonusPayments>([&](Clerk& clerk) {
        clerk.Type(QString("%1{ENTER}%2{ENTER}1{ENTER}{ENTER}3{ENTER}.35{ENTER}.6{ENTER} {ENTER}{ENTER}")
                       .arg(Typed(FirstDay), Typed(LastDay())));
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        ExpectSome(bonus.Comparison());
        for (const int member : {m_members[1], m_members.back()}) {
            const BonusReckoning::Keyed keyed{
                Exact::Of(member + 0.125), Exact::Of(member * 2.5), Exact::Of(member * 10.05)};
            clerk.Type(QString("%1{ENTER}{ENTER}%2{ENTER}%3{ENTER}{ENTER}%4{ENTER}{ENTER}")
                           .arg(QString::number(member), keyed.cowLitres.Text(), keyed.buffLitres.Text(),
                               keyed.deposit.Text()));
            EXPECT_EQ(Focus(clerk), "txtMemberNo");
            bonus.Correct(member, keyed);
        }
    });
    EXPECT_FALSE(Failure);
    ExpectSome(bonus.Comparison());
}

// Each member is called up and saved as he is: his closing figures are worked out by the screen from all that
// is in the books. The balance is held in single precision, sum by sum.
void SocietyYear::ExpectClosingFiguresOfThePast()
{
    QStringList closing;
    for (const int member : m_members) {
        On<frmMembers>([&](Clerk& clerk) {
            clerk.Type(QString("%d%1{ENTER}").arg(member)
                + QString("{ENTER}").repeated(TakesBoth(member) ? 12 : 10));
            EXPECT_EQ(Focus(clerk), "cmdModify") << member;
            Type(clerk, "{ENTER}%h");
        });
        EXPECT_FALSE(Failure);
        const PaymentReckoning::Year year = Reckoning.YearOf(member);
        const PaymentReckoning::Columns& opening = m_openings.at(member);
        const float movement = m_milk.AmountOf(member).Single() - year.paid.Single() - year.given.Single()
            - (year.cowDeposits + year.buffDeposits + year.paiseDeposits).Single() + year.receipts.Single();
        const double balance = Val(opening.balance.Text()) + static_cast<double>(movement);
        closing.append(QStringList{QString::number(member),
            ShortestDecimal(Val(Format(balance < 0 ? -balance : balance, u"0.00"))), balance < 0 ? "D" : "C",
            (opening.uchal + year.given - year.receipts - year.recoveries).Text(),
            (opening.cow + year.cowDeposits).Text(), (opening.buff + year.buffDeposits).Text(),
            m_milk.ClosingLitresOf(member, true).Text(), m_milk.ClosingLitresOf(member, false).Text()}
                           .join(u'|'));
    }
    ExpectSome(Compared::With("closing figures", closing,
        "select MemberNo,ClosingBalance,ClosingDorC,ClosingUchal,CowClosingThev,BuffClosingThev,"
        "CowClosingLits,BuffClosingLits from MembersMaster"));
}
