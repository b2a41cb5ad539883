#include "bench/FloorBackup.h"

#include "bench/CounterPlay.h"
#include "platform/database/KeyedFile.h"

#include <QByteArrayList>
#include <QFile>

#include <sqlcipher/sqlite3.h>
#include <unistd.h>

namespace {

constexpr qint64 PieceSize = 1 << 20;

// The counting of each table's rows and of each index's entries. A count(*) would be taken off the smallest
// of them alone.
constexpr const char* Countings =
    "select case type when 'table' then 'select count(1) from \"' || tbl_name || '\" not indexed' "
    "else 'select count(1) from \"' || tbl_name || '\" indexed by \"' || name || '\"' end "
    "from sqlite_master where type in ('table','index')";

int Keep(void* list, int, char** values, char**)
{
    static_cast<QByteArrayList*>(list)->append(values[0]);
    return 0;
}

}

void FloorBackup::Copy(const QString& books, const QString& target)
{
    QFile source(books);
    QFile copy(target);
    Require(source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)
            && copy.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered),
        "Books and copy are open.");
    for (QByteArray piece = source.read(PieceSize); !piece.isEmpty(); piece = source.read(PieceSize))
        Require(copy.write(piece) == piece.size(), "The copy is written.");
    Require(fsync(copy.handle()) == 0, "The copy is on the disk.");
}

void FloorBackup::ReadPages(const QString& copy, const QString& password)
{
    const KeyedFile opened(copy, password, KeyedFile::Way::LookOnly);
    QByteArrayList countings;
    Require(sqlite3_exec(opened.Handle(), Countings, Keep, &countings, nullptr) == SQLITE_OK
            && !countings.isEmpty(),
        "The copy can be read.");
    for (const QByteArray& counting : countings)
        Require(sqlite3_exec(opened.Handle(), counting.constData(), nullptr, nullptr, nullptr) == SQLITE_OK,
            "Its pages can be read.");
}
