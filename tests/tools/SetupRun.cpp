#include "tests/tools/SetupRun.h"

#include <gtest/gtest.h>

#include <QProcess>

Ran RunSetup(const QStringList& arguments, const QString& home, const QByteArray& input)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    if (!home.isEmpty())
        environment.insert("XDG_DATA_HOME", home);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(SETUP_PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished() || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
        QString::fromUtf8(program.readAllStandardError())};
}

QStringList Arguments(const QString& folder)
{
    return {
        "--society", "जय किसान दूध संस्था", "--year", "2026-2027", "--password", "secret", "--folder", folder};
}

QStringList With(QStringList arguments, QStringView option, const QString& value)
{
    arguments[arguments.indexOf(option.toString()) + 1] = value;
    return arguments;
}

void ExpectRefusal(const Ran& run, int exitCode, QStringView word)
{
    EXPECT_EQ(run.exitCode, exitCode);
    EXPECT_EQ(run.out, QString());
    EXPECT_TRUE(run.err.startsWith(u"vetrolan-setup: ")) << run.err.toStdString();
    EXPECT_EQ(run.err.count(u'\n'), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(word)) << run.err.toStdString();
}
