#include "Opening.h"

#include "DatabaseErrors.h"
#include "PageCheck.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int PageSize = DatabaseFile::PageSize;
constexpr int SaltSize = 16; // stands unencrypted at the beginning of the file

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

[[noreturn]] void ThrowNotWritable(const QString& file)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"डेटाबेसच्या फाइलमध्ये किंवा तिच्या फोल्डरमध्ये लिहिता येत नाही. परवानगी बदला आणि पुन्हा सुरू करा.",
            QStringLiteral(
                "The database file \"%1\" or its folder can't be written. Change the permissions and "
                "start again.")
                .arg(file)));
}

// A copy of books and log to try something on, removed at the end.
class TriedCopy {
public:
    explicit TriedCopy(const QString& books) : m_file(books + QStringLiteral(".try"))
    {
        Remove();
        m_isMade = QFile::copy(books, m_file)
            && QFile::copy(WriteAheadLog::NameFor(books), WriteAheadLog::NameFor(m_file));
    }
    ~TriedCopy() { Remove(); }
    TriedCopy(const TriedCopy&) = delete;
    TriedCopy& operator=(const TriedCopy&) = delete;

    bool IsMade() const { return m_isMade; }
    const QString& File() const { return m_file; }

private:
    void Remove() const
    {
        for (const QString& name :
            {m_file, WriteAheadLog::NameFor(m_file), WriteAheadLog::IndexNameFor(m_file)})
            QFile::remove(name);
    }

    QString m_file;
    bool m_isMade = false;
};

// Writes the first bytes of a file, and sees them on the disk.
bool WriteSalt(const QString& path, const QByteArray& salt)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.write(salt) == salt.size()
        && SyncToDisk(file);
}

QString InMarathi(const QDateTime& time)
{
    return time.toString(QStringLiteral("dd/MM/yyyy HH:mm"));
}

}

Opening::Opening(QString file, QString password, const OpeningPlan& plan)
    : m_file(std::move(file))
    , m_password(std::move(password))
    , m_plan(plan)
{
}

void Opening::Run()
{
    RequireReadable();
    RequireWritable();
    m_log = WriteAheadLog::Read(m_file, PageSize);
    m_first = FirstPage::OfFile(m_file, m_password);
    if (HasLoggedPage())
        m_logged = FirstPage::OfBytes(m_log.firstPage, m_log.databasePages, m_password);
    if (m_first.IsUnreadable() && HasLoggedPage() && m_logged.IsReadable())
        ReturnFirstSector();
    RequireRightPassword();
    if (HasLoggedPage() && !IsLogOfThisFile())
        PutForeignLogAside();
    RequirePages();
    if (m_log.isThere || m_plan.checksPages)
        RequireSoundPages();
    if (m_log.lostCommits > 0)
        KeepDamagedLog();
}

void Opening::RequireReadable() const
{
    const QFileInfo info(m_file);
    if (m_file.isEmpty() || !info.exists())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(u"डेटाबेसची फाइल सापडली नाही.",
                QStringLiteral("The database file \"%1\" was not found.").arg(m_file)));
    if (!info.isFile() || !info.isReadable())
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(u"डेटाबेसची फाइल वाचता येत नाही. फाइलची परवानगी तपासा.",
                QStringLiteral("The database file \"%1\" can't be read. Check its permissions.")
                    .arg(m_file)));
    if (info.size() == 0)
        ThrowBad(u"डेटाबेसची फाइल रिकामी आहे. शेवटचा बॅकअप परत आणा.",
            "The file \"%1\" is empty; it is not a database. Restore the last backup.", m_file);
}

// The owner's right counts, too: the system's administrator may write into a file that was made read-only.
void Opening::RequireWritable() const
{
    const QFileInfo info(m_file);
    if (!info.isWritable() || !info.permission(QFile::WriteOwner) || !QFileInfo(info.path()).isWritable())
        ThrowNotWritable(m_file);
}

bool Opening::IsLogOfThisFile() const
{
    if (!m_logged.IsReadable() || m_log.firstPage.left(SaltSize) != Salt())
        return false;
    return !m_first.IsReadable()
        || m_logged.mark.GoesOnFrom(
            m_first.mark.round, FileState::Of(m_file), FileState::Of(WriteAheadLog::NameFor(m_file)));
}

void Opening::PutForeignLogAside()
{
    const QString kept = DatedLog();
    if (!QFile::rename(WriteAheadLog::NameFor(m_file), kept))
        ThrowNotWritable(m_file);
    QFile::remove(WriteAheadLog::IndexNameFor(m_file));
    m_log = {};
    m_log.isThere = true;
    m_notes.append(Sentences(QStringLiteral("हिशेबाच्या फाइलशेजारी दुसऱ्या फाइलच्या नोंदी होत्या. त्या वापरल्या नाहीत; "
                                            "\"%1\" या नावाने बाजूला ठेवल्या आहेत.")
                                 .arg(QFileInfo(kept).fileName()),
        QStringLiteral("Beside the books lay the log of other books. It was not used; it is kept as \"%1\".")
            .arg(kept)));
}

