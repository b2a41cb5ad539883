#include "tests/support/FaultyDisk.h"

#include "platform/database/Disk.h"
#include "tests/support/WatchedDisk.h"

#include <sqlcipher/sqlite3.h>

#include <QFile>

#include <csignal>
#include <functional>
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

// The same for what is copied without the engine.
class FailingFiles final : public Disk {
public:
    std::error_code Write(QFile& file, const QByteArray& bytes) override
    {
        return Change(
            [&] { return Disk::Write(file, bytes); }, [&] { file.write(bytes.left(bytes.size() / 2)); });
    }
    std::error_code Sync(const QString& path) override
    {
        return Change([&] { return Disk::Sync(path); });
    }
    std::error_code Copy(const QString& file, const QString& name) override
    {
        return Change([&] { return Disk::Copy(file, name); });
    }
    std::error_code Move(const QString& from, const QString& to) override
    {
        return Change([&] { return Disk::Move(from, to); });
    }

private:
    // `half` is what a kill leaves of it.
    static std::error_code Change(
        const std::function<std::error_code()>& make, const std::function<void()>& half = [] {})
    {
        ++g_count;
        if (g_count >= g_killAt) {
            half();
            Die();
        }
        if (g_count >= g_brokenFrom)
            return std::make_error_code(std::errc::io_error);
        return g_count >= g_fullFrom ? std::make_error_code(std::errc::no_space_on_device) : make();
    }
};

}

void FaultyDisk::Install()
{
    static FailingWatcher watcher;
    WatchedDisk::Install(watcher);
}

void FaultyDisk::InstallForCopies()
{
    static FailingFiles files;
    Install();
    Disk::Use(&files);
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
