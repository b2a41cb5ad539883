#include "AppFolder.h"
#include "RunTimeError.h"
#include "SingleInstance.h"
#include "Society.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

namespace {

enum ExitCode { Done = 0, Failed = 1, BadArguments = 2 };

struct Options {
    QCommandLineOption society{
        QStringLiteral("society"), QStringLiteral("The society's name, in Marathi."), QStringLiteral("NAME")};
    QCommandLineOption year{QStringLiteral("year"), QStringLiteral("The accounting year, such as 2026-2027."),
        QStringLiteral("YEAR")};
    QCommandLineOption password{QStringLiteral("password"),
        QStringLiteral("The database's password: English letters, digits and marks."),
        QStringLiteral("WORD")};
    QCommandLineOption demo{QStringLiteral("demo"),
        QStringLiteral(
            "Add 40 members, their customers and two months of deliveries to try the program on.")};
    QCommandLineOption replace{QStringLiteral("replace"),
        QStringLiteral("Keep an older database under a dated name, and make a new one in its place.")};
    QCommandLineOption folder{QStringLiteral("folder"),
        QStringLiteral("Where to put it, if not where the program looks for it."), QStringLiteral("DIR")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this.")};
};

int Complain(ExitCode code, const QString& sentence)
{
    QString line = sentence.simplified();
    QTextStream(stderr) << "vetrolan-setup: " << line << '\n';
    return code;
}

// What the arguments lack, in one sentence; an empty text if nothing.
QString WhyUnusable(const QCommandLineParser& parser, const Options& options)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("\"%1\" isn't an option; see --help.")
            .arg(parser.positionalArguments().first());
    for (const QCommandLineOption& needed : {options.society, options.year, options.password}) {
        if (!parser.isSet(needed))
            return QStringLiteral("--%1 is missing; see --help.").arg(needed.names().first());
    }
    return {};
}

int Make(const QString& folder, const SocietyPlan& plan)
{
    if (!QDir().mkpath(folder))
        return Complain(
            Failed, QStringLiteral("The folder %1 can't be made.").arg(QDir::toNativeSeparators(folder)));
    const SingleInstance lock(folder);
    if (!lock.Taken())
        return Complain(Failed, QStringLiteral("The books are open in the program; close it first."));
    MakeSociety(folder, plan);
    QTextStream(stdout) << plan.name << ' ' << plan.year << ": "
                        << QDir::toNativeSeparators(QDir(folder).filePath(DatabaseFileName.toString()))
                        << '\n';
    return Done;
}

}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vetrolan-setup"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes the books of a new society: the database, its password's "
                       "file and the folder of the backups."));
    const Options options;
    parser.addOptions({options.society, options.year, options.password, options.demo, options.replace,
        options.folder, options.help});
    if (!parser.parse(QCoreApplication::arguments()))
        return Complain(BadArguments, parser.errorText());
    if (parser.isSet(options.help)) {
        QTextStream(stdout) << parser.helpText();
        return Done;
    }
    const QString unusable = WhyUnusable(parser, options);
    if (!unusable.isEmpty())
        return Complain(BadArguments, unusable);

    SocietyPlan plan;
    plan.name = parser.value(options.society);
    plan.year = parser.value(options.year);
    plan.password = parser.value(options.password);
    plan.demo = parser.isSet(options.demo);
    plan.replace = parser.isSet(options.replace);
    const QString refused = WhyRefused(plan);
    if (!refused.isEmpty())
        return Complain(BadArguments, refused);
    try {
        return Make(parser.isSet(options.folder) ? parser.value(options.folder) : LocalPath(AppFolder), plan);
    } catch (const RunTimeError& error) {
        return Complain(Failed, error.Happened());
    }
}
