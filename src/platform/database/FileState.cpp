#include "platform/database/FileState.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QDateTime>
#include <QFileInfo>

#include <io.h>
#endif

#ifdef Q_OS_UNIX

namespace {

FileState StateOf(const struct stat& found)
{
    constexpr qint64 nanoseconds = 1000000000;
    return {found.st_dev, found.st_ino, found.st_size,
        found.st_mtim.tv_sec * nanoseconds + found.st_mtim.tv_nsec};
}

}

FileState FileState::Of(const QString& path)
{
    struct stat found { };
    return stat(QFile::encodeName(path).constData(), &found) == 0 ? StateOf(found) : FileState();
}

FileState FileState::Of(const QFile& file)
{
    struct stat found { };
    return fstat(file.handle(), &found) == 0 ? StateOf(found) : FileState();
}

bool SyncToDisk(const QFile& file)
{
    return fsync(file.handle()) == 0;
}

#else

FileState FileState::Of(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    constexpr qint64 nanoseconds = 1000000;
    return {0, 0, info.size(), info.lastModified().toMSecsSinceEpoch() * nanoseconds};
}

FileState FileState::Of(const QFile& file)
{
    return file.isOpen() ? Of(file.fileName()) : FileState();
}

bool SyncToDisk(const QFile& file)
{
    return _commit(file.handle()) == 0;
}

#endif
