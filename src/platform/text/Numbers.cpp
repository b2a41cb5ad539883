#include "platform/text/Numbers.h"

#include "platform/text/Overflow.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// ---- Reading ----

constexpr bool IsBlank(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

constexpr bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// The number at the start of a text.
struct ReadNumber {
    qsizetype length = 0; // characters read, 0 if the text begins with no number
    double value = 0;
    bool overflow = false;
};

// The end of the digits that begin at `at`.
qsizetype DigitsEnd(QStringView text, qsizetype at)
{
    while (at < text.size() && IsDigit(text[at].unicode()))
        ++at;
    return at;
}

// The length of the number at the start of the text: sign, digits with a point, exponent.
qsizetype NumberLength(QStringView text)
{
    const auto at = [text](qsizetype i) { return i < text.size() ? text[i].unicode() : u'\0'; };
    const qsizetype start = at(0) == u'-' || at(0) == u'+' ? 1 : 0;
    qsizetype end = DigitsEnd(text, start);
    qsizetype digits = end - start;
    if (at(end) == u'.') {
        const qsizetype pointEnd = DigitsEnd(text, end + 1);
        digits += pointEnd - end - 1;
        end = pointEnd;
    }
    if (digits == 0)
        return 0;
    if (at(end) == u'e' || at(end) == u'E') {
        const qsizetype power = end + (at(end + 1) == u'-' || at(end + 1) == u'+' ? 2 : 1);
        const qsizetype powerEnd = DigitsEnd(text, power);
        if (powerEnd > power)
            end = powerEnd;
    }
    return end;
}

// Whether a number that doesn't fit into a double is too large, not too small.
bool IsLarge(QStringView number)
{
    const auto* exponent =
        std::find_if(number.begin(), number.end(), [](QChar c) { return c.toLower() == u'e'; });
    const auto* significant =
        std::find_if(number.begin(), exponent, [](QChar c) { return c >= u'1' && c <= u'9'; });
    const auto* point = std::find(number.begin(), exponent, u'.');
    constexpr double longest = 1e9;
    double power = 0;
    bool negative = false;
    for (const auto* c = exponent; c != number.end(); ++c) {
        if (*c == u'-')
            negative = true;
        else if (IsDigit(c->unicode()))
            power = std::min(power * 10 + (c->unicode() - u'0'), longest);
    }
    return static_cast<double>(point - significant) + (negative ? -power : power) > 0;
}

ReadNumber ReadNumberAt(QStringView text)
{
    ReadNumber read;
    read.length = NumberLength(text);
    if (read.length == 0)
        return read;
    QVarLengthArray<char, 64> latin;
    for (qsizetype i = text.front() == u'+' ? 1 : 0; i < read.length; ++i)
        latin.push_back(static_cast<char>(text[i].unicode()));
    const auto [end, error] = std::from_chars(latin.begin(), latin.end(), read.value);
    if (error == std::errc::result_out_of_range) {
        read.value = 0;
        read.overflow = IsLarge(text.left(read.length));
    }
    read.value += 0.0; // a negative zero becomes a plain one
    return read;
}

// ---- Writing ----

// A value in decimal digits: 0.d1d2d3... times ten to the power of `point`.
struct Decimal {
    static constexpr int MostDigits = 15;

    std::array<char, MostDigits> digits{};
    int count = 0; // 0 for zero
    int point = 0;
    bool negative = false;

    // The digit at a place: 0 is the first after the decimal point, -1 the units.
    char16_t At(int place) const
    {
        const int i = place + point;
        return i >= 0 && i < count ? static_cast<char16_t>(digits[i]) : u'0';
    }

    void DropZeros()
    {
        while (count > 0 && digits[count - 1] == '0')
            --count;
        if (count == 0) {
            point = 0;
            negative = false;
        }
    }

    // Rounds to so many decimals, half away from zero.
    void RoundTo(int decimals)
    {
        const int keep = point + decimals;
        if (keep >= count)
            return;
        const bool up = keep >= 0 && digits[keep] >= '5';
        count = std::max(keep, 0);
        if (up)
            Increment();
        DropZeros();
    }

private:
    // Adds one to the last digit that is kept.
    void Increment()
    {
        for (int i = count; i-- > 0;) {
            if (digits[i] != '9') {
                ++digits[i];
                return;
            }
            digits[i] = '0';
        }
        digits[0] = '1';
        count = 1;
        ++point;
    }
};

template <typename Value> Decimal ToDecimal(Value value)
{
    constexpr int significant =
        std::numeric_limits<Value>::digits10 + (sizeof(Value) == sizeof(float) ? 1 : 0);
    static_assert(significant == 7 || significant == 15);
    if (!std::isfinite(value))
        ThrowOverflow(std::isnan(value) ? u"a division by zero" : u"an infinite value");

    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(
        text.data(), text.data() + text.size(), value, std::chars_format::scientific, significant - 1);
    Q_ASSERT(error == std::errc{});

    Decimal decimal;
    const char* at = text.data();
    decimal.negative = *at == '-';
    at += decimal.negative ? 1 : 0;
    decimal.digits[0] = *at;
    std::copy_n(at + 2, significant - 1, decimal.digits.begin() + 1);
    decimal.count = significant;
    at += significant + 2; // the digits, the point, the e
    at += *at == '+' ? 1 : 0;
    std::from_chars(at, end, decimal.point);
    ++decimal.point;
    decimal.DropZeros();
    return decimal;
}

// Writes the digits with at least so many before the point, and exactly so many after it.
QString Lay(const Decimal& decimal, int integerDigits, int decimals, bool point)
{
    const int before = std::max(decimal.point, integerDigits);
    const qsizetype length = (decimal.negative ? 1 : 0) + before + (point ? 1 : 0) + decimals;
    QString text(length, Qt::Uninitialized);
    QChar* out = text.data();
    if (decimal.negative)
        *out++ = u'-';
    for (int place = -before; place < 0; ++place)
        *out++ = decimal.At(place);
    if (point)
        *out++ = u'.';
    for (int place = 0; place < decimals; ++place)
        *out++ = decimal.At(place);
    return text;
}

template <typename Value> QString FormatValue(Value value, QStringView pattern)
{
    int integerDigits = 0;
    int fewest = 0;
    int most = 0;
    bool point = false;
    for (const QChar c : pattern) {
        Q_ASSERT(c == u'#' || c == u'0' || (c == u'.' && !point));
        if (c == u'.') {
            point = true;
        } else if (point) {
            ++most;
            fewest = c == u'0' ? most : fewest;
        } else if (c == u'0' || integerDigits > 0) {
            ++integerDigits;
        }
    }
    Decimal decimal = ToDecimal(value);
    decimal.RoundTo(most);
    const int decimals = std::max(fewest, std::min(most, decimal.count - decimal.point));
    return Lay(decimal, integerDigits, decimals, point);
}

template <typename Value> QString Shortest(Value value)
{
    const Decimal decimal = ToDecimal(value);
    const int decimals = std::max(0, decimal.count - decimal.point);
    return Lay(decimal, 1, decimals, decimals > 0);
}

// ---- Rounding ----

template <typename Whole> Whole ToWhole(double value)
{
    const double whole = std::nearbyint(value);
    if (whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max())
        return static_cast<Whole>(whole);
    ThrowOverflow(std::isfinite(value) ? ShortestDecimal(value) : QStringLiteral("an infinite value"));
}

}

