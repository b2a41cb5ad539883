#include "platform/database/StatementCache.h"

#include "platform/database/DatabaseErrors.h"

#include <sqlcipher/sqlite3.h>

namespace {

constexpr qsizetype MaxShapes = 256;

// Longer shapes aren't kept; no statement of a screen is so long.
constexpr qsizetype MaxShapeLength = 8192;

// The number of idle statements that are kept for a shape; more are hardly ever in use at once.
constexpr std::size_t MaxIdle = 4;

// The greatest arena of a statement that is kept idle.
constexpr std::size_t MaxArena = 64UL * 1024;

}

Prepared::Prepared(sqlite3* handle, const std::shared_ptr<CachedShape>& home, QStringView statement)
    : m_home(home)
{
    const QByteArray& sql = home->made.sql;
    const int code =
        sqlite3_prepare_v2(handle, sql.constData(), static_cast<int>(sql.size()), &m_handle, nullptr);
    if (code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(handle, code, statement);
    ReadColumns();
}

Prepared::~Prepared()
{
    sqlite3_finalize(m_handle);
}

const Translation& Prepared::Made() const
{
    return m_home->made;
}

void Prepared::ReadColumns()
{
    const int count = sqlite3_column_count(m_handle);
    for (int i = 0; i < count; ++i) {
        m_names.push_back(QString::fromUtf8(sqlite3_column_name(m_handle, i)));
        const char* declaration = sqlite3_column_decltype(m_handle, i);
        m_isDate.push_back(
            declaration && TypeOfDeclaration(QString::fromUtf8(declaration)) == ColumnType::Date);
    }
    for (const int column : Made().dateColumns) {
        if (column < count)
            m_isDate[static_cast<std::size_t>(column)] = true;
    }
}

std::shared_ptr<CachedShape> StatementCache::Find(QStringView shape)
{
    const auto place = m_places.constFind(QString::fromRawData(shape.data(), shape.size()));
    if (place == m_places.constEnd())
        return nullptr;
    m_shapes.splice(m_shapes.begin(), m_shapes, place.value());
    return m_shapes.front();
}

std::shared_ptr<CachedShape> StatementCache::Add(QStringView shape, Translation made)
{
    auto added = std::make_shared<CachedShape>();
    added->made = std::move(made);
    if (!added->made.mayBeKept || shape.size() > MaxShapeLength)
        return added;
    added->shape = shape.toString();
    added->isKept = true;
    m_shapes.push_front(added);
    m_places.insert(added->shape, m_shapes.begin());
    if (m_places.size() > MaxShapes)
        DropOldest();
    return added;
}

std::unique_ptr<Prepared> StatementCache::Take(
    const std::shared_ptr<CachedShape>& shape, QStringView statement)
{
    if (!shape->idle.empty()) {
        std::unique_ptr<Prepared> taken = std::move(shape->idle.back());
        shape->idle.pop_back();
        return taken;
    }
    ++m_preparations;
    return std::make_unique<Prepared>(m_handle, shape, statement);
}

void StatementCache::GiveBack(std::unique_ptr<Prepared> prepared)
{
    CachedShape& home = *prepared->Home();
    if (home.isKept && home.idle.size() < MaxIdle && prepared->Arena().size() <= MaxArena)
        home.idle.push_back(std::move(prepared));
}

void StatementCache::DropOldest()
{
    const std::shared_ptr<CachedShape> oldest = m_shapes.back();
    m_places.remove(oldest->shape);
    m_shapes.pop_back();
    oldest->isKept = false;
    oldest->idle.clear();
}

void StatementCache::Clear()
{
    while (!m_shapes.empty())
        DropOldest();
}