// A power cut while the log was being folded can leave a torn first page. All of it stands in the log but for
// the sixteen bytes that the key is made of, which the engine takes from the file alone. Whether they are the
// right ones is tried on a copy: the file may as well be another society's.
void Opening::ReturnFirstSector()
{
    const QByteArray salt = m_log.firstPage.left(SaltSize);
    const TriedCopy copy(m_file);
    if (!copy.IsMade() || !WriteSalt(copy.File(), salt) || !DamagedTables(copy.File()).isEmpty())
        return;
    if (!WriteSalt(m_file, salt))
        ThrowNotWritable(m_file);
    m_first = m_logged;
    m_notes.append(
        Sentences(QStringLiteral("हिशेबाच्या फाइलचे पहिले पान बिघडले होते; ते नोंदींवरून दुरुस्त केले. काहीही गेले नाही."),
            QStringLiteral(
                "The first page of the books was torn; it was mended from the log. Nothing is lost.")));
}

void Opening::KeepDamagedLog()
{
    const QString kept = DatedLog();
    if (!QFile::copy(WriteAheadLog::NameFor(m_file), kept))
        ThrowNotWritable(m_file);
    const QDateTime since = QFileInfo(m_file).lastModified();
    m_notes.append(Sentences(QStringLiteral("नोंदींची फाइल बिघडली होती. %1 नंतरच्या सुमारे %2 नोंदी गेल्या असण्याची "
                                            "शक्यता आहे. त्या तपासा आणि नसतील त्या पुन्हा भरा.")
                                 .arg(InMarathi(since), QString::number(m_log.lostCommits)),
        QStringLiteral(
            "The log was damaged. About %1 entries made after %2 may be missing: look and key what is "
            "not there. The damaged log is kept as \"%3\".")
            .arg(QString::number(m_log.lostCommits), InMarathi(since), kept)));
}

void Opening::RequireRightPassword() const
{
    if (!m_password.isEmpty() && !m_first.IsUnreadable())
        return;
    // A torn second sector of the first page: the engine reads the page of the log in its place.
    if (!m_password.isEmpty() && HasLoggedPage() && m_logged.IsReadable()
        && m_log.firstPage.left(SaltSize) == Salt())
        return;
    if (QFileInfo(m_file).size() % PageSize != 0)
        ThrowBad(u"ही फाइल डेटाबेस नाही किंवा अपुरी आहे. शेवटचा बॅकअप परत आणा.",
            "The file \"%1\" is not a database, or it is cut short. Restore the last backup.", m_file);
    ThrowBad(u"पासवर्ड चुकीचा आहे किंवा ही फाइल डेटाबेस नाही. PWD.TXT तपासा.",
        "The password is wrong, or the file \"%1\" is not a database. Check PWD.TXT.", m_file);
}

void Opening::RequirePages() const
{
    const qint64 size = QFileInfo(m_file).size();
    const auto whole = static_cast<quint32>(size / PageSize);
    if (m_log.databasePages == 0) {
        if (size % PageSize != 0 || m_first.IsOfTooFewPages())
            ThrowCutShort(m_file);
        return;
    }
    for (quint32 page = whole + 1; page <= m_log.databasePages; ++page) {
        if (!m_log.pages.contains(page))
            ThrowCutShort(m_file);
    }
}

void Opening::RequireSoundPages()
{
    if (m_plan.checking)
        m_plan.checking();
    const QStringList damaged = DamagedTables(m_file);
    if (damaged.isEmpty())
        return;
    const QString tables = damaged.join(QStringLiteral(", "));
    const QString backup = m_plan.newestBackup;
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(backup.isEmpty()
                ? QStringLiteral("हिशेबाची फाइल बिघडली आहे (%1). शेवटचा बॅकअप परत आणा.").arg(tables)
                : QStringLiteral("हिशेबाची फाइल बिघडली आहे (%1). शेवटचा बॅकअप परत आणा: %2.").arg(tables, backup),
            QStringLiteral("The database file \"%1\" is damaged in the tables %2. Restore the last backup%3.")
                .arg(m_file, tables, backup.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(backup))));
}

QStringList Opening::DamagedTables(const QString& file) const
{
    return PageCheck::DamagedTables([&] {
        KeyedFile opened(file, m_password, KeyedFile::Way::Read);
        return opened.Code() == 0 ? opened.LetGo() : nullptr;
    });
}

QString Opening::DatedLog() const
{
    const QFileInfo file(m_file);
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    const QString name = file.path() + u'/' + file.completeBaseName() + u'-' + now;
    const QString ending = u'.' + file.suffix() + QStringLiteral("-wal");
    QString dated = name + ending;
    for (int n = 2; QFileInfo::exists(dated); ++n)
        dated = name + u'-' + QString::number(n) + ending;
    return dated;
}

QByteArray Opening::Salt() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.read(SaltSize) : QByteArray();
}
