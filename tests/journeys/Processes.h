#pragma once

#include <QProcess>

#include <memory>

// Programs beside the tests, each in a process of its own without a desktop.
namespace Processes {

// One that stands in the folder of the test program; `environment` is added to what the tests run in.
std::unique_ptr<QProcess> Start(
    const QString& program, const QStringList& arguments, const QStringList& environment = {});

// Waits for its end, at most so many seconds; false if it is still alive then.
bool WaitForEnd(QProcess& process, int seconds = 30);

}
