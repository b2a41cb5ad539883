#include "platform/shell/Privacy.h"

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif
#ifdef Q_OS_UNIX
#include <filesystem>

#include <sys/resource.h>
#endif

#ifdef Q_OS_UNIX

namespace fs = std::filesystem;

namespace {

// Changes the rights by name, without opening the file: closing the database would drop the engine's locks.
void TakeFromOthers(const fs::path& path)
{
    std::error_code stays;
    fs::permissions(path, fs::perms::group_all | fs::perms::others_all, fs::perm_options::remove, stays);
}

}

void Privacy::ForbidCores()
{
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifdef Q_OS_LINUX
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

void Privacy::KeepToOwner(const QString& path)
{
    const fs::path top(path.toStdU16String());
    TakeFromOthers(top);
    std::error_code unread;
    fs::recursive_directory_iterator below(top, fs::directory_options::skip_permission_denied, unread);
    for (; !unread && below != fs::recursive_directory_iterator(); below.increment(unread)) {
        std::error_code gone;
        const fs::file_type kind = below->symlink_status(gone).type();
        if (kind == fs::file_type::regular || kind == fs::file_type::directory)
            TakeFromOthers(below->path());
    }
}

#else

void Privacy::ForbidCores() { }

void Privacy::KeepToOwner(const QString&) { }

#endif
