#pragma once

#include <QString>

#include <memory>

// Keeps a second copy of the program away from the same books. The lock is the operating system's, so a
// killed program leaves none behind.
class SingleInstance {
public:
    // Takes the lock of a folder, which must exist and be writable: a RunTimeError that says what to do if it
    // isn't, or if root takes somebody else's. The lock is held on the folder itself, which nobody can
    // remove from under it, and on the file Vetrolan.lock, which goes when the lock is given back; left
    // behind by a killed program or by root, it locks nobody out.
    explicit SingleInstance(const QString& folder);
    ~SingleInstance();

    // Whether the file Vetrolan.lock lies in a folder: asked before the lock is taken, it tells that a
    // program runs there, or that the last one was killed.
    static bool IsLeftBehind(const QString& folder);

    // Whether this process holds the lock.
    bool Taken() const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
