#pragma once

#include "platform/shell/FileSystem.h"

#include <QByteArray>

// The disks of this machine. Off Windows a drive is the folder that LocalPath makes of it, which may be a
// link to where a disk is mounted.
class MachineFileSystem final : public FileSystem {
public:
    void CopyFile(const QString& from, const QString& to, const Check& check = {}) override;
    bool CreateFolder(const QString& path) override;
    bool HasFolder(const QString& path) const override;
    QStringList Folders(const QString& path) const override;
    QStringList Files(const QString& path, const QString& pattern) const override;
    QStringList Drives() const override;
    DriveKind KindOfDrive(const QString& path) const override;

    // What a mounted file system says of its drive, by its type ("ext4") and by whether its disk says that it
    // can be taken out.
    static DriveKind KindOf(const QByteArray& fileSystemType, bool isRemovable);
};
