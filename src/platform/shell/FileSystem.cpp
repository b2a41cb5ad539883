#include "platform/shell/FileSystem.h"

#include "platform/shell/AppFolder.h"

namespace {

// "C:" of a path that begins with a drive; empty if it doesn't.
QString DriveOf(QStringView path)
{
    if (path.size() < 2 || path[1] != u':')
        return {};
    const char16_t letter = path[0].toUpper().unicode();
    return letter >= u'A' && letter <= u'Z' ? QString(QChar(letter)) + u':' : QString();
}

}

QString FileSystem::AbsolutePath(QStringView path)
{
    QString whole = path.toString().replace(u'/', u'\\');
    if (DriveOf(whole).isEmpty())
        whole.prepend(
            whole.startsWith(u'\\') ? Paths::AppFolder.left(2).toString() : Paths::AppFolder.toString());
    const QString drive = DriveOf(whole);
    QStringList parts;
    for (const QString& part : whole.mid(drive.size()).split(u'\\', Qt::SkipEmptyParts)) {
        if (part == u"..") {
            if (!parts.isEmpty())
                parts.removeLast();
        } else if (part != u".") {
            parts.append(part);
        }
    }
    return drive + u'\\' + parts.join(u'\\');
}
