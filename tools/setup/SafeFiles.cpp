#include "SafeFiles.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

std::filesystem::path PathOf(const QString& file)
{
    return std::filesystem::path(file.toStdU16String());
}

// A file or a folder; what can't be opened can't be hurried either.
void SyncToDisk(const QString& path)
{
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
#else
    Q_UNUSED(path)
#endif
}

[[noreturn]] void Fail(const QString& what, const QString& file, const QString& why)
{
    throw RunTimeError(
        RunTimeError::FileAccess, what % u' ' % QDir::toNativeSeparators(file) % QStringLiteral(": ") % why);
}

}

void SafeFiles::MakeFolder(const QString& folder)
{
    if (!QDir().mkpath(folder))
        Fail(QStringLiteral("Can't make the folder"), folder, QStringLiteral("it isn't allowed here."));
}

void SafeFiles::Write(const QString& file, const QByteArray& content)
{
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size() || !out.commit())
        Fail(QStringLiteral("Can't write"), file, out.errorString());
    SyncFolder(QFileInfo(file).path());
}

void SafeFiles::MoveInto(const QString& from, const QString& to)
{
    SyncToDisk(from);
    std::error_code failed;
    std::filesystem::rename(PathOf(from), PathOf(to), failed);
    if (failed)
        Fail(QStringLiteral("Can't write"), to, QString::fromStdString(failed.message()));
    SyncFolder(QFileInfo(to).path());
}

void SafeFiles::Keep(const QString& file, const QString& name)
{
    std::error_code failed;
    std::filesystem::create_hard_link(PathOf(file), PathOf(name), failed);
    if (failed && !QFile::rename(file, name))
        Fail(QStringLiteral("Can't keep"), file, QString::fromStdString(failed.message()));
    SyncFolder(QFileInfo(file).path());
}

void SafeFiles::SyncFolder(const QString& folder)
{
    SyncToDisk(folder);
}
