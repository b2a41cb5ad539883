#include "tests/support/WatchedDisk.h"

#include <sqlcipher/sqlite3.h>

namespace {

DiskWatcher* g_watcher = nullptr;

// A file of this disk, with the real one right behind it in the same memory.
struct File {
    sqlite3_file base;
    const char* path; // nullptr if it isn't watched
};

sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
}

const char* PathOf(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->path;
}

sqlite3_vfs* RealDisk(sqlite3_vfs* disk)
{
    return static_cast<sqlite3_vfs*>(disk->pAppData);
}

template <class Making> int Change(const DiskChange& change, const Making& make)
{
    return change.path ? g_watcher->Change(change, make) : make(change.count);
}

int Close(sqlite3_file* file)
{
    sqlite3_file* real = Real(file);
    return real->pMethods->xClose(real);
}

int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset)
{
    return Real(file)->pMethods->xRead(Real(file), bytes, count, offset);
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset)
{
    return Change({DiskChange::Kind::Write, PathOf(file), offset, static_cast<const char*>(bytes), count},
        [=](int written) { return Real(file)->pMethods->xWrite(Real(file), bytes, written, offset); });
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    return Change({DiskChange::Kind::Cut, PathOf(file), size},
        [=](int) { return Real(file)->pMethods->xTruncate(Real(file), size); });
}

int Sync(sqlite3_file* file, int flags)
{
    return Change({DiskChange::Kind::Sync, PathOf(file)},
        [=](int) { return Real(file)->pMethods->xSync(Real(file), flags); });
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return Real(file)->pMethods->xFileSize(Real(file), size);
}

int Lock(sqlite3_file* file, int level)
{
    return Real(file)->pMethods->xLock(Real(file), level);
}

int Unlock(sqlite3_file* file, int level)
{
    return Real(file)->pMethods->xUnlock(Real(file), level);
}

int CheckReservedLock(sqlite3_file* file, int* result)
{
    return Real(file)->pMethods->xCheckReservedLock(Real(file), result);
}

int FileControl(sqlite3_file* file, int operation, void* argument)
{
    return Real(file)->pMethods->xFileControl(Real(file), operation, argument);
}

int SectorSize(sqlite3_file* file)
{
    return Real(file)->pMethods->xSectorSize(Real(file));
}

int DeviceCharacteristics(sqlite3_file* file)
{
    return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

int ShmMap(sqlite3_file* file, int region, int size, int extend, void volatile** memory)
{
    if (extend != 0 && g_watcher && !g_watcher->HasRoomForAnIndex())
        return SQLITE_IOERR_SHMSIZE;
    const int code = Real(file)->pMethods->xShmMap(Real(file), region, size, extend, memory);
    if (code == SQLITE_OK && region == 0 && *memory && PathOf(file))
        g_watcher->IndexMoved(PathOf(file), *memory, size);
    return code;
}

int ShmLock(sqlite3_file* file, int offset, int count, int flags)
{
    constexpr int beginsToRead = SQLITE_SHM_LOCK | SQLITE_SHM_SHARED;
    if (flags == beginsToRead && PathOf(file) && !g_watcher->CanBeRead())
        return SQLITE_IOERR_SHMLOCK;
    return Real(file)->pMethods->xShmLock(Real(file), offset, count, flags);
}

void ShmBarrier(sqlite3_file* file)
{
    Real(file)->pMethods->xShmBarrier(Real(file));
}

int ShmUnmap(sqlite3_file* file, int deletes)
{
    if (PathOf(file))
        g_watcher->IndexMoved(PathOf(file), nullptr, 0);
    return Real(file)->pMethods->xShmUnmap(Real(file), deletes);
}

// Version 2: with the shared memory of the log, without memory-mapped reading, so that all goes through here.
constexpr sqlite3_io_methods Methods = {2, Close, Read, Write, Truncate, Sync, FileSize, Lock, Unlock,
    CheckReservedLock, FileControl, SectorSize, DeviceCharacteristics, ShmMap, ShmLock, ShmBarrier, ShmUnmap,
    nullptr, nullptr};

std::string ContentOf(sqlite3_file* file)
{
    sqlite3_int64 size = 0;
    if (FileSize(file, &size) != SQLITE_OK || size == 0)
        return {};
    std::string content(static_cast<size_t>(size), '\0');
    return Read(file, content.data(), static_cast<int>(size), 0) == SQLITE_OK ? content : std::string();
}

int Open(sqlite3_vfs* disk, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* opened = reinterpret_cast<File*>(file);
    opened->base.pMethods = nullptr;
    const bool isWatched = (flags & (SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_WAL | SQLITE_OPEN_MAIN_JOURNAL)) != 0;
    opened->path = isWatched ? name : nullptr;
    const int code = RealDisk(disk)->xOpen(RealDisk(disk), name, Real(file), flags, outFlags);
    if (code != SQLITE_OK)
        return code;
    opened->base.pMethods = &Methods;
    if (isWatched && name)
        g_watcher->Opened(name, [=] { return ContentOf(file); });
    return code;
}

int Delete(sqlite3_vfs* disk, const char* name, int syncs)
{
    return Change({DiskChange::Kind::Remove, name},
        [=](int) { return RealDisk(disk)->xDelete(RealDisk(disk), name, syncs); });
}

int Access(sqlite3_vfs* disk, const char* name, int flags, int* result)
{
    return RealDisk(disk)->xAccess(RealDisk(disk), name, flags, result);
}

int FullPathname(sqlite3_vfs* disk, const char* name, int size, char* path)
{
    return RealDisk(disk)->xFullPathname(RealDisk(disk), name, size, path);
}

}

void DiskWatcher::Opened(const char*, const Content&) { }

void DiskWatcher::IndexMoved(const char*, const volatile void*, int) { }

void WatchedDisk::Install(DiskWatcher& watcher)
{
    static sqlite3_vfs disk;
    g_watcher = &watcher;
    if (disk.zName)
        return;
    sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
    // The clock, the dice and the loader of the real disk don't look at whose they are.
    disk = *real;
    disk.pNext = nullptr;
    disk.pAppData = real;
    disk.zName = "watched";
    disk.szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
    disk.xOpen = Open;
    disk.xDelete = Delete;
    disk.xAccess = Access;
    disk.xFullPathname = FullPathname;
    sqlite3_vfs_register(&disk, 1);
}
