#include "tools/setup/Copies.h"

#include "platform/text/PasswordItems.h"
#include "platform/text/RunTimeError.h"
#include "tools/setup/Society.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString PasswordIn(const QString& folder)
{
    QFile file(QDir(folder).filePath(PasswordFileName.toString()));
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeError::FileNotFound,
            QStringLiteral("Can't read ") % QDir::toNativeSeparators(file.fileName())
                % QStringLiteral(", the password of the books: ") % file.errorString() % u'.');
    return PasswordOfFile(file);
}

bool HasOwnLog(const QString& copy)
{
    return QFileInfo(copy % u"-wal").size() > 0;
}

BooksContent RestoreBooks(const QString& folder, const QString& copy, const QDateTime& now)
{
    RestorePlan plan;
    plan.password = PasswordIn(folder);
    plan.copy = copy;
    plan.books = QDir(folder).filePath(DatabaseFileName.toString());
    plan.keptFolder = QDir(folder).filePath(BackupFolderName.toString());
    plan.now = now;
    plan.replacesDamagedBooks = !FoldLog(folder);
    return BooksCopies::Restore(plan);
}
