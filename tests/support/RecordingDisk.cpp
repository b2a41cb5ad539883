#include "tests/support/RecordingDisk.h"

#include "tests/support/WatchedDisk.h"

#include <QFile>

#include <sqlcipher/sqlite3.h>

#include <sys/stat.h>
#include <utility>

namespace {

// How a file is after another change, as far as the changes have come through this disk.
void Play(const DiskEvent& event, QByteArray& file)
{
    if (event.kind == DiskEvent::Kind::Cut)
        file.resize(static_cast<int>(event.at));
    if (event.kind != DiskEvent::Kind::Written)
        return;
    const auto end = static_cast<int>(event.at) + event.bytes.size();
    if (file.size() < end)
        file.append(end - file.size(), '\0');
    file.replace(static_cast<int>(event.at), event.bytes.size(), event.bytes);
}

class RecordingWatcher final : public DiskWatcher {
public:
    void Begin(const QString& books, int acknowledged, int begun)
    {
        m_books = QFile::encodeName(books);
        m_log = m_books + "-wal";
        m_story = {{}, acknowledged, begun};
        for (const bool isLog : {false, true}) {
            QFile file(isLog ? QFile::decodeName(m_log) : books);
            m_isThere[isLog] = file.open(QIODevice::ReadOnly);
            if (m_isThere[isLog])
                Found(isLog, file.readAll());
        }
    }

    DiskStory End()
    {
        m_books.clear();
        m_log.clear();
        return std::exchange(m_story, {});
    }

    DiskStory& Story() { return m_story; }

    int Change(const DiskChange& change, const Making& make) override
    {
        const int code = make(change.count);
        if (!IsOurs(change.path) || code != SQLITE_OK)
            return code;
        const bool isLog = IsLog(change.path);
        DiskEvent event = Event(KindOf(change.kind), isLog);
        event.at = change.at;
        event.bytes = QByteArray(change.bytes, change.count);
        Play(event, m_now[isLog]);
        if (event.kind == DiskEvent::Kind::Removed)
            m_isThere[isLog] = false;
        m_story.events.push_back(event);
        return code;
    }

    // A file that is new, or that was changed past the engine since.
    void Opened(const char* path, const Content& content) override
    {
        if (!IsOurs(path))
            return;
        const bool isLog = IsLog(path);
        const QByteArray bytes = QByteArray::fromStdString(content());
        if (std::exchange(m_isThere[isLog], true) && bytes == m_now[isLog])
            return;
        Found(isLog, bytes);
    }

    void IndexMoved(const char* database, const volatile void* memory, int size) override
    {
        if (database != m_books)
            return;
        // All connections of the process have it at the same place, until the last one has left it.
        m_indexUsers = memory ? m_indexUsers + 1 : qMax(0, m_indexUsers - 1);
        if (memory) {
            m_index = const_cast<const char*>(static_cast<const volatile char*>(memory));
            m_indexSize = size;
        } else if (m_indexUsers == 0) {
            m_index = nullptr;
        }
    }

private:
    bool IsLog(const char* path) const { return path == m_log; }
    bool IsOurs(const char* path) const { return path == m_books || IsLog(path); }

    static DiskEvent::Kind KindOf(DiskChange::Kind kind)
    {
        switch (kind) {
        case DiskChange::Kind::Write:
            return DiskEvent::Kind::Written;
        case DiskChange::Kind::Cut:
            return DiskEvent::Kind::Cut;
        case DiskChange::Kind::Sync:
            return DiskEvent::Kind::Synced;
        case DiskChange::Kind::Remove:
            break;
        }
        return DiskEvent::Kind::Removed;
    }

    void Found(bool isLog, const QByteArray& bytes)
    {
        m_now[isLog] = bytes;
        DiskEvent event = Event(DiskEvent::Kind::Found, isLog);
        event.bytes = bytes;
        m_story.events.push_back(event);
    }

    DiskEvent Event(DiskEvent::Kind kind, bool isLog) const
    {
        constexpr qint64 nanoseconds = 1000000000;
        struct stat found { };
        stat(isLog ? m_log.constData() : m_books.constData(), &found);
        const qint64 time = found.st_mtim.tv_sec * nanoseconds + found.st_mtim.tv_nsec;
        return {kind, isLog, 0, {}, time, m_index ? QByteArray(m_index, m_indexSize) : QByteArray(),
            m_story.acknowledged, m_story.begun};
    }

    QByteArray m_books;
    QByteArray m_log;
    bool m_isThere[2] = {};
    QByteArray m_now[2];
    const char* m_index = nullptr;
    int m_indexSize = 0;
    int m_indexUsers = 0;
    DiskStory m_story;
};

RecordingWatcher& Watcher()
{
    static RecordingWatcher watcher;
    return watcher;
}

}

void RecordingDisk::Install()
{
    WatchedDisk::Install(Watcher());
}

void RecordingDisk::Begin(const QString& books, int acknowledged, int begun)
{
    Watcher().Begin(books, acknowledged, begun);
}

void RecordingDisk::SaveBegins(int number)
{
    Watcher().Story().begun = number;
}

void RecordingDisk::SaveIsAcknowledged(int number)
{
    Watcher().Story().acknowledged = number;
}

DiskStory RecordingDisk::End()
{
    return Watcher().End();
}
