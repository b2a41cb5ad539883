#include "platform/database/LiteralBinding.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/IsoDates.h"
#include "platform/text/Numbers.h"

#include <sqlcipher/sqlite3.h>

#include <charconv>
#include <cmath>

namespace {

// Whole numbers of up to so many digits are bound as integers, all others as floating point.
constexpr std::size_t WholeDigits = 15;

QString Shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool IsWhole(std::string_view text)
{
    if (text.empty() || text.size() > WholeDigits)
        return false;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
    }
    return true;
}

// Reads a text that is a number from its first to its last byte; returns false if it isn't.
bool ReadNumber(std::string_view text, double& number)
{
    const char* from = text.data();
    const char* const end = from + text.size();
    if (from != end && *from == '+')
        ++from;
    const char* digit = from != end && *from == '-' && from == text.data() ? from + 1 : from;
    // from_chars would also read "inf" and "nan", which begin with neither a digit nor a point.
    if (digit == end || !((*digit >= '0' && *digit <= '9') || *digit == '.'))
        return false;
    const std::from_chars_result read = std::from_chars(from, end, number);
    if (read.ec == std::errc::result_out_of_range && read.ptr == end) {
        number = Val(Shown(text));
        return true;
    }
    return read.ec == std::errc() && read.ptr == end;
}

class Binder {
public:
    Binder(sqlite3_stmt* prepared, QStringView statement) : m_prepared(prepared), m_statement(statement) { }

    void Bind(const Literal& literal, LiteralUse use, char* at)
    {
        const std::string_view text(at, literal.length);
        switch (use) {
        case LiteralUse::InLine:
            return;
        case LiteralUse::AsIs:
            return literal.kind == LiteralKind::Number ? BindNumber(text) : BindText(text);
        case LiteralUse::IsoDate:
            if (!IsoDates::FromDayFirst(text, at))
                DatabaseErrors::ThrowMismatch(Shown(text), m_statement);
            return BindText(std::string_view(at, IsoDates::Length));
        case LiteralUse::IsoDateOrNone:
            return BindText(
                IsoDates::FromDayFirst(text, at) ? std::string_view(at, IsoDates::Length) : "no date");
        case LiteralUse::DayFirst:
            IsoDates::ToDayFirst(text, at);
            return BindText(std::string_view(at, IsoDates::Length));
        case LiteralUse::TextOfNumber:
            return BindTextOfNumber(text);
        case LiteralUse::NumberOfText:
            return BindNumberOfText(text);
        case LiteralUse::Mismatch:
            DatabaseErrors::ThrowMismatch(Shown(text), m_statement);
        }
    }

private:
    void BindText(std::string_view text)
    {
        sqlite3_bind_text(
            m_prepared, ++m_parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }

    void BindNumber(std::string_view text)
    {
        if (IsWhole(text)) {
            sqlite3_int64 whole = 0;
            std::from_chars(text.data(), text.data() + text.size(), whole);
            sqlite3_bind_int64(m_prepared, ++m_parameter, whole);
        } else {
            sqlite3_bind_double(m_prepared, ++m_parameter, Number(text));
        }
    }

    double Number(std::string_view text)
    {
        double number = 0;
        const bool isNumber = ReadNumber(text, number);
        if (!isNumber)
            DatabaseErrors::ThrowMismatch(Shown(text), m_statement);
        if (!std::isfinite(number))
            DatabaseErrors::ThrowOverflow(Shown(text), m_statement);
        return number;
    }

    void BindTextOfNumber(std::string_view text)
    {
        if (IsWhole(text) && (text.size() == 1 || text.front() != '0'))
            return BindText(text);
        const QByteArray shortest = ShortestDecimal(Number(text)).toUtf8();
        sqlite3_bind_text(m_prepared, ++m_parameter, shortest.constData(), static_cast<int>(shortest.size()),
            SQLITE_TRANSIENT);
    }

    void BindNumberOfText(std::string_view text)
    {
        std::string_view bare = text;
        while (!bare.empty() && bare.front() == ' ')
            bare.remove_prefix(1);
        while (!bare.empty() && bare.back() == ' ')
            bare.remove_suffix(1);
        if (bare.empty())
            DatabaseErrors::ThrowMismatch(Shown(text), m_statement);
        BindNumber(bare);
    }

    sqlite3_stmt* m_prepared;
    QStringView m_statement;
    int m_parameter = 0;
};

}

void BindLiterals(sqlite3_stmt* prepared, const Translation& translation,
    const std::vector<Literal>& literals, char* arena, QStringView statement)
{
    Binder binder(prepared, statement);
    for (std::size_t i = 0; i < literals.size(); ++i)
        binder.Bind(literals[i], translation.uses[i], arena + literals[i].start);
}
