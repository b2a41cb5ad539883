#pragma once

#include "platform/shell/FileSystem.h"

#include <QMap>

// Drives, folders and files that lie nowhere but here. A test says what is there, and which kind each drive
// is.
class FakeFileSystem final : public FileSystem {
public:
    QMap<QString, DriveKind> Kinds{
        {QStringLiteral("C:\\"), DriveKind::Fixed}}; // of the drives, by their roots
    QStringList MadeFolders; // besides the roots of the drives
    QMap<QString, QByteArray> Contents; // of the files, by their paths

    bool CreateFolder(const QString& path) override;
    bool HasFolder(const QString& path) const override;
    QStringList Folders(const QString& path) const override;
    QStringList Files(const QString& path, const QString& pattern) const override;
    QStringList Drives() const override { return Kinds.keys(); }
    DriveKind KindOfDrive(const QString& path) const override;
};
