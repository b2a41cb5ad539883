#include "platform/database/ClosedFile.h"
#include "platform/database/DatabaseFile.h"
#include "tests/platform/database/DatabaseTest.h"
#include "tests/support/BooksFile.h"

#include <QDir>
#include <QFile>

namespace {

// Books with some rows, closed, so that all lies in their file.
class ClosedFileTest : public DatabaseTest {
protected:
    ClosedFileTest()
    {
        connection.RunScript("begin;"
                             "insert into CityMaster values(1,'a'),(1,'b'),(1,'c');"
                             "insert into MilkCollections(CollectionDate) "
                             "values('2026-04-14'),('2026-04-15'),('2026-03-31');"
                             "with recursive n(i) as (select 1 union all select i+1 from n where i<300) "
                             "insert into MembersMaster(MemberNo,MemberName) select i,'rama' from n;"
                             "commit");
        m_members = BooksFile::PageOf(connection.Handle(), "MembersMaster");
        connection.Close();
    }

    // What looking into the file fails with; empty if it doesn't.
    QString Failure(const QString& password = TestPassword)
    {
        try {
            ClosedFile(file, password).RequireSound();
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        return {};
    }

    void Flip(qint64 at) const
    {
        QFile books(file);
        ASSERT_TRUE(books.open(QIODevice::ReadWrite));
        books.seek(at);
        const QByteArray byte = books.read(1);
        books.seek(at);
        books.write(QByteArray(1, static_cast<char>(byte[0] ^ 8)));
    }

    int m_members = 0; // the first page of the table
};

TEST_F(ClosedFileTest, ItTellsTheRowsOfEachTableAndTheNewestDay)
{
    const ClosedFile books(file, TestPassword);
    books.RequireSound();
    const QMap<QString, qint64> rows = books.Rows();
    EXPECT_EQ(rows.value("CityMaster"), 3);
    EXPECT_EQ(rows.value("MembersMaster"), 300);
    EXPECT_EQ(rows.value("MilkPayments", -1), 0);
    EXPECT_EQ(rows.size(), 19);
    EXPECT_EQ(books.NewestDay("MilkCollections", "CollectionDate"), QDate(2026, 4, 15));
    EXPECT_FALSE(books.NewestDay("MilkSales", "SalesDate").isValid());
}

TEST_F(ClosedFileTest, NothingIsChangedOrMadeBesideIt)
{
    QFile before(file);
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    const QByteArray bytes = before.readAll();
    const QDateTime written = QFileInfo(file).lastModified();
    {
        const ClosedFile books(file, TestPassword);
        books.RequireSound();
        books.Rows();
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("Morvelta.mdb"));
    }
    before.seek(0);
    EXPECT_TRUE(before.readAll() == bytes);
    EXPECT_EQ(QFileInfo(file).lastModified(), written);
}

TEST_F(ClosedFileTest, AFlippedBitIsFoundAndItsTableIsNamed)
{
    Flip((qint64{m_members} - 1) * DatabaseFile::PageSize + 100);
    EXPECT_TRUE(Failure().contains("\"Morvelta.mdb\" ही फाइल बिघडली आहे (MembersMaster)"))
        << Failure().toStdString();
}

TEST_F(ClosedFileTest, WhatIsNoSoundDatabaseWithThisPasswordIsSaid)
{
    EXPECT_EQ(Failure(), QString());
    EXPECT_TRUE(Failure("another").contains("पासवर्ड वेगळा आहे"));
    EXPECT_TRUE(Failure("").contains("पासवर्ड वेगळा आहे"));
    QFile books(file);
    ASSERT_TRUE(books.open(QIODevice::ReadWrite));
    ASSERT_TRUE(books.resize(books.size() - DatabaseFile::PageSize));
    EXPECT_TRUE(Failure().contains("अपुरी आहे")) << "a page is missing";
    ASSERT_TRUE(books.resize(books.size() - 10));
    EXPECT_TRUE(Failure().contains("अपुरी")) << "a page is cut";
    ASSERT_TRUE(books.resize(0));
    EXPECT_TRUE(Failure().contains("रिकामी"));
    books.write("a letter to the bank");
    books.close();
    EXPECT_TRUE(Failure().contains("हिशेबाची वही नाही"));
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_TRUE(Failure().contains("सापडली नाही"));
    ASSERT_TRUE(QDir().mkpath(file));
    EXPECT_TRUE(Failure().contains("सापडली नाही")) << "a folder is no file";
}

TEST_F(ClosedFileTest, ItIsNamedAsTheClerkKnowsIt)
{
    try {
        ClosedFile(file, "another", "Y2026-2027C1.mdb");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("\"Y2026-2027C1.mdb\""));
    }
}

}
