#include "platform/report/PrintFiles.h"

#include <QDir>

namespace {

QString& Folder()
{
    static QString folder = QDir::tempPath();
    return folder;
}

}

void PrintFiles::KeepIn(const QString& folder)
{
    Folder() = folder;
    QDir place(folder);
    for (const QString& left :
        place.entryList({QStringLiteral(".print-??????.pdf")}, QDir::Files | QDir::Hidden))
        place.remove(left);
}

QString PrintFiles::Pattern()
{
    return QDir(Folder()).filePath(QStringLiteral(".print-XXXXXX.pdf"));
}
