#include "platform/database/Opening.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/PageCheck.h"

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
    ThrowBad(u"हिशेबाची फाइल अपुरी आहे; तिचा काही भाग नाही. शेवटचा बॅकअप परत आणा.",
        "The database file \"%1\" is cut short: a part of it is missing. Restore the last backup.", file);
}

[[noreturn]] void ThrowNoRoom(const QString& file)
{
    ThrowBad(u"हिशेबाच्या फाइलचे पहिले पान बिघडले आहे. ते दुरुस्त करायला डिस्कवर जागा नाही. जागा करा आणि पुन्हा सुरू करा.",
        "The first page of \"%1\" is torn, and the disk has no room to mend it. Make room and start again.",
        file);
}

[[noreturn]] void ThrowUnreadable(const QString& file)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"हिशेबाची फाइल वाचता येत नाही. फाइलची परवानगी तपासा.",
            QStringLiteral("The database file \"%1\" can't be read. Check its permissions.").arg(file)));
}

[[noreturn]] void ThrowNotWritable(const QString& file)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"हिशेबाच्या फाइलमध्ये किंवा तिच्या फोल्डरमध्ये लिहिता येत नाही. परवानगी बदला आणि पुन्हा सुरू करा.",
            QStringLiteral("The database file \"%1\" or its folder can't be written. Change the permissions "
                           "and start again.")
                .arg(file)));
}

// A copy of the database and its log, to try a repair on; removed at the end.
class TriedCopy {
public:
    explicit TriedCopy(const QString& books) : m_file(NameFor(books))
    {
        Sweep(books);
        m_isMade = QFile::copy(books, m_file)
            && QFile::copy(WriteAheadLog::NameFor(books), WriteAheadLog::NameFor(m_file));
    }
    ~TriedCopy() { Remove(m_file); }
    TriedCopy(const TriedCopy&) = delete;
    TriedCopy& operator=(const TriedCopy&) = delete;

    // Removes a copy that was left behind when the program was killed.
    static void Sweep(const QString& books) { Remove(NameFor(books)); }

    bool IsMade() const { return m_isMade; }
    const QString& File() const { return m_file; }

private:
    static QString NameFor(const QString& books) { return books + QStringLiteral(".try"); }

    static void Remove(const QString& file)
    {
        for (const QString& name : {file, WriteAheadLog::NameFor(file), WriteAheadLog::IndexNameFor(file)})
            QFile::remove(name);
    }

    QString m_file;
    bool m_isMade = false;
};

// Writes the first bytes of a file, through to the disk.
bool WriteSalt(const QString& path, const QByteArray& salt)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.write(salt) == salt.size()
        && SyncToDisk(file);
}

}

Opening::Opening(QString file, QString password, const OpeningPlan& plan)
    : m_file(std::move(file))
    , m_password(std::move(password))
    , m_plan(plan)
{
}

// If a check fails after something was repaired, the error tells of the repairs, too.
void Opening::Run()
{
    try {
        LookAndMend();
    } catch (const RunTimeError& error) {
        if (m_notes.isEmpty())
            throw;
        const QString all = error.Happened() + QStringLiteral("\n\n") + m_notes.join(u'\n');
        throw RunTimeError(error.Number(), all);
    }
}

void Opening::LookAndMend()
{
    RequireReadable();
    RequireWritable();
    m_lastWritten = QFileInfo(m_file).lastModified();
    TriedCopy::Sweep(m_file);
    m_log = WriteAheadLog::Read(m_file, PageSize);
    m_first = FirstPage::OfFile(m_file, m_password);
    RequireLookedAt(m_first);
    if (HasLoggedPage()) {
        m_logged = FirstPage::OfBytes(m_log.firstPage, m_log.databasePages, m_password);
        RequireLookedAt(m_logged);
    }
    if (m_first.IsUnreadable() && HasLoggedPage() && m_logged.IsReadable())
        ReturnFirstSector();
    RequireRightPassword();
    if (m_log.databasePages > 0 && !IsLogOfThisFile())
        PutForeignLogAside();
    RequirePages();
    if (m_log.isThere || m_plan.checksPages)
        RequireSoundPages();
    if (m_log.lostCommits > 0)
        KeepDamagedLog();
}

