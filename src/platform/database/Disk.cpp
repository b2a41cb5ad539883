#include "platform/database/Disk.h"

#include "platform/database/FileState.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

Disk* replacement = nullptr;

std::filesystem::path PathOf(const QString& file)
{
    return std::filesystem::path(file.toStdU16String());
}

#ifdef Q_OS_UNIX
std::error_code LastFailure()
{
    return {errno, std::generic_category()};
}

// Some network disks can't sync a folder; they write its names in order by themselves.
bool IsFolderThatNeedsNone(int handle, const std::error_code& failed)
{
    struct stat found { };
    return failed == std::errc::invalid_argument && ::fstat(handle, &found) == 0 && S_ISDIR(found.st_mode);
}
#endif

}

std::error_code Disk::Write(QFile& file, const QByteArray& bytes)
{
    errno = 0;
    if (file.write(bytes) == bytes.size())
        return {};
    return {errno == 0 ? EIO : errno, std::generic_category()};
}

std::error_code Disk::Sync(const QString& path)
{
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return LastFailure();
    std::error_code failed = ::fsync(handle) == 0 ? std::error_code() : LastFailure();
    if (IsFolderThatNeedsNone(handle, failed))
        failed.clear();
    ::close(handle);
    return failed;
#else
    if (QFileInfo(path).isDir()) // its names are written in order
        return {};
    QFile file(path);
    const bool synced = file.open(QIODevice::ReadWrite) && SyncToDisk(file);
    return synced ? std::error_code() : std::make_error_code(std::errc::io_error);
#endif
}

std::error_code Disk::Link(const QString& file, const QString& name)
{
    std::error_code failed;
    std::filesystem::create_hard_link(PathOf(file), PathOf(name), failed);
    return failed;
}

std::error_code Disk::Copy(const QString& file, const QString& name)
{
    std::error_code failed;
    std::filesystem::copy_file(PathOf(file), PathOf(name), failed);
    return failed;
}

std::error_code Disk::Move(const QString& from, const QString& to)
{
    std::error_code failed;
    std::filesystem::rename(PathOf(from), PathOf(to), failed);
    return failed;
}

std::error_code Disk::Remove(const QString& file)
{
    std::error_code failed;
    std::filesystem::remove(PathOf(file), failed);
    return failed;
}

Disk& Disk::Current()
{
    static Disk real;
    return replacement ? *replacement : real;
}

void Disk::Use(Disk* disk)
{
    replacement = disk;
}
