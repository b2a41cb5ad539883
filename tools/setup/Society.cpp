#include "tools/setup/Society.h"

#include "delivered/Delivered.h"
#include "platform/database/CheckedNote.h"
#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/text/PasswordItems.h"
#include "platform/text/RunTimeError.h"
#include "platform/text/Shivaji01.h"
#include "tools/setup/Filling.h"
#include "tools/setup/PasswordFile.h"
#include "tools/setup/SafeFiles.h"
#include "tools/setup/SocietyRows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <optional>

namespace {

constexpr int InvalidCall = 5;
constexpr int FirstYear = 2000;
constexpr int LastYear = 2098; // the name of a chart has only two digits of the year
constexpr qsizetype LongestName = 100;

// The files that the database engine keeps beside a database. The index of the log holds no data of its own.
constexpr QStringView Log = u"-wal";
constexpr QStringView LogIndex = u"-shm";
constexpr QStringView RollbackJournal = u"-journal";

// `whose` is "society" or "federation".
QString WhyNameRefused(const QString& whose, const QString& name)
{
    const auto because = [&](const char* why) {
        return QStringLiteral("The %1's name %2.").arg(whose, QString::fromLatin1(why));
    };
    if (name.trimmed().isEmpty())
        return because("is empty");
    if (name.size() > LongestName)
        return because("is longer than 100 characters");
    if (std::any_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); }))
        return because("holds English letters; write it in Devanagari");
    if (name.contains(u'\'') || Shivaji01::FromUnicode(name).contains(u'\''))
        return because("holds an apostrophe, which would break the system's statements");
    return {};
}

QString WhyYearRefused(const QString& year)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{4}-[0-9]{4}$"));
    if (!form.match(year).hasMatch())
        return QStringLiteral("The accounting year isn't of the form 2026-2027.");
    const int first = year.left(4).toInt();
    if (year.right(4).toInt() != first + 1)
        return QStringLiteral("The accounting year must end in the year after it begins, as in 2026-2027.");
    if (first < FirstYear || first > LastYear)
        return QStringLiteral("The accounting year must begin between 2000 and 2098.");
    return {};
}

QString FileIn(const QString& folder, QStringView name)
{
    return QDir(folder).filePath(name.toString());
}

void RemoveDatabase(const QString& file)
{
    for (const QStringView ending : {QStringView(u""), Log, LogIndex, RollbackJournal})
        QFile::remove(file % ending);
}

// Makes the whole database under a temporary name. It needs no journal, since an unfinished one is thrown
// away.
void Build(const QString& file, const SocietyPlan& plan, const Filling& filling)
{
    RemoveDatabase(file);
    Connection connection;
    connection.Create(file, plan.password);
    connection.RunScript(QStringLiteral("pragma journal_mode=off; pragma synchronous=off;"
                                        "pragma cache_size=-65536; begin immediate;")
        % DeliveredScript(plan) % filling.rows % Delivered::Indexes() % filling.closing
        % QStringLiteral("commit; pragma journal_mode=wal;"));
    connection.Close();
}

bool IsFilled(const QString& file)
{
    return QFileInfo(file).size() > 0;
}

// The password of the society in a folder; no value if its file holds none.
std::optional<QString> OldPassword(const QString& folder)
{
    QFile file(FileIn(folder, PasswordFileName));
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeError::FileAccess,
            QStringLiteral("Can't read ") % QDir::toNativeSeparators(file.fileName()) % QStringLiteral(": ")
                % file.errorString() % u'.');
    try {
        return PasswordOfFile(file);
    } catch (const RunTimeError&) {
        return {};
    }
}

// Whether the old database can be opened. If not, or if its password is lost, it is kept as it is.
bool Opens(Connection& old, const QString& database, const QString& password)
{
    const QString source = QStringLiteral("VetrolanSetupOld");
    DataSource::Register(source, database);
    try {
        old.Open(QStringLiteral("dsn=") % source % QStringLiteral(";pwd=") % password);
    } catch (const RunTimeError& error) {
        if (error.Number() != RunTimeError::DatabaseFailure)
            throw;
        return false;
    }
    return true;
}

// Puts a date before the ending of a name: Morvelta-2026-04-01-101530.mdb.
QString Dated(QStringView name, const QString& date)
{
    const QFileInfo file(name.toString());
    return file.completeBaseName() % u'-' % date % u'.' % file.suffix();
}

