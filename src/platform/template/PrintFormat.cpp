#include "platform/template/PrintFormat.h"

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QRegularExpression>

namespace {

constexpr QStringView MonthNames[] = {u"जानेवारी", u"फेब्रुवारी", u"मार्च", u"एप्रिल", u"मे", u"जून", u"जुलै", u"ऑगस्ट",
    u"सप्टेंबर", u"ऑक्टोबर", u"नोव्हेंबर", u"डिसेंबर"};

// Commas stand before the last three digits of the whole number, then before every two.
QString Grouped(QString number)
{
    constexpr qsizetype lastGroup = 3;
    constexpr qsizetype otherGroups = 2;
    const qsizetype point = number.indexOf(u'.');
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    for (qsizetype at = (point < 0 ? number.size() : point) - lastGroup; at > first; at -= otherGroups)
        number.insert(at, u',');
    return number;
}

QString PrintedDate(const QDate& date, QString pattern)
{
    if (date.isValid())
        pattern.replace(QStringLiteral("MMMM"), MonthNames[date.month() - 1].toString());
    return Format(date, pattern);
}

}

PrintFormat PrintFormat::Of(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^(?=.*[#0])#*0*(?:\\.0*#*)?$"));
    static const QRegularExpression commas(QStringLiteral("^[#0]{1,2}(?:,[#0]{2})*,[#0]{3}(?:\\.[#0]*)?$"));
    static const QRegularExpression date(
        QStringLiteral("^(?=.*[dMy])(?:dd|MMMM|MM|mm|yyyy|yy|[^\\p{L}\\p{N}#])+$"));
    PrintFormat format;
    format.pattern = text;
    format.isGrouped = commas.match(text).hasMatch();
    if (format.isGrouped)
        format.pattern.remove(u',');
    if (number.match(format.pattern).hasMatch())
        format.kind = Kind::Number;
    else if (date.match(text).hasMatch())
        format.kind = Kind::Date;
    const qsizetype point = format.pattern.indexOf(u'.');
    format.decimals = point < 0 ? 0 : static_cast<int>(format.pattern.size() - point - 1);
    return format;
}

QString Printed(const Value& value, const PrintFormat& format)
{
    using Kind = PrintFormat::Kind;
    const bool isNumber =
        value.kind == Value::Kind::Number || (value.kind == Value::Kind::Text && IsNumeric(value.text));
    if (format.kind == Kind::Number && isNumber) {
        const QString number = Format(value.Number(), format.pattern);
        return format.isGrouped ? Grouped(number) : number;
    }
    if (format.kind == Kind::Date && value.kind == Value::Kind::Date)
        return PrintedDate(value.date, format.pattern);
    return value.Text();
}
