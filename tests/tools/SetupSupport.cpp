#include "tests/tools/SetupSupport.h"

#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

SocietyPlan GoodPlan()
{
    SocietyPlan plan;
    plan.name = "श्री दत्त सहकारी दूध संस्था";
    plan.year = "2026-2027";
    plan.password = "Gokul#2026";
    plan.now = QDateTime(QDate(2026, 4, 1), QTime(10, 15, 30));
    return plan;
}

QStringList Shell(const QString& folder, const QString& password, const QString& statements)
{
    QProcess shell;
    shell.start("sqlcipher", {"-batch", QDir(folder).filePath(DatabaseFileName.toString())});
    shell.write(
        (QStringLiteral("PRAGMA key='") % password % QStringLiteral("';\n") % statements % u'\n').toUtf8());
    shell.closeWriteChannel();
    if (!shell.waitForFinished())
        return {"Error: the shell doesn't run"};
    const QString errors = QString::fromUtf8(shell.readAllStandardError());
    if (!errors.isEmpty())
        return {
            errors.startsWith(u"Error") ? errors.trimmed() : QStringLiteral("Error: ") % errors.trimmed()};
    return QString::fromUtf8(shell.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

namespace {

// A folder with a society that lives as long as the tests run.
class SharedSociety {
public:
    explicit SharedSociety(bool demo)
    {
        SocietyPlan plan = GoodPlan();
        plan.demo = demo;
        MakeSociety(m_folder.path(), plan);
        m_path = m_folder.path();
    }
    const QString& Path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

}

const QString& DeliveredFolder()
{
    static const SharedSociety society(false);
    return society.Path();
}

const QString& DemoFolder()
{
    static const SharedSociety society(true);
    return society.Path();
}

QStringList AskDelivered(const QString& statements)
{
    return Shell(DeliveredFolder(), GoodPlan().password, statements);
}

QStringList AskDemo(const QString& statements)
{
    return Shell(DemoFolder(), GoodPlan().password, statements);
}

QByteArray FileContent(const QString& file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QStringList FilesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

QStringList BooksIn(const QString& folder)
{
    QStringList names = FilesIn(folder);
    names.removeIf([](const QString& name) { return name.endsWith(".rpt") || name == "Checked.txt"; });
    return names;
}

void LeaveAsAfterAPowerCut(const QString& from, const QString& to)
{
    DataSource::Register("SetupTestCut", QDir(from).filePath(DatabaseFileName.toString()));
    Connection connection;
    connection.Open(QStringLiteral("dsn=SetupTestCut;pwd=") % GoodPlan().password);
    connection.Execute("INSERT INTO CityMaster(CompanyId,CityName) VALUES(1,'masaUr')");
    ASSERT_TRUE(QDir().mkpath(to));
    for (const char* name : {"Morvelta.mdb", "Morvelta.mdb-wal", "PWD.TXT"}) {
        const QString file = QString::fromLatin1(name);
        ASSERT_TRUE(QFile::copy(QDir(from).filePath(file), QDir(to).filePath(file))) << name;
    }
    WriteTemplates(to);
}

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
