#include "platform/database/TranslatorWork.h"

#include <algorithm>

// Translates comparisons, calls, and the columns of the result.

namespace {

constexpr QStringView TextCalls[] = {
    u"cstr", u"trim", u"ltrim", u"rtrim", u"left", u"upper", u"lower", u"substr"};
constexpr QStringView NumberCalls[] = {u"sum", u"count", u"avg", u"abs", u"length", u"round"};
constexpr QStringView Comparisons[] = {u"=", u"<>", u"!=", u"<", u">", u"<=", u">="};
constexpr QStringView Arithmetic[] = {u"+", u"-", u"*", u"/", u"%", u"||", u"&", u"|"};
constexpr QStringView NoNames[] = {u"and", u"or", u"not", u"where", u"in", u"between", u"on", u"select",
    u"having", u"set", u"values", u"by", u"null", u"from", u"when", u"then", u"else", u"like", u"is",
    u"exists"};

template <std::size_t N> bool IsOneOf(QStringView text, const QStringView (&words)[N])
{
    return std::any_of(std::begin(words), std::end(words),
        [text](QStringView word) { return text.compare(word, Qt::CaseInsensitive) == 0; });
}

template <std::size_t N> bool IsSignOf(const Token& token, const QStringView (&signs)[N])
{
    return token.kind == Token::Kind::Sign && IsOneOf(token.text, signs);
}

}

ColumnType TranslatorWork::TypeOfColumn(int first, int last) const
{
    const QStringView name = m_tokens.At(last).text;
    const QStringView qualifier = first < last ? m_tokens.At(first).text : QStringView();
    for (const Source& source : m_sources) {
        if (!source.table
            || (!qualifier.isNull() && qualifier.compare(source.name, Qt::CaseInsensitive) != 0))
            continue;
        if (const Column* column = source.table->Find(name))
            return column->type;
    }
    const Column* column = m_made.target ? m_made.target->Find(name) : nullptr;
    return column ? column->type : ColumnType::Unknown;
}

TranslatorWork::Operand TranslatorWork::OfColumn(int first, int last) const
{
    Operand column{Operand::Kind::Column, first, last};
    column.type = TypeOfColumn(first, last);
    return column;
}

TranslatorWork::Operand TranslatorWork::OfCall(int name, int close) const
{
    Operand call{Operand::Kind::Call, name, close};
    const QStringView word = m_tokens.At(name).text;
    // The type of the argument is looked up only if it is a single column, or max or min of one.
    const auto argument = [&]() -> Operand {
        if (m_tokens.IsName(name + 2) && m_tokens.IsSign(name + 3, u"(")) {
            const bool wraps = m_tokens.At(name + 3).match == close - 1
                && (m_tokens.IsWord(name + 2, u"max") || m_tokens.IsWord(name + 2, u"min"));
            const bool plain = wraps && close - name <= 8 && !m_tokens.IsSign(name + 5, u"(");
            return plain ? ReadWhole(name + 4, close - 2) : Operand();
        }
        return ReadWhole(name + 2, close - 1);
    };
    if (IsOneOf(word, TextCalls)) {
        call.type = ColumnType::Text;
        call.isDateAsText = m_tokens.IsWord(name, u"cstr") && argument().type == ColumnType::Date;
    } else if (IsOneOf(word, NumberCalls)) {
        call.type = ColumnType::Number;
    } else if (m_tokens.IsWord(name, u"max") || m_tokens.IsWord(name, u"min")) {
        call.type = m_tokens.IsSign(name + 3, u"(") ? ColumnType::Unknown : argument().type;
    }
    return call;
}

