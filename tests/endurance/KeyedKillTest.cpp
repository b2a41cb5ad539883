#include "tests/endurance/Counts.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"

#include <QDeadlineTimer>

#include <chrono>

namespace {

// The whole program, keyed by a clerk of its own and killed in the midst of it, again and again on one shift.
class KeyedKillTest : public ProgramTest {
protected:
    static constexpr int Members = 600;

    KeyedKillTest()
    {
        Run(QStringLiteral("update AutoSettings set PurchaseEntry='Collection'"));
        for (int number = 1; number <= Members; ++number)
            InsertMember(number, QStringLiteral("rama"), QStringLiteral("gaaya"));
        gCn.Close();
    }

    static QString Litres(int number) { return QString::number(1 + number % 30); }

    static QString DeliveryKeys(int number)
    {
        return QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}4.1{ENTER}{ENTER}{ENTER}")
            .arg(QString::number(number), Litres(number));
    }

    // Sends a line of keys; false if it was not answered, because there is nobody any more.
    static bool Type(QProcess& program, const QString& keys)
    {
        program.write(keys.toUtf8() + '\n');
        return Answer(program, QDeadlineTimer(60000));
    }

    static bool Answer(QProcess& program, QDeadlineTimer patience)
    {
        while (!program.canReadLine() && !patience.hasExpired()) {
            if (!program.waitForReadyRead(static_cast<int>(qMax<qint64>(1, patience.remainingTime())))
                && program.state() == QProcess::NotRunning)
                break;
        }
        if (!program.canReadLine())
            return false;
        const QByteArray line = program.readLine();
        EXPECT_TRUE(line.startsWith("screen frmMilkCollections")) << line.toStdString();
        return true;
    }

    // A few deliveries, the log folded between some of them by leaving the counter, and a kill within one.
    void KeyAndKill(QRandomGenerator& dice)
    {
        const auto program =
            Processes::Start(QStringLiteral("other_process"), {Drives(), QStringLiteral("keys")});
        ASSERT_TRUE(Type(*program, OpeningKeys() + QStringLiteral("{DOWN}{ENTER}{ENTER}{ENTER}2{ENTER}")));
        for (int whole = dice.bounded(8); whole > 0; --whole) {
            ASSERT_TRUE(Type(*program, DeliveryKeys(m_acknowledged + 1)));
            ++m_acknowledged;
            const bool isBack = dice.bounded(4) != 0 || Type(*program, ThroughTheMenu);
            ASSERT_TRUE(isBack);
        }
        program->write(
            ((dice.bounded(3) == 0 ? ThroughTheMenu : QString()) + DeliveryKeys(m_acknowledged + 1)).toUtf8()
            + '\n');
        if (Answer(
                *program, QDeadlineTimer(std::chrono::microseconds(dice.bounded(60000)), Qt::PreciseTimer)))
            ++m_acknowledged;
        program->kill();
        ASSERT_TRUE(Processes::WaitForEnd(*program));
        EXPECT_EQ(program->exitStatus(), QProcess::CrashExit);
        for (QByteArray line = program->readLine(); line.endsWith('\n'); line = program->readLine())
            ++m_acknowledged;
    }

    void Look()
    {
        Reopen();
        EXPECT_EQ(TheBox.Shown, QStringList());
        const QStringList rows = Rows(
            QStringLiteral("select CollectionNo,MemberNo,Liters from MilkCollections order by CollectionNo"));
        const int found = static_cast<int>(rows.size());
        for (int number = 1; number <= found; ++number)
            EXPECT_EQ(
                rows[number - 1], QStringLiteral("%1|%1|%2").arg(QString::number(number), Litres(number)));
        EXPECT_GE(found, m_acknowledged) << "acknowledged deliveries are lost";
        EXPECT_LE(found, m_acknowledged + 1);
        EXPECT_EQ(Integrity(), "ok");
        m_inHand += found > m_acknowledged ? 1 : 0;
        m_acknowledged = found;
        gCn.Close();
    }

    const QString ThroughTheMenu = QStringLiteral("{ESC}{ENTER}{ENTER}2{ENTER}");
    int m_acknowledged = 0;
    int m_inHand = 0;
};

}

TEST_F(KeyedKillTest, TheKilledProgramLosesNoDeliveryThatItTook)
{
    const int kills = Counts::Of("VETROLAN_KILLS", 500) / 20;
    int done = 0;
    for (int n = 0; n < kills && !HasFailure(); ++n) {
        SCOPED_TRACE("kill " + std::to_string(n) + ", seed " + std::to_string(Counts::Seed()));
        QRandomGenerator dice = Counts::DiceOf(n);
        KeyAndKill(dice);
        Look();
        ++done;
    }
    Counts::Tell(done, " kills of the whole program at the keyboard: ", m_acknowledged,
        " deliveries in the books, ", HasFailure() ? "NOT ALL KEPT" : "none lost", ", ", m_inHand,
        " in hand found whole");
}
