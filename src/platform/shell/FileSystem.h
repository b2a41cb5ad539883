#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Drives, folders and files, named by Windows paths on every machine: "C:\Tarvel01\Vetrolan\Backup". A path
// without a drive is relative to AppFolder. "." and ".." are resolved but never lead out of the drive, and
// '/' may be written for '\'.
class FileSystem {
public:
    enum class DriveKind { Unknown, Removable, Fixed, Network, Optical, Memory };

    // Checks a finished copy, given by its path on this machine, before it replaces the target. If it throws,
    // the target stays as it was.
    using Check = std::function<void(const QString& localCopy)>;

    virtual ~FileSystem() = default;

    // Copies a file and replaces the target, if there is one. Afterwards either the whole copy is on the
    // disk, or the target is as it was. Only the owner may read the copy. It is a RunTimeError if the source
    // or the target's folder doesn't exist, the disk is full, both paths name the same file, or either of
    // them is a database that this process has open: its connection must be closed first.
    virtual void CopyFile(const QString& from, const QString& to, const Check& check = {}) = 0;

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
