#include "platform/database/KeyedFile.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/FileKey.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <QUrl>

#include <sqlcipher/sqlite3.h>

namespace {

QByteArray NameFor(const QString& file, KeyedFile::Way way)
{
    if (way != KeyedFile::Way::LookOnly)
        return file.toUtf8();
    return "file:" + QUrl::toPercentEncoding(QFileInfo(file).absoluteFilePath(), "/") + "?immutable=1";
}

int FlagsFor(KeyedFile::Way way)
{
    switch (way) {
    case KeyedFile::Way::Write:
        return SQLITE_OPEN_READWRITE;
    case KeyedFile::Way::Read:
        return SQLITE_OPEN_READONLY;
    case KeyedFile::Way::LookOnly:
        return SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    }
    return 0;
}

}

KeyedFile::KeyedFile(const QString& file, const QString& password, Way way)
{
    m_code = sqlite3_open_v2(NameFor(file, way).constData(), &m_handle, FlagsFor(way), nullptr);
    if (m_code != SQLITE_OK)
        return;
    sqlite3_busy_timeout(m_handle, DatabaseFile::BusyMilliseconds);
    m_code = Key(password);
}

KeyedFile::~KeyedFile()
{
    sqlite3_close(m_handle);
}

int KeyedFile::Run(const QByteArray& pragma)
{
    return sqlite3_exec(m_handle, pragma.constData(), nullptr, nullptr, nullptr);
}

void KeyedFile::RunOrThrow(const QByteArray& pragma)
{
    if (const int code = Run(pragma); code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(m_handle, code, {});
}

int KeyedFile::Key(const QString& password)
{
    const QByteArray key = FileKey::For(m_handle, password);
    const int code = sqlite3_key(m_handle, key.constData(), static_cast<int>(key.size()));
    if (code != SQLITE_OK)
        return code;
    return Run("pragma cipher_page_size=" + QByteArray::number(DatabaseFile::PageSize));
}

FirstPage FirstPage::OfFile(const QString& file, const QString& password)
{
    FirstPage page;
    if (password.isEmpty()) {
        page.code = SQLITE_NOTADB;
        return page;
    }
    KeyedFile opened(file, password, KeyedFile::Way::LookOnly);
    page.code = opened.Code() != SQLITE_OK ? opened.Code() : opened.Run("pragma schema_version");
    if (page.IsReadable())
        page.mark = LogMark::Of(opened.Handle());
    return page;
}

FirstPage FirstPage::OfBytes(const QByteArray& bytes, quint32 pages, const QString& password)
{
    QTemporaryFile copy;
    FirstPage unread;
    unread.code = SQLITE_FULL;
    if (!copy.open() || copy.write(bytes) != bytes.size() || !copy.flush())
        return unread;
    // The first page says how many pages there are, and the engine reads nothing from a file with fewer.
    return copy.resize(qint64(pages) * bytes.size()) ? OfFile(copy.fileName(), password) : unread;
}

bool FirstPage::IsUnreadable() const
{
    return (code & 0xFF) == SQLITE_NOTADB;
}

bool FirstPage::IsOfTooFewPages() const
{
    return (code & 0xFF) == SQLITE_CORRUPT;
}
