#include "platform/database/Translator.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/TranslatorWork.h"

#include <algorithm>

namespace {

// A limit on the tables of a statement, which bounds the work for senseless texts. No statement of a screen
// comes near it.
constexpr std::size_t MaxTables = 32;

constexpr QStringView AfterTable[] = {u"where", u"order", u"group", u"having", u"inner", u"left", u"right",
    u"outer", u"cross", u"natural", u"join", u"on", u"using", u"union", u"except", u"intersect", u"set",
    u"values", u"limit", u"select", u"indexed", u"not", u"default"};

}

Translation Translator::Translate(const ScannedStatement& scanned, QStringView statement) const
{
    return TranslatorWork(m_catalogue, scanned, statement).Run();
}

TranslatorWork::TranslatorWork(Catalogue& catalogue, const ScannedStatement& scanned, QStringView statement)
    : m_catalogue(catalogue)
    , m_scanned(scanned)
    , m_statement(statement)
    , m_tokens(scanned.Shape())
{
    m_made.uses.assign(scanned.Literals().size(), LiteralUse::AsIs);
}

Translation TranslatorWork::Run()
{
    FindKind();
    if (m_made.kind == StatementKind::Create) {
        for (int i = 0; i < m_tokens.Count(); ++i)
            UseInLine(i);
    } else {
        FindTables();
        StoreInsert();
        StoreUpdate();
        Conditions();
        Calls();
        ResultDates();
        KeepPositions();
    }
    const auto inLine = [this](int literal) -> QString {
        const Literal& whole = m_scanned.Literals()[static_cast<std::size_t>(literal)];
        if (m_made.uses[static_cast<std::size_t>(literal)] != LiteralUse::InLine)
            return {};
        const std::string_view bytes = m_scanned.TextOf(whole);
        QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
        if (whole.kind == LiteralKind::Number)
            return text;
        return QChar(u'\'') + text.replace(QStringLiteral("'"), QStringLiteral("''")) + QChar(u'\'');
    };
    m_made.sql = m_tokens.Text(inLine).toUtf8();
    return std::move(m_made);
}

void TranslatorWork::FindKind()
{
    if (m_tokens.IsWord(0, u"select")) {
        m_made.kind = StatementKind::Query;
    } else if (m_tokens.IsWord(0, u"insert") && m_tokens.IsWord(1, u"into")) {
        m_made.kind = StatementKind::Insert;
    } else if (m_tokens.IsWord(0, u"update") && m_tokens.IsName(1) && !m_tokens.IsWord(1, u"or")) {
        m_made.kind = StatementKind::Update;
    } else if (m_tokens.IsWord(0, u"delete")) {
        m_made.kind = StatementKind::Delete;
        if (m_tokens.IsSign(1, u"*"))
            m_tokens.Replace(1, QString());
    } else if (m_tokens.IsWord(0, u"create") && m_tokens.IsWord(1, u"table")) {
        m_made.kind = StatementKind::Create;
    } else {
        DatabaseErrors::ThrowRefused(
            "It is none of select, insert into, update, delete, create table.", m_statement);
    }
}

std::shared_ptr<const Table> TranslatorWork::Look(int i)
{
    if (m_sources.size() >= MaxTables)
        DatabaseErrors::ThrowRefused("The statement names too many tables.", m_statement);
    return m_catalogue.Find(m_tokens.At(i).text);
}

// Reads "T", "T X" or "T as X" and returns the token after it.
int TranslatorWork::AddSource(int i)
{
    Source source{Look(i), m_tokens.At(i).text, m_tokens.At(i).depth};
    if (!source.table || source.table->isView)
        m_made.readsUnknown = true;
    ++i;
    const bool hasAs = m_tokens.IsWord(i, u"as");
    if (hasAs)
        ++i;
    const auto follows = [&](QStringView word) { return m_tokens.IsWord(i, word); };
    if (m_tokens.IsName(i) && (hasAs || std::none_of(std::begin(AfterTable), std::end(AfterTable), follows)))
        source.name = m_tokens.At(i++).text;
    if (source.table)
        m_made.reads.push_back(source.table);
    m_sources.push_back(std::move(source));
    return i;
}

void TranslatorWork::FindTables()
{
    if (m_made.kind == StatementKind::Insert)
        m_made.target = Look(2);
    if (m_made.kind == StatementKind::Update)
        m_made.target = Look(1);
    for (int i = 0; i < m_tokens.Count(); ++i) {
        m_hasUnion = m_hasUnion || m_tokens.IsWord(i, u"union");
        const bool isFrom = m_tokens.IsWord(i, u"from");
        if (!isFrom && !m_tokens.IsWord(i, u"join"))
            continue;
        int at = i + 1;
        while (m_tokens.IsName(at)) {
            at = AddSource(at);
            if (!isFrom || !m_tokens.IsSign(at, u","))
                break;
            ++at;
        }
        if (m_tokens.IsSign(at, u"("))
            m_made.readsUnknown = true;
    }
    if (m_made.kind == StatementKind::Delete && !m_sources.empty())
        m_made.target = m_sources.front().table;
}

void TranslatorWork::SetUse(int token, LiteralUse use)
{
    m_made.uses[static_cast<std::size_t>(m_tokens.At(token).literal)] = use;
}

void TranslatorWork::UseInLine(int i)
{
    if (!m_tokens.IsLiteral(i))
        return;
    SetUse(i, LiteralUse::InLine);
    m_made.mayBeKept = false;
}

void TranslatorWork::UseLiteral(const Operand& literal, ColumnType type, bool isStored)
{
    const LiteralKind kind = m_tokens.KindOfLiteral(literal.last);
    if (type == ColumnType::Text) {
        if (kind == LiteralKind::Date)
            SetUse(literal.last, LiteralUse::DayFirst);
        else if (kind == LiteralKind::Number && literal.hasSign)
            m_tokens.Wrap(literal.first, literal.last, u"cstr");
        else if (kind == LiteralKind::Number)
            SetUse(literal.last, LiteralUse::TextOfNumber);
    } else if (type == ColumnType::Number) {
        if (kind == LiteralKind::Text)
            SetUse(literal.last, LiteralUse::NumberOfText);
        else if (kind == LiteralKind::Date && isStored)
            SetUse(literal.last, LiteralUse::Mismatch);
    } else if (type == ColumnType::Date) {
        if (kind == LiteralKind::Text)
            SetUse(literal.last, LiteralUse::IsoDate);
        else if (kind == LiteralKind::Number && isStored)
            SetUse(literal.last, LiteralUse::Mismatch);
    }
}

// In "order by 1" the number is the position of a column, so it can't be a parameter.
void TranslatorWork::KeepPositions()
{
    bool keeps = false;
    int depth = 0;
    for (int i = 0; i < m_tokens.Count(); ++i) {
        const bool ends = m_tokens.At(i).depth < depth || m_tokens.IsWord(i, u"having")
            || m_tokens.IsWord(i, u"limit") || m_tokens.IsWord(i, u"union");
        if (m_tokens.IsWord(i, u"by")) {
            keeps = true;
            depth = m_tokens.At(i).depth;
        } else if (ends) {
            keeps = false;
        } else if (keeps) {
            UseInLine(i);
        }
    }
}
