#include "Society.h"

#include "Connection.h"
#include "DataSource.h"
#include "Delivered.h"
#include "Filling.h"
#include "PasswordFile.h"
#include "RunTimeError.h"
#include "SafeFiles.h"
#include "Shivaji01.h"
#include "SocietyRows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int InvalidCall = 5;
constexpr int FirstYear = 2000;
constexpr int LastYear = 2098; // a chart's name holds two digits of the year
constexpr qsizetype LongestName = 100;

QString WhyNameRefused(const QString& name)
{
    if (name.trimmed().isEmpty())
        return QStringLiteral("The society's name is empty.");
    if (name.size() > LongestName)
        return QStringLiteral("The society's name is longer than 100 characters.");
    if (std::any_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); }))
        return QStringLiteral("The society's name holds English letters; write it in Devanagari.");
    if (name.contains(u'\'') || Shivaji01::FromUnicode(name).contains(u'\''))
        return QStringLiteral(
            "The society's name holds an apostrophe, which would break the system's statements.");
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
    for (const QStringView ending : {u"", u"-wal", u"-shm", u"-journal"})
        QFile::remove(file % ending);
}

// Makes the whole database under a name of its own. It needs no journal: what isn't finished is thrown away.
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

bool HasJournal(const QString& database)
{
    return QFileInfo(database % QStringLiteral("-wal")).size() > 0;
}

// After a power cut the last writing may stand in the journal beside the database; opening and closing the
// database brings it in.
void FoldJournal(const QString& folder)
{
    const QString database = FileIn(folder, DatabaseFileName);
    if (!HasJournal(database))
        return;
    QFile passwordFile(FileIn(folder, PasswordFileName));
    if (!passwordFile.open(QIODevice::ReadOnly))
        return;
    const QString source = QStringLiteral("VetrolanSetupOld");
    DataSource::Register(source, database);
    try {
        Connection old;
        old.Open(QStringLiteral("dsn=") % source % QStringLiteral(";pwd=")
            % PasswordFile::Read(passwordFile.readAll()));
        old.RunScript(QStringLiteral("select count(*) from sqlite_master;"));
        old.Close();
    } catch (const RunTimeError&) {
        // A database that can't be opened any more is kept as it is, journal and all.
    }
}

// Name and ending of a file with the date between them; a number more where that is taken.
QString DatedName(const QString& folder, QStringView name, const QDateTime& now)
{
    const QFileInfo file(name.toString());
    const QString dated = file.completeBaseName() % u'-' % now.toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    QString free = FileIn(folder, QString(dated % u'.' % file.suffix()));
    for (int n = 2; QFileInfo::exists(free); ++n)
        free = FileIn(folder, QString(dated % u'-' % QString::number(n) % u'.' % file.suffix()));
    return free;
}

void KeepOldDatabase(const QString& folder, const QDateTime& now)
{
    const QString database = FileIn(folder, DatabaseFileName);
    FoldJournal(folder);
    const QString kept = DatedName(folder, DatabaseFileName, now);
    if (!HasJournal(database)) {
        SafeFiles::Keep(database, kept);
        return;
    }
    SafeFiles::MoveInto(database, kept);
    SafeFiles::MoveInto(database % QStringLiteral("-wal"), kept % QStringLiteral("-wal"));
    QFile::remove(database % QStringLiteral("-shm"));
}

void Make(const QString& folder, const SocietyPlan& plan, const Filling& filling)
{
    const QString refused = WhyRefused(plan);
    if (!refused.isEmpty())
        throw RunTimeError(InvalidCall, refused);
    const QString database = FileIn(folder, DatabaseFileName);
    const bool replaces = QFileInfo::exists(database);
    if (replaces && !plan.replace)
        throw RunTimeError(RunTimeError::FileAccess,
            QStringLiteral("There is a society already: ") % QDir::toNativeSeparators(database) % u'.');

    SafeFiles::MakeFolder(folder);
    const QString unfinished = database % QStringLiteral(".new");
    try {
        Build(unfinished, plan, filling);
        SafeFiles::MakeFolder(FileIn(folder, BackupFolderName));
        if (replaces)
            KeepOldDatabase(folder, plan.now);
        const QString passwordFile = FileIn(folder, PasswordFileName);
        if (QFileInfo::exists(passwordFile))
            SafeFiles::Keep(passwordFile, DatedName(folder, PasswordFileName, plan.now));
        SafeFiles::Write(passwordFile, PasswordFile::Written(plan.password));
        SafeFiles::MoveInto(unfinished, database);
    } catch (...) {
        RemoveDatabase(unfinished);
        throw;
    }
}

void CopyFile(const QString& from, const QString& to, QStringView name)
{
    if (!QFile::copy(FileIn(from, name), FileIn(to, name)))
        throw RunTimeError(
            RunTimeError::FileAccess, QStringLiteral("Can't write ") % FileIn(to, name) % u'.');
}

}

QString WhyRefused(const SocietyPlan& plan)
{
    const QString name = WhyNameRefused(plan.name);
    if (!name.isEmpty())
        return name;
    const QString year = WhyYearRefused(plan.year);
    return year.isEmpty() ? PasswordFile::WhyRefused(plan.password) : year;
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
    const QString key = plan.name % u'\n' % plan.year % u'\n' % plan.password % (plan.demo ? u"\ndemo" : u"");
    if (!made.contains(key)) {
        const QString model = models.filePath(QString::number(made.size()));
        MakeSociety(model, plan);
        made.insert(key, model);
    }
    SafeFiles::MakeFolder(FileIn(folder, BackupFolderName));
    CopyFile(made.value(key), folder, DatabaseFileName);
    CopyFile(made.value(key), folder, PasswordFileName);
}