TranslatorWork::Operand TranslatorWork::ReadForwards(int first) const
{
    int i = first;
    while (m_tokens.IsSign(i, u"-") || m_tokens.IsSign(i, u"+"))
        ++i;
    Operand read{Operand::Kind::None, first, i};
    if (m_tokens.IsLiteral(i))
        read.kind = Operand::Kind::Literal;
    else if (m_tokens.IsName(i) && m_tokens.IsSign(i + 1, u"(") && m_tokens.At(i + 1).match > i)
        read = OfCall(i, m_tokens.At(i + 1).match);
    else if (m_tokens.IsName(i) && m_tokens.IsSign(i + 1, u".") && m_tokens.IsName(i + 2))
        read = OfColumn(i, i + 2);
    else if (m_tokens.At(i).kind == Token::Kind::Name
        || (m_tokens.IsName(i) && !IsOneOf(m_tokens.At(i).text, NoNames)))
        read = OfColumn(i, i);
    read.first = first;
    read.hasSign = i != first;
    if (read.hasSign && read.kind != Operand::Kind::Literal)
        read.type = ColumnType::Number;
    if (read.kind != Operand::Kind::None && IsSignOf(m_tokens.At(read.last + 1), Arithmetic))
        return {Operand::Kind::Other, first, read.last};
    return read;
}

TranslatorWork::Operand TranslatorWork::ReadBackwards(int last) const
{
    Operand read{Operand::Kind::None, last, last};
    const int open = m_tokens.IsSign(last, u")") ? m_tokens.At(last).match : -1;
    if (m_tokens.IsLiteral(last))
        read.kind = Operand::Kind::Literal;
    else if (open > 0 && m_tokens.IsName(open - 1) && !IsOneOf(m_tokens.At(open - 1).text, NoNames))
        read = OfCall(open - 1, last);
    else if (m_tokens.IsName(last) && m_tokens.IsSign(last - 1, u".") && m_tokens.IsName(last - 2))
        read = OfColumn(last - 2, last);
    else if (m_tokens.IsName(last) && !IsOneOf(m_tokens.At(last).text, NoNames))
        read = OfColumn(last, last);
    if (read.kind != Operand::Kind::None && IsSignOf(m_tokens.At(read.first - 1), Arithmetic))
        return {Operand::Kind::Other, read.first, last};
    return read;
}

// The operand that takes up all tokens from first to last; of the kind Other if they are anything else.
TranslatorWork::Operand TranslatorWork::ReadWhole(int first, int last) const
{
    if (first > last)
        return {};
    const Operand read = ReadForwards(first);
    if (read.last == last && read.kind != Operand::Kind::None)
        return read;
    return {Operand::Kind::Other, first, last};
}

void TranslatorWork::Conditions()
{
    for (int i = m_conditionsFrom; i < m_tokens.Count(); ++i) {
        if (IsSignOf(m_tokens.At(i), Comparisons))
            Compare(i);
        else if (m_tokens.IsWord(i, u"between"))
            CompareBetween(i);
        else if (m_tokens.IsWord(i, u"in") && m_tokens.IsSign(i + 1, u"("))
            CompareIn(i);
    }
}

void TranslatorWork::Compare(int sign)
{
    const Operand left = ReadBackwards(sign - 1);
    const Operand right = ReadForwards(sign + 1);
    const QStringView text = m_tokens.At(sign).text;
    const bool forEquality = text == u"=" || text == u"<>" || text == u"!=";
    if (right.kind == Operand::Kind::Literal)
        CompareLiteral(right, left, forEquality);
    else if (left.kind == Operand::Kind::Literal)
        CompareLiteral(left, right, forEquality);
}

// A date column in cstr is compared as a date, so that the index of the column can be used.
void TranslatorWork::UnwrapDate(const Operand& call)
{
    m_tokens.Replace(call.first, QString());
}

void TranslatorWork::CompareLiteral(const Operand& literal, const Operand& other, bool forEquality)
{
    if (!other.isDateAsText) {
        UseLiteral(literal, other.type, false);
        return;
    }
    switch (m_tokens.KindOfLiteral(literal.last)) {
    case LiteralKind::Date:
        UnwrapDate(other);
        break;
    case LiteralKind::Text:
        if (forEquality) {
            UnwrapDate(other);
            SetUse(literal.last, LiteralUse::IsoDateOrNone);
        }
        break;
    case LiteralKind::Number:
        UseLiteral(literal, ColumnType::Text, false);
    }
}

