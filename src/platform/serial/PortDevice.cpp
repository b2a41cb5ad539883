#include "platform/serial/PortDevice.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString& PortLinksFolder()
{
    static QString folder;
    return folder;
}

}

void SetPortLinksFolder(const QString& folder)
{
    PortLinksFolder() = folder;
}

QString PortDevice(int number)
{
    if (number < 1)
        return {};
    const QString name = QStringLiteral("COM%1").arg(number);
#ifdef Q_OS_WIN
    return name;
#else
    const QFileInfo link(QDir(PortLinksFolder()).filePath(name));
    if (!PortLinksFolder().isEmpty() && (link.isSymLink() || link.exists()))
        return link.absoluteFilePath();
    return QStringLiteral("/dev/ttyS%1").arg(number - 1);
#endif
}
