#include "platform/shell/MachineFileSystem.h"

#include "platform/shell/AppFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <QStorageInfo>
#endif

namespace {

QString Local(const QString& path)
{
    return LocalPath(FileSystem::AbsolutePath(path));
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
