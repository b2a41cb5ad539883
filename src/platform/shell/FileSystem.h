#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Drives, folders and files by the paths of the system: "C:\Tarvel01\Vetrolan\Backup". A path without a drive
// is below AppFolder, "." and ".." are understood, '/' is taken for '\', and no path leads out of its drive.
class FileSystem {
public:
    enum class DriveKind { Unknown, Removable, Fixed, Network, Optical, Memory };

    // Looks at a finished copy, by its path on this machine, before it is put into its place. What it throws
    // leaves the place as it was.
    using Check = std::function<void(const QString& localCopy)>;

    virtual ~FileSystem() = default;

    // Copies a file over whatever file has the target's name: all of it is on the disk in its place, or the
    // place is as it was. The copy is for its owner alone. A source that isn't there, a folder that isn't
    // there, a disk that is full, and a copy of a file onto itself are run-time errors. So are books that
    // this process has open, on either side: their connection has to be closed first.
    virtual void CopyFile(const QString& from, const QString& to, const Check& check = {}) = 0;

    // Makes a folder in one that is there. Returns whether it is there now, made or found; false for a name
    // that the machine refuses.
    virtual bool CreateFolder(const QString& path) = 0;

    virtual bool HasFolder(const QString& path) const = 0;

    // The folders in a folder, by their names in the order of the alphabet; none if it isn't there. Hidden
    // ones are left out.
    virtual QStringList Folders(const QString& path) const = 0;

    // The files in a folder whose names fit a pattern such as "*.mdb", in any case of letters.
    virtual QStringList Files(const QString& path, const QString& pattern) const = 0;

    // The roots of the drives that are there: "C:\", "D:\".
    virtual QStringList Drives() const = 0;

    // What kind of drive a path lies on; Unknown if the drive isn't there.
    virtual DriveKind KindOfDrive(const QString& path) const = 0;

    // The path from its drive on, without "." and "..", with '\' between the parts and at the end only of a
    // drive's root: "c:/Milk/../Backup/" is "C:\Backup", "c:" is "C:\".
    static QString AbsolutePath(QStringView path);
};
