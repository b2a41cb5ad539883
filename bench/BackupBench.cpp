// A backup of the books of a year, with the check of the copy.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorBackup.h"
#include "bench/Work.h"
#include "core/start/BooksOpening.h"
#include "core/state/AppState.h"
#include "platform/shell/AppFolder.h"

#include <QFile>

namespace {

constexpr int Turns = 5;
constexpr qint64 BooksSize = 100LL * 1000 * 1000; // at least

QByteArray BytesOf(const QString& name)
{
    QFile file(name);
    Require(file.open(QIODevice::ReadOnly), "The file is there.");
    return file.readAll();
}

class Backup final : public Work {
public:
    Backup() { gCn.Fold(); }
    ~Backup() override
    {
        QFile::remove(m_copy);
        QFile::remove(m_floors);
    }
    Backup(const Backup&) = delete;
    Backup& operator=(const Backup&) = delete;

    // A regular one, over that of the last time.
    double ByScreen() override
    {
        double seconds = 0;
        Play("frmBackup",
            [&](Clerk& clerk) { seconds = Timed(clerk, [&] { clerk.Press(QStringLiteral("cmdBackup")); }); });
        return seconds;
    }

    double ByFloor() override
    {
        CloseBooks();
        const double seconds = SecondsOf([&] {
            FloorBackup::Copy(m_books, m_floors);
            FloorBackup::ReadPages(m_floors, gAppState.gDbPassword);
        });
        const QByteArray copy = BytesOf(m_copy);
        Require(copy.size() >= BooksSize && copy == BytesOf(m_floors), "Both ways make the same copy.");
        ReopenBooks();
        return seconds;
    }

private:
    const QString m_books = LocalAppFile(u"Morvelta.mdb");
    const QString m_copy = LocalAppFile(u"Backup\\Morvelta.mdb");
    const QString m_floors = LocalAppFile(u"Backup\\Floor.mdb");
};

}

void RegisterBackupCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "backup/regular",
            .what = "a backup of more than 100 MB, checked",
            .turns = Turns,
            .target = {.ratio = 1.5},
            .make = [] { return std::make_unique<Backup>(); }});
}
