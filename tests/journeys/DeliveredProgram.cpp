#include "tests/journeys/DeliveredProgram.h"

#include "platform/shell/AppFolder.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemWatcher>
#include <QTimer>

void DeliveredProgram::SetUp()
{
    gCn.Close();
    // The delivered program finds its drives below the user's data.
    const QString drives = m_data.filePath("vetrolan");
    ASSERT_TRUE(QDir().rename(Drives(), drives));
    SetDrivesRoot(drives);
}

std::unique_ptr<QProcess> DeliveredProgram::StartTheProgram()
{
    QFileSystemWatcher watcher({LocalPath(Paths::AppFolder)});
    auto program = Processes::Start("vetrolan", {}, Environment());
    QEventLoop waiting;
    const auto isReady = [this] { return QFile::exists(FolderFile("Morvelta.mdb-shm")); };
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &waiting, [&] {
        if (isReady())
            waiting.quit();
    });
    QObject::connect(program.get(), &QProcess::finished, &waiting, &QEventLoop::quit);
    QTimer::singleShot(30000, &waiting, &QEventLoop::quit);
    if (!isReady() && program->state() == QProcess::Running)
        waiting.exec();
    EXPECT_TRUE(isReady());
    EXPECT_EQ(program->state(), QProcess::Running) << program->readAllStandardError().toStdString();
    return program;
}

QStringList DeliveredProgram::Environment() const
{
    return {"XDG_DATA_HOME=" + m_data.path()};
}

void DeliveredProgram::Kill(QProcess& process)
{
    process.kill();
    EXPECT_TRUE(Processes::WaitForEnd(process));
}
