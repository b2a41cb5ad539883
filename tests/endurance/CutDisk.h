#pragma once

#include "tests/support/RecordingDisk.h"

#include <QRandomGenerator>

#include <optional>

// What a disk may hold when the power fails at a point of a story.
//
// All that came before a file's last sync is there. Each later write is kept, lost, or torn where two sectors
// meet; each later cutting is kept or lost; a file is as long as its last kept write. A removed log is gone
// for sure once something was synced behind it, and a new one is there for sure once it was synced itself.
// The index to the log, which is never synced, may be there as it was at any moment, or not at all.
struct CutDisk {
    struct File {
        QByteArray bytes;
        qint64 time = 0; // nanoseconds since 1970
    };

    std::optional<File> books;
    std::optional<File> log;
    QByteArray index;
    bool isFirstPageTorn = false; // a write of the books' first page was torn
    int acknowledged = 0;
    int begun = 0;

    // The kinds of disk: an honest one, and one that only says that it has synced.
    enum class Syncs { Done, Pretended };

    // The disk when all events before the point had happened, and none from there on.
    static CutDisk At(
        const DiskStory& story, size_t point, QRandomGenerator& dice, Syncs syncs = Syncs::Done);

    // As if so many times as long had passed between all events: the files' times lie as far apart as those
    // of a day's work, though the session took a moment.
    void Slow(const DiskStory& story, int times);

    // Writes books, log and index to this name, with their times; older ones of the name are removed.
    void WriteTo(const QString& file) const;
};
