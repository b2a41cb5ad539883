#pragma once

#include "tools/setup/DemoPeople.h"
#include "tools/setup/Dice.h"
#include "tools/setup/SocietyRows.h"

#include <QStringList>

// One milk of one shift, as it came in: millilitres, and millilitres times tenths of fat.
struct DemoCans {
    qint64 millilitres = 0;
    qint64 fat = 0;

    // The average fat by litres, in tenths.
    int Tenths() const { return static_cast<int>((fat + millilitres / 2) / millilitres); }
};

// What the members brought in a shift.
struct DemoShift {
    QDate day;
    QStringView word; // as stored
    DemoCans cow;
    DemoCans buffalo;
};

// The sales of the demonstration society: each shift a few litres for cash and to the customers of the
// village, and the rest to the federation, which measures it anew; gain and loss come from that. The society
// has its own measure of what it hands over.
class DemoSales {
public:
    // `federation` is the first federation's name, empty for the invented one.
    explicit DemoSales(const QString& federation);

    void Sell(const DemoShift& shift);

    // The script of all rows: the sales, the customers with their closing litres, the federations' accounts,
    // and the opening balances of cash and bank.
    QString Script() const;

private:
    struct Sale {
        int customer = 0; // 0 is cash
        bool isCow = false;
        qint64 millilitres = 0;
        int tenths = 0; // of fat
        int paise = 0; // a litre
    };

    // The society's own measure; of what it sells in the village only the litres.
    struct OwnMeasure {
        qint64 millilitres = 0;
        int tenths = 0;
        int paise = 0;
        int snf = 0; // in tenths
    };

    void SellMilk(const DemoShift& shift, bool isCow);
    void Add(const DemoShift& shift, const Sale& sale, const OwnMeasure& own);
    QString CustomerScript() const;

    FirstChart m_chart = ReadFirstChart();
    Dice m_dice{20260402};
    std::array<QString, DemoCustomers.size()> m_names;
    std::array<std::array<qint64, 2>, DemoCustomers.size()> m_millilitres{}; // buffalo, cow
    QStringList m_rows;
    int m_number = 0;
};
