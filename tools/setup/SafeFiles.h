#pragma once

#include <QByteArray>
#include <QString>

// Changes that a power cut can't undo: each is on disk when the call returns, unless it says otherwise. What
// can't be done, or can't be brought to the disk, is a RunTimeError that names the file.
namespace SafeFiles {

// Makes a folder with those above it.
void MakeFolder(const QString& folder);

// Writes a file. A power cut can halve it: it is for names that nobody reads before MoveInto.
void Write(const QString& file, const QByteArray& content);

// Brings a file that something else has written to the disk.
void Sync(const QString& file);

// Gives a finished file another name; one that has the name already is gone, at once.
void MoveInto(const QString& from, const QString& to);

// Keeps a file under a second name, which must be free, and leaves the first as it is.
void Keep(const QString& file, const QString& name);

// Removes a file, if there is one. SyncFolder brings that to the disk.
void Remove(const QString& file);

// The changes of names in a folder are on disk when this returns.
void SyncFolder(const QString& folder);

}
