#pragma once

#include "platform/database/StatementScanner.h"

#include <QString>

#include <vector>

// A word, mark or sign of a shape, and its translation for the engine.
struct Token {
    enum class Kind { Word, Name, Literal, Sign, End };

    Kind kind = Kind::End;
    QStringView text; // a name in brackets without them
    qsizetype start = 0;
    qsizetype end = 0;
    int literal = -1; // the number of the literal, from 0
    int match = -1; // the other parenthesis of a pair
    int depth = 0; // how many parentheses are open around it

    QString before;
    QString after;
    QString instead;
    bool replaced = false;
};

// A shape split into tokens. Before the first and after the last there are tokens of the kind End.
class StatementTokens {
public:
    explicit StatementTokens(QStringView shape);

    int Count() const { return static_cast<int>(m_tokens.size()); }
    const Token& At(int i) const;

    // Whether a token is this keyword, in upper or lower case.
    bool IsWord(int i, QStringView word) const;
    bool IsSign(int i, QStringView sign) const;
    bool IsName(int i) const;
    bool IsLiteral(int i) const { return At(i).kind == Token::Kind::Literal; }
    LiteralKind KindOfLiteral(int i) const { return static_cast<LiteralKind>(At(i).text.front().unicode()); }

    // The next token on the same level: parentheses are skipped with their content.
    int Over(int i) const;

    void Replace(int i, const QString& instead);
    void Wrap(int first, int last, QStringView function);

    // The translated statement. `inLine` returns the text of a literal that isn't passed as a parameter, and
    // an empty text for one that is.
    template <class InLine> QString Text(InLine inLine) const
    {
        QString text;
        text.reserve(m_shape.size() + 64);
        qsizetype done = 0;
        for (const Token& token : m_tokens) {
            text += m_shape.mid(done, token.start - done);
            text += token.before;
            if (token.literal >= 0) {
                const QString literal = inLine(token.literal);
                text += literal.isEmpty() ? QStringLiteral("? ") : literal + QChar(u' ');
            } else {
                text += token.replaced ? QStringView(token.instead)
                                       : m_shape.mid(token.start, token.end - token.start);
            }
            text += token.after;
            done = token.end;
        }
        return text;
    }

private:
    void Tokenise();
    void Add(Token::Kind kind, qsizetype start, qsizetype end);
    void MatchParentheses();

    QStringView m_shape;
    std::vector<Token> m_tokens;
};
