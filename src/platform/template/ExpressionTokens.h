#pragma once

#include <QString>

// What an expression is written for. In a selection formula fields stand in braces, texts may stand in double
// quotes, and words may be in capitals.
enum class Grammar : quint8 { Template, Formula };

// A word of an expression.
struct Token {
    enum class Kind { End, Number, Text, Name, Hash, Dollar, Sign };
    Kind kind = Kind::End;
    QString text;
};

// What is wrong with an expression, said to whoever writes the template.
struct ExpressionFault {
    QString text;
};

// Takes an expression apart into its words, one after the other. What is no word of the language is thrown as
// an ExpressionFault.
class TokenReader {
public:
    // The text must outlive it.
    TokenReader(QStringView text, Grammar grammar) : m_text(text), m_grammar(grammar) { }

    // The next word; one of kind End behind the last.
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
