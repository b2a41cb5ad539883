#include "tests/support/FakeFileSystem.h"

#include <QDir>

namespace {

// The folder that a file or a folder lies in; a drive's root lies in none.
QString FolderOf(const QString& path)
{
    const qsizetype last = path.lastIndexOf(u'\\');
    return path.size() <= 3 ? QString() : path.left(last == 2 ? 3 : last);
}

QString NameOf(const QString& path)
{
    return path.section(u'\\', -1);
}

QStringList Sorted(QStringList names)
{
    names.sort(Qt::CaseInsensitive);
    return names;
}

}

bool FakeFileSystem::CreateFolder(const QString& path)
{
    const QString folder = AbsolutePath(path);
    if (HasFolder(folder))
        return true;
    if (!HasFolder(FolderOf(folder)) || Contents.contains(folder))
        return false;
    MadeFolders.append(folder);
    return true;
}

bool FakeFileSystem::HasFolder(const QString& path) const
{
    const QString folder = AbsolutePath(path);
    return !path.isEmpty() && (Kinds.contains(folder) || MadeFolders.contains(folder));
}

QStringList FakeFileSystem::Folders(const QString& path) const
{
    QStringList names;
    for (const QString& folder : MadeFolders)
        if (FolderOf(folder) == AbsolutePath(path))
            names.append(NameOf(folder));
    return Sorted(names);
}

QStringList FakeFileSystem::Files(const QString& path, const QString& pattern) const
{
    QStringList names;
    for (auto file = Contents.cbegin(); file != Contents.cend(); ++file)
        if (FolderOf(file.key()) == AbsolutePath(path) && QDir::match(pattern, NameOf(file.key())))
            names.append(NameOf(file.key()));
    return Sorted(names);
}

FileSystem::DriveKind FakeFileSystem::KindOfDrive(const QString& path) const
{
    return Kinds.value(AbsolutePath(path).left(3), DriveKind::Unknown);
}
