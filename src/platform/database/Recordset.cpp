#include "platform/database/Recordset.h"

#include "platform/database/ConnectionPrivate.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/IsoDates.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

namespace {

// Column names may differ only in the case of their Latin letters.
bool IsSameName(QStringView first, QStringView second)
{
    if (first.size() != second.size())
        return false;
    for (qsizetype i = 0; i < first.size(); ++i) {
        const char16_t a = first[i].unicode();
        const char16_t b = second[i].unicode();
        if (a == b)
            continue;
        const char16_t lower = a | 0x20;
        if (lower != (b | 0x20) || lower < u'a' || lower > u'z')
            return false;
    }
    return true;
}

}

Recordset::Private::Private(Connection::Private& connection, const QString& query)
    : m_connection(&connection)
    , m_query(query)
    , m_loan(connection.Take(query))
{
    if (m_loan->Made().kind != StatementKind::Query)
        DatabaseErrors::ThrowRefused("A record set takes a select.", query);
    connection.Guard().Begin();
    Step();
    connection.Add(this);
}

Recordset::Private::~Private()
{
    Close();
}

void Recordset::Private::Close()
{
    if (!m_connection)
        return;
    m_connection->Remove(this);
    m_connection = nullptr;
    m_loan.End();
    m_rows.clear();
}

void Recordset::Private::Abandon()
{
    m_connection = nullptr;
    m_loan.Drop();
    m_rows.clear();
}

void Recordset::Private::RequireOpen() const
{
    if (!m_connection)
        DatabaseErrors::ThrowClosed();
}

void Recordset::Private::Step()
{
    const int code = sqlite3_step(m_loan.Handle());
    if (code == SQLITE_ROW)
        return;
    if (code != SQLITE_DONE)
        DatabaseErrors::ThrowFailure(m_connection->Handle(), code, m_query);
    m_eof = true;
    m_loan.Reset();
}

bool Recordset::Private::Eof() const
{
    RequireOpen();
    return m_eof;
}

void Recordset::Private::MoveNext()
{
    RequireOpen();
    if (m_eof)
        throw RunTimeError(RunTimeError::NoCurrentRecord,
            Sentences(u"यादी संपली आहे.", QStringLiteral("There is no current record.")), m_query);
    if (!m_isKept) {
        m_connection->Guard().Begin();
        return Step();
    }
    m_rows.pop_front();
    m_eof = m_rows.empty();
}

FieldValue Recordset::Private::Read(int column) const
{
    // The value functions are used, since those of the statement lock it at each call; there is only one
    // thread here.
    sqlite3_value* value = sqlite3_column_value(m_loan.Handle(), column);
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return FieldValue::OfNumber(sqlite3_value_double(value));
    default:
        break;
    }
    const char* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    const int length = sqlite3_value_bytes(value);
    if (m_loan->IsDate(column)) {
        const QDate date = IsoDates::ToDate(std::string_view(text, static_cast<std::size_t>(length)));
        if (date.isValid())
            return FieldValue::OfDate(date);
    }
    return FieldValue::OfText(QString::fromUtf8(text, length));
}

std::vector<FieldValue> Recordset::Private::ReadRow() const
{
    std::vector<FieldValue> row;
    const int columns = static_cast<int>(m_loan->Names().size());
    row.reserve(static_cast<std::size_t>(columns));
    for (int i = 0; i < columns; ++i)
        row.push_back(Read(i));
    return row;
}

bool Recordset::Private::IsTouchedBy(const Translation& writing) const
{
    const Translation& reading = m_loan->Made();
    return reading.readsUnknown || !writing.target
        || std::find(reading.reads.begin(), reading.reads.end(), writing.target) != reading.reads.end();
}

void Recordset::Private::KeepRest(const Translation* writing)
{
    if (m_eof || m_isKept || (writing && !IsTouchedBy(*writing)))
        return;
    std::deque<std::vector<FieldValue>> rows;
    m_connection->Guard().Begin();
    do {
        rows.push_back(ReadRow());
        Step();
    } while (!m_eof);
    m_rows = std::move(rows);
    m_isKept = true;
    m_eof = false;
}

FieldValue Recordset::Private::At(int column) const
{
    RequireOpen();
    if (m_eof)
        throw RunTimeError(RunTimeError::NoCurrentRecord,
            Sentences(u"यादीत नोंद नाही.", QStringLiteral("There is no current record.")), m_query);
    if (column < 0 || static_cast<std::size_t>(column) >= m_loan->Names().size())
        throw RunTimeError(RunTimeError::ItemNotFound,
            Sentences(
                u"यादीत हा रकाना नाही.", QStringLiteral("The record set has no column %1.").arg(column)),
            m_query);
    return m_isKept ? m_rows.front()[static_cast<std::size_t>(column)] : Read(column);
}

int Recordset::Private::Find(QStringView field) const
{
    RequireOpen();
    const std::vector<QString>& names = m_loan->Names();
    const int count = static_cast<int>(names.size());
    for (int i = 0; i < count; ++i) {
        const int column = m_hint + i < count ? m_hint + i : m_hint + i - count;
        if (IsSameName(names[static_cast<std::size_t>(column)], field)) {
            m_hint = column + 1 < count ? column + 1 : 0;
            return column;
        }
    }
    throw RunTimeError(RunTimeError::ItemNotFound,
        Sentences(u"यादीत हा रकाना नाही.",
            QStringLiteral("The record set has no column \"") + field + QStringLiteral("\".")),
        m_query);
}

const std::vector<QString>& Recordset::Private::Names() const
{
    RequireOpen();
    return m_loan->Names();
}

Recordset::Recordset(Connection& connection, const QString& query)
{
    if (!connection.d())
        DatabaseErrors::ThrowClosed();
    m_d = std::make_unique<Private>(*connection.d(), query);
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

bool Recordset::Eof() const
{
    return m_d->Eof();
}

void Recordset::MoveNext()
{
    m_d->MoveNext();
}

FieldValue Recordset::operator[](QStringView field) const
{
    return m_d->At(m_d->Find(field));
}

FieldValue Recordset::At(int column) const
{
    return m_d->At(column);
}

int Recordset::Columns() const
{
    return static_cast<int>(m_d->Names().size());
}

QString Recordset::Name(int column) const
{
    return m_d->Names().at(static_cast<std::size_t>(column));
}

void Recordset::Close()
{
    m_d->Close();
}
