#pragma once

#include <QByteArray>
#include <QString>

// File operations that a power cut can't undo: when a call returns, the change is on the disk, unless it says
// otherwise. A failure is a RunTimeError that names the file.
namespace SafeFiles {

// Makes a folder, and the folders above it if they are missing.
void MakeFolder(const QString& folder);

// Writes a file. A power cut can leave half of it, so use a name that nobody reads before MoveInto.
void Write(const QString& file, const QByteArray& content);

// Writes a file that something else has made through to the disk.
void Sync(const QString& file);

// Renames a finished file; an existing file of that name is replaced in the same step.
void MoveInto(const QString& from, const QString& to);

// Gives a file a second name, which must not exist yet; the first stays.
void Keep(const QString& file, const QString& name);

// Removes a file, if it exists. SyncFolder makes that durable.
void Remove(const QString& file);

// Makes the changes of names in a folder durable.
void SyncFolder(const QString& folder);

}
