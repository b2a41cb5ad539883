#include "tests/journeys/SocietyYear.h"

#include "collection/frmCollectionGate.h"
#include "collection/frmMilkCollections.h"
#include "core/start/AppDate.h"
#include "masters/frmCustomers.h"
#include "masters/frmMembers.h"
#include "rates/frmNewFatRates.h"
#include "sales/frmMilkSales.h"
#include "vouchers/frmUchalVouchers.h"

namespace {

constexpr int Federation = 4; // its number among the customers
const QDate FirstDay(2026, 4, 1);

Exact Figure(double figure)
{
    return Exact::Of(figure);
}

QString NameOf(int member)
{
    return QString("sabhaasad") + QChar(u'a' + member);
}

}

SocietyYear::SocietyYear(unsigned seed, const Plan& plan) : PaymentYear(seed), m_plan(plan)
{
    OpenTheProgram();
    TemplateReport::Engine() = [](const TemplateReport::Run&) {};
    KeyDepositSpan();
    Run("insert into AccountsMaster values(1,3,'dUQa saMGa','Debtors','saMGa',0,'D',0,'D')");
    Run("update AccountsMaster set OpeningBalance=-1500.75,OpeningDorC='D' where AccountName='raoK'");
    for (const int member : {1, 2, 3, 4, 5, 6, 8, 9})
        KeyMember(member);
    KeyCustomers();
    KeyChart({}, Figure(7.6), Figure(6.4), "");
    m_milk.SetChart(FirstDay, Figure(7.6), Figure(6.4));
}

void SocietyYear::PlayTenDays(const Manner& manner)
{
    if (m_periods == m_plan.leaving) {
        DeleteMember(4);
        KeyMember(10);
        On<frmCustomers>([this](Clerk& clerk) {
            KeyCustomer(clerk, {5, "navaIna", false, Figure(1.5), Exact()});
        });
        EXPECT_FALSE(Failure);
        m_buyers.push_back(5);
    }
    if (m_periods == m_plan.leaving + 1)
        KeyMember(11);
    PlayPeriod(manner);
    if (m_periods % 3 == 0)
        LookAtReports();
}

void SocietyYear::ExpectAgreement()
{
    PaymentYear::ExpectAgreement();
    for (const Compared& rows : m_milk.Comparison())
        Expect(rows);
}

// People

// Every third has milk of cows, of buffaloes, of both; some owe or are owed something of old.
void SocietyYear::KeyMember(int number)
{
    const bool isCow = number % 3 == 0;
    const Exact balance = Figure(number % 2 == 0 ? number * 10.25 : 0);
    const Exact uchal = Figure(number * 4.5);
    const Exact deposit = Figure(number * 1.75);
    const QString animal = TakesBoth(number) ? "3" : isCow ? "1" : "2";
    On<frmMembers>([&](Clerk& clerk) {
        clerk.Type(QString("%n%1{ENTER}%2{ENTER}{ENTER}{ENTER}%3{ENTER}1{ENTER}%4{ENTER}1{ENTER}")
                       .arg(QString::number(number), NameOf(number), animal, balance.Text()));
        // Litres, advance, deposits: of the animals that he has.
        clerk.Type(QString(
            TakesBoth(number) ? "{ENTER}{ENTER}%1{ENTER}%2{ENTER}%2{ENTER}" : "{ENTER}%1{ENTER}%2{ENTER}")
                       .arg(uchal.Text(), deposit.Text()));
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna") << number << " is saved";
    });
    EXPECT_FALSE(Failure);
    const Exact none;
    m_openings[number] = {
        balance, isCow || TakesBoth(number) ? deposit : none, isCow ? none : deposit, uchal};
    Reckoning.AddMember(number, NameOf(number), m_openings[number]);
    m_members.push_back(number);
}

