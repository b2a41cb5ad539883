#pragma once

#include "tests/support/RecordingDisk.h"

#include <QRandomGenerator>

// A session at the books as a day brings it: saves, some of them large, some taken back; foldings, with and
// without another reader in the way; closings and openings. Played on a disk that records it.
namespace PlayedSession {

// What the files held before it: so many saves acknowledged, so many begun.
struct Start {
    bool isAfterCut = false; // then the first opening may have something to tell
    int acknowledged = 0;
    int begun = 0;
};

// Plays that many actions on these books. What goes wrong is a RunTimeError.
DiskStory Play(const QString& books, const Start& start, int actions, QRandomGenerator& dice);

}
