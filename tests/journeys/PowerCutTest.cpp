#include "platform/shell/AppFolder.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/FaultyDisk.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

// For each action: the books before it, the books after it, and how many writes it takes; then the same
// action again and again, with the disk failing at its first write, at its second, and so on.
class PowerCutTest : public ProgramTest, public ::testing::WithParamInterface<Action> {
protected:
    void SetUp() override
    {
        FaultyDisk::Reset();
        FaultyDisk::Install();
        Reopen();
        FillBooks();
        gCn.Close();
        ASSERT_TRUE(QFile::copy(FolderFile(Database), m_kept.filePath(Database)));
        PlayWithoutFault();
        ASSERT_NE(Difference(m_before, m_after), "") << "the action writes something";
        ASSERT_GT(m_writes, 1);
    }

    void TearDown() override { FaultyDisk::Reset(); }

    // The books of FillBooks, closed, without a trace of what was played on them.
    void Renew()
    {
        gCn.Close();
        for (const QString& name :
            QDir(LocalPath(Paths::AppFolder)).entryList({Database + u'*'}, QDir::Files))
            ASSERT_TRUE(QFile::remove(FolderFile(name)));
        ASSERT_TRUE(QFile::copy(m_kept.filePath(Database), FolderFile(Database)));
    }

    void PlayWithoutFault()
    {
        Start([this](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            m_before = AllRows();
            FaultyDisk::Reset();
            clerk.Type(GetParam().keys);
            m_writes = FaultyDisk::Count();
            m_after = AllRows();
        });
        TheBox.Shown.clear();
    }

    // Plays the action on a disk that is full from the n-th write on.
    void PlayOnFullDisk(int n)
    {
        bool ended = false;
        const int exitCode = Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            FaultyDisk::Reset();
            FaultyDisk::FullFrom(n);
            clerk.Type(GetParam().keys);
            ended = clerk.ScreenName().isEmpty();
        });
        FaultyDisk::Reset();
        EXPECT_TRUE(ended) << "no screen is left";
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(TheBox.Shown.size(), 1);
        EXPECT_EQ(Boxes("Run-time error"), 1);
        TheBox.Shown.clear();
    }

    // Plays the action on a disk that can't be read behind the n-th write; returns what the clerk was told,
    // if anything.
    QString PlayOnUnreadableDisk(int n)
    {
        Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            FaultyDisk::Reset();
            FaultyDisk::UnreadableBehind(n);
            clerk.Type(GetParam().keys);
            FaultyDisk::Reset();
        });
        const QString told = TheBox.Shown.join(u'\n');
        TheBox.Shown.clear();
        return told;
    }

    // The open books are what they were, or what the whole action makes of them; true if it is whole.
    bool IsWhole()
    {
        const QStringList rows = AllRows();
        const bool whole = rows == m_after;
        EXPECT_EQ(Difference(whole ? m_after : m_before, rows), "");
        EXPECT_EQ(Integrity(), "ok");
        return whole;
    }

    // Lets another process play the action and die at its n-th write.
    void PlayAndDie(int n)
    {
        const auto other = Processes::Start("other_process", {Drives(), GetParam().name, QString::number(n)});
        ASSERT_TRUE(Processes::WaitForEnd(*other));
        EXPECT_EQ(other->exitStatus(), QProcess::CrashExit)
            << other->readAllStandardOutput().toStdString() << other->readAllStandardError().toStdString();
        EXPECT_EQ(other->exitCode(), SIGKILL);
    }

    void KillAtEachWrite()
    {
        int whole = 0;
        for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
            SCOPED_TRACE("killed at write " + std::to_string(n));
            Renew();
            PlayAndDie(n);
            Reopen();
            whole += IsWhole() ? 1 : 0;
        }
        EXPECT_GT(whole, 0) << "killed behind the last byte it is whole";
        EXPECT_LT(whole, m_writes);
    }

    const QString Database = "Morvelta.mdb";
    QStringList m_before;
    QStringList m_after;
    int m_writes = 0;

private:
    QTemporaryDir m_kept;
};

// What is full at the last of them, the sync of the finished log, can be whole: all of it was written.
TEST_P(PowerCutTest, OnAFullDiskTheProgramEndsAndTheBooksAreAsBefore)
{
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("full from write " + std::to_string(n));
        Renew();
        PlayOnFullDisk(n);
        Reopen();
        const bool whole = IsWhole();
        EXPECT_TRUE(!whole || n == m_writes) << "the program has said that it failed";
    }
}

// What is read behind a commit (the list, the totals, the next number, the slip) fails after the entry was
// kept.
TEST_P(PowerCutTest, NeverIsItSaidThatNothingWasSavedOfWhatIsInTheBooks)
{
    int failedBehindTheSaving = 0;
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("can't be read behind write " + std::to_string(n));
        Renew();
        const QString told = PlayOnUnreadableDisk(n);
        Reopen();
        if (!IsWhole() || !told.contains("3146"))
            continue;
        ++failedBehindTheSaving;
        EXPECT_FALSE(told.contains("nothing was saved")) << told.toStdString();
        EXPECT_FALSE(told.contains("काहीही जतन झाले नाही")) << told.toStdString();
        EXPECT_TRUE(told.contains("शेवटची नोंद")) << told.toStdString();
    }
    if (GetParam().name.contains("Delivery")) {
        EXPECT_GT(failedBehindTheSaving, 0) << "the list is read behind each saving";
    }
}

TEST_P(PowerCutTest, KilledAtAnyWriteItIsDoneWholeOrNotAtAll)
{
    KillAtEachWrite();
}

INSTANTIATE_TEST_SUITE_P(Actions, PowerCutTest, testing::ValuesIn(Actions()),
    [](const testing::TestParamInfo<Action>& played) { return played.param.name.toStdString(); });

// A fold that fails is made up for later, and nothing is said of it.
class LeavingPowerCutTest : public PowerCutTest { };

TEST_P(LeavingPowerCutTest, OnAFullDiskItIsSaidOrWhole)
{
    int told = 0;
    int toldThoughWhole = 0; // the sync behind the last byte
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("full from write " + std::to_string(n));
        Renew();
        Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + GetParam().way);
            FaultyDisk::Reset();
            FaultyDisk::FullFrom(n);
            clerk.Type(GetParam().keys);
            FaultyDisk::Reset();
        });
        const bool isTold = Boxes("Run-time error '3146'") == 1;
        TheBox.Shown.clear();
        Reopen();
        const bool whole = IsWhole();
        EXPECT_TRUE(isTold || whole);
        told += isTold ? 1 : 0;
        toldThoughWhole += isTold && whole ? 1 : 0;
    }
    EXPECT_GT(told, 0);
    EXPECT_LT(told, m_writes) << "the fold";
    EXPECT_LE(toldThoughWhole, 1);
}

TEST_P(LeavingPowerCutTest, KilledAtAnyWriteItIsDoneWholeOrNotAtAll)
{
    KillAtEachWrite();
}

INSTANTIATE_TEST_SUITE_P(Leavings, LeavingPowerCutTest, testing::ValuesIn(Leavings()),
    [](const testing::TestParamInfo<Action>& played) { return played.param.name.toStdString(); });

}
