#pragma once

#include <QString>

#include <system_error>

// The changes of a disk that safe writing is made of, one a call; what can't be done is told by its code.
// Tests put a disk that fails in the place of the real one.
class Disk {
public:
    Disk() = default;
    virtual ~Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    // What was written to a file, or the names in a folder, are on disk when this returns.
    virtual std::error_code Sync(const QString& path);

    // Gives a file a second name, which must be free.
    virtual std::error_code Link(const QString& file, const QString& name);

    // Copies a file to a free name.
    virtual std::error_code Copy(const QString& file, const QString& name);

    // Renames a file; one that has the name already is gone, at once.
    virtual std::error_code Move(const QString& from, const QString& to);

    // Removes a file; one that isn't there is no failure.
    virtual std::error_code Remove(const QString& file);

    // The disk in use.
    static Disk& Current();

    // Uses another disk from now on; the real one again for a null pointer.
    static void Use(Disk* disk);
};
