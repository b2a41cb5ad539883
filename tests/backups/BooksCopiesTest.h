#pragma once

#include "backups/BooksCopies.h"
#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/FaultyDisk.h"
#include "tools/setup/Society.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// A society with two members and three deliveries, its books closed.
class BooksCopiesTest : public ::testing::Test {
protected:
    BooksCopiesTest()
    {
        SocietyPlan plan;
        plan.name = "श्री गणेश दूध संस्था";
        plan.year = "2026-2027";
        plan.password = Password;
        plan.now = Now;
        CopySociety(m_folder.path(), plan);
        DataSource::Register("TestCopies", Books());
        OnBooks([](Connection& books) {
            books.RunScript("begin;insert into MembersMaster(CompanyId,MemberNo) values(1,1),(1,2);"
                            "insert into MilkCollections(CompanyId,CollectionDate) "
                            "values(1,'2026-04-14'),(1,'2026-04-15'),(1,'2026-04-13');"
                            "insert into MilkPayments(CompanyId,MemberNo) values(1,1);commit");
        });
    }
    ~BooksCopiesTest() override { FaultyDisk::Reset(); }

    QString In(const QString& name) const { return m_folder.filePath(name); }
    QString Books() const { return In("Morvelta.mdb"); }
    QString Copy() const { return In("Backup/Morvelta.mdb"); }

    template <class Act> void OnBooks(Act act) const
    {
        Connection books;
        books.Open(QStringLiteral("dsn=TestCopies;pwd=") + Password);
        act(books);
    }

    static void AddMemberTo(Connection& books)
    {
        books.RunScript("insert into MembersMaster(CompanyId,MemberNo) "
                        "select 1,max(MemberNo)+1 from MembersMaster");
    }

    void AddMember() const { OnBooks(AddMemberTo); }

    int Members() const
    {
        int members = 0;
        OnBooks([&](Connection& books) {
            members =
                static_cast<int>(Recordset(books, u"select count(*) from MembersMaster").At(0).Number());
        });
        return members;
    }

    RestorePlan Plan(const QString& copy) const
    {
        RestorePlan plan;
        plan.copy = copy;
        plan.books = Books();
        plan.keptFolder = In("Backup");
        plan.password = Password;
        plan.now = Now;
        return plan;
    }

    QStringList InBackup() const { return QDir(In("Backup")).entryList(QDir::Files); }

    template <class Act> static QString FailureOf(Act act)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            return error.Happened();
        }
        return {};
    }
    QString BackUpFailure() const
    {
        return FailureOf([&] { BooksCopies::BackUp(Books(), Copy(), Password); });
    }
    QString RestoreFailure(const QString& copy) const
    {
        return FailureOf([&] { BooksCopies::Restore(Plan(copy)); });
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void Put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static void SetWritten(const QString& path, const QDateTime& written)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(written, QFileDevice::FileModificationTime));
    }

    const QString Password = QStringLiteral("Doodh#26");
    const QDateTime Now{QDate(2026, 4, 15), QTime(18, 30, 5)};
    const QString Replaced = QStringLiteral("Morvelta Before 15 April 2026 183005.mdb");

private:
    QTemporaryDir m_folder;
};
