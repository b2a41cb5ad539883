#pragma once

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QDate>
#include <QString>

#include <concepts>
#include <type_traits>

// A statement, or a part of one, made by Sql, Quoted or Values. It can be a part of further statements. When
// it is used as a text (to be run, or to fill a list) and one of its values contains an apostrophe, that is
// the run-time error of a failed statement: doubled or not, the apostrophe would end the quotes around the
// value, and the rest of the value would be read as words of the statement.
class SqlText {
public:
    SqlText() = default;

    // Words of the statement itself, which may contain quotes.
    template <std::size_t N> SqlText(const char16_t (&words)[N]) : m_text(QStringView(words).toString()) { }

    operator QString() const
    {
        if (m_isBroken)
            ThrowBroken();
        return m_text;
    }

private:
    template <class... Pieces> friend SqlText Sql(const Pieces&... pieces);
    template <class Value> friend SqlText Quoted(const Value& value);
    template <class... Of> friend SqlText Values(const Of&... values);

    void Append(QStringView words) { m_text += words; }
    void Append(const SqlText& piece)
    {
        m_text += piece.m_text;
        m_isBroken = m_isBroken || piece.m_isBroken;
    }
    void AppendValue(QStringView value)
    {
        m_text += value;
        m_isBroken = m_isBroken || value.contains(u'\'');
    }
    void AppendValue(double number);
    void AppendValue(float number) { m_text += ShortestDecimal(number); }
    void AppendValue(std::integral auto number) { m_text += QString::number(number); }
    void AppendValue(const QDate& day) { m_text += DateText(day); }

    template <class Value> void AppendQuoted(const Value& value)
    {
        m_text += u'\'';
        AppendValue(value);
        m_text += u'\'';
    }

    // One of several values, behind a comma unless it is the first.
    template <class Value> void AppendListed(const Value& value)
    {
        if (!m_text.isEmpty())
            m_text += u',';
        if constexpr (std::is_arithmetic_v<Value>)
            AppendValue(value);
        else
            AppendQuoted(value);
    }

    template <std::size_t N> void Take(const char16_t (&words)[N]) { Append(QStringView(words)); }
    void Take(const SqlText& piece) { Append(piece); }
    template <class Value> void Take(const Value& value) { AppendValue(value); }

    [[noreturn]] void ThrowBroken() const;

    QString m_text;
    bool m_isBroken = false;
};

// Puts a statement together. Literals and other SqlTexts are used as they are. Any other text is a value,
// which can't contain an apostrophe. Numbers are written in their shortest form.
// Sql(u"update T set Name=", Quoted(name), u" where No=", n)
template <class... Pieces> SqlText Sql(const Pieces&... pieces)
{
    SqlText sql;
    sql.m_text.reserve(256);
    (sql.Take(pieces), ...);
    return sql;
}

// A text or a date in quotes: 'name', '15/04/2026'. An empty text and an invalid date give ''. A literal is a
// value here, too.
// Sql(u"select * from T where Name=", Quoted(name))
template <class Value> SqlText Quoted(const Value& value)
{
    SqlText sql;
    sql.AppendQuoted(value);
    return sql;
}

// A list of values with commas between them: numbers in their shortest form, texts and dates in quotes. Words
// that must be in the list without quotes, such as null, are written in Sql, before or after it.
// Sql(u"insert into T(No,Day,Name) values(", Values(n, day, name), u")")
template <class... Of> SqlText Values(const Of&... values)
{
    SqlText sql;
    sql.m_text.reserve(256);
    (sql.AppendListed(values), ...);
    return sql;
}

// A day as the conditions of statements write it: #MM/dd/yyyy#.
inline QString SqlDay(const QDate& day)
{
    return Format(day, u"#MM/dd/yyyy#");
}