double Val(QStringView text)
{
    QVarLengthArray<char16_t, 64> solid;
    for (const QChar c : text) {
        if (!IsBlank(c.unicode()))
            solid.push_back(c.unicode());
    }
    const ReadNumber read = ReadNumberAt(QStringView(solid.data(), solid.size()));
    if (read.overflow)
        ThrowOverflow(text);
    return read.value;
}

bool IsNumeric(QStringView text)
{
    while (!text.isEmpty() && IsBlank(text.front().unicode()))
        text = text.sliced(1);
    while (!text.isEmpty() && IsBlank(text.back().unicode()))
        text.chop(1);
    const ReadNumber read = ReadNumberAt(text);
    return read.length > 0 && read.length == text.size() && !read.overflow;
}

QString Format(double value, QStringView pattern)
{
    return FormatValue(value, pattern);
}

QString Format(float value, QStringView pattern)
{
    return FormatValue(value, pattern);
}

QString Format(int value, QStringView pattern)
{
    return FormatValue(static_cast<double>(value), pattern);
}

QString ShortestDecimal(double value)
{
    return Shortest(value);
}

QString ShortestDecimal(float value)
{
    return Shortest(value);
}

QString ShortestDecimal(int value)
{
    return QString::number(value);
}

std::int16_t ToInt16(double value)
{
    return ToWhole<std::int16_t>(value);
}

std::int32_t ToInt32(double value)
{
    return ToWhole<std::int32_t>(value);
}
