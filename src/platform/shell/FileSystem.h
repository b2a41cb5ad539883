#pragma once

#include <QString>
#include <QStringList>

// Drives, folders and files, named by Windows paths on every machine: "C:\Tarvel01\Vetrolan\Backup". A path
// without a drive is relative to AppFolder. "." and ".." are resolved but never lead out of the drive, and
// '/' may be written for '\'.
class FileSystem {
public:
    enum class DriveKind { Unknown, Removable, Fixed, Network, Optical, Memory };

    virtual ~FileSystem() = default;

    // Makes a folder; its parent must exist. Returns whether the folder exists afterwards: false if the
    // machine refuses the name.
    virtual bool CreateFolder(const QString& path) = 0;

    virtual bool HasFolder(const QString& path) const = 0;

    // The names of the folders in a folder, sorted, without hidden ones; empty if the folder doesn't exist.
    virtual QStringList Folders(const QString& path) const = 0;

    // The names of the files in a folder that match a pattern such as "*.mdb", ignoring upper and lower case.
    virtual QStringList Files(const QString& path, const QString& pattern) const = 0;

    // The roots of the drives that exist: "C:\", "D:\".
    virtual QStringList Drives() const = 0;

    // The kind of drive that a path is on; Unknown if the drive doesn't exist.
    virtual DriveKind KindOfDrive(const QString& path) const = 0;

    // The full path with its drive, without "." and "..". Only the root of a drive ends with '\':
    // "c:/Milk/../Backup/" is "C:\Backup", "c:" is "C:\".
    static QString AbsolutePath(QStringView path);
};
