#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// One thing that happened to books or log, with all that is needed to play it again.
struct DiskEvent {
    enum class Kind { Found, Written, Cut, Synced, Removed };

    Kind kind;
    bool isLog = false; // else it is the books'
    qint64 at = 0; // where a writing begins; how long the file is after a cutting
    QByteArray bytes; // the whole file, if it was found
    qint64 time = 0; // of the file afterwards, nanoseconds since 1970
    QByteArray index; // the engine's index to the log just then; empty if there is none

    // Of the numbered saves: how many were acknowledged before this, and how many were begun.
    int acknowledged = 0;
    int begun = 0;
};

// What happened, in its order, and how it ended.
struct DiskStory {
    std::vector<DiskEvent> events;
    int acknowledged = 0;
    int begun = 0;
};

// A disk that remembers every write, cutting, sync and removal of one database file and its log.
namespace RecordingDisk {

// Puts the disk under every database that is opened from now on in this process.
void Install();

// Begins a story with these books as they lie there, with so many saves in them.
void Begin(const QString& books, int acknowledged, int begun);

// A save begins; it was acknowledged.
void SaveBegins(int number);
void SaveIsAcknowledged(int number);

// Ends the story.
DiskStory End();

}
