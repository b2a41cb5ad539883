#pragma once

#include <QString>

#include <memory>

// Makes sure that only one copy of the program runs on a folder. The lock belongs to the operating system, so
// it is gone when a program is killed.
class SingleInstance {
public:
    // Tries to lock a folder; Taken tells whether that worked. If the folder doesn't exist or isn't writable,
    // or if root starts the program on another user's folder, it is a RunTimeError that says what to do. The
    // lock is held on the folder itself and on the file Vetrolan.lock in it, which is removed at the end. A
    // file that a killed program or root left behind locks nobody out.
    explicit SingleInstance(const QString& folder);
    ~SingleInstance();

    // Whether the file Vetrolan.lock is in a folder. Before the lock is taken, that means that a program runs
    // there, or that the last one was killed.
    static bool IsLeftBehind(const QString& folder);

    // Whether this process holds the lock.
    bool Taken() const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
