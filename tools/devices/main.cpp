#include "tools/devices/DeviceSimulator.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

constexpr int WrongUse = 2;

// The options of the command line.
struct Wanted {
    DevicePlay play;
    DeviceSimulator::Manner manner;
    std::chrono::milliseconds pause;
    QString link; // empty for no link
};

struct Options {
    const QCommandLineOption liters{QStringLiteral("liters"), QStringLiteral("What stands on the scale."),
        QStringLiteral("number"), QStringLiteral("12.5")};
    const QCommandLineOption fat{QStringLiteral("fat"), QStringLiteral("What the tester has found."),
        QStringLiteral("number"), QStringLiteral("4.2")};
    const QCommandLineOption manner{QStringLiteral("manner"),
        QStringLiteral("How it behaves: ") + DeviceSimulator::Manners().join(QStringLiteral(", ")),
        QStringLiteral("name"), QStringLiteral("prompt")};
    const QCommandLineOption pause{QStringLiteral("pause"),
        QStringLiteral("Milliseconds between two pieces or frames."), QStringLiteral("ms"),
        QStringLiteral("20")};
    const QCommandLineOption command{QStringLiteral("command"),
        QStringLiteral("The question that UDFREAD answers."), QStringLiteral("text"), QStringLiteral("W")};
    const QCommandLineOption link{QStringLiteral("link"),
        QStringLiteral("Makes this link to the terminal for as long as the device plays, such as COM1."),
        QStringLiteral("file")};

    void AddTo(QCommandLineParser& parser) const;
};

void Options::AddTo(QCommandLineParser& parser) const
{
    parser.setApplicationDescription(
        QStringLiteral("Plays a scale or a fat tester on a pseudo-terminal, whose path it prints.\nKinds: ")
        + DevicePlay::Kinds().join(QStringLiteral(", ")));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("KIND"), QStringLiteral("The device to play."));
    parser.addOptions({liters, fat, manner, pause, command, link});
}

int Refuse(const QString& why)
{
    std::fprintf(stderr, "vetrolan-device: %s\n", why.toLocal8Bit().constData());
    return WrongUse;
}

// Reads the options; no value, and the reason in `why`, if they can't be played.
std::optional<Wanted> Read(const QCommandLineParser& parser, const Options& options, QString& why)
{
    if (parser.positionalArguments().size() != 1) {
        why = QStringLiteral("one KIND is needed; see --help");
        return {};
    }
    bool litersRead = false;
    bool fatRead = false;
    bool pauseRead = false;
    const DevicePlay::Measure measure{parser.value(options.liters).toDouble(&litersRead),
        parser.value(options.fat).toDouble(&fatRead), parser.value(options.command).toLatin1()};
    const int pause = parser.value(options.pause).toInt(&pauseRead);
    if (!litersRead || !fatRead || !pauseRead || pause < 0) {
        why = QStringLiteral("liters, fat and pause are numbers");
        return {};
    }
    const auto play = DevicePlay::Of(parser.positionalArguments().constFirst(), measure);
    const auto manner = DeviceSimulator::MannerOf(parser.value(options.manner));
    if (!play || !manner) {
        why = QStringLiteral("no such kind or manner; see --help");
        return {};
    }
    return Wanted{*play, *manner, std::chrono::milliseconds(pause), parser.value(options.link)};
}

// Blocks the signals that end the program in this thread and all that it starts, and returns them.
sigset_t HoldEndSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

// Plays until one of these signals arrives.
int Play(const Wanted& wanted, const sigset_t& endSignals)
{
    const DeviceSimulator device(wanted.play, wanted.manner, wanted.pause);
    if (device.Device().isEmpty())
        return Refuse(QStringLiteral("the system gives no pseudo-terminal"));
    if (!wanted.link.isEmpty() && !QFile::link(device.Device(), wanted.link))
        return Refuse(QStringLiteral("the link can't be made: ") + wanted.link);
    std::printf("%s\n", device.Device().toLocal8Bit().constData());
    std::fflush(stdout);
    int signal = 0;
    sigwait(&endSignals, &signal);
    if (!wanted.link.isEmpty())
        QFile::remove(wanted.link);
    std::printf("received: %s\n", device.Received().constData());
    return 0;
}

}

int main(int argc, char** argv)
{
    const sigset_t endSignals = HoldEndSignals();
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const Options options;
    options.AddTo(parser);
    parser.process(application);
    QString why;
    const std::optional<Wanted> wanted = Read(parser, options, why);
    return wanted ? Play(*wanted, endSignals) : Refuse(why);
}
