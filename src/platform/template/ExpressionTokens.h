#pragma once

#include <QString>

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
    explicit TokenReader(QStringView text) : m_text(text) { }

    // The next word; one of kind End behind the last.
    Token Next();

private:
    QString TakeWhile(bool (*belongs)(QChar));
    Token TakeNumber();
    Token TakeText();
    Token TakeSign();
    void RefuseForeignSign() const;

    QStringView m_text;
    qsizetype m_at = 0;
};
