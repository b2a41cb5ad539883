#pragma once

#include <functional>
#include <string>

// One change of a database file or of its log, as the engine orders it from the disk.
struct DiskChange {
    enum class Kind { Write, Cut, Sync, Remove };

    Kind kind;
    const char* path;
    long long at = 0; // where a write begins; how long the file is after a cutting
    const char* bytes = nullptr;
    int count = 0;
};

// Stands by while the engine changes its files, and decides what becomes of it.
class DiskWatcher {
public:
    // Does the change by `make`, a write with its first `count` bytes, or doesn't; returns the engine's code.
    using Making = std::function<int(int count)>;
    virtual int Change(const DiskChange& change, const Making& make) = 0;

    // A file was opened, or made; `content` reads it.
    using Content = std::function<std::string()>;
    virtual void Opened(const char* path, const Content& content);

    // Whether the disk has room for the engine's index to a log.
    virtual bool HasRoomForAnIndex() { return true; }

    // Whether the disk lets the engine begin a reading.
    virtual bool CanBeRead() { return true; }

    // The engine's index to a log lies in memory from now on, or does no longer (nullptr).
    virtual void IndexMoved(const char* database, const volatile void* memory, int size);

protected:
    ~DiskWatcher() = default;
};

// A disk between the engine and the real one. Database files, their logs and journals are watched; anything
// else passes unseen.
namespace WatchedDisk {

// Puts the disk under every database that is opened from now on in this process.
void Install(DiskWatcher& watcher);

}
