#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

// The marks that replace literals in a shape. No statement can contain these characters outside of quotes.
enum class LiteralKind : char16_t { Text = 1, Number = 2, Date = 3 };

// A literal of a statement; its bytes are in the arena of the scanned statement. A text is UTF-8 without its
// quotes, a number as it was written, a date in ISO form.
struct Literal {
    LiteralKind kind = LiteralKind::Text;
    std::size_t start = 0;
    std::size_t length = 0;
};

// Splits a statement in one pass into its shape, which is the statement with a mark in place of each literal,
// and its literals in order. It can be used again without allocating.
class ScannedStatement {
public:
    // Splits a statement. Errors are an unclosed quote or date, a text between # signs that isn't a date, a
    // comment, a second statement, a parameter of the engine and a control character.
    void Scan(QStringView statement);

    QStringView Shape() const { return QStringView(m_shape.data(), m_shapeLength); }
    const std::vector<Literal>& Literals() const { return m_literals; }
    std::string_view TextOf(const Literal& literal) const
    {
        return std::string_view(m_arena.data() + literal.start, literal.length);
    }

    // Gives the bytes of the literals to a statement that is about to run, and takes its old ones in
    // exchange.
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
