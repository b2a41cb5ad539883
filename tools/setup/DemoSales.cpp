#include "tools/setup/DemoSales.h"

namespace {

constexpr QStringView Morning = u"sakaL";
constexpr int Federation = 1;
constexpr int SecondFederation = 2;

// As in the delivered settings, in paise.
constexpr int CowRate = 4800;
constexpr int BuffaloRate = 5800;

// Who in the village buys when, and how many half litres.
struct Habit {
    int customer = 0; // 0 is cash
    bool isCow = false;
    bool inTheMorning = false;
    bool inTheEvening = false;
    int least = 0;
    int most = 0;
};

constexpr Habit Habits[] = {
    {0, true, true, true, 8, 18},
    {0, false, true, true, 4, 12},
    {3, false, true, false, 20, 36},
    {4, true, true, true, 10, 18},
    {5, true, true, false, 6, 6},
    {6, true, true, false, 8, 12},
    {6, false, false, true, 8, 16},
};

// What cash and bank hold on the first day of the year, in rupees.
constexpr int CashInHand = 60000;
constexpr int CashAtBank = 184500;

QString Opening(QStringView account, int rupees)
{
    const QString balance = QString::number(-rupees);
    return QStringLiteral("update AccountsMaster set OpeningBalance=") % balance
        % QStringLiteral(",OpeningDorC='D',ClosingBalance=") % balance
        % QStringLiteral(",ClosingDorC='D' where ") % account % u';';
}

}

DemoSales::DemoSales(const QString& federation)
{
    for (std::size_t at = 0; at < DemoCustomers.size(); ++at)
        m_names.at(at) = DemoCustomers.at(at).name.toString();
    if (!federation.trimmed().isEmpty())
        m_names.at(Federation - 1) = federation.trimmed();
}

void DemoSales::Sell(const DemoShift& shift)
{
    m_number = 0;
    for (const bool isCow : {true, false})
        SellMilk(shift, isCow);
}

void DemoSales::SellMilk(const DemoShift& shift, bool isCow)
{
    const DemoCans& cans = isCow ? shift.cow : shift.buffalo;
    const int tenths = cans.Tenths();
    qint64 left = cans.millilitres;
    for (const Habit& habit : Habits) {
        if (habit.isCow != isCow || !(shift.word == Morning ? habit.inTheMorning : habit.inTheEvening))
            continue;
        const qint64 sold = qint64{500} * m_dice.Between(habit.least, habit.most);
        Add(shift, {habit.customer, isCow, sold, tenths, isCow ? CowRate : BuffaloRate}, {sold, 0, 0, 0});
        left -= sold;
    }
    const auto& chart = isCow ? m_chart.cow : m_chart.buffalo;
    const int measured = tenths + m_dice.Between(-1, 1);
    const qint64 taken = left * m_dice.Between(988, 1004) / 10000 * 10;
    const bool toTheSecond = !isCow && shift.word != Morning && shift.day.dayOfWeek() == Qt::Sunday;
    Add(shift,
        {toTheSecond ? SecondFederation : Federation, isCow, taken, measured,
            chart.at(static_cast<std::size_t>(measured)) + (isCow ? 250 : 325)},
        {left, tenths, chart.at(static_cast<std::size_t>(tenths)),
            isCow ? m_dice.Between(83, 87) : m_dice.Between(88, 93)});
}

void DemoSales::Add(const DemoShift& shift, const Sale& sale, const OwnMeasure& own)
{
    const bool isForCash = sale.customer == 0;
    const auto at = static_cast<std::size_t>(sale.customer) - 1;
    const QStringView type = isForCash    ? u"raoK"
        : DemoCustomers.at(at).federation ? u"saMGa ivaËI"
                                          : u"sqaainak ivaËI";
    const QStringList values{QStringLiteral("1"), Quoted(shift.day.toString(Qt::ISODate)), Quoted(shift.word),
        Quoted(type), QString::number(++m_number), QString::number(sale.customer),
        Quoted(isForCash ? QStringLiteral("raoK") : m_names.at(at)), Quoted(sale.isCow ? u"gaaya" : u"mhOsa"),
        Decimal(sale.millilitres, 3), Decimal(sale.tenths, 1), Decimal(sale.paise, 2),
        Decimal(AmountInPaise(sale.millilitres, sale.paise), 2), Decimal(own.millilitres, 3),
        Decimal(own.snf, 1), Decimal(own.tenths, 1), Decimal(own.paise, 2),
        Decimal(AmountInPaise(own.millilitres, own.paise), 2)};
    m_rows.append(u'(' % values.join(u',') % u')');
    if (!isForCash)
        m_millilitres.at(at).at(sale.isCow ? 1 : 0) += sale.millilitres;
}

QString DemoSales::Script() const
{
    return CustomerScript() % QStringLiteral("insert into MilkSales values ") % m_rows.join(u',') % u';'
        % Opening(u"AccountName='raoK'", CashInHand) % Opening(u"GroupCode='Bank'", CashAtBank);
}

QString DemoSales::CustomerScript() const
{
    QStringList customers;
    QStringList accounts;
    for (std::size_t at = 0; at < DemoCustomers.size(); ++at) {
        const DemoCustomer& customer = DemoCustomers.at(at);
        const auto& [buffalo, cow] = m_millilitres.at(at);
        const QString number = QString::number(at + 1);
        customers.append(u"(1," % number % u',' % Quoted(m_names.at(at)) % u',' % Quoted(customer.animal)
            % u',' % Quoted(customer.federation ? u"saMGa ivaËI" : u"sqaainak ivaËI") % u",0,"
            % Decimal(cow, 3) % u",0," % Decimal(buffalo, 3) % u')');
        if (customer.federation)
            accounts.append(u"(1," % QString::number(at + 3) % u',' % Quoted(m_names.at(at))
                % u",'Debtors','saMGa',0,'D',0,'D')");
    }
    return QStringLiteral("insert into CustomersMaster values ") % customers.join(u',')
        % QStringLiteral(";insert into AccountsMaster values ") % accounts.join(u',') % u';';
}
