#include "tests/utilities/BackupTest.h"

#include "core/start/BooksOpening.h"
#include "platform/forms/FolderList.h"

#include <QDir>
#include <QFile>

namespace {

QString LocalOf(const char* path)
{
    return LocalPath(QString::fromUtf8(path));
}

// The entry of a list that reads so, without its indent.
int EntryOf(const MenuList& list, const char* text)
{
    for (std::size_t at = 0; at < list.Entries().size(); ++at)
        if (list.Entries()[at].Seen().trimmed() == QString::fromUtf8(text))
            return static_cast<int>(at);
    ADD_FAILURE() << "no entry " << text;
    return -1;
}

void Choose(Clerk& clerk, const char* list, const char* entry)
{
    auto* found = dynamic_cast<MenuList*>(clerk.Top().Find(QString::fromLatin1(list)));
    clerk.Do([&] {
        found->SetFocus();
        found->SetCurrentIndex(EntryOf(*found, entry));
    });
    clerk.Type(QStringLiteral("{ENTER}"));
}

}

BackupTest::BackupTest()
{
    World::Current().fileSystem = &Drives;
    AddMember(1, "rama");
    QDir().mkpath(LocalOf("D:\\"));
}

void BackupTest::OnBackup(const std::function<void(Clerk&)>& script)
{
    On<frmBackup>(script);
    EXPECT_FALSE(Failure) << Failure->what();
}

void BackupTest::BackUpAsHistory(Clerk& clerk)
{
    clerk.Do([&] { clerk.Top().Find(u"cmbBackupType")->SetFocus(); });
    Type(clerk, "2");
    EXPECT_EQ(Reads(clerk, "cmbBackupType"), "ihsTrI");
    BackUp(clerk);
}

void BackupTest::OpenDrive(Clerk& clerk, const char* root)
{
    Choose(clerk, "Drive1", root);
}

void BackupTest::OpenFolder(Clerk& clerk, const char* name)
{
    Choose(clerk, "Dir1", name);
}

void BackupTest::SetName(Clerk& clerk, const QString& name)
{
    clerk.Do([&] { dynamic_cast<Field*>(clerk.Top().Find(u"Text1"))->SetText(name); });
}

int BackupTest::LooksAtTheCopying(Clerk& clerk, const char* button)
{
    const auto& animation = *clerk.Top().findChild<QWidget*>("Animation1");
    const auto& bar = *clerk.Top().findChild<QLabel*>("lblBack");
    int looks = 0;
    const LookingDisk disk([&] {
        ++looks;
        EXPECT_TRUE(animation.isVisible()) << looks;
        EXPECT_TRUE(bar.isVisible()) << looks;
        EXPECT_FALSE(gCn.IsOpen()) << looks;
    });
    EXPECT_FALSE(animation.isVisible());
    Press(clerk, button);
    EXPECT_FALSE(animation.isVisible());
    EXPECT_FALSE(bar.isVisible());
    return looks;
}

QStringList BackupTest::Painted(Clerk& clerk, const char* button)
{
    std::unique_ptr<PaintedSentences> painted;
    clerk.Do([&] { painted = std::make_unique<PaintedSentences>(clerk.Top()); });
    Press(clerk, button);
    QStringList seen;
    clerk.Do([&] {
        seen = painted->Seen;
        painted.reset();
    });
    return seen;
}

bool BackupTest::IsThere(const char* path)
{
    return QFile::exists(LocalOf(path));
}

QByteArray BackupTest::Bytes(const char* path)
{
    QFile file(LocalOf(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void BackupTest::Put(const char* path, const QByteArray& bytes)
{
    QFile file(LocalOf(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void BackupTest::MakeFolder(const char* path)
{
    ASSERT_TRUE(QDir().mkpath(LocalOf(path)));
}

QStringList BackupTest::FilesIn(const char* folder)
{
    return QDir(LocalOf(folder)).entryList(QDir::Files);
}

int BackupTest::Members()
{
    ReopenBooks();
    return One("select count(*) from MembersMaster").toInt();
}
