#include "platform/text/FileRights.h"

#include <QtGlobal>

#include <optional>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace {

constexpr unsigned Private = 077;

// Sets the umask and returns the old one; does nothing on systems without one.
unsigned Replace(unsigned mask)
{
#ifdef Q_OS_WIN
    return mask;
#else
    return umask(mask);
#endif
}

std::optional<unsigned>& Former()
{
    static std::optional<unsigned> former;
    return former;
}

}

void FileRights::KeepPrivate()
{
    const unsigned before = Replace(Private);
    if (before != Private) // else it has been called before, or the user has it so
        Former() = before;
}

unsigned FileRights::OfTheUser()
{
    if (Former())
        return *Former();
    const unsigned own = Replace(Private);
    Replace(own);
    return own;
}
