#include "platform/report/OutputFile.h"

#include "platform/text/FileRights.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// The rights a new file has under the user's umask. Qt uses four bits each for owner, group and others.
QFileDevice::Permissions RightsOfTheUser()
{
    const unsigned rights = 0666 & ~FileRights::OfTheUser();
    return QFileDevice::Permissions::fromInt(
        static_cast<int>((rights >> 6 & 7) << 12 | (rights >> 3 & 7) << 4 | (rights & 7)));
}

Outcome Failed(const QString& file, const QString& why)
{
    return {QStringLiteral("फाइल लिहिता आली नाही. डिस्कवर जागा आहे का ते पाहा.\n%1: %2")
                .arg(QDir::toNativeSeparators(file), why)};
}

QString Quoted(const QString& cell)
{
    const bool needsQuotes =
        cell.contains(u',') || cell.contains(u'"') || cell.contains(u'\n') || cell.contains(u'\r');
    if (!needsQuotes)
        return cell;
    QString inside = cell;
    inside.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    return QStringLiteral("\"") + inside + QStringLiteral("\"");
}

}

Outcome WriteWhole(const QString& file, const std::function<bool(QIODevice&)>& write)
{
    const bool isNew = !QFileInfo::exists(file); // an existing file keeps its rights
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly))
        return Failed(file, target.errorString());
    // Flush now: commit() doesn't notice if buffered data can't be written.
    if (!write(target) || !target.flush()) {
        const QString why = target.errorString();
        target.cancelWriting();
        return Failed(file, why);
    }
    if (isNew)
        target.setPermissions(RightsOfTheUser());
    return target.commit() ? Outcome() : Failed(file, target.errorString());
}

bool WriteCsv(QIODevice& device, const std::vector<QStringList>& rows)
{
    if (device.write("\xEF\xBB\xBF") < 0)
        return false;
    for (const QStringList& row : rows) {
        QStringList cells;
        cells.reserve(row.size());
        for (const QString& cell : row)
            cells.append(Quoted(cell));
        const QByteArray line = cells.join(u',').toUtf8() + QByteArrayLiteral("\r\n");
        if (device.write(line) != line.size())
            return false;
    }
    return true;
}
