#pragma once

#include <QString>

#include <functional>

// Copies a file such as a backup, by its path on this machine, so that neither a power cut nor a full disk
// costs what is there: the copy is written beside its target, brought to the disk, checked, and renamed over
// the target. Afterwards either the whole copy is in its place, or the target is as it was.
namespace SafeCopy {

// Checks a finished copy before it replaces the target. If it throws, the target stays.
using Check = std::function<void(const QString& copy)>;

// Told how many bytes are written, of how many.
using Progress = std::function<void(qint64 done, qint64 all)>;

// Only the owner may read the copy. It is a RunTimeError if the source or the target's folder doesn't exist
// or can't be used, the disk is full or gone, both paths name the same file, or either of them is a database
// that this process has open: its connection must be closed first.
void Copy(const QString& from, const QString& to, const Check& check = {}, const Progress& progress = {});

}
