#include "platform/shell/AppFolder.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString& MovedRoot()
{
    static QString root;
    return root;
}

QString DrivesRoot()
{
    if (!MovedRoot().isEmpty())
        return MovedRoot();
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/vetrolan");
}

bool HasDriveLetter(QStringView path)
{
    if (path.size() < 2 || path[1] != u':')
        return false;
    const char16_t letter = path[0].toLower().unicode();
    return letter >= u'a' && letter <= u'z';
}

bool DrivesAreReal()
{
#ifdef Q_OS_WIN
    return MovedRoot().isEmpty();
#else
    return false;
#endif
}

}

QString LocalPath(QStringView path)
{
    if (DrivesAreReal() || !HasDriveLetter(path))
        return path.toString();
    QString below = path.mid(2).toString().replace(u'\\', u'/');
    if (!below.startsWith(u'/'))
        below.prepend(u'/');
    return DrivesRoot() + QStringLiteral("/drive_") + path[0].toLower() + below;
}

void SetDrivesRoot(const QString& folder)
{
    MovedRoot() = folder.isEmpty() ? QString() : QDir::cleanPath(folder);
}

QString LocalAppFile(QStringView name)
{
    QString path = Paths::AppFolder.toString();
    path += name;
    return LocalPath(path);
}