void TranslatorWork::CompareBetween(int between)
{
    const int end = m_tokens.IsWord(between - 1, u"not") ? between - 2 : between - 1;
    const Operand value = ReadBackwards(end);
    const Operand low = ReadForwards(between + 1);
    const Operand high = m_tokens.IsWord(low.last + 1, u"and") ? ReadForwards(low.last + 2) : Operand();
    const auto isDate = [this](const Operand& bound) {
        return bound.kind == Operand::Kind::Literal
            && m_tokens.KindOfLiteral(bound.last) == LiteralKind::Date;
    };
    const bool unwraps = value.isDateAsText && isDate(low) && isDate(high);
    if (unwraps)
        UnwrapDate(value);
    for (const Operand& bound : {low, high}) {
        if (bound.kind == Operand::Kind::Literal && !unwraps)
            UseLiteral(bound, value.type, false);
    }
}

void TranslatorWork::CompareIn(int in)
{
    const int end = m_tokens.IsWord(in - 1, u"not") ? in - 2 : in - 1;
    const Operand value = ReadBackwards(end);
    const int close = m_tokens.At(in + 1).match;
    for (int i = in + 2; i < close;) {
        const int itemEnd = ItemEnd(i, close);
        const Operand item = ReadWhole(i, itemEnd - 1);
        if (item.kind == Operand::Kind::Literal)
            UseLiteral(item, value.type, false);
        i = itemEnd + 1;
    }
}

void TranslatorWork::Calls()
{
    for (int i = 0; i < m_tokens.Count(); ++i) {
        if (!m_tokens.IsSign(i + 1, u"(") || m_tokens.At(i).kind != Token::Kind::Word
            || m_tokens.At(i).replaced)
            continue;
        const int close = m_tokens.At(i + 1).match;
        if (m_tokens.IsWord(i, u"cstr")) {
            if (OfCall(i, close).isDateAsText)
                m_tokens.Replace(i, QStringLiteral("datetext"));
            continue;
        }
        const bool isLeft = m_tokens.IsWord(i, u"left");
        if (!isLeft && !m_tokens.IsWord(i, u"trim"))
            continue;
        // "left" is a keyword of the engine; quoted it is an ordinary name.
        if (isLeft)
            m_tokens.Replace(i, QStringLiteral("\"left\""));
        const Operand argument = ReadWhole(i + 2, ItemEnd(i + 2, close) - 1);
        if (argument.kind == Operand::Kind::Column && argument.type == ColumnType::Date)
            m_tokens.Wrap(argument.first, argument.last, u"datetext");
        else if (argument.kind == Operand::Kind::Column && argument.type == ColumnType::Number)
            m_tokens.Wrap(argument.first, argument.last, u"cstr");
    }
}

// max and min of a date column are dates, too.
void TranslatorWork::ResultDates()
{
    if (m_made.kind != StatementKind::Query)
        return;
    int i = m_tokens.IsWord(1, u"distinct") || m_tokens.IsWord(1, u"all") ? 2 : 1;
    const int end = ListEnd(i);
    qsizetype position = 0;
    while (i < end) {
        const int itemEnd = ItemEnd(i, end);
        if (m_tokens.IsSign(itemEnd - 1, u"*")) {
            const qsizetype width = m_hasUnion ? -1 : StarWidth(0);
            if (width < 0)
                return;
            position += width;
        } else {
            const Operand item = ReadForwards(i);
            const bool standsAlone = item.last == itemEnd - 1 || m_tokens.IsName(item.last + 1);
            if (item.kind == Operand::Kind::Call && item.type == ColumnType::Date && standsAlone)
                m_made.dateColumns.push_back(static_cast<int>(position));
            ++position;
        }
        i = itemEnd + 1;
    }
}
