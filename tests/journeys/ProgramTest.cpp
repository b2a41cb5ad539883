#include "tests/journeys/ProgramTest.h"

#include "Screens.h"
#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "tests/support/BooksFile.h"

#include <QDir>

#include <algorithm>
#include <iterator>

ProgramTest::ProgramTest()
{
    RegisterScreens();
}

int ProgramTest::Start(const std::function<void(Clerk&)>& script)
{
    gCn.Close();
    int exitCode = -1;
    Failure = TheClerk.Play([&] { exitCode = RunProgram(); }, script);
    EXPECT_FALSE(Failure) << "the script failed: " << Failure->what();
    EXPECT_FALSE(gCn.IsOpen());
    return exitCode;
}

void ProgramTest::Reopen()
{
    gCn.Close();
    LoadAppState();
}

QStringList ProgramTest::AllRows()
{
    QStringList rows;
    for (const std::string& name : BooksFile::TablesOf(gCn.Handle())) {
        const QString table = QString::fromStdString(name);
        for (Recordset row(gCn, Sql(u"select * from ", table)); !row.Eof(); row.MoveNext()) {
            QString line = table;
            for (int at = 0; at < row.Columns(); ++at)
                line += u'|' + (row.At(at).IsNull() ? QStringLiteral("NULL") : row.At(at).Text());
            rows.append(line);
        }
    }
    rows.sort();
    return rows;
}

std::string ProgramTest::Difference(const QStringList& before, const QStringList& after)
{
    QStringList gone;
    QStringList come;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(), std::back_inserter(gone));
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(come));
    std::string difference;
    for (const QString& line : gone)
        difference += "- " + line.left(300).toStdString() + '\n';
    for (const QString& line : come)
        difference += "+ " + line.left(300).toStdString() + '\n';
    return difference;
}

std::string ProgramTest::Integrity()
{
    return BooksFile::IntegrityOf(gCn.Handle());
}

QString ProgramTest::Drives()
{
    return QDir::cleanPath(LocalPath(u"C:\\") + "/..");
}

int ProgramTest::Boxes(const char* text) const
{
    return static_cast<int>(TheBox.Shown.filter(QString::fromUtf8(text)).size());
}

QStringList Lines(std::initializer_list<const char*> lines)
{
    QStringList list;
    for (const char* line : lines)
        list.append(QString::fromLatin1(line));
    return list;
}
