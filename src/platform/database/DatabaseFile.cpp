#include "DatabaseFile.h"

#include "DatabaseErrors.h"
#include "SqlFunctions.h"
#include "WriteAheadLog.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUrl>

#include <sqlcipher/sqlite3.h>

namespace {

// The engine's own default, so that its stock shell opens the books with nothing but the password.
constexpr int PageSize = 1024;
constexpr int BusyMilliseconds = 5000;

// A handle that is closed unless it is let go.
class Opened {
public:
    Opened(const QByteArray& name, int flags)
    {
        m_code = sqlite3_open_v2(name.constData(), &m_handle, flags, nullptr);
    }
    ~Opened() { sqlite3_close(m_handle); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    sqlite3* Handle() const { return m_handle; }
    sqlite3* LetGo() { return std::exchange(m_handle, nullptr); }
    int Code() const { return m_code; }

    int Key(const QString& password)
    {
        const QByteArray bytes = password.toUtf8();
        const int code = sqlite3_key(m_handle, bytes.constData(), static_cast<int>(bytes.size()));
        if (code != SQLITE_OK)
            return code;
        return Run(QByteArray("pragma cipher_page_size=") + QByteArray::number(PageSize));
    }

    int Run(const QByteArray& pragma)
    {
        return sqlite3_exec(m_handle, pragma.constData(), nullptr, nullptr, nullptr);
    }

    void RunOrThrow(const QByteArray& pragma)
    {
        const int code = Run(pragma);
        if (code != SQLITE_OK)
            DatabaseErrors::ThrowFailure(m_handle, code, {});
    }

private:
    sqlite3* m_handle = nullptr;
    int m_code = SQLITE_OK;
};

[[noreturn]] void ThrowBad(QStringView marathi, const char* english, const QString& file)
{
    throw RunTimeError(
        RunTimeError::DatabaseFailure, Sentences(marathi, QString::fromUtf8(english).arg(file)));
}

[[noreturn]] void ThrowCutShort(const QString& file)
{
    ThrowBad(u"डेटाबेसची फाइल अपुरी आहे; तिचा काही भाग नाही. शेवटचा बॅकअप परत आणा.",
        "The database file \"%1\" is cut short: a part of it is missing. Restore the last backup.", file);
}

// What the engine says to the first page of a file under this password, looked at without touching anything.
int LookAtFirstPage(const QString& file, const QString& password)
{
    const QByteArray path = QUrl::toPercentEncoding(QFileInfo(file).absoluteFilePath(), "/");
    Opened opened("file:" + path + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    if (opened.Code() != SQLITE_OK)
        return opened.Code();
    const int code = opened.Key(password);
    return code == SQLITE_OK ? opened.Run("pragma schema_version") : code;
}

// The same for a first page that a power cut has left in the log only.
int LookAtLoggedPage(const QByteArray& page, const QString& password)
{
    QTemporaryFile copy;
    if (!copy.open() || copy.write(page) != page.size() || !copy.flush())
        return SQLITE_IOERR;
    return LookAtFirstPage(copy.fileName(), password);
}

void RequireReadable(const QString& file)
{
    const QFileInfo info(file);
    if (file.isEmpty() || !info.exists())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(u"डेटाबेसची फाइल सापडली नाही.",
                QStringLiteral("The database file \"%1\" was not found.").arg(file)));
    if (QFile probe(file); !info.isFile() || !probe.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(u"डेटाबेसची फाइल वाचता येत नाही. फाइलची परवानगी तपासा.",
                QStringLiteral("The database file \"%1\" can't be read. Check its permissions.").arg(file)));
    if (info.size() == 0)
        ThrowBad(u"डेटाबेसची फाइल रिकामी आहे. शेवटचा बॅकअप परत आणा.",
            "The file \"%1\" is empty; it is not a database. Restore the last backup.", file);
}

void RequirePages(const QString& file, const WriteAheadLog& log, int firstPageCode)
{
    const qint64 size = QFileInfo(file).size();
    const auto whole = static_cast<quint32>(size / PageSize);
    if (log.databasePages == 0) {
        // Under the right password the only other thing wrong with a first page is its count of pages.
        if (size % PageSize != 0 || (firstPageCode & 0xFF) == SQLITE_CORRUPT)
            ThrowCutShort(file);
        return;
    }
    for (quint32 page = whole + 1; page <= log.databasePages; ++page) {
        if (!log.pages.contains(page))
            ThrowCutShort(file);
    }
}

void RequireSound(const QString& file, const QString& password)
{
    RequireReadable(file);
    const WriteAheadLog log = WriteAheadLog::Read(file, PageSize);
    int code = LookAtFirstPage(file, password);
    if ((code & 0xFF) == SQLITE_NOTADB && !log.firstPage.isEmpty())
        code = LookAtLoggedPage(log.firstPage, password);
    if ((code & 0xFF) == SQLITE_NOTADB || password.isEmpty()) {
        if (QFileInfo(file).size() % PageSize != 0)
            ThrowBad(u"ही फाइल डेटाबेस नाही किंवा अपुरी आहे. शेवटचा बॅकअप परत आणा.",
                "The file \"%1\" is not a database, or it is cut short. Restore the last backup.", file);
        ThrowBad(u"पासवर्ड चुकीचा आहे किंवा ही फाइल डेटाबेस नाही. PWD.TXT तपासा.",
            "The password is wrong, or the file \"%1\" is not a database. Check PWD.TXT.", file);
    }
    RequirePages(file, log, code);
}

void MakeReady(Opened& opened)
{
    sqlite3_busy_timeout(opened.Handle(), BusyMilliseconds);
    opened.RunOrThrow("pragma temp_store=memory");
    opened.RunOrThrow("pragma foreign_keys=off");
    opened.RunOrThrow("pragma journal_mode=wal");
    opened.RunOrThrow("pragma synchronous=full");
    SqlFunctions::Register(opened.Handle());
}

}

sqlite3* DatabaseFile::Open(const QString& file, const QString& password)
{
    RequireSound(file, password);
    Opened opened(file.toUtf8(), SQLITE_OPEN_READWRITE);
    if (opened.Code() != SQLITE_OK)
        DatabaseErrors::ThrowFailure(opened.Handle(), opened.Code(), {});
    if (const int code = opened.Key(password); code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(opened.Handle(), code, {});
    MakeReady(opened);
    return opened.LetGo();
}

sqlite3* DatabaseFile::Create(const QString& file, const QString& password)
{
    QFile made(file);
    if (password.isEmpty() || !made.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(u"नवीन डेटाबेस तयार करता आला नाही.",
                QStringLiteral(
                    "The database file \"%1\" can't be made: it exists already, its folder can't be "
                    "written, or the password is empty.")
                    .arg(file)));
    made.close();
    try {
        Opened opened(file.toUtf8(), SQLITE_OPEN_READWRITE);
        if (opened.Code() != SQLITE_OK)
            DatabaseErrors::ThrowFailure(opened.Handle(), opened.Code(), {});
        if (const int code = opened.Key(password); code != SQLITE_OK)
            DatabaseErrors::ThrowFailure(opened.Handle(), code, {});
        MakeReady(opened);
        return opened.LetGo();
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}
