#include "tests/journeys/Processes.h"

#include <QCoreApplication>
#include <QDir>

std::unique_ptr<QProcess> Processes::Start(
    const QString& program, const QStringList& arguments, const QStringList& environment)
{
    auto process = std::make_unique<QProcess>();
    QStringList all = QProcess::systemEnvironment();
    all.append("QT_QPA_PLATFORM=offscreen");
    process->setEnvironment(all + environment);
    process->start(QDir(QCoreApplication::applicationDirPath()).filePath(program), arguments);
    process->waitForStarted();
    return process;
}

bool Processes::WaitForEnd(QProcess& process, int seconds)
{
    constexpr int milliseconds = 1000;
    return process.state() == QProcess::NotRunning || process.waitForFinished(seconds * milliseconds);
}
