#include "tools/setup/SafeFiles.h"

#include "platform/database/Disk.h"
#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

[[noreturn]] void Fail(const QString& what, const QString& file, const QString& why)
{
    throw RunTimeError(
        RunTimeError::FileAccess, what % u' ' % QDir::toNativeSeparators(file) % QStringLiteral(": ") % why);
}

void Require(const std::error_code& failed, const QString& what, const QString& file)
{
    if (failed)
        Fail(what, file, QString::fromStdString(failed.message()) % u'.');
}

QString FolderOf(const QString& path)
{
    return QFileInfo(QDir::cleanPath(QFileInfo(path).absoluteFilePath())).path();
}

// The missing folders of a path, the lowest first.
QStringList MissingFolders(const QString& folder)
{
    QStringList missing;
    QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    while (!QFileInfo::exists(path) && !QDir(path).isRoot()) {
        missing.append(path);
        path = FolderOf(path);
    }
    return missing;
}

}

void SafeFiles::MakeFolder(const QString& folder)
{
    const QStringList missing = MissingFolders(folder);
    if (!QDir().mkpath(folder))
        Fail(QStringLiteral("Can't make the folder"), folder, QStringLiteral("it isn't allowed here."));
    for (const QString& made : missing)
        SyncFolder(FolderOf(made));
}

void SafeFiles::Write(const QString& file, const QByteArray& content)
{
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size() || !out.flush())
        Fail(QStringLiteral("Can't write"), file, out.errorString());
    out.close();
    Sync(file);
    SyncFolder(FolderOf(file));
}

void SafeFiles::Sync(const QString& file)
{
    Require(Disk::Current().Sync(file), QStringLiteral("Can't bring to the disk"), file);
}

void SafeFiles::MoveInto(const QString& from, const QString& to)
{
    Require(Disk::Current().Move(from, to), QStringLiteral("Can't write"), to);
    SyncFolder(FolderOf(to));
}

void SafeFiles::Keep(const QString& file, const QString& name)
{
    if (Disk::Current().Link(file, name)) { // some file systems have no hard links
        Require(Disk::Current().Copy(file, name), QStringLiteral("Can't keep"), file);
        Sync(name);
    }
    SyncFolder(FolderOf(name));
}

void SafeFiles::Remove(const QString& file)
{
    Require(Disk::Current().Remove(file), QStringLiteral("Can't remove"), file);
}

void SafeFiles::SyncFolder(const QString& folder)
{
    Require(Disk::Current().Sync(folder), QStringLiteral("Can't bring to the disk"), folder);
}
