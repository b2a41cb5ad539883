#pragma once

#include "tools/reckoning/Compared.h"
#include "tools/reckoning/Exact.h"

#include <QDate>

#include <map>

// The milk of a society worked out a second time, in exact decimals and by other means than the screens: what
// comes in at the counter, what goes out, the customers' litres, and the statements of both. It is told what
// the clerk keys, and says what has to stand in the books.
class MilkReckoning {
public:
    struct Shift {
        QDate day;
        bool isMorning = true;

        bool operator<(const Shift& other) const
        {
            return day < other.day || (day == other.day && isMorning && !other.isMorning);
        }
    };

    // A chart by the rule for each percent of fat. Its rates have at most two decimals.
    void SetChart(const QDate& from, Exact cow, Exact buff) { m_charts[from] = {cow, buff}; }

    // That of the very day, or else the newest.
    Exact RateOf(const QDate& day, Exact fat, bool isCow) const;

    // The counter. Deliveries of a shift are numbered from 1.
    struct Delivery {
        int member = 0;
        QString name;
        bool isCow = true;
        Exact litres;
        Exact fat;
    };
    void Deliver(const Shift& shift, const Delivery& delivery);
    int LastNumber(const Shift& shift) const;

    // One who was forgotten there is entered in the office: its numbers run over both shifts of the day.
    void DeliverLate(const Shift& shift, const Delivery& delivery);

    // Who brought milk in a shift: a member for each delivery.
    std::vector<int> BringersOf(const Shift& shift) const;
    const Delivery& Last(const Shift& shift) const { return m_deliveries.at(shift).back().delivery; }
    void ChangeLitresOfLast(const Shift& shift, Exact litres);
    void DeleteLast(const Shift& shift);

    // All of a chart's day and later is priced by it.
    void ReRate(const QDate& from);

    // A member is deleted with what he brought; returns its litres.
    Exact ForgetMember(int member);

    // The sales. Cash is a customer without a number.
    struct Customer {
        int number = 0;
        QString name;
        bool isFederation = false;
        Exact cowOpening, buffOpening;
    };
    void AddCustomer(const Customer& customer);

    struct Sale {
        int customer = 0;
        bool isCow = true;
        Exact litres, fat, rate;
        Exact ourLitres, ourFat, ourRate, snf;
    };
    void Sell(const Shift& shift, const Sale& sale);
    void ChangeLitresOfLastSale(const Shift& shift, Exact litres); // the society's own go with them
    void DeleteLastSale(const Shift& shift);
    const Sale& LastSale(const Shift& shift) const { return m_sales.at(shift).back().sale; }

    // The name of a customer; that of cash has no number.
    const QString& NameOf(int customer) const;

    // What a shift has brought, and its average fat by litres, to one decimal.
    Exact Collected(const Shift& shift, bool isCow) const;
    Exact AverageFat(const Shift& shift, bool isCow) const;

    // What a member brought in the days, in litres and in rupees.
    Exact LitresOf(int member, bool isCow, const QDate& from, const QDate& to) const;
    Exact AmountOf(int member) const;

    // A member's litres as his closing columns have them: the counter sums them up each time, the office
    // doesn't.
    Exact ClosingLitresOf(int member, bool isCow) const;

    qsizetype Deliveries() const; // how many there are
    Exact In() const;
    Exact Out() const;

    // The raw rows, the customers' closing litres and the members'.
    std::vector<Compared> Comparison() const;

    // What is staged for a statement of the days, after it was shown.
    Compared GainAndLossInLitres(const QDate& from, const QDate& to) const;
    Compared GainAndLossInRupees(const QDate& from, const QDate& to, const QString& federation) const;
    Compared Purchases(const QDate& from, const QDate& to) const;
    Compared Sales(const QDate& from, const QDate& to) const;
    Compared SalesTo(const QString& customer, const QDate& from, const QDate& to) const;

private:
    struct Chart {
        Exact cow, buff;
    };
    struct Can {
        Delivery delivery;
        int number = 0;
        Exact rate, amount;
        bool isLate = false;
    };
    struct Sold {
        Sale sale;
        int number = 0;

        Exact Amount() const { return sale.litres.Times(sale.rate); }
    };
    struct Litres {
        Customer customer;
        Exact cow, buff;
    };

    void AdvanceLitres(const Sale& sale);
    void RecomputeLitres(int customer, bool isCow);
    Exact SumCollected(const Shift& shift, bool isCow, Exact (*of)(const Can&)) const;
    Exact SumSold(const Shift& shift, bool isCow, const QString& customer, Exact (*of)(const Sold&)) const;
    QStringList DeliveryLines(const QDate& from, const QDate& to) const;
    QStringList SaleLines(const QDate& from, const QDate& to, const QString& customer = {}) const;

    // In, local, federation and out of each shift and animal of the days; `our` is asked for what stands
    // last.
    struct Statement {
        Exact (*in)(const Can&) = nullptr;
        Exact (*out)(const Sold&) = nullptr;
        QStringList federation;
        Exact (*our)(const Sold&) = nullptr;
    };
    QStringList Lines(const QDate& from, const QDate& to, const Statement& statement) const;
    QStringList LineOf(const Shift& shift, bool isCow, const Statement& statement) const;

    std::map<QDate, Chart> m_charts;
    std::map<Shift, std::vector<Can>> m_deliveries;
    std::map<Shift, std::vector<Sold>> m_sales;
    std::map<int, Litres> m_customers;
    std::map<int, std::map<bool, Exact>>
        m_notSummedUp; // by member and isCow, entered late since he last came
};
