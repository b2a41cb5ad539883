#include "platform/template/ExpressionTokens.h"

#include <utility>

namespace {

bool IsNameStart(QChar c)
{
    return c.isLetter() || c == u'_';
}

bool IsNamePart(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c == u'_';
}

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

[[noreturn]] void Fail(const QString& text)
{
    throw ExpressionFault{text};
}

}

Token TokenReader::Next()
{
    while (m_at < m_text.size() && m_text[m_at].isSpace())
        ++m_at;
    if (m_at == m_text.size())
        return {};
    const QChar c = m_text[m_at];
    if (IsDigit(c))
        return TakeNumber();
    if (c == u'\'' || (c == u'"' && m_grammar == Grammar::Formula))
        return TakeText();
    if (IsNameStart(c))
        return {Token::Kind::Name, TakeWhile(IsNamePart)};
    if (c != u'#' && c != u'$')
        return TakeSign();
    ++m_at;
    return {c == u'#' ? Token::Kind::Hash : Token::Kind::Dollar, TakeWhile(IsNamePart)};
}

QString TokenReader::TakeWhile(bool (*belongs)(QChar))
{
    const qsizetype start = m_at;
    while (m_at < m_text.size() && belongs(m_text[m_at]))
        ++m_at;
    return m_text.mid(start, m_at - start).toString();
}

Token TokenReader::TakeNumber()
{
    QString digits = TakeWhile(IsDigit);
    if (m_at < m_text.size() && m_text[m_at] == u'.') {
        ++m_at;
        digits += QChar(u'.') + TakeWhile(IsDigit);
    }
    return {Token::Kind::Number, digits};
}

Token TokenReader::TakeText()
{
    const qsizetype end = m_text.indexOf(m_text[m_at], m_at + 1);
    if (end < 0)
        Fail(QStringLiteral("a text in quotes isn't closed"));
    const QStringView inside = m_text.mid(m_at + 1, end - m_at - 1);
    m_at = end + 1;
    return {Token::Kind::Text, inside.toString()};
}

Token TokenReader::TakeSign()
{
    for (const QStringView two : {QStringView(u"<>"), QStringView(u"<="), QStringView(u">=")}) {
        if (m_text.mid(m_at).startsWith(two)) {
            m_at += 2;
            return {Token::Kind::Sign, two.toString()};
        }
    }
    RefuseForeignSign();
    const QChar c = m_text[m_at++];
    const bool isBrace = m_grammar == Grammar::Formula && (c == u'{' || c == u'}');
    if (!isBrace && !QStringView(u"+-*/=<>(),.").contains(c))
        Fail(QStringLiteral("\"%1\" has no meaning in an expression").arg(c));
    return {Token::Kind::Sign, QString(c)};
}

// Helps those who write == or && as in a programming language.
void TokenReader::RefuseForeignSign() const
{
    constexpr std::pair<QStringView, QStringView> foreign[] = {
        {u"==", u"="}, {u"!=", u"<>"}, {u"&&", u"and"}, {u"||", u"or"}};
    for (const auto& [sign, own] : foreign) {
        if (m_text.mid(m_at).startsWith(sign))
            Fail(QStringLiteral("\"%1\" isn't known; it is written \"%2\"")
                     .arg(sign.toString(), own.toString()));
    }
}
