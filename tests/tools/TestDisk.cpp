#include "tests/tools/TestDisk.h"

#include <QFileInfo>

#include <cstdlib>

TestDisk::TestDisk()
{
    Disk::Use(this);
}

TestDisk::~TestDisk()
{
    Disk::Use(nullptr);
}

std::error_code TestDisk::Next(const QStringList& words)
{
    QStringList names = words;
    for (qsizetype i = 1; i < names.size(); ++i)
        names[i] = QFileInfo(names[i]).fileName();
    m_done.append(names.join(u' '));
    if (Count() == CutAt)
        std::_Exit(PowerCut);
    return Count() == FailAt ? std::make_error_code(std::errc::io_error) : std::error_code();
}

std::error_code TestDisk::Sync(const QString& path)
{
    const std::error_code failed = Next({"sync", path});
    return failed ? failed : Disk::Sync(path);
}

std::error_code TestDisk::Link(const QString& file, const QString& name)
{
    if (!KnowsSecondNames)
        return std::make_error_code(std::errc::operation_not_permitted);
    const std::error_code failed = Next({"link", file, name});
    return failed ? failed : Disk::Link(file, name);
}

std::error_code TestDisk::Copy(const QString& file, const QString& name)
{
    const std::error_code failed = Next({"copy", file, name});
    return failed ? failed : Disk::Copy(file, name);
}

std::error_code TestDisk::Move(const QString& from, const QString& to)
{
    const std::error_code failed = Next({"move", from, to});
    return failed ? failed : Disk::Move(from, to);
}

std::error_code TestDisk::Remove(const QString& file)
{
    const std::error_code failed = Next({"remove", file});
    return failed ? failed : Disk::Remove(file);
}
