#include "platform/database/TranslatorWork.h"

// Translates the values that are stored: insert ... values, insert ... select, update ... set.

namespace {

// The function that converts values of one column type to another; empty if none is needed.
QStringView Conversion(ColumnType from, ColumnType to)
{
    if (to == ColumnType::Text && from == ColumnType::Date)
        return u"datetext";
    if (to == ColumnType::Text && from != ColumnType::Text)
        return u"cstr";
    if (to == ColumnType::Date && from == ColumnType::Text)
        return u"isodate";
    return {};
}

}

// Reads the column list after the table of an insert; without a list, all columns of the table. Moves `i`
// behind it.
std::vector<Column> TranslatorWork::TargetColumns(int& i) const
{
    const Table* table = m_made.target.get();
    if (!m_tokens.IsSign(i, u"("))
        return table ? table->columns : std::vector<Column>();
    std::vector<Column> columns;
    const int close = m_tokens.At(i).match;
    for (int at = i + 1; at < close; ++at) {
        if (!m_tokens.IsName(at))
            continue;
        const Column* column = table ? table->Find(m_tokens.At(at).text) : nullptr;
        columns.push_back(column ? *column : Column());
    }
    i = m_tokens.Over(i);
    return columns;
}

void TranslatorWork::StoreInsert()
{
    if (m_made.kind != StatementKind::Insert)
        return;
    int i = 3;
    const std::vector<Column> columns = TargetColumns(i);
    m_conditionsFrom = i;
    if (m_tokens.IsWord(i, u"values")) {
        m_conditionsFrom = m_tokens.Count();
        for (++i; m_tokens.IsSign(i, u"("); i = m_tokens.Over(i) + 1)
            StoreValues(i, columns);
    } else if (m_tokens.IsWord(i, u"select")) {
        StoreSelection(i, columns);
    }
}

// The end of the list that begins at i: "from" or "where" on the same level, or the closing parenthesis.
int TranslatorWork::ListEnd(int i) const
{
    while (i < m_tokens.Count() && !m_tokens.IsWord(i, u"from") && !m_tokens.IsWord(i, u"where")
        && !m_tokens.IsSign(i, u")"))
        i = m_tokens.Over(i);
    return i;
}

int TranslatorWork::ItemEnd(int i, int end) const
{
    while (i < end && !m_tokens.IsSign(i, u","))
        i = m_tokens.Over(i);
    return i < end ? i : end;
}

void TranslatorWork::StoreValues(int open, const std::vector<Column>& columns)
{
    const int close = m_tokens.At(open).match;
    std::size_t position = 0;
    for (int i = open + 1; i < close && position < columns.size(); ++position) {
        const int end = ItemEnd(i, close);
        StoreItem(i, end - 1, columns[position].type);
        i = end + 1;
    }
}

void TranslatorWork::StoreItem(int first, int last, ColumnType type)
{
    const Operand item = ReadWhole(first, last);
    if (item.kind == Operand::Kind::Literal)
        return UseLiteral(item, type, true);
    if (first > last || item.kind == Operand::Kind::None)
        return;
    const QStringView turn = Conversion(item.type, type);
    if (!turn.isEmpty())
        m_tokens.Wrap(first, last, turn);
}

void TranslatorWork::StoreUpdate()
{
    if (m_made.kind != StatementKind::Update)
        return;
    int set = 0;
    while (set < m_tokens.Count() && !m_tokens.IsWord(set, u"set"))
        ++set;
    const int end = ListEnd(set + 1);
    m_conditionsFrom = end;
    for (int i = set + 1; i < end;) {
        const int itemEnd = ItemEnd(i, end);
        if (m_tokens.IsName(i) && m_tokens.IsSign(i + 1, u"="))
            StoreItem(i + 2, itemEnd - 1, TypeOfColumn(i, i));
        i = itemEnd + 1;
    }
}

void TranslatorWork::StoreSelection(int select, const std::vector<Column>& columns)
{
    int i = select + 1;
    if (m_tokens.IsWord(i, u"distinct") || m_tokens.IsWord(i, u"all"))
        ++i;
    const int end = ListEnd(i);
    std::size_t position = 0;
    while (i < end && position < columns.size()) {
        const int itemEnd = ItemEnd(i, end);
        if (m_tokens.IsSign(itemEnd - 1, u"*") && itemEnd - i != 2) {
            if (!StoreStar(i, itemEnd - 1, columns, position))
                return;
            position += static_cast<std::size_t>(StarWidth(m_tokens.At(select).depth));
        } else {
            const Operand item = ReadWhole(i, itemEnd - 1);
            if (item.kind == Operand::Kind::Literal || item.kind == Operand::Kind::Column)
                StoreItem(i, itemEnd - 1, columns[position].type);
            ++position;
        }
        i = itemEnd + 1;
    }
}

// The number of columns that a "*" stands for; -1 if it isn't known.
qsizetype TranslatorWork::StarWidth(int depth) const
{
    qsizetype width = 0;
    for (const Source& source : m_sources) {
        if (source.depth != depth)
            continue;
        if (!source.table)
            return -1;
        width += static_cast<qsizetype>(source.table->columns.size());
    }
    return width;
}

// Replaces a "*" by its columns if one of them has to be converted, such as a number for a text column, which
// the engine would write in its own way.
bool TranslatorWork::StoreStar(int first, int star, const std::vector<Column>& columns, std::size_t position)
{
    const int depth = m_tokens.At(star).depth;
    const Source* from = nullptr;
    for (const Source& source : m_sources) {
        if (source.depth != depth)
            continue;
        if (from || !source.table)
            return false;
        from = &source;
    }
    if (!from)
        return false;
    QStringList names;
    bool differs = false;
    for (const Column& source : from->table->columns) {
        const ColumnType type = position < columns.size() ? columns[position++].type : source.type;
        QString name = source.name;
        name = QChar(u'"') + name.replace(QStringLiteral("\""), QStringLiteral("\"\"")) + QChar(u'"');
        const QStringView turn = Conversion(source.type, type);
        differs = differs || !turn.isEmpty();
        names.append(turn.isEmpty() ? name : turn + QChar(u'(') + name + QChar(u')'));
    }
    if (differs) {
        for (int i = first; i < star; ++i)
            m_tokens.Replace(i, QString());
        m_tokens.Replace(star, names.join(u','));
    }
    return true;
}
