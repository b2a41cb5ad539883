#include "platform/database/SafeCopy.h"
#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/FaultyDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

namespace {

class SafeCopyTest : public ::testing::Test {
protected:
    QString In(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    void Write(const char* name, const QByteArray& bytes) const
    {
        QFile file(In(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray Read(const char* name) const
    {
        QFile file(In(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
    }

    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    // What a copy fails with; empty if it doesn't.
    QString Failure(const char* from, const char* to, const SafeCopy::Check& check = {})
    {
        try {
            SafeCopy::Copy(In(from), In(to), check);
        } catch (const RunTimeError& error) {
            m_number = error.Number();
            return error.Happened();
        }
        m_number = 0;
        return {};
    }

    int Copy(const char* from, const char* to, const SafeCopy::Check& check = {})
    {
        Failure(from, to, check);
        return m_number;
    }

private:
    QTemporaryDir m_folder;
    int m_number = 0;
};

TEST_F(SafeCopyTest, ACopyGoesOverWhatHasItsName)
{
    Write("books", "the books of today");
    EXPECT_EQ(Copy("books", "copy"), 0);
    EXPECT_EQ(Read("copy"), "the books of today");
    Write("copy", "an older copy that is longer than the books of today");
    EXPECT_EQ(Copy("books", "copy"), 0);
    EXPECT_EQ(Read("copy"), "the books of today");
    EXPECT_EQ(Read("books"), "the books of today");
    EXPECT_EQ(Names(), QStringList({"books", "copy"})) << "nothing lies beside it";
}

TEST_F(SafeCopyTest, ACopyOfManyMegabytesIsWholeAndTellsHowFarItIs)
{
    QByteArray bytes((5 << 20) + 7, 'x');
    for (qsizetype at = 0; at < bytes.size(); at += 4096)
        bytes[at] = static_cast<char>(at / 4096);
    Write("large", bytes);
    std::vector<qint64> told;
    SafeCopy::Copy(In("large"), In("copy"), {}, [&](qint64 done, qint64 all) {
        EXPECT_EQ(all, bytes.size());
        told.push_back(done);
    });
    EXPECT_TRUE(Read("copy") == bytes);
    ASSERT_EQ(told.size(), 6U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), bytes.size());
    Write("empty", "");
    EXPECT_EQ(Copy("empty", "copy"), 0);
    EXPECT_EQ(Read("copy"), "");
}

TEST_F(SafeCopyTest, ACopyThatIsRefusedLeavesThePlaceAsItWas)
{
    Write("new", "new");
    Write("kept", "kept");
    QString looked;
    EXPECT_EQ(Copy("new", "kept",
                  [&](const QString& copy) {
                      QFile file(copy);
                      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
                      looked = QString::fromUtf8(file.readAll());
                      throw RunTimeError(RunTimeError::DatabaseFailure, "not sound");
                  }),
        RunTimeError::DatabaseFailure);
    EXPECT_EQ(looked, "new") << "the copy is finished when it is looked at";
    EXPECT_EQ(Read("kept"), "kept");
    EXPECT_EQ(Names(), QStringList({"kept", "new"}));
    EXPECT_EQ(Copy("new", "kept", [](const QString&) {}), 0);
    EXPECT_EQ(Read("kept"), "new");
}

TEST_F(SafeCopyTest, WhatAnInterruptedCopyHasLeftIsNoHindrance)
{
    Write("new", "new");
    Write("copy.part", "half of an older and longer copy");
    EXPECT_EQ(Copy("new", "copy"), 0);
    EXPECT_EQ(Read("copy"), "new");
    EXPECT_EQ(Names(), QStringList({"copy", "new"}));
}

TEST_F(SafeCopyTest, WhatCanNotBeCopiedIsARunTimeErrorThatSaysWhy)
{
    Write("a", "a");
    ASSERT_TRUE(QDir().mkpath(In("folder")));
    EXPECT_TRUE(Failure("nothing", "b").contains("\"nothing\" ही फाइल सापडली नाही"));
    EXPECT_EQ(Copy("nothing", "b"), RunTimeError::FileNotFound);
    EXPECT_EQ(Copy("folder", "b"), RunTimeError::FileNotFound) << "a folder is no file";
    EXPECT_TRUE(Failure("a", "no folder/a").contains("फोल्डर सापडले नाही"));
    EXPECT_TRUE(Failure("a", "./a").contains("स्वतःच्या जागी"));
    EXPECT_TRUE(Failure("a", "folder").contains("या नावाचे फोल्डर आहे"));
    EXPECT_EQ(Copy("a", "folder"), RunTimeError::FileAccess);
    EXPECT_EQ(Read("a"), "a");
    EXPECT_EQ(Names(), QStringList("a"));
}

#ifndef Q_OS_WIN
TEST_F(SafeCopyTest, OntoItselfByASecondNameItIsNotCopied)
{
    Write("a", "a");
    ASSERT_TRUE(QFile::link(In("a"), In("link")));
    EXPECT_TRUE(Failure("a", "link").contains("स्वतःच्या जागी"));
    ASSERT_EQ(::link(QFile::encodeName(In("a")).constData(), QFile::encodeName(In("twin")).constData()), 0);
    EXPECT_TRUE(Failure("a", "twin").contains("स्वतःच्या जागी"));
    EXPECT_EQ(Read("a"), "a");
}

TEST_F(SafeCopyTest, IntoAFolderWithoutRightsNothingIsWritten)
{
    Write("a", "a");
    ASSERT_TRUE(QDir().mkpath(In("closed")));
    QFile::setPermissions(In("closed"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    EXPECT_TRUE(Failure("a", "closed/a").contains("लिहिता येत नाही"));
    EXPECT_EQ(QDir(In("closed")).entryList(QDir::Files), QStringList());
}

TEST_F(SafeCopyTest, ACopyIsForItsOwnerAlone)
{
    Write("a", "a");
    QFile::setPermissions(In("a"), QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    EXPECT_EQ(Copy("a", "b"), 0);
    EXPECT_EQ(QFile::permissions(In("b")) & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
        QFileDevice::Permissions());
}
#endif

TEST_F(SafeCopyTest, ADiskThatIsFullOrGoneLeavesTheOlderCopyAndNothingElse)
{
    FaultyDisk::InstallForCopies();
    Write("a", QByteArray(3 << 20, 'a'));
    Write("b", "older");
    FaultyDisk::Reset();
    ASSERT_EQ(Copy("a", "copy"), 0);
    const int changes = FaultyDisk::Count();
    ASSERT_GE(changes, 5) << "three writes, the sync and the renaming";
    ASSERT_TRUE(QFile::remove(In("copy")));
    const int renaming = changes - 1; // the last one is the sync of the folder
    for (int n = 1; n <= renaming; ++n) {
        FaultyDisk::Reset();
        FaultyDisk::FullFrom(n);
        EXPECT_TRUE(Failure("a", "b").contains("डिस्कवर जागा नाही")) << n;
        FaultyDisk::Reset();
        FaultyDisk::BrokenFrom(n);
        EXPECT_TRUE(Failure("a", "b").contains("ड्राइव्ह जोडलेला आहे का")) << n;
        FaultyDisk::Reset();
        EXPECT_EQ(Read("b"), "older") << n;
        EXPECT_EQ(Names(), QStringList({"a", "b"})) << n;
    }
}

TEST_F(SafeCopyTest, NothingIsCopiedOutOfOrIntoBooksThatAreOpen)
{
    Write("copy", "copy");
    Connection books;
    books.Create(In("Morvelta.mdb"), "word");
    books.RunScript("create table T(A); insert into T values(1)");
    for (const char* name : {"Morvelta.mdb", "./Morvelta.mdb", "Morvelta.mdb-wal", "Morvelta.mdb-shm"}) {
        EXPECT_TRUE(Failure(name, "b").contains("उघडी आहे")) << name;
        EXPECT_TRUE(Failure("copy", name).contains("उघडी आहे")) << name;
    }
#ifndef Q_OS_WIN
    ASSERT_TRUE(QFile::link(In("Morvelta.mdb"), In("link")));
    EXPECT_TRUE(Failure("link", "b").contains("उघडी आहे")) << "by another name";
    QFile::remove(In("link"));
#endif
    EXPECT_EQ(Recordset(books, u"select A from T").At(0).Number(), 1);
    books.Close();
    EXPECT_EQ(Copy("Morvelta.mdb", "b"), 0);
    EXPECT_EQ(Names(), QStringList({"b", "copy", "Morvelta.mdb"}));
}

}
