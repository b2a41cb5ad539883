#pragma once

#include "platform/shell/FileSystem.h"

#include <QByteArray>

// The disks of this machine. Where there are no drive letters, a drive is a folder (see LocalPath), or a link
// to where a disk is mounted.
class MachineFileSystem final : public FileSystem {
public:
    bool CreateFolder(const QString& path) override;
    bool HasFolder(const QString& path) const override;
    QStringList Folders(const QString& path) const override;
    QStringList Files(const QString& path, const QString& pattern) const override;
    QStringList Drives() const override;
    DriveKind KindOfDrive(const QString& path) const override;

    // The kind of drive that a mounted file system is on, from its type (such as "ext4") and from whether its
    // disk is removable.
    static DriveKind KindOf(const QByteArray& fileSystemType, bool isRemovable);
};
