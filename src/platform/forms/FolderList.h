#pragma once

#include "platform/forms/MenuList.h"

#include <QStringList>

// The drives of the machine by their roots, such as "C:\". Enter or a double click opens the highlighted one.
class DriveList final : public MenuList {
public:
    DriveList(Screen* screen, const char* name);

    // The clerk has opened another drive.
    Event Change;

    void SetDrives(const QStringList& roots);

    // The open drive; empty if it isn't in the list.
    const QString& Drive() const { return m_drive; }
    void SetDrive(const QString& root);

protected:
    bool KeyBeforeScreen(const QKeyEvent& key) override;

private:
    bool GoToMarked();

    QStringList m_roots;
    QString m_drive;
};

// The open folder: the folders on the way to it from the root, and below them the folders in it. Enter or a
// double click opens the highlighted one; on the open folder itself, Enter is left to the screen.
class FolderList final : public MenuList {
public:
    // Returns the names of the folders in a folder such as "C:\Backup".
    using Source = std::function<QStringList(const QString& folder)>;

    FolderList(Screen* screen, const char* name, Source folders);

    // The clerk or the screen has opened another folder.
    Event Change;

    // The path of the open folder; only the root of a drive ends with a backslash.
    const QString& Folder() const { return m_folder; }
    void SetFolder(const QString& path);

    // Reads the folders again.
    void Refresh();

protected:
    bool KeyBeforeScreen(const QKeyEvent& key) override;

private:
    bool OpenMarked();

    Source m_folders;
    QString m_folder;
    QStringList m_paths; // of the entries
};
