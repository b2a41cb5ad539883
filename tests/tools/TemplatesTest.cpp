#include "delivered/Delivered.h"
#include "platform/text/RunTimeError.h"
#include "tests/tools/SetupSupport.h"
#include "tests/tools/TestDisk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace {

const QString Slip = "MilkReceipt1.rpt";
const QDateTime Now(QDate(2026, 4, 1), QTime(10, 15, 30));

class TemplatesTest : public testing::Test {
protected:
    QString Folder() const { return m_dir.filePath("books"); }
    QString File(const QString& name) const { return QDir(Folder()).filePath(name); }

    void Put(const QString& name, const QByteArray& content) const
    {
        QFile file(File(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    // The templates in the folder that aren't as they were delivered.
    QStringList Differing() const
    {
        QStringList names;
        for (const Delivered::File& file : Delivered::Templates())
            if (FileContent(File(file.name)) != file.content)
                names.append(file.name);
        return names;
    }

    static QByteArray ContentOf(const QString& name)
    {
        for (const Delivered::File& file : Delivered::Templates())
            if (file.name == name)
                return file.content;
        return {};
    }

    QTemporaryDir m_dir;
};

TEST_F(TemplatesTest, DeliveredAreThoseOfTheFolderOfTemplates)
{
    const QDir folder(QStringLiteral(TEMPLATES_FOLDER));
    QStringList delivered;
    for (const Delivered::File& file : Delivered::Templates()) {
        delivered.append(file.name);
        EXPECT_EQ(file.content, FileContent(folder.filePath(file.name))) << file.name.toStdString();
    }
    delivered.sort();
    QStringList shipped = folder.entryList({"*.rpt"}, QDir::Files);
    shipped.sort();
    EXPECT_EQ(delivered.join(u'\n'), shipped.join(u'\n'));
}

TEST_F(TemplatesTest, AreWrittenIntoANewFolder)
{
    WriteTemplates(Folder(), Now);
    EXPECT_EQ(Differing(), QStringList());
    EXPECT_EQ(FilesIn(Folder()).size(), static_cast<int>(Delivered::Templates().size()));
}

TEST_F(TemplatesTest, WrittenAgainTouchNothing)
{
    WriteTemplates(Folder(), Now);
    const TestDisk disk;
    WriteTemplates(Folder(), Now);
    EXPECT_EQ(disk.Done(), QStringList());
}

TEST_F(TemplatesTest, OneThatTheSocietyHasChangedIsKeptUnderADate)
{
    WriteTemplates(Folder(), Now);
    Put(Slip, "our own");
    WriteTemplates(Folder(), Now);
    EXPECT_EQ(Differing(), QStringList());
    EXPECT_EQ(FileContent(File("MilkReceipt1-2026-04-01-101530.rpt")), "our own");
    Put(Slip, "another");
    WriteTemplates(Folder(), Now);
    EXPECT_EQ(FileContent(File("MilkReceipt1-2026-04-01-101530.rpt")), "our own");
    EXPECT_EQ(FileContent(File("MilkReceipt1-2026-04-01-101530-2.rpt")), "another");
}

TEST_F(TemplatesTest, CutAnywhereOneIsTheOldOneOrTheNewOneAndTheOldOneIsKept)
{
    int changes = 0;
    for (int n = 1; n == 1 || n <= changes; ++n) {
        SCOPED_TRACE("cut at change " + std::to_string(n));
        QDir(Folder()).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(Folder()));
        Put(Slip, "our own");
        if (n == 1) {
            const TestDisk disk;
            WriteTemplate(Folder(), Slip, Now);
            changes = disk.Count();
            ASSERT_GT(changes, 3);
            continue;
        }
        EXPECT_EXIT(
            {
                TestDisk disk;
                disk.CutAt = n - 1;
                WriteTemplate(Folder(), Slip, Now);
            },
            testing::ExitedWithCode(TestDisk::PowerCut), "");
        if (FileContent(File(Slip)) != "our own") {
            EXPECT_EQ(FileContent(File(Slip)), ContentOf(Slip));
            EXPECT_EQ(FileContent(File("MilkReceipt1-2026-04-01-101530.rpt")), "our own");
        }
        WriteTemplate(Folder(), Slip, Now);
        EXPECT_EQ(FileContent(File(Slip)), ContentOf(Slip));
    }
}

TEST_F(TemplatesTest, ADiskThatFailsIsToldAndLeavesTheOldOneAndNothingHalf)
{
    ASSERT_TRUE(QDir().mkpath(Folder()));
    Put(Slip, "our own");
    {
        TestDisk disk;
        disk.FailAt = 1;
        EXPECT_THROW(WriteTemplate(Folder(), Slip, Now), RunTimeError);
    }
    EXPECT_EQ(FileContent(File(Slip)), "our own");
    EXPECT_EQ(FilesIn(Folder()), QStringList(Slip));
}

TEST_F(TemplatesTest, OneThatIsNotDeliveredIsAnError)
{
    EXPECT_THROW(WriteTemplate(Folder(), "Nothing.rpt", Now), RunTimeError);
    EXPECT_FALSE(QDir(Folder()).exists());
}

}
