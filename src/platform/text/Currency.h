#pragma once

#include <QString>

#include <cstdint>

// An amount in rupees with four decimals, held as a whole number of ten-thousandths, so that sums of any
// length are exact. A value or a sum beyond 922337203685477.5807 on either side of zero is an overflow error,
// which leaves the sum unchanged.
class Currency {
public:
    Currency() = default;

    // Takes the decimal form of the value (15 significant digits) and rounds it to four decimals, half to
    // even: 0.00005 becomes 0, 0.00015 becomes 0.0002. Infinity and NaN are overflow errors.
    explicit Currency(double rupees);

    // The amount in rupees, for Format and fields.
    double Number() const;

    // The exact amount in its shortest form: "12.5", "-0.0001", "0".
    QString Text() const;

    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency first, Currency second) { return first += second; }
    friend Currency operator-(Currency first, Currency second) { return first -= second; }
    bool operator==(Currency other) const { return m_tenThousandths == other.m_tenThousandths; }
    bool operator<(Currency other) const { return m_tenThousandths < other.m_tenThousandths; }
    bool operator>(Currency other) const { return other < *this; }
    bool operator<=(Currency other) const { return !(other < *this); }
    bool operator>=(Currency other) const { return !(*this < other); }

private:
    std::int64_t m_tenThousandths = 0;
};