LogRound Opening::Round() const
{
    if (m_log.databasePages == 0 || !HasLoggedPage())
        return {m_first.mark.round, m_first.mark.round, 0, false, false};
    const LogMark& mark = m_logged.mark;
    return {m_first.mark.round, mark.round, mark.base, true, LogMark::IsFolding(mark.base)};
}

void Opening::RequireReadable() const
{
    const QFileInfo info(m_file);
    if (m_file.isEmpty() || !info.exists())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(u"हिशेबाची फाइल सापडली नाही.",
                QStringLiteral("The database file \"%1\" was not found.").arg(m_file)));
    if (!info.isFile() || !info.isReadable())
        ThrowUnreadable(m_file);
    if (info.size() == 0)
        ThrowBad(u"हिशेबाची फाइल रिकामी आहे. शेवटचा बॅकअप परत आणा.",
            "The file \"%1\" is empty; it is not a database. Restore the last backup.", m_file);
}

// The permission of the owner is checked as well, since an administrator may write to a file even if it was
// made read-only. The log and its index are checked because the engine opens a log that it can't write
// without an error, and then fails at the first save.
void Opening::RequireWritable() const
{
    if (!QFileInfo(QFileInfo(m_file).path()).isWritable())
        ThrowNotWritable(m_file);
    for (const QString& name :
        {m_file, WriteAheadLog::NameFor(m_file), WriteAheadLog::IndexNameFor(m_file)}) {
        const QFileInfo info(name);
        if (info.exists() && (!info.isWritable() || !info.permission(QFile::WriteOwner)))
            ThrowNotWritable(name);
    }
}

// If a page couldn't be read because of the disk, it can't be said whether the password is right or whether
// the log belongs to the database. That is an error of its own.
void Opening::RequireLookedAt(const FirstPage& page) const
{
    if (!page.IsReadable() && !page.IsUnreadable() && !page.IsOfTooFewPages())
        DatabaseErrors::ThrowFailure(nullptr, page.code, {});
}

// A log without a first page has no marks; it was written by another program, such as the engine's shell. If
// the marks don't fit, a page that stands in the log and in the file still shows that a fold was interrupted;
// the mark of that fold may be lost with the damaged end of the log.
bool Opening::IsLogOfThisFile() const
{
    if (HasLoggedPage() && (!m_logged.IsReadable() || m_log.firstPage.left(SaltSize) != Salt()))
        return false;
    const FileState books = FileState::Of(m_file);
    const FileState log = FileState::Of(WriteAheadLog::NameFor(m_file));
    const bool fits = HasLoggedPage()
        ? !m_first.IsReadable() || m_logged.mark.GoesOnFrom(m_first.mark.round, books, log)
        : LogMark::WereThereBefore(books, log);
    return fits || m_log.IsPartlyFolded(m_file, PageSize);
}

void Opening::PutForeignLogAside()
{
    const QString kept = DatedLog();
    if (!QFile::rename(WriteAheadLog::NameFor(m_file), kept))
        ThrowNotWritable(m_file);
    QFile::remove(WriteAheadLog::IndexNameFor(m_file));
    m_log = {};
    m_log.isThere = true;
    m_notes.append(
        Sentences(QStringLiteral("या हिशेबाच्या फाइलशी न जुळणाऱ्या नोंदी तिच्याशेजारी होत्या. त्या यात घेतल्या नाहीत; "
                                 "\"%1\" या नावाने बाजूला ठेवल्या "
                                 "आहेत. बॅकअप परत आणला असेल तर हे बरोबर आहे; नसेल तर संगणक सांभाळणाऱ्याला दाखवा.")
                      .arg(QFileInfo(kept).fileName()),
            QStringLiteral(
                "Beside the books lay the log of other books. It was not used; it is kept as \"%1\". After "
                "a restored backup this is as it should be.")
                .arg(kept)));
}

