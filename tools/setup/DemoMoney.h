#pragma once

#include <QDate>
#include <QString>

#include <cstdint>
#include <vector>

// What the animals of one member gave in the paid period, in millilitres and paise.
struct DemoMilk {
    qint64 cowMillilitres = 0;
    qint64 cowPaise = 0;
    qint64 buffaloMillilitres = 0;
    qint64 buffaloPaise = 0;
};

// The money of the demonstration society: advances, money received back, and the last ten days of the
// society's first month paid to all members.
class DemoMoney {
public:
    // `first` is the first day of the accounting year.
    explicit DemoMoney(const QDate& first) : m_first(first) { }

    bool IsPaid(const QDate& day) const { return day >= PaidFrom() && day <= PaidTo(); }

    // The script of all rows, which also moves the members' closing columns. `milk` is by member, from the
    // first.
    QString Script(const std::vector<DemoMilk>& milk) const;

private:
    QDate PaidFrom() const { return m_first.addDays(20); }
    QDate PaidTo() const { return m_first.addDays(29); }

    QDate m_first;
};
