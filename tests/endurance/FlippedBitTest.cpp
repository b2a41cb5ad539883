#include "platform/text/RunTimeError.h"
#include "tests/endurance/Counts.h"
#include "tests/endurance/NumberedSaves.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

// Books of some hundred pages, closed; and the same, with the last saves in a log and the program killed.
class FlippedBitTest : public ::testing::Test {
protected:
    static constexpr int Folded = 150;
    static constexpr int All = 160;

    FlippedBitTest()
    {
        NumberedSaves::MakeBooks(m_file);
        Connection books;
        NumberedSaves::Open(books, m_file);
        for (int number = 1; number <= All; ++number) {
            NumberedSaves::Save(books, number);
            if (number == Folded)
                books.Fold();
        }
        m_killed = Left();
        books.Close();
        m_closed = Left();
    }

    struct Files {
        QByteArray books;
        QByteArray log;
        QByteArray index;
    };

    Files Left() const
    {
        return {
            Bytes(m_file), Bytes(m_file + QStringLiteral("-wal")), Bytes(m_file + QStringLiteral("-shm"))};
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void Lay(const Files& files) const
    {
        const std::pair<const char*, const QByteArray&> all[] = {
            {"", files.books}, {"-wal", files.log}, {"-shm", files.index}};
        for (const auto& [ending, bytes] : all) {
            QFile file(m_flipped + QLatin1String(ending));
            file.remove();
            const bool isLaid =
                bytes.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
            ASSERT_TRUE(isLaid) << ending;
        }
    }

    enum class Outcome { Refused, Told, Untouched, Silent };

    Outcome Open(const OpeningPlan& plan)
    {
        Connection books;
        try {
            const bool isTold = !NumberedSaves::Open(books, m_flipped, plan).isEmpty();
            const NumberedSaves::Found found = NumberedSaves::Read(books);
            m_said = found.fault + ", " + std::to_string(found.saves) + " saves";
            if (isTold)
                return found.fault.empty() && found.saves >= Folded ? Outcome::Told : Outcome::Silent;
            return found.fault.empty() && found.saves == All ? Outcome::Untouched : Outcome::Silent;
        } catch (const RunTimeError&) {
            return Outcome::Refused;
        }
    }

    // Flips one bit in the n-th of `count` even parts of a file, and opens the books.
    Outcome Flip(Files files, QByteArray Files::*file, int n, int count, const OpeningPlan& plan = {})
    {
        QRandomGenerator dice = Counts::DiceOf(n);
        QByteArray& bytes = files.*file;
        const qint64 from = qint64(bytes.size()) * n / count;
        const qint64 to = qint64(bytes.size()) * (n + 1) / count;
        const int at = static_cast<int>(from) + dice.bounded(static_cast<int>(to - from));
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << dice.bounded(8)));
        Lay(files);
        const Outcome outcome = Open(plan);
        ++m_outcomes[static_cast<int>(outcome)];
        EXPECT_NE(outcome, Outcome::Silent) << "byte " << at << ", seed " << Counts::Seed() << ": " << m_said;
        return outcome;
    }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("Morvelta.mdb"));
    QString m_flipped = m_folder.filePath(QStringLiteral("flipped.mdb"));
    Files m_killed;
    Files m_closed;
    std::string m_said;
    int m_outcomes[4] = {};
};

}

TEST_F(FlippedBitTest, NoFlippedBitLosesOrChangesARowInSilence)
{
    const int flips = Counts::Of("VETROLAN_FLIPS", 200);
    const int inLog = flips / 2;
    const int besideLog = flips / 4;
    const int inClosed = flips - inLog - besideLog;
    ASSERT_GT(m_killed.log.size(), 10000);
    ASSERT_TRUE(m_closed.log.isEmpty());

    for (int n = 0; n < inLog; ++n)
        EXPECT_NE(Flip(m_killed, &Files::log, n, inLog), Outcome::Untouched)
            << "every frame of the log stands before the end of an acknowledged save";
    for (int n = 0; n < besideLog; ++n)
        Flip(m_killed, &Files::books, n, besideLog);
    OpeningPlan allPages;
    allPages.checksPages = true;
    for (int n = 0; n < inClosed; ++n)
        Flip(m_closed, &Files::books, n, inClosed, allPages);

    Counts::Tell(flips, " flipped bits (", inLog, " in the log, ", besideLog, " in books with a log, ",
        inClosed, " in closed books): ", m_outcomes[0], " refused, ", m_outcomes[1], " told, ", m_outcomes[2],
        " with every row as it was, ", m_outcomes[3], " silent");
}

// The trial can fail: books that are closed cleanly are looked at once a week only.
TEST_F(FlippedBitTest, WithoutTheCheckOfAllPagesAFlipInClosedBooksCanPassTheOpening)
{
    Files files = m_closed;
    const qsizetype at = files.books.size() / 2;
    files.books[at] = static_cast<char>(files.books[at] ^ 1);
    Lay(files);
    EXPECT_EQ(Open({}), Outcome::Silent) << m_said;
}
