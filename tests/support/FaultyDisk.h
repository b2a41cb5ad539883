#pragma once

// A disk that fails when a test says so. It stands between the engine and the real disk, and sees the writes,
// the syncs and the cuttings of a database file and of its log; where a test wants it, also each write, sync
// and renaming of a file that is copied (Disk). Anything else passes unseen.
namespace FaultyDisk {

// Puts the disk under every database that is opened from now on in this process.
void Install();

// The same, and under all copying.
void InstallForCopies();

// Heals the disk and begins to count anew.
void Reset();

// Full from the n-th (from 1) write, sync or cutting on.
void FullFrom(int n);

// Broken from the n-th (from 1) write, sync or cutting on: the engine is told of an input/output error.
void BrokenFrom(int n);

// Can't be read behind the n-th write, sync or cutting: whoever begins to read is told of an input/output
// error.
void UnreadableBehind(int n);

// Has no room from now on for the index of a log.
void NoRoomForAnIndex();

// Kills the process with SIGKILL at the n-th write, sync or cutting: a write is done to its half.
void KillAt(int n);

// How many writes, syncs and cuttings were seen since the last Reset.
int Count();

}
