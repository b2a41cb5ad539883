#include "platform/database/BooksOnDisk.h"

#include "platform/database/DatabaseFile.h"
#include "platform/database/WriteAheadLog.h"

#include <QFileInfo>
#include <QHash>

namespace {

using Held = QHash<QString, std::weak_ptr<BooksOnDisk>>;

Held& HeldFiles()
{
    static Held files;
    return files;
}

QString KeyOf(const QString& file)
{
    return QFileInfo(file).absoluteFilePath();
}

}

std::shared_ptr<BooksOnDisk> BooksOnDisk::Hold(const QString& file)
{
    const QString key = KeyOf(file);
    if (std::shared_ptr<BooksOnDisk> held = HeldFiles().value(key).lock())
        return held;
    std::shared_ptr<BooksOnDisk> books(new BooksOnDisk(key));
    HeldFiles().insert(key, books);
    return books;
}

bool BooksOnDisk::AreOpen(const QString& file)
{
    return !HeldFiles().value(KeyOf(file)).expired();
}

bool BooksOnDisk::AreReachedBy(const QString& path)
{
    const QString key = KeyOf(path);
    const FileState reached = FileState::Of(key);
    const auto isReached = [&](const QString& file) {
        return key == file || (reached.number != 0 && reached.IsSameFileAs(FileState::Of(file)));
    };
    const Held& held = HeldFiles();
    for (auto books = held.cbegin(); books != held.cend(); ++books) {
        const QString& file = books.key();
        if (!books->expired()
            && (isReached(file) || isReached(WriteAheadLog::NameFor(file))
                || isReached(WriteAheadLog::IndexNameFor(file))))
            return true;
    }
    return false;
}

BooksOnDisk::BooksOnDisk(const QString& file)
    : m_path(file)
    , m_file(file)
    , m_log(WriteAheadLog::NameFor(file))
{
    m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    Remember();
}

BooksOnDisk::~BooksOnDisk()
{
    LeaveToTheEnd();
}

void BooksOnDisk::LeaveToTheEnd()
{
    const Held::iterator held = HeldFiles().find(m_path);
    if (held != HeldFiles().end() && (held->expired() || held->lock().get() == this))
        HeldFiles().erase(held);
}

BooksOnDisk::Verdict BooksOnDisk::Look()
{
    if (!m_logState.Exists())
        RememberLog();
    const FileState books = FileState::Of(m_path);
    const FileState log = FileState::Of(m_log.fileName());
    if (!books.Exists() || !books.IsSameFileAs(m_books) || books.size < m_books.size)
        return Verdict::Changed;
    const bool areWritten = books.written != m_books.written || books.size != m_books.size;
    const bool isLogThere = log.Exists() && log.IsSameFileAs(m_logState);
    if (isLogThere && log.size < m_logState.size)
        return areWritten && log.size == 0 ? Verdict::LogEmptied : Verdict::Changed;
    if (!areWritten)
        return isLogThere ? Verdict::Untouched : Verdict::LogGone;

    // Another program has written to the file. Each round of the log writes the first page, so if that is
    // unchanged, no round was folded. If it has changed but is also in the log, the log was folded.
    const QByteArray firstPage = FirstPage();
    const bool isSame = firstPage == m_firstPage;
    if (!isSame && !LogHolds(firstPage))
        return Verdict::Changed;
    if (!isLogThere)
        return Verdict::LogGone;
    Remember();
    return isSame ? Verdict::Untouched : Verdict::FoldedByOthers;
}

void BooksOnDisk::RememberLog()
{
    if (!m_log.isOpen())
        m_log.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    m_logState = FileState::Of(m_log);
}

void BooksOnDisk::RememberBooks()
{
    m_books = FileState::Of(m_path);
    m_firstPage = FirstPage();
}

void BooksOnDisk::Remember()
{
    RememberBooks();
    RememberLog();
}

void BooksOnDisk::Sync()
{
    SyncToDisk(m_file);
}

QByteArray BooksOnDisk::FirstPage()
{
    return m_file.seek(0) ? m_file.read(DatabaseFile::PageSize) : QByteArray();
}

bool BooksOnDisk::LogHolds(const QByteArray& firstPage)
{
    if (!m_log.isOpen() || !m_log.seek(0))
        return false;
    return m_log.readAll().contains(firstPage);
}
