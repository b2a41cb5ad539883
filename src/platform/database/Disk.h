#pragma once

#include <QByteArray>
#include <QString>

#include <system_error>

class QFile;

// The changes to a disk that safe writing needs. Each returns an error code. Tests replace it by a disk that
// fails.
class Disk {
public:
    Disk() = default;
    virtual ~Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    // Writes the next bytes of a file that is open without a buffer.
    virtual std::error_code Write(QFile& file, const QByteArray& bytes);

    // When this returns, the content of a file, or the names in a folder, are on the disk.
    virtual std::error_code Sync(const QString& path);

    // Gives a file a second name, which must not exist yet.
    virtual std::error_code Link(const QString& file, const QString& name);

    // Copies a file to a name that must not exist yet.
    virtual std::error_code Copy(const QString& file, const QString& name);

    // Renames a file; an existing file of that name is replaced in the same step.
    virtual std::error_code Move(const QString& from, const QString& to);

    // Removes a file; it is no failure if there is none.
    virtual std::error_code Remove(const QString& file);

    // The disk in use.
    static Disk& Current();

    // Uses another disk from now on; a null pointer restores the real one.
    static void Use(Disk* disk);
};
