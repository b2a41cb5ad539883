#include "delivered/Delivered.h"
#include "platform/database/Connection.h"
#include "platform/report/LayoutCheck.h"
#include "platform/text/RunTimeError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

enum ExitCode { Sound = 0, Faulty = 1, BadArguments = 2 };

// Makes the tables of a new society, without rows.
void MakeTables(Connection& connection, const QTemporaryDir& folder)
{
    connection.Create(folder.filePath(QStringLiteral("tables.mdb")), QStringLiteral("tables"));
    connection.RunScript(Delivered::Schema());
}

int CheckFiles(const QStringList& files)
{
    const QTemporaryDir folder;
    Connection connection;
    MakeTables(connection, folder);
    QTextStream out(stdout);
    bool isSound = true;
    for (const QString& file : files) {
        TemplateFaults faults;
        ReadForLayout(file, connection, faults);
        isSound = isSound && faults.empty();
        for (const TemplateFault& fault : faults)
            out << fault.Line() << '\n';
    }
    return isSound ? Sound : Faulty;
}

}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vetrolan-template"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Checks report templates: one line for each fault, as file:line: text."));
    parser.addPositionalArgument(
        QStringLiteral("file"), QStringLiteral("A template."), QStringLiteral("FILE..."));
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().isEmpty()) {
        QTextStream(stderr) << "vetrolan-template: no file is named; see --help.\n";
        return BadArguments;
    }
    try {
        return CheckFiles(parser.positionalArguments());
    } catch (const RunTimeError& error) {
        QTextStream(stderr) << "vetrolan-template: " << error.Text().simplified() << '\n';
        return BadArguments;
    }
}
