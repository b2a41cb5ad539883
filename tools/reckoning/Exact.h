#pragma once

#include <QString>

#include <cstdint>

// A figure in exact decimals, in hundred-thousandths: rupees, litres, rupees a litre.
class Exact {
public:
    Exact() = default;
    static Exact Of(double figure); // one of at most five decimals
    static Exact OfPaise(std::int64_t paise);

    Exact operator+(Exact other) const { return Exact(m_units + other.m_units); }
    Exact operator-(Exact other) const { return Exact(m_units - other.m_units); }
    Exact operator-() const { return Exact(-m_units); }
    Exact& operator+=(Exact other) { return *this = *this + other; }
    bool operator==(Exact other) const { return m_units == other.m_units; }
    bool operator<(Exact other) const { return m_units < other.m_units; }
    bool operator>(Exact other) const { return other < *this; }
    bool operator<=(Exact other) const { return !(other < *this); }
    bool operator>=(Exact other) const { return !(*this < other); }

    // The whole product; it must have at most five decimals.
    Exact Product(Exact other) const;

    // To one decimal, half away from zero. Neither may be less than nothing.
    Exact Over(Exact divisor) const;

    // What single precision holds of it.
    float Single() const;

    // Litres at a rate, to the paisa, half away from zero.
    Exact Times(Exact rate) const;

    // Half a paisa goes away from zero.
    Exact ToThePaisa() const;

    // The digits behind the point, whatever the sign.
    Exact Paise() const;

    // Half of it, without what is less than a paisa.
    Exact Half() const;

    // Its shortest form: "12.5".
    QString Text() const;

private:
    explicit Exact(std::int64_t units) : m_units(units) { }
    std::int64_t m_units = 0;
};

// Fails with a run-time error: what the reckoning can't work out proves nothing.
void InsistOn(bool holds, const QString& otherwise);
