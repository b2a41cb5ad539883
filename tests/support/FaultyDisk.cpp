#include "tests/support/FaultyDisk.h"

#include "tests/support/WatchedDisk.h"

#include <sqlcipher/sqlite3.h>

#include <csignal>
#include <limits>
#include <unistd.h>

namespace {

constexpr int Never = std::numeric_limits<int>::max();

int g_count = 0;
int g_fullFrom = Never;
int g_brokenFrom = Never;
int g_killAt = Never;
int g_unreadableBehind = Never;
bool g_hasRoomForAnIndex = true;

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

class FailingWatcher final : public DiskWatcher {
public:
    int Change(const DiskChange& change, const Making& make) override
    {
        if (change.kind == DiskChange::Kind::Remove)
            return make(0);
        ++g_count;
        if (g_count >= g_killAt) {
            if (change.kind == DiskChange::Kind::Write)
                make(change.count / 2);
            Die();
        }
        if (g_count >= g_brokenFrom)
            return change.kind == DiskChange::Kind::Sync ? SQLITE_IOERR_FSYNC : SQLITE_IOERR_WRITE;
        return g_count >= g_fullFrom ? SQLITE_FULL : make(change.count);
    }

    bool CanBeRead() override { return g_count < g_unreadableBehind; }
    bool HasRoomForAnIndex() override { return g_hasRoomForAnIndex; }
};

}

void FaultyDisk::Install()
{
    static FailingWatcher watcher;
    WatchedDisk::Install(watcher);
}

void FaultyDisk::Reset()
{
    g_count = 0;
    g_fullFrom = Never;
    g_brokenFrom = Never;
    g_killAt = Never;
    g_unreadableBehind = Never;
    g_hasRoomForAnIndex = true;
}

void FaultyDisk::NoRoomForAnIndex()
{
    g_hasRoomForAnIndex = false;
}

void FaultyDisk::FullFrom(int n)
{
    g_fullFrom = n;
}

void FaultyDisk::BrokenFrom(int n)
{
    g_brokenFrom = n;
}

void FaultyDisk::UnreadableBehind(int n)
{
    g_unreadableBehind = n;
}

void FaultyDisk::KillAt(int n)
{
    g_killAt = n;
}

int FaultyDisk::Count()
{
    return g_count;
}
