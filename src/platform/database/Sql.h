#pragma once

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QDate>
#include <QString>

#include <concepts>
#include <type_traits>

// A statement, or a piece of one, that Sql has put together. It may go into further pieces with the quotes
// that it holds. Where it is handed over as a text (to be run, to be bound to a list), a value in it that
// holds an apostrophe is the run-time error of a failed statement: doubled or not, the apostrophe would end
// the value's own quotes, and the rest of the value would be read as the statement's words.
class SqlText {
public:
    SqlText() = default;

    // Words of the statement itself, quotes and all.
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
    void AppendValue(double number) { m_text += ShortestDecimal(number); }
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

// Puts a statement together: words written out here go in as they stand, and so does what Sql has made
// before; any other text is a value, which may hold no apostrophe; numbers go in in their shortest form.
// Sql(u"select * from T where No=", n, u" and Name='", name, u"'")
template <class... Pieces> SqlText Sql(const Pieces&... pieces)
{
    SqlText sql;
    sql.m_text.reserve(256);
    (sql.Take(pieces), ...);
    return sql;
}

// A value in the quotes that a text or a date wants: 'name', '15/04/2026'. An empty text and an invalid date
// are ''. Words written out here are a value, too.
// Sql(u"select * from T where Name=", Quoted(name))
template <class Value> SqlText Quoted(const Value& value)
{
    SqlText sql;
    sql.AppendQuoted(value);
    return sql;
}

// Values as a statement lists them, with commas between them: numbers in their shortest form, texts and dates
// quoted. What is to stand in the list without quotes goes into Sql beside it.
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
