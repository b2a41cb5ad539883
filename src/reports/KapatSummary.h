#pragma once

#include <QDate>
#include <QString>

#include <vector>

// What was kept back from a member in a period, by head: a row of the table KapatSummary for each payment.
class KapatSummary {
public:
    // Reads the heads of the selected company.
    KapatSummary();

    // Sums the details of a member's payments from one day to another, and writes the row.
    void Stage(double memberNo, const QDate& from, const QDate& to) const;

private:
    struct Head {
        double typeId = 0;
        QString name;
    };
    struct Sums {
        double other = 0;
        double uchal = 0;
        double khadya = 0;
        double kirana = 0;

        void Add(const Head& head, double amount);
    };

    std::vector<Head> m_heads;
};
