#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

// What stands in a shape in place of a literal. No statement can hold these characters outside of quotes.
enum class LiteralKind : char16_t { Text = 1, Number = 2, Date = 3 };

// A literal of a statement: its bytes lie in the arena of the scanned statement. A text is UTF-8 without its
// quotes, a number as it was written, a date in ISO form.
struct Literal {
    LiteralKind kind = LiteralKind::Text;
    std::size_t start = 0;
    std::size_t length = 0;
};

// A statement taken apart in one pass: its shape, which is the statement with a mark in place of every
// literal, and the literals in their order. Made to be used again and again without allocating.
class ScannedStatement {
public:
    // Takes a statement apart. An unclosed quote or date, a text between # signs that is no date, a
    // comment, a second statement, a parameter of the engine's own or a control character is an error.
    void Scan(QStringView statement);

    QStringView Shape() const { return QStringView(m_shape.data(), m_shapeLength); }
    const std::vector<Literal>& Literals() const { return m_literals; }
    std::string_view TextOf(const Literal& literal) const
    {
        return std::string_view(m_arena.data() + literal.start, literal.length);
    }

    // Hands the bytes of the literals over to a statement that is about to run, and takes its old ones.
    void SwapArena(std::vector<char>& arena) { m_arena.swap(arena); }

private:
    const char16_t* ScanQuoted(const char16_t* at, const char16_t* end);
    const char16_t* ScanDate(const char16_t* at, const char16_t* end);
    const char16_t* ScanNumber(const char16_t* at, const char16_t* end);
    const char16_t* CopyWord(const char16_t* at, const char16_t* end);
    const char16_t* CopyBracketed(const char16_t* at, const char16_t* end);
    const char16_t* ScanOther(const char16_t* at, const char16_t* end);
    void Lift(LiteralKind kind, const char* start, const char* end);
    [[noreturn]] void Refuse(const char* english) const;

    QStringView m_statement;
    std::vector<char16_t> m_shape;
    qsizetype m_shapeLength = 0;
    std::vector<char> m_arena;
    std::size_t m_used = 0;
    std::vector<Literal> m_literals;
};