// A power cut during a fold can leave the first page half written. The whole page is in the log, but the
// engine takes its first 16 bytes, the salt of the key, from the file only. So the salt is copied back from
// the log. This is tried on a copy first, since the file may be that of other books.
void Opening::ReturnFirstSector()
{
    const QByteArray salt = m_log.firstPage.left(SaltSize);
    const TriedCopy copy(m_file);
    if (!copy.IsMade() || !WriteSalt(copy.File(), salt))
        ThrowNoRoom(m_file);
    if (!DamagedTables(copy.File()).isEmpty())
        return;
    if (!WriteSalt(m_file, salt))
        ThrowNotWritable(m_file);
    m_notes.append(Sentences(u"हिशेबाच्या फाइलचे पहिले पान बिघडले होते; ते नोंदींवरून दुरुस्त केले.",
        QStringLiteral("The first page of the books was torn; it was mended from the log.")));
}

void Opening::KeepDamagedLog()
{
    const QString kept = DatedLog();
    const bool isKept = QFile::copy(WriteAheadLog::NameFor(m_file), kept);
    const QString number = QString::number(m_log.lostCommits);
    // A fold that was cut off has written into the file after the entries were made.
    const bool isSinceKnown = m_lastWritten <= QFileInfo(WriteAheadLog::NameFor(m_file)).lastModified();
    const QString since = m_lastWritten.toString(QStringLiteral("dd/MM/yyyy HH:mm"));
    m_notes.append(Sentences(
        QStringLiteral("शेवटच्या नोंदींची फाइल बिघडली होती. %1सुमारे %2 नोंदी गेल्या असण्याची शक्यता आहे. त्या तपासा "
                       "आणि नसतील त्या पुन्हा भरा.")
            .arg(isSinceKnown ? since + QStringLiteral(" नंतरच्या ") : QString(), number),
        QStringLiteral(
            "The log was damaged. About %1 entries%2 may be missing: look and key what is not there.%3")
            .arg(number, isSinceKnown ? QStringLiteral(" made after ") + since : QString(),
                isKept ? QStringLiteral(" The damaged log is kept as \"%1\".").arg(kept) : QString())));
}

void Opening::RequireRightPassword() const
{
    if (!m_password.isEmpty() && !m_first.IsUnreadable())
        return;
    // The first page is half written but has the right salt: the engine reads it from the log instead.
    if (!m_password.isEmpty() && HasLoggedPage() && m_logged.IsReadable()
        && m_log.firstPage.left(SaltSize) == Salt())
        return;
    if (QFileInfo(m_file).size() % PageSize != 0)
        ThrowBad(u"ही फाइल हिशेबाची नाही किंवा अपुरी आहे. शेवटचा बॅकअप परत आणा.",
            "The file \"%1\" is not a database, or it is cut short. Restore the last backup.", m_file);
    ThrowBad(u"पासवर्ड चुकीचा आहे किंवा ही फाइल हिशेबाची नाही. PWD.TXT तपासा.",
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
    const bool areNamed = damaged.first() != u"?";
    const QString tables = damaged.join(QStringLiteral(", "));
    const QString& backup = m_plan.newestBackup;
    const QString marathi = QStringLiteral("हिशेबाची फाइल बिघडली आहे")
        + (areNamed ? QStringLiteral(" (%1)").arg(tables) : QString())
        + QStringLiteral(". शेवटचा बॅकअप परत आणा")
        + (backup.isEmpty() ? QStringLiteral(".") : QStringLiteral(": %1").arg(backup));
    throw RunTimeError(RunTimeError::DatabaseFailure,
        Sentences(marathi,
            QStringLiteral("The database file \"%1\" is damaged%2. Restore the last backup%3.")
                .arg(m_file, areNamed ? QStringLiteral(" in the tables ") + tables : QString(),
                    backup.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(backup))));
}

QStringList Opening::DamagedTables(const QString& file) const
{
    return PageCheck::DamagedTables([&] {
        KeyedFile opened(file, m_password, KeyedFile::Way::Read);
        if (opened.Code() != 0)
            DatabaseErrors::ThrowFailure(opened.Handle(), opened.Code(), {});
        return opened.LetGo();
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
    QByteArray salt = file.open(QIODevice::ReadOnly) ? file.read(SaltSize) : QByteArray();
    if (salt.size() != SaltSize)
        ThrowUnreadable(m_file);
    return salt;
}
