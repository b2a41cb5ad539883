#include "platform/database/StatementScanner.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/IsoDates.h"

#include <array>

namespace {

enum class Sort : quint8 { Plain, Word, Digit, Quote, Hash, End, Minus, Slash, Dot, Bracket, Refused };

constexpr std::array<Sort, 128> MakeSorts()
{
    std::array<Sort, 128> sorts{};
    for (std::size_t c = 0; c < 32; ++c)
        sorts[c] = Sort::Refused;
    sorts['\t'] = sorts['\n'] = sorts['\r'] = Sort::Plain;
    for (std::size_t c = 'a'; c <= 'z'; ++c)
        sorts[c] = sorts[c - 'a' + 'A'] = Sort::Word;
    sorts['_'] = Sort::Word;
    for (std::size_t c = '0'; c <= '9'; ++c)
        sorts[c] = Sort::Digit;
    sorts['\''] = sorts['"'] = Sort::Quote;
    sorts['#'] = Sort::Hash;
    sorts[';'] = Sort::End;
    sorts['-'] = Sort::Minus;
    sorts['/'] = Sort::Slash;
    sorts['.'] = Sort::Dot;
    sorts['['] = Sort::Bracket;
    for (const char c : {'?', ':', '@', '$', '`', '\x7f'})
        sorts[static_cast<unsigned char>(c)] = Sort::Refused;
    return sorts;
}

constexpr std::array<Sort, 128> Sorts = MakeSorts();

inline Sort SortOf(char16_t c)
{
    return c < 128 ? Sorts[c] : Sort::Word;
}

inline bool IsWord(char16_t c)
{
    const Sort sort = SortOf(c);
    return sort == Sort::Word || sort == Sort::Digit;
}

inline bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// Writes a non-ASCII code point as UTF-8; moves `at` to its last unit.
char* WriteUtf8(char* out, const char16_t*& at, const char16_t* end)
{
    char32_t point = *at;
    if (QChar::isSurrogate(point)) {
        const bool isPair = QChar::isHighSurrogate(point) && at + 1 < end && QChar::isLowSurrogate(at[1]);
        point = isPair ? QChar::surrogateToUcs4(at[0], at[1]) : char32_t(QChar::ReplacementCharacter);
        at += isPair ? 1 : 0;
    }
    const auto byte = [&out](char32_t bits) { *out++ = static_cast<char>(static_cast<unsigned char>(bits)); };
    if (point < 0x800) {
        byte(0xC0 | (point >> 6));
    } else if (point < 0x10000) {
        byte(0xE0 | (point >> 12));
        byte(0x80 | ((point >> 6) & 0x3F));
    } else {
        byte(0xF0 | (point >> 18));
        byte(0x80 | ((point >> 12) & 0x3F));
        byte(0x80 | ((point >> 6) & 0x3F));
    }
    byte(0x80 | (point & 0x3F));
    return out;
}

}

void ScannedStatement::Refuse(const char* english) const
{
    DatabaseErrors::ThrowRefused(english, m_statement);
}

void ScannedStatement::Lift(LiteralKind kind, const char* start, const char* end)
{
    const auto offset = static_cast<std::size_t>(start - m_arena.data());
    m_literals.push_back({kind, offset, static_cast<std::size_t>(end - start)});
    m_used = static_cast<std::size_t>(end - m_arena.data());
    m_shape[static_cast<std::size_t>(m_shapeLength++)] = static_cast<char16_t>(kind);
}

void ScannedStatement::Scan(QStringView statement)
{
    m_statement = statement;
    const auto length = static_cast<std::size_t>(statement.size());
    if (m_shape.size() < length)
        m_shape.resize(length);
    // A UTF-16 unit is at most three bytes of UTF-8; a date of ten units is ten bytes.
    if (m_arena.size() < length * 3 + IsoDates::Length)
        m_arena.resize(length * 3 + IsoDates::Length);
    m_shapeLength = 0;
    m_used = 0;
    m_literals.clear();

    const char16_t* at = statement.utf16();
    const char16_t* const end = at + length;
    while (at != end) {
        switch (SortOf(*at)) {
        case Sort::Plain:
            m_shape[static_cast<std::size_t>(m_shapeLength++)] = *at++;
            break;
        case Sort::Word:
            at = CopyWord(at, end);
            break;
        case Sort::Digit:
            at = ScanNumber(at, end);
            break;
        case Sort::Quote:
            at = ScanQuoted(at, end);
            break;
        case Sort::Hash:
            at = ScanDate(at, end);
            break;
        default:
            at = ScanOther(at, end);
        }
    }
}