// A date for the names of older files, with a number added if one of the names exists. `namesUnder` returns
// the names for a date.
QString FreeDate(const QDateTime& now, const std::function<QStringList(const QString&)>& namesUnder)
{
    const auto isFree = [&](const QString& date) {
        const QStringList names = namesUnder(date);
        return std::none_of(
            names.begin(), names.end(), [](const QString& name) { return QFileInfo::exists(name); });
    };
    const QString second = now.toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    QString date = second;
    for (int n = 2; !isFree(date); ++n)
        date = second % u'-' % QString::number(n);
    return date;
}

// The date for the names of all files of the old society.
QString FreeDateOfSociety(const QString& folder, const QDateTime& now)
{
    return FreeDate(now, [&](const QString& date) {
        const QString database = FileIn(folder, Dated(DatabaseFileName, date));
        return QStringList{database, database % Log, database % RollbackJournal,
            FileIn(folder, Dated(PasswordFileName, date))};
    });
}

// Moves an older society to dated names: first copies of its log and its password, and the database last, in
// a single rename. So after a power cut there is either the old society as it was, or all of it under one
// date. A log without a database is kept as well; left there, it would be read into the new database.
void KeepOld(const QString& folder, const QDateTime& now)
{
    const QString database = FileIn(folder, DatabaseFileName);
    const QString password = FileIn(folder, PasswordFileName);
    const QString date = FreeDateOfSociety(folder, now);
    const QString kept = FileIn(folder, Dated(DatabaseFileName, date));
    for (const QStringView ending : {Log, RollbackJournal}) {
        if (IsFilled(database % ending))
            SafeFiles::Keep(database % ending, kept % ending);
    }
    if (QFileInfo::exists(password))
        SafeFiles::Keep(password, FileIn(folder, Dated(PasswordFileName, date)));
    if (QFileInfo::exists(database))
        SafeFiles::MoveInto(database, kept);
    for (const QStringView ending : {Log, RollbackJournal, LogIndex})
        SafeFiles::Remove(database % ending);
    SafeFiles::SyncFolder(folder);
}

// The files of an unfinished society, under names that nobody reads. The destructor removes what is left of
// them.
class Unfinished {
public:
    explicit Unfinished(const QString& folder)
        : m_database(FileIn(folder, DatabaseFileName) % QStringLiteral(".new"))
        , m_password(FileIn(folder, PasswordFileName) % QStringLiteral(".new"))
    {
    }
    ~Unfinished()
    {
        RemoveDatabase(m_database);
        QFile::remove(m_password);
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    const QString& Database() const { return m_database; }
    const QString& Password() const { return m_password; }

private:
    QString m_database;
    QString m_password;
};

// Puts the files of a finished society in their places, the database last: without it nothing can be opened.
// So a power cut never leaves a database beside the password or log of another one, and making the society
// again is all that is needed.
void PutInPlace(const Unfinished& made, const QString& folder, const QDateTime& now)
{
    const QString database = FileIn(folder, DatabaseFileName);
    FoldLog(folder);
    const bool replaces = QFileInfo::exists(database);
    try {
        KeepOld(folder, now);
        SafeFiles::MoveInto(made.Password(), FileIn(folder, PasswordFileName));
        SafeFiles::MoveInto(made.Database(), database);
    } catch (const RunTimeError& error) {
        if (!replaces || QFileInfo::exists(database))
            throw;
        throw RunTimeError(error.Number(),
            error.Happened()
                % QStringLiteral(" The old society is kept under a dated name; make the new one again."));
    }
}

bool Holds(const QString& file, const QByteArray& content)
{
    QFile existing(file);
    return existing.open(QIODevice::ReadOnly) && existing.readAll() == content;
}

// An unfinished file. The destructor removes it.
struct UnfinishedFile {
    QString name;
    ~UnfinishedFile() { QFile::remove(name); }
};

// A template that the society has changed is its own work and is kept.
void PutTemplate(const QString& folder, const Delivered::File& delivered, const QDateTime& now)
{
    const QString file = FileIn(folder, delivered.name);
    if (Holds(file, delivered.content))
        return;
    const QString made = file % QStringLiteral(".new");
    const UnfinishedFile leftover{made};
    SafeFiles::Write(made, delivered.content);
    if (QFileInfo::exists(file)) {
        const auto kept = [&](const QString& date) { return FileIn(folder, Dated(delivered.name, date)); };
        const QString date = FreeDate(now, [&](const QString& day) { return QStringList{kept(day)}; });
        SafeFiles::Keep(file, kept(date));
    }
    SafeFiles::MoveInto(made, file);
}

void Make(const QString& folder, const SocietyPlan& plan, const Filling& filling)
{
    const QString refused = WhyRefused(plan);
    if (!refused.isEmpty())
        throw RunTimeError(InvalidCall, refused);
    const QString database = FileIn(folder, DatabaseFileName);
    if (QFileInfo::exists(database) && !plan.replace)
        throw RunTimeError(RunTimeError::FileAccess,
            QStringLiteral("There is a society already: ") % QDir::toNativeSeparators(database) % u'.');

    WriteTemplates(folder, plan.now);
    const Unfinished made(folder);
    Build(made.Database(), plan, filling);
    SafeFiles::Sync(made.Database());
    SafeFiles::Write(made.Password(), PasswordFile::Written(plan.password));
    SafeFiles::MakeFolder(FileIn(folder, BackupFolderName));
    PutInPlace(made, folder, plan.now);
    CheckedNote::Write(folder, plan.now.date());
}

void CopyFile(const QString& from, const QString& to, QStringView name)
{
    if (!QFile::copy(FileIn(from, name), FileIn(to, name)))
        throw RunTimeError(
            RunTimeError::FileAccess, QStringLiteral("Can't write ") % FileIn(to, name) % u'.');
}

}

