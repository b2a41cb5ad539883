#include "tests/endurance/CutDisk.h"
#include "platform/text/RunTimeError.h"
#include "tests/endurance/Counts.h"
#include "tests/endurance/NumberedSaves.h"
#include "tests/endurance/PlayedSession.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

// What is found when books are opened on a disk as a power cut has left it.
struct Opened {
    std::string refusal; // the opening has failed
    QStringList notes;
    NumberedSaves::Found found;
};

class CutDiskTest : public ::testing::Test {
protected:
    static constexpr int PerStory = 40;

    CutDiskTest() { RecordingDisk::Install(); }

    Opened OpenCut(const CutDisk& cut)
    {
        cut.WriteTo(m_cutFile);
        Opened opened;
        Connection books;
        try {
            opened.notes = NumberedSaves::Open(books, m_cutFile);
            opened.found = NumberedSaves::Read(books);
        } catch (const RunTimeError& error) {
            opened.refusal = error.what();
        }
        return opened;
    }

    // What must not be; empty if all is well.
    std::string FaultOf(const CutDisk& cut, const Opened& opened)
    {
        if (!opened.refusal.empty())
            return "it doesn't open: " + opened.refusal;
        if (!opened.found.fault.empty())
            return opened.found.fault;
        if (opened.found.saves < cut.acknowledged)
            return std::to_string(cut.acknowledged - opened.found.saves) + " acknowledged saves are lost";
        if (opened.found.saves > cut.begun)
            return "a save is there that wasn't begun";
        for (const QString& note : opened.notes) {
            if (!IsAllowed(note, cut, opened.found.saves))
                return "it tells without need: " + note.toStdString();
        }
        return {};
    }

    // A first page that the cut has torn is mended. Of a save in hand a part may lie in the log, and nobody
    // can know that it wasn't acknowledged.
    bool IsAllowed(const QString& note, const CutDisk& cut, int saves)
    {
        if (note.contains(QStringLiteral("was torn; it was mended"))) {
            ++m_mended;
            return cut.isFirstPageTorn || m_hasBegunTorn;
        }
        if (note.contains(QStringLiteral("About 1 entries"))) {
            ++m_halfSaves;
            return saves < cut.begun;
        }
        return false;
    }

    // The next story goes on from books without a save, or from what a power cut has left.
    DiskStory NextStory(int n, const std::optional<CutDisk>& left, QRandomGenerator& dice)
    {
        const bool goesOn = left && n % 2 == 1;
        m_file = m_folder.filePath(QStringLiteral("story%1.mdb").arg(n));
        if (goesOn)
            left->WriteTo(m_file);
        else
            NumberedSaves::MakeBooks(m_file);
        m_hasBegunTorn = goesOn && left->isFirstPageTorn;
        m_begunAfterCut += goesOn ? 1 : 0;
        return PlayedSession::Play(m_file,
            goesOn ? PlayedSession::Start{true, left->acknowledged, left->begun} : PlayedSession::Start{}, 30,
            dice);
    }

    static size_t SomePoint(const DiskStory& story, QRandomGenerator& dice)
    {
        return static_cast<size_t>(1 + dice.bounded(static_cast<int>(story.events.size())));
    }

    static CutDisk SomeCut(const DiskStory& story, QRandomGenerator& dice)
    {
        return CutDisk::At(story, SomePoint(story, dice), dice);
    }

    void RemoveStory() const
    {
        for (const char* ending : {"", "-wal", "-shm"})
            QFile::remove(m_file + QLatin1String(ending));
    }

    static std::string Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string("not there");
    }

    QTemporaryDir m_folder;
    QString m_file;
    QString m_cutFile = m_folder.filePath(QStringLiteral("cut.mdb"));
    bool m_hasBegunTorn = false;
    int m_begunAfterCut = 0;
    int m_mended = 0;
    int m_halfSaves = 0;
};

}

TEST_F(CutDiskTest, WhereverThePowerFailsNoAcknowledgedSaveIsLost)
{
    const int images = Counts::Of("VETROLAN_IMAGES", 2000);
    const int only = Counts::Of("VETROLAN_IMAGE", -1);
    int faults = 0;
    int unfinished = 0;
    int stories = 0;
    std::optional<CutDisk> left;
    for (int n = 0; n * PerStory < images; ++n) {
        QRandomGenerator dice = Counts::DiceOf(n);
        const DiskStory story = NextStory(n, left, dice);
        ++stories;
        const std::optional<CutDisk> next = SomeCut(story, dice);
        for (int i = n * PerStory; i < qMin(images, (n + 1) * PerStory); ++i) {
            const size_t point = SomePoint(story, dice);
            CutDisk cut = CutDisk::At(story, point, dice);
            if (dice.bounded(2) == 0)
                cut.Slow(story, 10000);
            if (only >= 0 && i != only)
                continue;
            const Opened opened = OpenCut(cut);
            const std::string fault = FaultOf(cut, opened);
            faults += fault.empty() ? 0 : 1;
            unfinished += opened.found.saves > cut.acknowledged ? 1 : 0;
            ASSERT_LT(faults, 20);
            EXPECT_TRUE(fault.empty())
                << fault << "\nimage " << i << " at event " << point << " of " << story.events.size()
                << ", seed " << Counts::Seed() << ", " << cut.acknowledged << " acknowledged";
        }
        left = next;
        RemoveStory();
    }
    Counts::Tell(images, " images of ", stories, " sessions (", m_begunAfterCut,
        " of them begun after a cut) opened: ", faults, " faults; ", unfinished,
        " with the save in hand whole, ", m_mended, " with a torn first page mended, ", m_halfSaves,
        " told of an unfinished save");
}

// The recording holds: with everything kept it makes the very files that lie there.
TEST_F(CutDiskTest, AllThatWasRecordedMakesTheVeryFiles)
{
    QRandomGenerator dice = Counts::DiceOf(-1);
    DiskStory story = NextStory(0, {}, dice);
    for (DiskEvent::Kind kind : {DiskEvent::Kind::Synced}) {
        for (const bool isLog : {false, true}) {
            DiskEvent last;
            last.kind = kind;
            last.isLog = isLog;
            story.events.push_back(last);
        }
    }
    const CutDisk whole = CutDisk::At(story, story.events.size(), dice);
    EXPECT_FALSE(whole.log) << "the session has ended cleanly";
    EXPECT_TRUE(whole.books->bytes.toStdString() == Bytes(m_file));
    EXPECT_GT(story.acknowledged, 10);
}

// The trial can fail: on a disk that only says that it has synced, saves are lost, and it is seen.
TEST_F(CutDiskTest, OnADiskThatPretendsToSyncTheLossIsSeen)
{
    QRandomGenerator dice = Counts::DiceOf(-2);
    const DiskStory story = NextStory(0, {}, dice);
    int faults = 0;
    for (int i = 0; i < 40; ++i) {
        const CutDisk cut = CutDisk::At(story, SomePoint(story, dice), dice, CutDisk::Syncs::Pretended);
        faults += FaultOf(cut, OpenCut(cut)).empty() ? 0 : 1;
    }
    EXPECT_GT(faults, 5);
}
