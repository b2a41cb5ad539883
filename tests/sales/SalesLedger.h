#pragma once

#include <QString>

#include <map>
#include <optional>
#include <tuple>

// Keeps the litres of the selected company's customers a second time: what each entry, change and deletion of
// a sale has to make of them, worked out of the raw rows in whole thousandths of a litre.
class SalesLedger {
public:
    SalesLedger();

    // Takes the books as they are now.
    void BeginAnew();

    // Looks what has become of the sales since the last look, one of them at most, and expects the litres to
    // have followed.
    void Look();

    int Entered = 0;
    int Changed = 0;
    int Deleted = 0;

private:
    struct Sale {
        QString name;
        QString animal;
        qint64 liters = 0; // in thousandths, like all others
        QString all; // every column
        bool operator==(const Sale& other) const = default;
    };
    using Sales = std::map<std::tuple<QString, QString, double>, Sale>; // by day, shift and number

    struct Litres {
        qint64 opening = 0;
        qint64 sold = 0;
        std::optional<qint64> closing; // none is on record

        // The closing figure after a new sale, and after a change or a deletion.
        qint64 Advanced(qint64 liters) const;
        qint64 Recomputed() const;
    };
    using Customers = std::map<std::pair<QString, QString>, Litres>; // by name and animal

    static Sales ReadSales();
    static Customers ReadCustomers();

    Sales m_sales;
    Customers m_customers;
};
