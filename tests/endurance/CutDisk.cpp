#include "tests/endurance/CutDisk.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr qint64 SectorSize = 512;
constexpr qint64 PageSize = 1024;

void Write(QByteArray& file, qint64 at, const QByteArray& bytes)
{
    const auto end = static_cast<int>(at) + bytes.size();
    if (file.size() < end)
        file.append(end - file.size(), '\0');
    file.replace(static_cast<int>(at), bytes.size(), bytes);
}

void Apply(const DiskEvent& event, CutDisk::File& file)
{
    if (event.kind == DiskEvent::Kind::Written)
        Write(file.bytes, event.at, event.bytes);
    else
        file.bytes.resize(static_cast<int>(event.at));
    file.time = event.time;
}

// A file while the story is walked through: what the disk surely holds, and what it may hold.
struct Walked {
    bool isThere = false;
    bool isSure = false; // that it is there
    CutDisk::File surely;
    std::vector<const DiskEvent*> perhaps;

    void Sync()
    {
        for (const DiskEvent* event : perhaps)
            Apply(*event, surely);
        perhaps.clear();
        isSure = true;
    }
};

struct Disk {
    Walked files[2]; // the books and the log
    std::optional<Walked> removedLog;

    void Happens(const DiskEvent& event, CutDisk::Syncs syncs, bool isFirst)
    {
        Walked& file = files[event.isLog];
        switch (event.kind) {
        case DiskEvent::Kind::Found:
            // A new log is empty; whatever else is found has been there.
            file = {true, isFirst || !event.bytes.isEmpty(), {event.bytes, event.time}, {}};
            return;
        case DiskEvent::Kind::Synced:
            if (syncs == CutDisk::Syncs::Pretended)
                return;
            file.Sync();
            removedLog.reset();
            return;
        case DiskEvent::Kind::Removed:
            if (file.isThere)
                removedLog = file;
            file = {};
            return;
        case DiskEvent::Kind::Written:
        case DiskEvent::Kind::Cut:
            file.perhaps.push_back(&event);
        }
    }
};

// How kind the power cut was.
struct Chances {
    double kept;
    double torn;
};
constexpr Chances AllChances[] = {{1, 0}, {0, 0}, {0.5, 0.2}, {0.85, 0.1}, {0.2, 0.1}, {0.3, 0.7}};

bool Happened(double chance, QRandomGenerator& dice)
{
    return dice.generateDouble() < chance;
}

// The part of a write on one side of a place where sectors meet; false if it lies within one sector.
bool Tear(const DiskEvent& event, QRandomGenerator& dice, CutDisk::File& file)
{
    const qint64 first = event.at / SectorSize + 1;
    const qint64 last = (event.at + event.bytes.size() - 1) / SectorSize;
    if (first > last)
        return false;
    const qint64 meeting = (first + dice.bounded(static_cast<int>(last - first + 1))) * SectorSize - event.at;
    if (Happened(0.5, dice))
        Write(file.bytes, event.at, event.bytes.left(static_cast<int>(meeting)));
    else
        Write(file.bytes, event.at + meeting, event.bytes.mid(static_cast<int>(meeting)));
    return true;
}

// Plays what perhaps happened; whether it has torn a first page.
bool KeepSome(const Walked& walked, QRandomGenerator& dice, CutDisk::File& file)
{
    const Chances chances = AllChances[dice.bounded(static_cast<int>(std::size(AllChances)))];
    bool isFirstPageTorn = false;
    qint64 time = file.time;
    for (const DiskEvent* event : walked.perhaps) {
        const double fate = dice.generateDouble();
        if (fate < chances.kept)
            Apply(*event, file);
        else if (fate > 1 - chances.torn && event->kind == DiskEvent::Kind::Written
            && Tear(*event, dice, file))
            isFirstPageTorn |= event->at < PageSize;
        if (Happened(0.7, dice))
            time = event->time;
    }
    file.time = time;
    return isFirstPageTorn;
}

void WriteFile(const QString& name, const std::optional<CutDisk::File>& file)
{
    constexpr qint64 nanoseconds = 1000000000;
    QFile::remove(name);
    if (!file)
        return;
    QFile made(name);
    if (!made.open(QIODevice::WriteOnly) || made.write(file->bytes) != file->bytes.size())
        qFatal("%s can't be written", qPrintable(name));
    made.close();
    const timespec time = {file->time / nanoseconds, file->time % nanoseconds};
    const timespec times[] = {time, time};
    utimensat(AT_FDCWD, QFile::encodeName(name).constData(), times, 0);
}

}

CutDisk CutDisk::At(const DiskStory& story, size_t point, QRandomGenerator& dice, Syncs syncs)
{
    Disk disk;
    size_t firstChange = 0;
    while (firstChange < story.events.size() && story.events[firstChange].kind == DiskEvent::Kind::Found)
        ++firstChange;
    point = std::max(point, firstChange);
    for (size_t at = 0; at < point; ++at)
        disk.Happens(story.events[at], syncs, at < firstChange);

    CutDisk cut;
    const bool isEnd = point >= story.events.size();
    cut.acknowledged = isEnd ? story.acknowledged : story.events[point].acknowledged;
    cut.begun = isEnd ? story.begun : story.events[point].begun;

    cut.books = disk.files[0].surely;
    cut.isFirstPageTorn = KeepSome(disk.files[0], dice, *cut.books);

    const bool isRemovalLost = disk.removedLog && Happened(0.5, dice);
    const Walked& log = isRemovalLost ? *disk.removedLog : disk.files[1];
    if (log.isThere && (log.isSure || Happened(0.5, dice))) {
        cut.log = log.surely;
        KeepSome(log, dice, *cut.log);
    }
    if (point > 0 && Happened(0.6, dice))
        cut.index = story.events[static_cast<size_t>(dice.bounded(static_cast<int>(point)))].index;
    if (point > 0 && Happened(0.4, dice))
        cut.index = story.events[std::min(point, story.events.size() - 1)].index;
    return cut;
}

void CutDisk::Slow(const DiskStory& story, int times)
{
    const qint64 start = story.events.front().time;
    for (std::optional<File>* file : {&books, &log}) {
        if (*file)
            (*file)->time = start + ((*file)->time - start) * times;
    }
}

void CutDisk::WriteTo(const QString& file) const
{
    WriteFile(file, books);
    WriteFile(file + QStringLiteral("-wal"), log);
    WriteFile(
        file + QStringLiteral("-shm"), index.isEmpty() ? std::nullopt : std::optional<File>({index, 0}));
}
