#pragma once

#include "tests/platform/database/DatabaseTest.h"

#include "platform/database/Transaction.h"

#include <QDir>
#include <QFile>

#include <optional>

// Books with a log beside them, and what a killed program or a power cut leaves of both.
class LogTest : public DatabaseTest {
protected:
    LogTest() { connection.Fold(); }

    void Add(const char* town)
    {
        Transaction saving(connection);
        connection.Execute(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                               .arg(QLatin1String(town)));
        saving.Commit();
    }

    QString Towns() { return TownsOf(connection); }

    static QString TownsOf(Connection& books)
    {
        QStringList towns;
        for (Recordset rows(books, "select CityName from CityMaster"); !rows.Eof(); rows.MoveNext())
            towns.append(rows.At(0).Text());
        return towns.join(u' ');
    }

    // The books as the installer leaves them: the program hasn't marked them yet.
    void MakeUnmarkedBooks()
    {
        connection.Close();
        for (const char* ending : {"", "-wal", "-shm"})
            QFile::remove(file + QLatin1String(ending));
        connection.Create(file, TestPassword);
        connection.RunScript(QString::fromUtf8(TestTables));
        FoldAsTheShellDoes();
    }

    void FoldAsTheShellDoes()
    {
        ASSERT_EQ(sqlite3_wal_checkpoint_v2(
                      connection.Handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr),
            SQLITE_OK);
    }

    // A fold that another connection's reading breaks off: the marks of its beginning are in the log, and of
    // the pages some have come into the file.
    void BreakOffAFold()
    {
        m_reader.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + TestPassword);
        m_reading.emplace(m_reader, "select * from CityMaster");
        Add("tIna");
        ASSERT_FALSE(connection.Fold());
    }

    // A folder with file, log and index as a killed program or a power cut leaves them; the engine doesn't
    // get to see that they were copied.
    QString Left(const QString& name)
    {
        const QString to = folder.filePath(name);
        EXPECT_TRUE(QDir().mkpath(to));
        for (const char* ending : {"", "-wal", "-shm"}) {
            const QString from = file + QLatin1String(ending);
            EXPECT_TRUE(!QFile::exists(from) || QFile::copy(from, to + Name + QLatin1String(ending)));
        }
        return to + Name;
    }

    QStringList OpenAgain(const QString& books, const OpeningPlan& plan = {})
    {
        DataSource::Register("Left", books);
        return again.Open(QStringLiteral("dsn=Left;pwd=") + TestPassword, plan);
    }

    // What the opening says when it fails.
    QString Failure(const QString& books, const OpeningPlan& plan = {})
    {
        try {
            OpenAgain(books, plan);
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        ADD_FAILURE() << "it opened";
        return {};
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile read(path);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly)) << path.toStdString();
        return read.readAll();
    }

    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile write(path);
        ASSERT_TRUE(write.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(write.write(bytes), bytes.size());
    }

    // Makes a file so much younger.
    static void Age(const QString& path, int seconds)
    {
        QFile touched(path);
        ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
        ASSERT_TRUE(touched.setFileTime(
            QFileInfo(path).lastModified().addSecs(seconds), QFileDevice::FileModificationTime));
    }

    static QStringList LogsAside(const QString& books)
    {
        return QFileInfo(books).dir().entryList({"Morvelta-*.mdb-wal"}, QDir::Files);
    }

    const QString Name = QStringLiteral("/Morvelta.mdb");
    Connection again;

private:
    Connection m_reader;
    std::optional<Recordset> m_reading;
};
