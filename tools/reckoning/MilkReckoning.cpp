#include "tools/reckoning/MilkReckoning.h"

#include "tools/reckoning/VoucherReckoning.h"

#include <algorithm>

namespace {

const QString Cash = QStringLiteral("raoK");

QString AnimalWord(bool isCow)
{
    return isCow ? QStringLiteral("gaaya") : QStringLiteral("mhOsa");
}

QString ShiftWord(const MilkReckoning::Shift& shift)
{
    return shift.isMorning ? QStringLiteral("sakaL") : QStringLiteral("saMQyaakaL");
}

QStringList Place(const MilkReckoning::Shift& shift)
{
    return {QStringLiteral("1"), DayText(shift.day), ShiftWord(shift)};
}

bool IsIn(const QDate& day, const QDate& from, const QDate& to)
{
    return day >= from && day <= to;
}

// The columns of both tables but those that tell of the clock or that nobody writes.
const QString DeliveryColumns =
    QStringLiteral("CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                   "MemberName,Animal,Liters,Fat,Rate,Amount,TranId");
constexpr int DeliveryAmount = 10;

}

// The charts

Exact MilkReckoning::RateOf(const QDate& day, Exact fat, bool isCow) const
{
    const auto ofDay = m_charts.find(day);
    const Chart& chart = ofDay == m_charts.end() ? m_charts.rbegin()->second : ofDay->second;
    return fat.Product(isCow ? chart.cow : chart.buff);
}

// What is re-rated is the bare product: nothing rounds it.
void MilkReckoning::ReRate(const QDate& from)
{
    for (auto& [shift, cans] : m_deliveries) {
        if (shift.day < from)
            continue;
        for (Can& can : cans) {
            can.rate = RateOf(from, can.delivery.fat, can.delivery.isCow);
            can.amount = can.delivery.litres.Product(can.rate);
        }
    }
}

// The counter

int MilkReckoning::LastNumber(const Shift& shift) const
{
    const auto found = m_deliveries.find(shift);
    return found == m_deliveries.end() || found->second.empty() ? 0 : found->second.back().number;
}

void MilkReckoning::Deliver(const Shift& shift, const Delivery& delivery)
{
    const Exact rate = RateOf(shift.day, delivery.fat, delivery.isCow);
    m_deliveries[shift].push_back({delivery, LastNumber(shift) + 1, rate, delivery.litres.Times(rate)});
    m_notSummedUp.erase(delivery.member);
}

void MilkReckoning::DeliverLate(const Shift& shift, const Delivery& delivery)
{
    const int last = std::max(LastNumber({shift.day, true}), LastNumber({shift.day, false}));
    const Exact rate = RateOf(shift.day, delivery.fat, delivery.isCow);
    m_deliveries[shift].push_back({delivery, last + 1, rate, delivery.litres.Times(rate), true});
    m_notSummedUp[delivery.member][delivery.isCow] += delivery.litres;
}

std::vector<int> MilkReckoning::BringersOf(const Shift& shift) const
{
    std::vector<int> members;
    if (const auto found = m_deliveries.find(shift); found != m_deliveries.end())
        for (const Can& can : found->second)
            members.push_back(can.delivery.member);
    return members;
}

void MilkReckoning::ChangeLitresOfLast(const Shift& shift, Exact litres)
{
    Can& can = m_deliveries[shift].back();
    can.delivery.litres = litres;
    can.amount = litres.Times(can.rate);
    m_notSummedUp.erase(can.delivery.member);
}

void MilkReckoning::DeleteLast(const Shift& shift)
{
    m_notSummedUp.erase(Last(shift).member);
    m_deliveries[shift].pop_back();
}

Exact MilkReckoning::ForgetMember(int member)
{
    Exact litres;
    for (auto& [shift, cans] : m_deliveries)
        std::erase_if(cans, [&](const Can& can) {
            if (can.delivery.member != member)
                return false;
            litres += can.delivery.litres;
            return true;
        });
    return litres;
}

// The sales

void MilkReckoning::AddCustomer(const Customer& customer)
{
    m_customers[customer.number] = {customer, customer.cowOpening, customer.buffOpening};
}

const QString& MilkReckoning::NameOf(int customer) const
{
    return customer == 0 ? Cash : m_customers.at(customer).customer.name;
}

void MilkReckoning::Sell(const Shift& shift, const Sale& sale)
{
    std::vector<Sold>& sold = m_sales[shift];
    sold.push_back({sale, sold.empty() ? 1 : sold.back().number + 1});
    if (sale.customer != 0)
        AdvanceLitres(sale);
}

// A new sale is added to what stood there with two decimals; a closing figure below the opening one has its
// gap counted twice.
void MilkReckoning::AdvanceLitres(const Sale& sale)
{
    Litres& litres = m_customers.at(sale.customer);
    const Exact opening =
        (sale.isCow ? litres.customer.cowOpening : litres.customer.buffOpening).ToThePaisa();
    Exact& closing = sale.isCow ? litres.cow : litres.buff;
    const Exact gap = closing.ToThePaisa() - opening;
    closing = (gap < Exact() ? -gap : gap) + sale.litres + opening;
}

// After a change or a deletion they are those of all sales, to two decimals.
void MilkReckoning::RecomputeLitres(int customer, bool isCow)
{
    Litres& litres = m_customers.at(customer);
    Exact sum = isCow ? litres.customer.cowOpening : litres.customer.buffOpening;
    for (const auto& [shift, sold] : m_sales)
        for (const Sold& one : sold)
            if (one.sale.customer == customer && one.sale.isCow == isCow)
                sum += one.sale.litres;
    (isCow ? litres.cow : litres.buff) = sum.ToThePaisa();
}

void MilkReckoning::ChangeLitresOfLastSale(const Shift& shift, Exact litres)
{
    Sale& sale = m_sales[shift].back().sale;
    sale.litres = litres;
    sale.ourLitres = litres;
    if (sale.customer != 0)
        for (const bool isCow : {true, false})
            RecomputeLitres(sale.customer, isCow);
}

void MilkReckoning::DeleteLastSale(const Shift& shift)
{
    const Sale sale = m_sales[shift].back().sale;
    m_sales[shift].pop_back();
    if (sale.customer != 0)
        RecomputeLitres(sale.customer, sale.isCow);
}

// Sums

Exact MilkReckoning::Collected(const Shift& shift, bool isCow) const
{
    return SumCollected(shift, isCow, [](const Can& can) { return can.delivery.litres; });
}

Exact MilkReckoning::SumCollected(const Shift& shift, bool isCow, Exact (*of)(const Can&)) const
{
    Exact sum;
    if (const auto found = m_deliveries.find(shift); found != m_deliveries.end())
        for (const Can& can : found->second)
            if (can.delivery.isCow == isCow)
                sum += of(can);
    return sum;
}

Exact MilkReckoning::AverageFat(const Shift& shift, bool isCow) const
{
    Exact byFat;
    for (const Can& can : m_deliveries.at(shift))
        if (can.delivery.isCow == isCow)
            byFat += can.delivery.litres.Product(can.delivery.fat);
    return byFat.Over(Collected(shift, isCow));
}

Exact MilkReckoning::LitresOf(int member, bool isCow, const QDate& from, const QDate& to) const
{
    Exact litres;
    for (const auto& [shift, cans] : m_deliveries)
        for (const Can& can : cans)
            if (can.delivery.member == member && can.delivery.isCow == isCow && IsIn(shift.day, from, to))
                litres += can.delivery.litres;
    return litres;
}

Exact MilkReckoning::AmountOf(int member) const
{
    Exact amount;
    for (const auto& [shift, cans] : m_deliveries)
        for (const Can& can : cans)
            if (can.delivery.member == member)
                amount += can.amount;
    return amount;
}

Exact MilkReckoning::ClosingLitresOf(int member, bool isCow) const
{
    const Exact all = LitresOf(member, isCow, QDate(1900, 1, 1), QDate(9999, 12, 31));
    const auto late = m_notSummedUp.find(member);
    if (late == m_notSummedUp.end())
        return all;
    const auto litres = late->second.find(isCow);
    return litres == late->second.end() ? all : all - litres->second;
}

qsizetype MilkReckoning::Deliveries() const
{
    qsizetype count = 0;
    for (const auto& [shift, cans] : m_deliveries)
        count += static_cast<qsizetype>(cans.size());
    return count;
}

Exact MilkReckoning::In() const
{
    Exact litres;
    for (const auto& [shift, cans] : m_deliveries)
        for (const Can& can : cans)
            litres += can.delivery.litres;
    return litres;
}

Exact MilkReckoning::Out() const
{
    Exact litres;
    for (const auto& [shift, sold] : m_sales)
        for (const Sold& one : sold)
            litres += one.sale.litres;
    return litres;
}

Exact MilkReckoning::SumSold(
    const Shift& shift, bool isCow, const QString& customer, Exact (*of)(const Sold&)) const
{
    Exact sum;
    if (const auto found = m_sales.find(shift); found != m_sales.end())
        for (const Sold& one : found->second)
            if (one.sale.isCow == isCow && (customer.isNull() || NameOf(one.sale.customer) == customer))
                sum += of(one);
    return sum;
}

// What has to stand in the books

QStringList MilkReckoning::DeliveryLines(const QDate& from, const QDate& to) const
{
    QStringList lines;
    for (const auto& [shift, cans] : m_deliveries)
        for (const auto& [delivery, number, rate, amount, isLate] : cans)
            if (IsIn(shift.day, from, to))
                lines.append((Place(shift)
                    + QStringList{QString::number(number), QString::number(delivery.member), delivery.name,
                        AnimalWord(delivery.isCow), delivery.litres.Text(), delivery.fat.Text(), rate.Text(),
                        amount.Text(), isLate ? QStringLiteral("NULL") : QStringLiteral("0")})
                                 .join(u'|'));
    return lines;
}

QStringList MilkReckoning::SaleLines(const QDate& from, const QDate& to, const QString& customer) const
{
    QStringList lines;
    for (const auto& [shift, sold] : m_sales)
        for (const Sold& one : sold) {
            const Sale& sale = one.sale;
            if (!IsIn(shift.day, from, to) || (!customer.isNull() && NameOf(sale.customer) != customer))
                continue;
            const QString type = sale.customer == 0                   ? Cash
                : m_customers.at(sale.customer).customer.isFederation ? QStringLiteral("saMGa ivaËI")
                                                                      : QStringLiteral("sqaainak ivaËI");
            lines.append((Place(shift)
                + QStringList{type, QString::number(one.number), QString::number(sale.customer),
                    NameOf(sale.customer), AnimalWord(sale.isCow), sale.litres.Text(), sale.fat.Text(),
                    sale.rate.Text(), one.Amount().Text(), sale.ourLitres.Text(), sale.snf.Text(),
                    sale.ourFat.Text(), sale.ourRate.Text(), sale.ourLitres.Times(sale.ourRate).Text()})
                             .join(u'|'));
        }
    return lines;
}

std::vector<Compared> MilkReckoning::Comparison() const
{
    const QDate first(1900, 1, 1);
    const QDate last(9999, 12, 31);
    QStringList closing;
    for (const auto& [number, litres] : m_customers)
        closing.append(
            QStringList{QString::number(number), litres.customer.name, litres.customer.cowOpening.Text(),
                litres.cow.Text(), litres.customer.buffOpening.Text(), litres.buff.Text()}
                .join(u'|'));
    return {
        Compared::With(QStringLiteral("delivery"), DeliveryLines(first, last),
            QStringLiteral("select ") + DeliveryColumns + QStringLiteral(" from MilkCollections"),
            Sums({DeliveryAmount}, 5)),
        Compared::With(
            QStringLiteral("sale"), SaleLines(first, last), QStringLiteral("select * from MilkSales")),
        Compared::With(QStringLiteral("customer's litres"), closing,
            QStringLiteral("select CustomerNo,CustomerName,CowOpeningLits,CowClosingLits,BuffOpeningLits,"
                           "BuffClosingLits from CustomersMaster"),
            Sums({3, 5}, 3)),
    };
}

// The statements

QStringList MilkReckoning::Lines(const QDate& from, const QDate& to, const Statement& statement) const
{
    QStringList lines;
    for (QDate day = from; day <= to; day = day.addDays(1))
        for (const bool isMorning : {true, false})
            for (const bool isCow : {true, false})
                lines += LineOf({day, isMorning}, isCow, statement);
    return lines;
}

// None if nothing came in and nothing went out.
QStringList MilkReckoning::LineOf(const Shift& shift, bool isCow, const Statement& statement) const
{
    const Exact in = SumCollected(shift, isCow, statement.in);
    const Exact out = SumSold(shift, isCow, {}, statement.out);
    if (in <= Exact() && out <= Exact())
        return {};
    Exact federation;
    for (const QString& name : statement.federation)
        federation += SumSold(shift, isCow, name, statement.out);
    const QString our =
        statement.our ? (-SumSold(shift, isCow, {}, statement.our)).Text() : QStringLiteral("NULL");
    const QStringList cells = Place(shift)
        + QStringList{
            AnimalWord(isCow), in.Text(), (out - federation).Text(), federation.Text(), out.Text(), our};
    return {cells.join(u'|')};
}

Compared MilkReckoning::GainAndLossInLitres(const QDate& from, const QDate& to) const
{
    QStringList federation;
    for (const auto& [number, litres] : m_customers)
        if (litres.customer.isFederation)
            federation.append(litres.customer.name);
    const Statement statement{[](const Can& can) { return can.delivery.litres; },
        [](const Sold& sold) { return sold.sale.litres; }, federation,
        [](const Sold& sold) { return sold.sale.ourLitres; }};
    return Compared::With(QStringLiteral("gain and loss in litres"), Lines(from, to, statement),
        QStringLiteral("select * from VadhTootReport"), Sums({4, 5, 6, 7, 8}, 3));
}

Compared MilkReckoning::GainAndLossInRupees(
    const QDate& from, const QDate& to, const QString& federation) const
{
    const Statement statement{[](const Can& can) { return can.amount; },
        [](const Sold& sold) { return sold.Amount(); }, {federation}, nullptr};
    return Compared::With(QStringLiteral("gain and loss in rupees"), Lines(from, to, statement),
        QStringLiteral("select * from VadhTootReport"), Sums({4, 5, 6, 7}, 5));
}

Compared MilkReckoning::Purchases(const QDate& from, const QDate& to) const
{
    return Compared::With(QStringLiteral("purchase"), DeliveryLines(from, to),
        QStringLiteral("select ") + DeliveryColumns + QStringLiteral(" from MilkCollectionsTemp"),
        Sums({DeliveryAmount}, 5));
}

Compared MilkReckoning::Sales(const QDate& from, const QDate& to) const
{
    return Compared::With(
        QStringLiteral("listed sale"), SaleLines(from, to), QStringLiteral("select * from MilkSalesTemp"));
}

Compared MilkReckoning::SalesTo(const QString& customer, const QDate& from, const QDate& to) const
{
    return Compared::With(QStringLiteral("compared sale"), SaleLines(from, to, customer),
        QStringLiteral("select * from MilkSalesTemp"));
}
