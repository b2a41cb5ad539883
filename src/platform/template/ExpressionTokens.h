#pragma once

#include <QString>

// The two ways to write an expression. In a selection formula fields are in braces, texts may be in double
// quotes, and words may be in capitals.
enum class Grammar : quint8 { Template, Formula };

// A token of an expression.
struct Token {
    enum class Kind { End, Number, Text, Name, Hash, Dollar, Sign };
    Kind kind = Kind::End;
    QString text;
};

// What is wrong with an expression, in words for the author of the template.
struct ExpressionFault {
    QString text;
};

// Splits an expression into tokens. A character that can't be in an expression is thrown as an
// ExpressionFault.
class TokenReader {
public:
    // The text must outlive it.
    TokenReader(QStringView text, Grammar grammar) : m_text(text), m_grammar(grammar) { }

    // The next token; after the last one, a token of kind End.
    Token Next();

private:
    QString TakeWhile(bool (*belongs)(QChar));
    Token TakeNumber();
    Token TakeText();
    Token TakeSign();
    void RefuseForeignSign() const;

    QStringView m_text;
    Grammar m_grammar;
    qsizetype m_at = 0;
};