const char16_t* ScannedStatement::CopyWord(const char16_t* at, const char16_t* end)
{
    char16_t* out = m_shape.data() + m_shapeLength;
    while (at != end && IsWord(*at))
        *out++ = *at++;
    m_shapeLength = out - m_shape.data();
    return at;
}

const char16_t* ScannedStatement::ScanQuoted(const char16_t* at, const char16_t* end)
{
    const char16_t quote = *at++;
    char* const start = m_arena.data() + m_used;
    char* out = start;
    for (; at != end; ++at) {
        if (*at == quote) {
            if (at + 1 == end || at[1] != quote) {
                Lift(LiteralKind::Text, start, out);
                return at + 1;
            }
            ++at;
        }
        if (*at == 0)
            Refuse("The statement holds a character of code 0.");
        if (*at < 128)
            *out++ = static_cast<char>(*at);
        else
            out = WriteUtf8(out, at, end);
    }
    Refuse("A quoted text of the statement isn't closed.");
}

const char16_t* ScannedStatement::ScanDate(const char16_t* at, const char16_t* end)
{
    constexpr std::ptrdiff_t whole = IsoDates::Length + 2;
    char text[IsoDates::Length];
    if (end - at < whole || at[whole - 1] != u'#')
        Refuse("A text between # signs is no date (MM/dd/yyyy), or its # isn't closed.");
    for (int i = 0; i < IsoDates::Length; ++i)
        text[i] = at[i + 1] < 128 ? static_cast<char>(at[i + 1]) : '?';
    char* const iso = m_arena.data() + m_used;
    if (!IsoDates::FromMonthFirst(std::string_view(text, sizeof text), iso))
        Refuse("A text between # signs is no date (MM/dd/yyyy).");
    Lift(LiteralKind::Date, iso, iso + IsoDates::Length);
    return at + whole;
}

const char16_t* ScannedStatement::ScanNumber(const char16_t* at, const char16_t* end)
{
    const char16_t* from = at;
    while (at != end && IsDigit(*at))
        ++at;
    if (at != end && *at == u'.') {
        ++at;
        while (at != end && IsDigit(*at))
            ++at;
    }
    if (at != end && (*at == u'e' || *at == u'E')) {
        const char16_t* digits = at + 1;
        if (digits != end && (*digits == u'+' || *digits == u'-'))
            ++digits;
        if (digits != end && IsDigit(*digits)) {
            at = digits;
            while (at != end && IsDigit(*at))
                ++at;
        }
    }
    if (at != end && IsWord(*at))
        Refuse("A number of the statement runs into a word.");
    char* const start = m_arena.data() + m_used;
    char* out = start;
    while (from != at)
        *out++ = static_cast<char>(*from++);
    Lift(LiteralKind::Number, start, out);
    return at;
}

const char16_t* ScannedStatement::CopyBracketed(const char16_t* at, const char16_t* end)
{
    char16_t* out = m_shape.data() + m_shapeLength;
    while (at != end && *at != u']') {
        if (*at < 32)
            Refuse("A control character stands in a name.");
        *out++ = *at++;
    }
    if (at == end)
        Refuse("A name in brackets isn't closed.");
    *out++ = *at++;
    m_shapeLength = out - m_shape.data();
    return at;
}

const char16_t* ScannedStatement::ScanOther(const char16_t* at, const char16_t* end)
{
    const char16_t next = at + 1 != end ? at[1] : u' ';
    switch (SortOf(*at)) {
    case Sort::Minus:
        if (next == u'-')
            Refuse("The statement holds a comment (--).");
        break;
    case Sort::Slash:
        if (next == u'*')
            Refuse("The statement holds a comment (/*).");
        break;
    case Sort::Dot:
        // "T.5" isn't a column; "5.5" never gets here, since only a point after a word is part of a name.
        if (IsDigit(next))
            return ScanNumber(at, end);
        break;
    case Sort::Bracket:
        return CopyBracketed(at, end);
    case Sort::End:
        for (const char16_t* rest = at + 1; rest != end; ++rest) {
            if (!QChar::isSpace(*rest))
                Refuse("There is more than one statement.");
        }
        return end;
    default:
        Refuse("The statement holds a character that has no place outside of quotes.");
    }
    m_shape[static_cast<std::size_t>(m_shapeLength++)] = *at;
    return at + 1;
}