// Nobody asks what he owes. What he brought was sold all the same.
void SocietyYear::DeleteMember(int number)
{
    On<frmMembers>([&](Clerk& clerk) {
        clerk.Type(QString("%k%1{ENTER}").arg(number));
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), NameOf(number).toStdString());
        Type(clerk, "{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    std::erase(m_members, number);
    m_gained += m_milk.ForgetMember(number);
    Reckoning.Forget(number);
    ExpectAgreement();
}

void SocietyYear::KeyCustomers()
{
    const std::vector<MilkReckoning::Customer> customers = {{1, "vasaMta", false, Figure(12.5), Figure(3.25)},
        {2, "kamalaa", false, Exact(), Exact()}, {3, "ganapata", false, Exact(), Figure(7.75)},
        {Federation, "dUQa saMGa", true, Figure(100.5), Figure(80)}};
    On<frmCustomers>([&](Clerk& clerk) {
        for (const MilkReckoning::Customer& customer : customers)
            KeyCustomer(clerk, customer);
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select count(*) from CustomersMaster"), "4");
}

void SocietyYear::KeyCustomer(Clerk& clerk, const MilkReckoning::Customer& customer)
{
    clerk.Type(QString("%n{ENTER}%1{ENTER}3{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}{ENTER}")
                   .arg(customer.name, customer.isFederation ? "2" : "1", customer.cowOpening.Text(),
                       customer.buffOpening.Text()));
    m_milk.AddCustomer(customer);
}

// Charts

// By the rule for each percent of fat; without a day the newest chart is replaced.
void SocietyYear::KeyChart(const QString& day, Exact cow, Exact buff, const char* answer)
{
    On<frmNewFatRates>([&](Clerk& clerk) {
        clerk.Type(QString("%d%1{ENTER}{F5}%2{ENTER}%3{ENTER}{ENTER}%s").arg(day, buff.Text(), cow.Text()));
        Type(clerk, answer);
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
    });
    EXPECT_FALSE(Failure);
}

// A day

void SocietyYear::BringMilk(bool)
{
    for (QDate day = m_period.from; day <= m_period.to && !HasFailure(); day = day.addDays(1)) {
        PlayDay(day);
        if (day == m_plan.charted) {
            KeyChart(Typed(m_plan.chart), Figure(8.1), Figure(6.9), "%h");
            m_milk.SetChart(m_plan.chart, Figure(8.1), Figure(6.9));
            m_milk.ReRate(m_plan.chart);
        }
        if (day == m_plan.restored) {
            m_plan.restored = QDate();
            day = Restore();
        }
    }
    KeyForgottenDays();
    LookAtTheDay();
}

void SocietyYear::PlayDay(const QDate& day)
{
    SCOPED_TRACE(day.toString(Qt::ISODate).toStdString());
    TheClock.Time.setDate(day);
    On<frmAppDate>([&](Clerk& clerk) { clerk.Type(Typed(day) + "{ENTER}{ENTER}"); });
    EXPECT_EQ(gAppState.gAppDate, day);
    On<frmMilkCollections>([&](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        KeyShiftOfMilk(clerk, {day, true});
        if (IsGateOpen(day))
            return;
        Type(clerk, "+{TAB}2{ENTER}");
        KeyShiftOfMilk(clerk, {day, false});
    });
    EXPECT_FALSE(Failure);
    if (IsGateOpen(day)) {
        m_isAtTheGate = true;
        On<frmCollectionGate>([&](Clerk& clerk) {
            Type(clerk, "{ENTER}2{ENTER}");
            KeyShiftOfMilk(clerk, {day, false});
        });
        EXPECT_FALSE(Failure);
        m_isAtTheGate = false;
    }
    On<frmMilkSales>([&](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        KeyShiftOfSales(clerk, {day, true});
        Type(clerk, "+{TAB}2{ENTER}");
        KeyShiftOfSales(clerk, {day, false});
    });
    EXPECT_FALSE(Failure);
    if (day.dayOfWeek() == Qt::Sunday) {
        On<frmUchalVouchers>([&](Clerk& clerk) { GiveAdvance(clerk, ThrowMember(), day); });
        EXPECT_FALSE(Failure);
    }
    if (day.dayOfWeek() == Qt::Saturday)
        BackUp(day);
}

// The gate measures to two decimals.
Exact SocietyYear::ThrowLitres(int least, int most)
{
    const int thrown = least + Throw(most - least);
    return m_isAtTheGate ? Figure(thrown / 10 / 100.0) : Figure(thrown / 1000.0);
}

// On the first day of a period he looks at each key, on the others he types ahead.
void SocietyYear::Key(Clerk& clerk, const QString& keys) const
{
    if (TheClock.Time.date() == m_period.from)
        clerk.Type(keys);
    else
        clerk.TypeAhead(keys);
}

void SocietyYear::KeyShiftOfMilk(Clerk& clerk, const Shift& shift)
{
    for (const int member : m_members) {
        if (!Brings(member) || IsForgotten(member, shift) || Throw(10) == 0)
            continue;
        if (TakesBoth(member)) {
            KeyDelivery(clerk, shift, member, true);
            if (Throw(2) == 0)
                KeyDelivery(clerk, shift, member, false);
        } else {
            KeyDelivery(clerk, shift, member, member % 3 == 0);
        }
    }
    MendTheLastDelivery(clerk, shift);
}

void SocietyYear::KeyDelivery(Clerk& clerk, const Shift& shift, int member, bool isCow)
{
    const MilkReckoning::Delivery delivery{member, NameOf(member), isCow, ThrowLitres(200, 1400),
        Figure((isCow ? 35 + Throw(12) : 62 + Throw(16)) / 10.0)};
    Key(clerk,
        QString("{ENTER}%1{ENTER}%2%3{ENTER}%4{ENTER}{ENTER}{ENTER}")
            .arg(QString::number(member), TakesBoth(member) ? (isCow ? "1{ENTER}" : "2{ENTER}") : "",
                delivery.litres.Text(), delivery.fat.Text()));
    m_milk.Deliver(shift, delivery);
}

// Some days the clerk has misread the last can, some days it was none.
void SocietyYear::MendTheLastDelivery(Clerk& clerk, const Shift& shift)
{
    const int number = m_milk.LastNumber(shift);
    const int slip = shift.day.day() % 5;
    if (number == 0)
        return;
    if (slip == 1) {
        const Exact litres = ThrowLitres(200, 1400);
        Key(clerk,
            QString("%1{ENTER}{ENTER}%2%3{ENTER}{ENTER}{ENTER}{ENTER}")
                .arg(QString::number(number), TakesBoth(m_milk.Last(shift).member) ? "{ENTER}" : "",
                    litres.Text()));
        m_milk.ChangeLitresOfLast(shift, litres);
    } else if (slip == 3) {
        Key(clerk, QString("%1{ENTER}{F10}").arg(number));
        m_milk.DeleteLast(shift);
    }
}

// Everything is sold in its shift: for cash, to who pays later, and the rest to the federation.
void SocietyYear::KeyShiftOfSales(Clerk& clerk, const Shift& shift)
{
    for (const bool isCow : {true, false})
        if (m_milk.Collected(shift, isCow) > Exact())
            SellAll(clerk, shift, isCow);
}

void SocietyYear::SellAll(Clerk& clerk, const Shift& shift, bool isCow)
{
    const Exact all = m_milk.Collected(shift, isCow);
    const Exact rate = Figure(isCow ? 48 : 58.5);
    const Exact fat = Figure(isCow ? 4 : 6.8);
    Exact rest = all;
    const auto sell = [&](int customer, Exact litres) {
        if (litres >= rest)
            return false;
        KeySale(clerk, shift, {customer, isCow, litres, fat, rate, litres, {}, {}, {}}, {});
        rest = rest - litres;
        return true;
    };
    sell(0, ThrowLitres(100, 500));
    const int buyer = m_buyers[static_cast<std::size_t>(shift.day.day()) % m_buyers.size()];
    if (sell(buyer, ThrowLitres(150, 600)) && shift.day.day() % 5 == 4) {
        const Exact litres = ThrowLitres(100, 150);
        rest = rest + m_milk.LastSale(shift).litres - litres;
        MendTheLastSale(clerk, shift, litres);
    }
    SellToTheFederation(clerk, shift, isCow, rest);
    if (shift.day.day() % 5 == 2) {
        KeySale(clerk, shift, {1, isCow, ThrowLitres(100, 300), fat, rate, Exact(), {}, {}, {}}, {});
        Key(clerk, "{UP}{ENTER}{F10}");
        m_milk.DeleteLastSale(shift);
    }
}

// It measures a little more or less than is left. In the morning the society's own measure is worked out by
// the screen from all that came in; in the evening the clerk keys it.
void SocietyYear::SellToTheFederation(Clerk& clerk, const Shift& shift, bool isCow, Exact rest)
{
    const Exact thrown = Figure((Throw(40) - 20) / 1000.0);
    const Exact gain = rest + thrown > Exact() ? thrown : Exact();
    MilkReckoning::Sale sale{Federation, isCow, rest + gain, Figure(isCow ? 4.1 : 6.9),
        Figure((isCow ? 3400 : 4700) / 100.0 + Throw(200) / 100.0), {}, {}, {}, Figure(8.5)};
    m_gained += gain;
    QString measure;
    if (shift.isMorning) {
        sale.ourLitres = m_milk.Collected(shift, isCow);
        sale.ourFat = m_milk.AverageFat(shift, isCow);
        sale.ourRate = m_milk.RateOf(shift.day, sale.ourFat, isCow);
        measure = "{F9}{ENTER} {ENTER}{ENTER}";
    } else {
        sale.ourLitres = rest;
        sale.ourFat = Figure(isCow ? 4.15 : 6.95);
        sale.ourRate = Figure(33.25);
        measure = QString("{F9}%1{ENTER}{ENTER}%2{ENTER}%3{ENTER}")
                      .arg(sale.ourLitres.Text(), sale.ourFat.Text(), sale.ourRate.Text());
    }
    KeySale(clerk, shift, sale, measure + sale.snf.Text() + "{ENTER}");
}

void SocietyYear::KeySale(
    Clerk& clerk, const Shift& shift, const MilkReckoning::Sale& sale, const QString& measure)
{
    Key(clerk,
        QString("{ENTER}%1{ENTER}%2{ENTER}%3%4{ENTER}%5{ENTER}%6{ENTER}{ENTER}{ENTER}")
            .arg(m_milk.NameOf(sale.customer), sale.isCow ? "1" : "2", sale.litres.Text(), measure,
                sale.fat.Text(), sale.rate.Text()));
    EXPECT_EQ(Focus(clerk), "txtSalesNo");
    m_milk.Sell(shift, sale);
}

void SocietyYear::MendTheLastSale(Clerk& clerk, const Shift& shift, Exact litres)
{
    Key(clerk,
        QString("{UP}{ENTER}{ENTER}{ENTER}%1{ENTER}{ENTER}%2{ENTER}{ENTER}{ENTER}")
            .arg(litres.Text(), m_milk.LastSale(shift).rate.Text()));
    m_milk.ChangeLitresOfLastSale(shift, litres);
}
