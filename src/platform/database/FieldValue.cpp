#include "platform/database/Recordset.h"

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

FieldValue FieldValue::OfText(QString text)
{
    FieldValue value;
    value.m_kind = Kind::Text;
    value.m_text = std::move(text);
    return value;
}

FieldValue FieldValue::OfNumber(double number)
{
    FieldValue value;
    value.m_kind = Kind::Number;
    value.m_number = number;
    return value;
}

FieldValue FieldValue::OfDate(QDate date)
{
    FieldValue value;
    value.m_kind = Kind::Date;
    value.m_date = date;
    return value;
}

QString FieldValue::Text() const
{
    switch (m_kind) {
    case Kind::Text:
        return m_text;
    case Kind::Number:
        return ShortestDecimal(m_number);
    case Kind::Date:
        return DateText(m_date);
    case Kind::Null:
        break;
    }
    return {};
}

double FieldValue::Number() const
{
    return m_kind == Kind::Number ? m_number : Val(Text());
}

QDate FieldValue::Date() const
{
    if (m_kind == Kind::Date || m_kind == Kind::Null)
        return m_date;
    return ToDate(Text());
}
