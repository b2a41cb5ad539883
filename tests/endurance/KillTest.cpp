#include "platform/text/RunTimeError.h"
#include "tests/endurance/Counts.h"
#include "tests/endurance/NumberedSaves.h"
#include "tests/journeys/Processes.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <chrono>

namespace {

// A process that saves, killed again and again on the same books.
class KillTest : public ::testing::Test {
protected:
    // So that the books stay as small as they can be read quickly.
    static constexpr int KillsPerBooks = 25;

    void RenewBooks()
    {
        for (const char* ending : {"", "-wal", "-shm"})
            QFile::remove(m_file + QLatin1String(ending));
        NumberedSaves::MakeBooks(m_file);
        m_acknowledged = 0;
        m_begun = 0;
    }

    // Starts it and kills it, some moments after it has said for the first time what is waited for.
    void StartAndKill(const QByteArray& moment, int delayMicroseconds, quint32 seed)
    {
        m_lastSaid.clear();
        const auto saver =
            Processes::Start(QStringLiteral("endurance_saver"), {m_file, QString::number(seed)});
        bool hasCome = moment.isEmpty();
        const QDeadlineTimer patience(60000);
        while (!hasCome && !patience.hasExpired() && saver->waitForReadyRead(60000)) {
            while (saver->canReadLine())
                hasCome |= Hear(saver->readLine().trimmed(), moment);
        }
        ASSERT_TRUE(hasCome) << "it has never said " << moment.toStdString();
        const QDeadlineTimer delay(std::chrono::microseconds(delayMicroseconds), Qt::PreciseTimer);
        while (!delay.hasExpired()) {
            saver->waitForReadyRead(static_cast<int>(delay.remainingTime()));
            while (saver->canReadLine())
                Hear(saver->readLine().trimmed(), {});
        }
        saver->kill();
        ASSERT_TRUE(Processes::WaitForEnd(*saver));
        EXPECT_EQ(saver->exitStatus(), QProcess::CrashExit) << "it has ended by itself";
        // A line that was cut by the kill was not said.
        for (QByteArray line = saver->readLine(); line.endsWith('\n'); line = saver->readLine())
            Hear(line.trimmed(), {});
        ++m_killedWhile[m_lastSaid];
    }

    // Takes a line of its output; whether it is the one that is waited for.
    bool Hear(const QByteArray& line, const QByteArray& moment)
    {
        m_lastSaid = line;
        if (line.startsWith("saved ")) {
            EXPECT_EQ(line.mid(6).toInt(), m_acknowledged + 1);
            m_begun = ++m_acknowledged;
            ++m_allAcknowledged;
        } else if (line == "saving") {
            m_begun = m_acknowledged + 1;
        } else if (line.startsWith("found ")) {
            IsFound(line.mid(6).toInt());
        } else {
            EXPECT_FALSE(line.startsWith("note") || line.startsWith("fault")) << line.toStdString();
        }
        return line == moment || (moment == "found" && line.startsWith(moment));
    }

    // What is in the books when they are opened: all acknowledged saves, and at most the one in hand.
    void IsFound(int saves)
    {
        EXPECT_GE(saves, m_acknowledged) << "acknowledged saves are lost";
        EXPECT_LE(saves, m_begun) << "a save is there that wasn't begun";
        m_inHand += saves > m_acknowledged ? 1 : 0;
        m_acknowledged = saves;
        m_begun = saves;
    }

    void Look()
    {
        Connection books;
        EXPECT_EQ(NumberedSaves::Open(books, m_file), QStringList());
        const NumberedSaves::Found found = NumberedSaves::Read(books);
        EXPECT_EQ(found.fault, "");
        IsFound(found.saves);
    }

    int KilledWhile(const char* said) const { return m_killedWhile.value(said); }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("Morvelta.mdb"));
    int m_acknowledged = 0;
    int m_begun = 0;
    int m_allAcknowledged = 0;
    int m_inHand = 0;
    QByteArray m_lastSaid;
    QHash<QByteArray, int> m_killedWhile;
};

struct Moment {
    const char* said; // empty: the start of the process
    int upToMicroseconds;
};
constexpr Moment Moments[] = {{"", 150000}, {"found", 150000}, {"saving", 4000}, {"folding", 8000},
    {"closing", 8000}, {"opening", 40000}};

}

TEST_F(KillTest, AKilledSaverLosesNothingThatItAcknowledged)
{
    // The other twentieth of all kills falls upon the whole program, see KeyedKillTest.
    const int all = Counts::Of("VETROLAN_KILLS", 500);
    const int kills = all - all / 20;
    int done = 0;
    int looks = 0;
    for (int n = 0; n < kills && !HasFailure(); ++n) {
        SCOPED_TRACE("kill " + std::to_string(n) + ", seed " + std::to_string(Counts::Seed()));
        QRandomGenerator dice = Counts::DiceOf(n);
        if (n % KillsPerBooks == 0)
            RenewBooks();
        const Moment& moment = Moments[static_cast<size_t>(n) % std::size(Moments)];
        StartAndKill(moment.said, dice.bounded(moment.upToMicroseconds), dice.generate());
        ++done;
        // Otherwise the next one finds what this one has left, and is perhaps killed over it.
        if (dice.bounded(2) == 0 || n % KillsPerBooks == KillsPerBooks - 1 || n == kills - 1) {
            Look();
            ++looks;
        }
    }
    Counts::Tell(done, " kills of a saver, of them ", KilledWhile("opening"), " while it opened the books, ",
        KilledWhile("saving"), " saved, ", KilledWhile("folding"), " folded, ", KilledWhile("closing"),
        " closed: ", m_allAcknowledged, " saves acknowledged, ", HasFailure() ? "NOT ALL KEPT" : "none lost",
        ", ", m_inHand, " in hand found whole, looked ", looks, " times");
}
