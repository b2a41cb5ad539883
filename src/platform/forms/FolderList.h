#pragma once

#include "platform/forms/MenuList.h"

#include <QStringList>

// The drives of the machine, by their roots: "C:\". Enter, or a double click, goes to the marked one.
class DriveList final : public MenuList {
public:
    DriveList(Screen* screen, const char* name);

    // The clerk has gone to another drive.
    Event Change;

    void SetDrives(const QStringList& roots);

    // The drive that was gone to; empty if it isn't among them.
    const QString& Drive() const { return m_drive; }
    void SetDrive(const QString& root);

protected:
    bool KeyBeforeScreen(const QKeyEvent& key) override;

private:
    bool GoToMarked();

    QStringList m_roots;
    QString m_drive;
};

// One folder of a drive: the way to it from the root, and the folders in it, one below the other. Enter, or a
// double click, opens the marked one; on the open one itself Enter is the screen's.
class FolderList final : public MenuList {
public:
    // The names of the folders in a folder, such as "C:\Backup".
    using Source = std::function<QStringList(const QString& folder)>;

    FolderList(Screen* screen, const char* name, Source folders);

    // Another folder is open, by the clerk or by the screen.
    Event Change;

    // The path of the open folder, without a backslash at its end unless it is a drive's root.
    const QString& Folder() const { return m_folder; }
    void SetFolder(const QString& path);

    // Reads the folders anew.
    void Refresh();

protected:
    bool KeyBeforeScreen(const QKeyEvent& key) override;

private:
    bool OpenMarked();

    Source m_folders;
    QString m_folder;
    QStringList m_paths; // of the entries
};
