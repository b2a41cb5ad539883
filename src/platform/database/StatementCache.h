#pragma once

#include "platform/database/Translator.h"

#include <list>

struct sqlite3;
struct sqlite3_stmt;

struct CachedShape;

// A prepared statement, with the bytes of the literals that are bound to it.
class Prepared {
public:
    Prepared(sqlite3* handle, const std::shared_ptr<CachedShape>& home, QStringView statement);
    ~Prepared();
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;

    sqlite3_stmt* Handle() const { return m_handle; }
    const Translation& Made() const;
    const std::shared_ptr<CachedShape>& Home() const { return m_home; }
    std::vector<char>& Arena() { return m_arena; }

    const std::vector<QString>& Names() const { return m_names; }
    bool IsDate(int column) const { return m_isDate[static_cast<std::size_t>(column)]; }

private:
    void ReadColumns();

    std::shared_ptr<CachedShape> m_home;
    sqlite3_stmt* m_handle = nullptr;
    std::vector<char> m_arena;
    std::vector<QString> m_names;
    std::vector<bool> m_isDate;
};

// A shape, its translation, and its prepared statements that aren't in use.
struct CachedShape {
    QString shape;
    Translation made;
    std::vector<std::unique_ptr<Prepared>> idle;
    bool isKept = false;
};

// Keeps the shapes that were used last. A prepared statement that is in use isn't handed out a second time;
// another one is prepared.
class StatementCache {
public:
    explicit StatementCache(sqlite3* handle) : m_handle(handle) { }
    ~StatementCache() { Clear(); }

    // The kept shape, or null.
    std::shared_ptr<CachedShape> Find(QStringView shape);

    // Adds a shape that has just been translated.
    std::shared_ptr<CachedShape> Add(QStringView shape, Translation made);

    std::unique_ptr<Prepared> Take(const std::shared_ptr<CachedShape>& shape, QStringView statement);
    void GiveBack(std::unique_ptr<Prepared> prepared);
    void Clear();

    // How many statements were prepared since the database was opened.
    int Preparations() const { return m_preparations; }

private:
    void DropOldest();

    using Shapes = std::list<std::shared_ptr<CachedShape>>;

    sqlite3* m_handle;
    Shapes m_shapes; // the last used first
    QHash<QString, Shapes::iterator> m_places;
    int m_preparations = 0;
};
