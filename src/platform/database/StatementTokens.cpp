#include "platform/database/StatementTokens.h"

namespace {

bool IsMark(QChar c)
{
    return c.unicode() >= 1 && c.unicode() <= 3;
}

bool IsWordChar(QChar c)
{
    const char16_t u = c.unicode();
    return u >= 128 || u == u'_' || (u >= u'0' && u <= u'9') || (u >= u'a' && u <= u'z')
        || (u >= u'A' && u <= u'Z');
}

bool IsBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

bool IsPair(QChar first, QChar second)
{
    return (first == u'<' && (second == u'>' || second == u'=')) || (first == u'>' && second == u'=')
        || (first == u'!' && second == u'=') || (first == u'|' && second == u'|');
}

}

StatementTokens::StatementTokens(QStringView shape) : m_shape(shape)
{
    Tokenise();
    MatchParentheses();
}

void StatementTokens::Add(Token::Kind kind, qsizetype start, qsizetype end)
{
    Token token;
    token.kind = kind;
    token.text = m_shape.mid(start, end - start);
    token.start = start;
    token.end = end;
    m_tokens.push_back(std::move(token));
}

void StatementTokens::Tokenise()
{
    int literals = 0;
    qsizetype at = 0;
    while (at < m_shape.size()) {
        const qsizetype start = at;
        const QChar c = m_shape[at++];
        if (IsBlank(c))
            continue;
        if (IsMark(c)) {
            Add(Token::Kind::Literal, start, at);
            m_tokens.back().literal = literals++;
        } else if (IsWordChar(c)) {
            while (at < m_shape.size() && IsWordChar(m_shape[at]))
                ++at;
            Add(Token::Kind::Word, start, at);
        } else if (c == u'[') {
            while (at < m_shape.size() && m_shape[at - 1] != u']')
                ++at;
            Add(Token::Kind::Name, start, at);
            m_tokens.back().text = m_shape.mid(start + 1, at - start - 2);
        } else {
            if (at < m_shape.size() && IsPair(c, m_shape[at]))
                ++at;
            Add(Token::Kind::Sign, start, at);
        }
    }
}

void StatementTokens::MatchParentheses()
{
    std::vector<int> open;
    for (int i = 0; i < Count(); ++i) {
        Token& token = m_tokens[static_cast<std::size_t>(i)];
        if (IsSign(i, u")") && !open.empty()) {
            token.match = open.back();
            m_tokens[static_cast<std::size_t>(open.back())].match = i;
            open.pop_back();
        }
        token.depth = static_cast<int>(open.size());
        if (IsSign(i, u"("))
            open.push_back(i);
    }
}

const Token& StatementTokens::At(int i) const
{
    static const Token beyond;
    return i >= 0 && i < Count() ? m_tokens[static_cast<std::size_t>(i)] : beyond;
}

bool StatementTokens::IsWord(int i, QStringView word) const
{
    const Token& token = At(i);
    return token.kind == Token::Kind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

bool StatementTokens::IsSign(int i, QStringView sign) const
{
    const Token& token = At(i);
    return token.kind == Token::Kind::Sign && token.text == sign;
}

bool StatementTokens::IsName(int i) const
{
    const Token::Kind kind = At(i).kind;
    return kind == Token::Kind::Word || kind == Token::Kind::Name;
}

int StatementTokens::Over(int i) const
{
    const int match = At(i).match;
    return (match > i ? match : i) + 1;
}

void StatementTokens::Replace(int i, const QString& instead)
{
    Token& token = m_tokens[static_cast<std::size_t>(i)];
    token.instead = instead;
    token.replaced = true;
}

void StatementTokens::Wrap(int first, int last, QStringView function)
{
    Token& opening = m_tokens[static_cast<std::size_t>(first)];
    opening.before = function + QChar(u'(') + opening.before;
    m_tokens[static_cast<std::size_t>(last)].after += QChar(u')');
}
