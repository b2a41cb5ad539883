#include "platform/shell/AppFolder.h"
#include "platform/shell/Privacy.h"
#include "platform/shell/SingleInstance.h"
#include "platform/text/FileRights.h"
#include "platform/text/RunTimeError.h"
#include "tools/setup/AskedPassword.h"
#include "tools/setup/Copies.h"
#include "tools/setup/SafeFiles.h"
#include "tools/setup/Society.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <optional>

namespace {

enum ExitCode { Done = 0, Failed = 1, BadArguments = 2 };

struct Options {
    QCommandLineOption society{
        QStringLiteral("society"), QStringLiteral("The society's name, in Marathi."), QStringLiteral("NAME")};
    QCommandLineOption year{QStringLiteral("year"), QStringLiteral("The accounting year, such as 2026-2027."),
        QStringLiteral("YEAR")};
    QCommandLineOption password{QStringLiteral("password"),
        QStringLiteral("The database's password: English letters, digits and marks. Left out, or -, it is "
                       "asked for, unseen, or read from the standard input: a WORD given here stands in the "
                       "shell's history."),
        QStringLiteral("WORD")};
    QCommandLineOption demo{QStringLiteral("demo"),
        QStringLiteral(
            "Add 40 members, their customers, two months of deliveries, advances and the last payment "
            "of April, to try the program on.")};
    QCommandLineOption replace{QStringLiteral("replace"),
        QStringLiteral("Keep an older database under a dated name, and make a new one in its place.")};
    QCommandLineOption folder{QStringLiteral("folder"),
        QStringLiteral("Where to put it, if not where the program looks for it."), QStringLiteral("DIR")};
    QCommandLineOption templates{QStringLiteral("templates"),
        QStringLiteral("Only write the report templates anew, beside the books that are there. One that the "
                       "society has changed is kept under a dated name.")};
    QCommandLineOption federation{QStringLiteral("federation"),
        QStringLiteral("The federation that buys the milk, in Marathi: it gets an account, under which the "
                       "reports look for it. Left out, it is asked for."),
        QStringLiteral("NAME")};
    QCommandLineOption check{QStringLiteral("check"),
        QStringLiteral("Only look into a copy of the books: whether it is whole, and what lies in it."),
        QStringLiteral("FILE")};
    QCommandLineOption restore{QStringLiteral("restore"),
        QStringLiteral(
            "Only bring a copy of the books back, under whatever name. It is checked first, and the "
            "books that it replaces are kept in the folder of the backups."),
        QStringLiteral("FILE")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this.")};
};

int Complain(ExitCode code, const QString& sentence)
{
    QString line = sentence.simplified();
    QTextStream(stderr) << "vetrolan-setup: " << line << '\n';
    return code;
}

// What is wrong with the arguments, in one sentence; empty if nothing.
QString WhyUnusable(const QCommandLineParser& parser, const Options& options)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("\"%1\" isn't an option; see --help.")
            .arg(parser.positionalArguments().first());
    QString only;
    for (const QCommandLineOption& alone : {options.templates, options.check, options.restore}) {
        const QString name = alone.names().first();
        if (parser.isSet(alone) && !only.isEmpty())
            return QStringLiteral("--%1 doesn't go with --%2.").arg(name, only);
        if (parser.isSet(alone))
            only = name;
    }
    const bool makes = only.isEmpty();
    for (const QCommandLineOption& needless : {options.society, options.year, options.password,
             options.federation, options.demo, options.replace}) {
        const QString name = needless.names().first();
        const bool opensWithIt = only == u"check" && name == u"password";
        if (!makes && parser.isSet(needless) && !opensWithIt)
            return QStringLiteral("--%1 doesn't go with --%2.").arg(name, only);
    }
    for (const QCommandLineOption& needed : {options.society, options.year})
        if (makes && !parser.isSet(needed))
            return QStringLiteral("--%1 is missing; see --help.").arg(needed.names().first());
    return {};
}

QString PasswordFor(const QCommandLineParser& parser, const Options& options)
{
    const QString given = parser.value(options.password);
    const bool asks = !parser.isSet(options.password) || given == u"-";
    return asks ? AskedPassword::Read() : given;
}

// The name that the account of the federation gets if nobody says another.
constexpr QStringView UsualFederation = u"जिल्हा दूध संघ";

// The federations of the demonstration have names already.
QString FederationFor(const QCommandLineParser& parser, const Options& options)
{
    if (parser.isSet(options.federation) || parser.isSet(options.demo))
        return parser.value(options.federation);
    const QString typed =
        AskedLine(QStringLiteral("Federation that buys the milk [%1]: ").arg(UsualFederation)).trimmed();
    return typed.isEmpty() ? UsualFederation.toString() : typed;
}

// The search screen looks for its receipt template in this folder, that of an older program.
constexpr QStringView OlderFolder = u"C:\\Tarvel01\\Sorvelan\\";
constexpr QStringView OlderTemplate = u"MilkReceiptAtk.rpt";

// Where the society is made: in a folder given by the user, or where the program looks for it.
class Place {
public:
    explicit Place(const QString& named) : m_named(named) { }

    QString Folder() const { return m_named.isEmpty() ? LocalPath(Paths::AppFolder) : m_named; }

