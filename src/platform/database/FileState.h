#pragma once

#include <QString>

class QFile;

// Identifies the file that a name stands for, with its size and the time when it was last written.
struct FileState {
    quint64 device = 0;
    quint64 number = 0; // of the file on its device; 0 where the system has none
    qint64 size = -1; // bytes; -1 if there is no such file
    qint64 written = 0; // nanoseconds since 1970

    static FileState Of(const QString& path);

    // Of a file that is open, under whatever name or none by now; none if it isn't open.
    static FileState Of(const QFile& file);

    bool Exists() const { return size >= 0; }
    bool IsSameFileAs(const FileState& other) const
    {
        return device == other.device && number == other.number;
    }
};

// Makes what was written to an open file durable, with its size and time. Returns false if that fails.
bool SyncToDisk(const QFile& file);
