#include "platform/shell/MachineFileSystem.h"

#include "platform/database/BooksOnDisk.h"
#include "platform/database/FileState.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <QStorageInfo>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

QString Local(const QString& path)
{
    return LocalPath(FileSystem::AbsolutePath(path));
}

[[noreturn]] void ThrowNotCopied(const QString& file, const QString& why)
{
    throw RunTimeError(RunTimeError::FileAccess,
        Sentences(u"फाइलची प्रत करता आली नाही. डिस्कवर जागा आहे का ते पाहा.",
            QStringLiteral("%1 could not be copied: %2").arg(QDir::toNativeSeparators(file), why)));
}

// While the database engine has a file open, nobody else may open it: closing it would drop the engine's
// locks.
void RequireClosed(const QString& file)
{
    if (BooksOnDisk::AreReachedBy(file))
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(u"हिशेबाची वही उघडी आहे; तिची प्रत करता येत नाही.",
                QStringLiteral("%1 belongs to books that are open.").arg(QDir::toNativeSeparators(file))));
}

// Whether both names lead to the same file.
bool IsOneFile(const QString& first, const QString& second)
{
    const QString canonical = QFileInfo(first).canonicalFilePath();
    return canonical == QFileInfo(second).canonicalFilePath() && !canonical.isEmpty();
}

void CopyBytes(QFile& source, QFile& target)
{
    constexpr qint64 pieceSize = 1 << 20;
    while (!source.atEnd()) {
        const QByteArray piece = source.read(pieceSize);
        if (piece.isEmpty())
            ThrowNotCopied(source.fileName(), source.errorString());
        if (target.write(piece) != piece.size())
            ThrowNotCopied(source.fileName(), target.errorString());
    }
    if (!target.flush() || !SyncToDisk(target))
        ThrowNotCopied(source.fileName(), target.errorString());
}

// Writes the names in a folder through to the disk. File systems that can't do this are left as they are.
void SyncFolder([[maybe_unused]] const QString& folder)
{
#ifndef Q_OS_WIN
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
#endif
}

#ifndef Q_OS_WIN
// Whether the disk of a device such as "/dev/sdb1" is removable. Linux lists a partition below its disk.
bool IsRemovable(const QByteArray& device)
{
    const QString name = QFileInfo(QFile::decodeName(device)).canonicalFilePath().section(u'/', -1);
    const QString folder = QFileInfo(QStringLiteral("/sys/class/block/") + name).canonicalFilePath();
    if (name.isEmpty() || folder.isEmpty())
        return false;
    for (const QString& says : {QStringLiteral("/removable"), QStringLiteral("/../removable")}) {
        QFile file(folder + says);
        if (file.open(QIODevice::ReadOnly))
            return file.readAll().trimmed() == "1";
    }
    return false;
}
#endif

}

void MachineFileSystem::CopyFile(const QString& from, const QString& to, const Check& check)
{
    const QString source = Local(from);
    const QString target = Local(to);
    RequireClosed(source);
    RequireClosed(target);
    if (!QFileInfo(source).isFile())
        throw RunTimeError(RunTimeError::FileNotFound,
            Sentences(u"फाइल सापडली नाही.",
                QStringLiteral("%1 is not there.").arg(QDir::toNativeSeparators(source))));
    if (IsOneFile(source, target))
        ThrowNotCopied(source, QStringLiteral("it is its own target."));

    QFile reading(source);
    if (!reading.open(QIODevice::ReadOnly))
        ThrowNotCopied(source, reading.errorString());
    QFile copy(target + QStringLiteral(".part")); // overwrites one that a power cut left behind
    auto leavings = qScopeGuard([&copy] {
        copy.close();
        QFile::remove(copy.fileName()); // copy.remove() would give up if closing fails
    });
    if (!copy.open(QIODevice::WriteOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        ThrowNotCopied(source, copy.errorString());
    CopyBytes(reading, copy);
    copy.close();
    if (check)
        check(copy.fileName());

    std::error_code failure;
    std::filesystem::rename(
        QFileInfo(copy.fileName()).filesystemFilePath(), QFileInfo(target).filesystemFilePath(), failure);
    if (failure)
        ThrowNotCopied(source, QString::fromLocal8Bit(failure.message().c_str()));
    leavings.dismiss();
    SyncFolder(QFileInfo(target).path());
}

bool MachineFileSystem::CreateFolder(const QString& path)
{
    const QString folder = Local(path);
    return QFileInfo(folder).isDir() || QDir().mkdir(folder);
}

bool MachineFileSystem::HasFolder(const QString& path) const
{
    return QFileInfo(Local(path)).isDir();
}

QStringList MachineFileSystem::Folders(const QString& path) const
{
    return QDir(Local(path)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

QStringList MachineFileSystem::Files(const QString& path, const QString& pattern) const
{
    return QDir(Local(path)).entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

QStringList MachineFileSystem::Drives() const
{
    QStringList drives;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const QString root = QString(QChar(letter)) + QStringLiteral(":\\");
        if (HasFolder(root))
            drives.append(root);
    }
    return drives;
}

FileSystem::DriveKind MachineFileSystem::KindOf(const QByteArray& fileSystemType, bool isRemovable)
{
    const auto isOneOf = [&](std::initializer_list<const char*> types) {
        return std::any_of(
            types.begin(), types.end(), [&](const char* type) { return fileSystemType == type; });
    };
    if (isOneOf({"nfs", "nfs4", "cifs", "smb3", "smbfs", "fuse.sshfs", "9p", "virtiofs", "ceph", "afs"}))
        return DriveKind::Network;
    if (isOneOf({"tmpfs", "ramfs"}))
        return DriveKind::Memory;
    if (isOneOf({"iso9660", "udf"}))
        return DriveKind::Optical;
    return isRemovable ? DriveKind::Removable : DriveKind::Fixed;
}

FileSystem::DriveKind MachineFileSystem::KindOfDrive(const QString& path) const
{
    const QString root = AbsolutePath(path).left(3);
    if (!HasFolder(root))
        return DriveKind::Unknown;
#ifdef Q_OS_WIN
    switch (GetDriveTypeW(reinterpret_cast<LPCWSTR>(root.utf16()))) {
    case DRIVE_REMOVABLE:
        return DriveKind::Removable;
    case DRIVE_FIXED:
        return DriveKind::Fixed;
    case DRIVE_REMOTE:
        return DriveKind::Network;
    case DRIVE_CDROM:
        return DriveKind::Optical;
    case DRIVE_RAMDISK:
        return DriveKind::Memory;
    default:
        return DriveKind::Unknown;
    }
#else
    // A disk may be mounted on a folder inside the drive.
    QString folder = Local(path);
    while (!QFileInfo::exists(folder))
        folder = QFileInfo(folder).path();
    const QStorageInfo storage(folder);
    return storage.isValid() ? KindOf(storage.fileSystemType(), IsRemovable(storage.device()))
                             : DriveKind::Unknown;
#endif
}