    // Takes the rights to existing files from other users. A folder that the user named may hold other
    // things, so there only the files of a society are changed.
    void KeepToOwner() const
    {
        if (m_named.isEmpty())
            return Privacy::KeepToOwner(Folder());
        const QDir folder(m_named);
        for (const QString& name : folder.entryList(
                 {QStringLiteral("Morvelta*"), QStringLiteral("PWD*.TXT"), BackupFolderName.toString()}))
            Privacy::KeepToOwner(folder.filePath(name));
    }

    void WriteOlderTemplate() const
    {
        if (m_named.isEmpty())
            WriteTemplate(LocalPath(OlderFolder), OlderTemplate.toString());
    }

private:
    QString m_named;
};

int RenewTemplates(const Place& place)
{
    if (!QDir(place.Folder()).exists())
        return Complain(Failed,
            QStringLiteral("There is no society in %1.").arg(QDir::toNativeSeparators(place.Folder())));
    const SingleInstance lock(place.Folder());
    if (!lock.Taken())
        return Complain(Failed, QStringLiteral("The books are open in the program; close it first."));
    WriteTemplates(place.Folder());
    place.WriteOlderTemplate();
    QTextStream(stdout) << QDir::toNativeSeparators(place.Folder()) << '\n';
    return Done;
}

void Tell(const QString& file, const QString& what, const BooksContent& content)
{
    const QString day = content.newestDay.isValid() ? content.newestDay.toString(QStringLiteral("dd/MM/yyyy"))
                                                    : QStringLiteral("none");
    QTextStream out(stdout);
    out << QDir::toNativeSeparators(file) << ' ' << what << ": " << content.deliveries << " deliveries, "
        << content.members << " members, " << content.payments << " payments, newest day " << day << '\n';
    if (HasOwnLog(file))
        out << "A log lies beside it; what stands in the log is not in the copy.\n";
}

int CheckCopy(const Place& place, const QString& file, const std::optional<QString>& password)
{
    const QString opening = password ? *password : PasswordIn(place.Folder());
    Tell(file, QStringLiteral("is whole"), BooksCopies::Check(file, opening));
    return Done;
}

int RestoreCopy(const Place& place, const QString& file)
{
    if (!QDir(place.Folder()).exists())
        return Complain(Failed,
            QStringLiteral("There is no society in %1.").arg(QDir::toNativeSeparators(place.Folder())));
    const SingleInstance lock(place.Folder());
    if (!lock.Taken())
        return Complain(Failed, QStringLiteral("The books are open in the program; close it first."));
    place.KeepToOwner();
    Tell(file, QStringLiteral("is back"), RestoreBooks(place.Folder(), file, QDateTime::currentDateTime()));
    return Done;
}

int Make(const Place& place, const SocietyPlan& plan)
{
    const QString folder = place.Folder();
    SafeFiles::MakeFolder(folder);
    const SingleInstance lock(folder);
    if (!lock.Taken())
        return Complain(Failed, QStringLiteral("The books are open in the program; close it first."));
    place.KeepToOwner();
    MakeSociety(folder, plan);
    place.WriteOlderTemplate();
    QTextStream(stdout) << plan.name << ' ' << plan.year << ": "
                        << QDir::toNativeSeparators(QDir(folder).filePath(DatabaseFileName.toString()))
                        << '\n';
    return Done;
}

}

int main(int argc, char* argv[])
{
    FileRights::KeepPrivate();
    Privacy::ForbidCores();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vetrolan-setup"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes the books of a new society: the database, its password's "
                       "file, the folder of the backups and the report templates. If the power fails "
                       "meanwhile, run it again: the "
                       "older books are still there, in their place or under a dated name."));
    const Options options;
    parser.addOptions({options.society, options.year, options.password, options.demo, options.replace,
        options.folder, options.templates, options.federation, options.check, options.restore, options.help});
    if (!parser.parse(QCoreApplication::arguments()))
        return Complain(BadArguments, parser.errorText());
    if (parser.isSet(options.help)) {
        QTextStream(stdout) << parser.helpText();
        return Done;
    }
    const QString unusable = WhyUnusable(parser, options);
    if (!unusable.isEmpty())
        return Complain(BadArguments, unusable);

    const Place place(parser.value(options.folder));
    try {
        if (parser.isSet(options.templates))
            return RenewTemplates(place);
        if (parser.isSet(options.check))
            return CheckCopy(place, parser.value(options.check),
                parser.isSet(options.password) ? std::optional(PasswordFor(parser, options)) : std::nullopt);
        if (parser.isSet(options.restore))
            return RestoreCopy(place, parser.value(options.restore));
        SocietyPlan plan;
        plan.name = parser.value(options.society);
        plan.year = parser.value(options.year);
        plan.federation = FederationFor(parser, options);
        plan.password = PasswordFor(parser, options);
        plan.demo = parser.isSet(options.demo);
        plan.replace = parser.isSet(options.replace);
        const QString refused = WhyRefused(plan);
        return refused.isEmpty() ? Make(place, plan) : Complain(BadArguments, refused);
    } catch (const RunTimeError& error) {
        return Complain(Failed, error.Happened());
    }
}
