#pragma once

#include <QByteArray>
#include <QString>

// Writing that a power cut can't halve. What can't be done is a RunTimeError that names the file.
namespace SafeFiles {

// Makes a folder with those above it.
void MakeFolder(const QString& folder);

// Writes a file whole: beside it first, then in its place.
void Write(const QString& file, const QByteArray& content);

// Puts a finished file in the place of another, at once.
void MoveInto(const QString& from, const QString& to);

// Gives a file a second name, so that it outlives a file moved into its place. Where the disk knows no
// second names it is moved. `name` must be free.
void Keep(const QString& file, const QString& name);

// The changes of names in a folder are on disk when this returns.
void SyncFolder(const QString& folder);

}
