#include "FaultyDisk.h"

#include <sqlcipher/sqlite3.h>

#include <csignal>
#include <limits>
#include <unistd.h>

namespace {

constexpr int Never = std::numeric_limits<int>::max();

int g_count = 0;
int g_fullFrom = Never;
int g_killAt = Never;
bool g_hasRoomForAnIndex = true;

// A file of this disk, with the real one right behind it in the same memory.
struct File {
    sqlite3_file base;
    bool isWatched;
};

sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
}

bool IsWatched(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->isWatched;
}

sqlite3_vfs* RealDisk(sqlite3_vfs* disk)
{
    return static_cast<sqlite3_vfs*>(disk->pAppData);
}

enum class Fate { Done, Full, Killed };

Fate Next(sqlite3_file* file)
{
    if (!IsWatched(file))
        return Fate::Done;
    ++g_count;
    if (g_count >= g_killAt)
        return Fate::Killed;
    return g_count >= g_fullFrom ? Fate::Full : Fate::Done;
}

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
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
    sqlite3_file* real = Real(file);
    switch (Next(file)) {
    case Fate::Full:
        return SQLITE_FULL;
    case Fate::Killed:
        real->pMethods->xWrite(real, bytes, count / 2, offset);
        Die();
    case Fate::Done:
        break;
    }
    return real->pMethods->xWrite(real, bytes, count, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    const Fate fate = Next(file);
    if (fate == Fate::Killed)
        Die();
    return fate == Fate::Full ? SQLITE_FULL : Real(file)->pMethods->xTruncate(Real(file), size);
}

int Sync(sqlite3_file* file, int flags)
{
    const Fate fate = Next(file);
    if (fate == Fate::Killed)
        Die();
    return fate == Fate::Full ? SQLITE_FULL : Real(file)->pMethods->xSync(Real(file), flags);
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
    if (extend != 0 && !g_hasRoomForAnIndex)
        return SQLITE_IOERR_SHMSIZE;
    return Real(file)->pMethods->xShmMap(Real(file), region, size, extend, memory);
}

int ShmLock(sqlite3_file* file, int offset, int count, int flags)
{
    return Real(file)->pMethods->xShmLock(Real(file), offset, count, flags);
}

void ShmBarrier(sqlite3_file* file)
{
    Real(file)->pMethods->xShmBarrier(Real(file));
}

int ShmUnmap(sqlite3_file* file, int deletes)
{
    return Real(file)->pMethods->xShmUnmap(Real(file), deletes);
}

// Version 2: with the shared memory of the log, without memory-mapped reading, so that all goes through here.
constexpr sqlite3_io_methods Methods = {2, Close, Read, Write, Truncate, Sync, FileSize, Lock, Unlock,
    CheckReservedLock, FileControl, SectorSize, DeviceCharacteristics, ShmMap, ShmLock, ShmBarrier, ShmUnmap,
    nullptr, nullptr};

int Open(sqlite3_vfs* disk, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* opened = reinterpret_cast<File*>(file);
    opened->base.pMethods = nullptr;
    opened->isWatched = (flags & (SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_WAL | SQLITE_OPEN_MAIN_JOURNAL)) != 0;
    const int code = RealDisk(disk)->xOpen(RealDisk(disk), name, Real(file), flags, outFlags);
    if (code == SQLITE_OK)
        opened->base.pMethods = &Methods;
    return code;
}

int Delete(sqlite3_vfs* disk, const char* name, int syncs)
{
    return RealDisk(disk)->xDelete(RealDisk(disk), name, syncs);
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

void FaultyDisk::Install()
{
    static sqlite3_vfs disk;
    if (disk.zName)
        return;
    sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
    // The clock, the dice and the loader of the real disk don't look at whose they are.
    disk = *real;
    disk.pNext = nullptr;
    disk.pAppData = real;
    disk.zName = "faulty";
    disk.szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
    disk.xOpen = Open;
    disk.xDelete = Delete;
    disk.xAccess = Access;
    disk.xFullPathname = FullPathname;
    sqlite3_vfs_register(&disk, 1);
}

void FaultyDisk::Reset()
{
    g_count = 0;
    g_fullFrom = Never;
    g_killAt = Never;
    g_hasRoomForAnIndex = true;
}

void FaultyDisk::FullFrom(int n)
{
    g_fullFrom = n;
}

void FaultyDisk::NoRoomForAnIndex()
{
    g_hasRoomForAnIndex = false;
}

void FaultyDisk::KillAt(int n)
{
    g_killAt = n;
}

int FaultyDisk::Count()
{
    return g_count;
}
