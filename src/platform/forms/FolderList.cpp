#include "platform/forms/FolderList.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

bool IsEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

// The path of a folder in another one.
QString Inside(const QString& folder, const QString& name)
{
    return folder.endsWith(u'\\') ? QString(folder + name) : QString(folder + u'\\' + name);
}

// The folders from the root to this one: "C:\", "C:\Milk" and "C:\Milk\Backup" for "C:\Milk\Backup".
QStringList WayTo(const QString& folder)
{
    QStringList way{folder.left(3)};
    for (const QString& name : folder.mid(3).split(u'\\', Qt::SkipEmptyParts))
        way.append(Inside(way.last(), name));
    return way;
}

}

DriveList::DriveList(Screen* screen, const char* name) : MenuList(screen, name)
{
    Chosen = [this] { GoToMarked(); };
}

void DriveList::SetDrives(const QStringList& roots)
{
    m_roots = roots;
    std::vector<Caption> entries;
    for (const QString& root : roots)
        entries.push_back(Plain(root));
    SetEntries(entries);
    SetDrive(m_drive);
}

void DriveList::SetDrive(const QString& root)
{
    const qsizetype at = m_roots.indexOf(root);
    m_drive = at < 0 ? QString() : root;
    SetCurrentIndex(static_cast<int>(at));
}

bool DriveList::GoToMarked()
{
    const QString marked = m_roots.value(CurrentIndex());
    if (marked.isEmpty() || marked == m_drive)
        return false;
    m_drive = marked;
    if (Change)
        Change();
    return true;
}

bool DriveList::KeyBeforeScreen(const QKeyEvent& key)
{
    return IsEnter(key) && GoToMarked();
}

FolderList::FolderList(Screen* screen, const char* name, Source folders)
    : MenuList(screen, name)
    , m_folders(std::move(folders))
{
    Chosen = [this] { OpenMarked(); };
}

void FolderList::SetFolder(const QString& path)
{
    const bool isAnother = path != m_folder;
    m_folder = path;
    Refresh();
    if (isAnother && Change)
        Change();
}

void FolderList::Refresh()
{
    m_paths = m_folder.isEmpty() ? QStringList() : WayTo(m_folder);
    const auto depth = static_cast<int>(m_paths.size());
    if (depth > 0)
        for (const QString& name : m_folders(m_folder))
            m_paths.append(Inside(m_folder, name));

    constexpr qsizetype step = 4; // blanks by which a folder is indented below its parent
    std::vector<Caption> entries;
    for (int at = 0; at < m_paths.size(); ++at) {
        const QString name = at == 0 ? m_paths[at] : m_paths[at].section(u'\\', -1);
        entries.push_back(Plain(QString(QString(step * std::min(at, depth), u' ') + name)));
    }
    SetEntries(entries);
    SetCurrentIndex(depth - 1);
}

bool FolderList::OpenMarked()
{
    const QString marked = m_paths.value(CurrentIndex());
    if (marked.isEmpty() || marked == m_folder)
        return false;
    SetFolder(marked);
    return true;
}

bool FolderList::KeyBeforeScreen(const QKeyEvent& key)
{
    return IsEnter(key) && OpenMarked();
}