// After a power cut the last changes may be in the log beside the database; they are written into it, so that
// one file is kept.
bool FoldLog(const QString& folder)
{
    const QString database = FileIn(folder, DatabaseFileName);
    if (!QFileInfo::exists(database))
        return false;
    if (!IsFilled(database % Log))
        return true;
    const std::optional<QString> password = OldPassword(folder);
    Connection old;
    if (!password || !Opens(old, database, *password))
        return false;
    old.RunScript(QStringLiteral("pragma wal_checkpoint(truncate);"));
    old.Close();
    return true;
}

QString WhyRefused(const SocietyPlan& plan)
{
    QString name = WhyNameRefused(QStringLiteral("society"), plan.name);
    if (name.isEmpty() && !plan.federation.isEmpty())
        name = WhyNameRefused(QStringLiteral("federation"), plan.federation);
    if (!name.isEmpty())
        return name;
    const QString year = WhyYearRefused(plan.year);
    return year.isEmpty() ? PasswordFile::WhyRefused(plan.password) : year;
}

void WriteTemplates(const QString& folder, const QDateTime& now)
{
    SafeFiles::MakeFolder(folder);
    for (const Delivered::File& file : Delivered::Templates())
        PutTemplate(folder, file, now);
}

void WriteTemplate(const QString& folder, const QString& name, const QDateTime& now)
{
    const std::vector<Delivered::File>& all = Delivered::Templates();
    const auto file =
        std::find_if(all.begin(), all.end(), [&](const Delivered::File& each) { return each.name == name; });
    if (file == all.end())
        throw RunTimeError(InvalidCall, QStringLiteral("There is no template ") % name % u'.');
    SafeFiles::MakeFolder(folder);
    PutTemplate(folder, *file, now);
}

void MakeSociety(const QString& folder, const SocietyPlan& plan)
{
    Make(folder, plan, plan.demo && WhyRefused(plan).isEmpty() ? DemoFilling(plan) : Filling{});
}

void MakeLargeSociety(const QString& folder, const SocietyPlan& plan, int members, int days)
{
    Make(folder, plan, WhyRefused(plan).isEmpty() ? LargeFilling(plan, members, days) : Filling{});
}

void CopySociety(const QString& folder, const SocietyPlan& plan)
{
    static QTemporaryDir models;
    static QHash<QString, QString> made;
    const QString key = plan.name % u'\n' % plan.year % u'\n' % plan.password % u'\n' % plan.federation
        % (plan.demo ? u"\ndemo" : u"");
    if (!made.contains(key)) {
        const QString model = models.filePath(QString::number(made.size()));
        MakeSociety(model, plan);
        made.insert(key, model);
    }
    SafeFiles::MakeFolder(FileIn(folder, BackupFolderName));
    CopyFile(made.value(key), folder, DatabaseFileName);
    CopyFile(made.value(key), folder, PasswordFileName);
    CheckedNote::Write(folder, plan.now.date());
    for (const Delivered::File& file : Delivered::Templates())
        CopyFile(made.value(key), folder, file.name);
}
