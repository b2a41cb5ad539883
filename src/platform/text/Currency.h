#pragma once

#include <QString>

#include <compare>
#include <cstdint>

// Rupees to four decimals, held as a whole number of ten-thousandths: however many amounts are added up, the
// sum is right to the last digit. A value or a sum beyond 922337203685477.5807 on either side of zero is an
// overflow error, and then the sum stays what it was.
class Currency {
public:
    Currency() = default;

    // The value's decimal form (15 significant digits) to four decimals, half to even: 0.00005 is 0, 0.00015
    // is 0.0002. An infinite value, or none at all, is an overflow error.
    explicit Currency(double rupees);

    // The rupees, as Format and fields take them.
    double Number() const;

    // Every digit of the value in shortest form: "12.5", "-0.0001", "0".
    QString Text() const;

    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency first, Currency second) { return first += second; }
    friend Currency operator-(Currency first, Currency second) { return first -= second; }
    auto operator<=>(const Currency& other) const = default;

private:
    std::int64_t m_tenThousandths = 0;
};
