#include "DeviceSimulator.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

constexpr int WrongUse = 2;

int Refuse(const QString& why)
{
    std::fprintf(stderr, "vetrolan-device: %s\n", why.toLocal8Bit().constData());
    return WrongUse;
}

// Blocks until the shell ends the program. The signals were blocked before the device's thread began.
void AwaitEnd(const sigset_t& signals)
{
    int signal = 0;
    sigwait(&signals, &signal);
}

}

int main(int argc, char** argv)
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);

    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Plays a scale or a fat tester on a pseudo-terminal, whose path it prints.\nKinds: ")
        + DevicePlay::Kinds().join(QStringLiteral(", ")));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("KIND"), QStringLiteral("The device to play."));
    const QCommandLineOption liters(QStringLiteral("liters"), QStringLiteral("What stands on the scale."),
        QStringLiteral("number"), QStringLiteral("12.5"));
    const QCommandLineOption fat(QStringLiteral("fat"), QStringLiteral("What the tester has found."),
        QStringLiteral("number"), QStringLiteral("4.2"));
    const QCommandLineOption manner(QStringLiteral("manner"),
        QStringLiteral("How it behaves: ") + DeviceSimulator::Manners().join(QStringLiteral(", ")),
        QStringLiteral("name"), QStringLiteral("prompt"));
    const QCommandLineOption pause(QStringLiteral("pause"),
        QStringLiteral("Milliseconds between two pieces or frames."), QStringLiteral("ms"),
        QStringLiteral("20"));
    const QCommandLineOption command(QStringLiteral("command"),
        QStringLiteral("The question that UDFREAD answers."), QStringLiteral("text"), QStringLiteral("W"));
    const QCommandLineOption link(QStringLiteral("link"),
        QStringLiteral("Makes this link to the terminal for as long as the device plays, such as COM1."),
        QStringLiteral("file"));
    parser.addOptions({liters, fat, manner, pause, command, link});
    parser.process(application);

    if (parser.positionalArguments().size() != 1)
        return Refuse(QStringLiteral("one KIND is needed; see --help"));
    bool litersRead = false;
    bool fatRead = false;
    bool pauseRead = false;
    const DevicePlay::Measure measure{parser.value(liters).toDouble(&litersRead),
        parser.value(fat).toDouble(&fatRead), parser.value(command).toLatin1()};
    const int pauseLength = parser.value(pause).toInt(&pauseRead);
    if (!litersRead || !fatRead || !pauseRead || pauseLength < 0)
        return Refuse(QStringLiteral("liters, fat and pause are numbers"));
    const auto play = DevicePlay::Of(parser.positionalArguments().constFirst(), measure);
    const auto how = DeviceSimulator::MannerOf(parser.value(manner));
    if (!play || !how)
        return Refuse(QStringLiteral("no such kind or manner; see --help"));

    const DeviceSimulator device(*play, *how, std::chrono::milliseconds(pauseLength));
    if (device.Device().isEmpty())
        return Refuse(QStringLiteral("the system gives no pseudo-terminal"));
    if (parser.isSet(link) && !QFile::link(device.Device(), parser.value(link)))
        return Refuse(QStringLiteral("the link can't be made: ") + parser.value(link));
    std::printf("%s\n", device.Device().toLocal8Bit().constData());
    std::fflush(stdout);
    AwaitEnd(signals);
    if (parser.isSet(link))
        QFile::remove(parser.value(link));
    std::printf("received: %s\n", device.Received().constData());
    return 0;
}
