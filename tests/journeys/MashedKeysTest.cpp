#include "platform/forms/ModalStack.h"
#include "platform/text/Numbers.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <random>

namespace {

// Keys without sense and without end. The books of FillBooks; the dice always fall the same way.
class MashedKeysTest : public ProgramTest {
protected:
    MashedKeysTest()
    {
        FillBooks();
        gCn.Close();
    }

    // What a hand does that lies on the keyboard: mostly what moves and what fills, seldom what leaves; and
    // now and then something with a sense.
    QString NextKeys()
    {
        static constexpr const char* Moves[] = {"{ENTER}", "{ENTER}", "{ENTER}", "{ENTER}", "{TAB}", "+{TAB}",
            "{DOWN}", "{DOWN}", "{UP}", "{LEFT}", "{RIGHT}", "{HOME}", "{END}", "{BS}", "{DEL}", "{PGUP}",
            "{PGDN}"};
        static constexpr const char* Orders[] = {"{ESC}", "{F1}", "{F2}", "{F3}", "{F4}", "{F5}", "{F6}",
            "{F7}", "{F8}", "{F9}", "{F10}", "{F11}", "{F12}", "%n", "%s", "%s", "%d", "%K", "%r", "%h", "%h",
            "%p", "%{DOWN}", "^a", "^c", "^v", "^x", "^z"};
        static constexpr char16_t Letters[] = u"aaaakKgGmnrstxyzDRIUoOA ^-.'`#,[]\\/;:\"";
        const int kind = Throw(100);
        if (kind < 44)
            return QLatin1String(Moves[Throw(std::size(Moves))]);
        if (kind < 79)
            return QString(QChar(u'0' + Throw(10)));
        if (kind < 89)
            return QLatin1String(Orders[Throw(std::size(Orders))]);
        if (kind < 91)
            return Sensible();
        const QChar letter = Letters[Throw(std::size(Letters) - 1)];
        return letter == u'^' ? QStringLiteral("{^}") : QString(letter);
    }

    // The keys of a delivery, of a new member or of the way to the counter, wherever they are typed.
    QString Sensible()
    {
        static constexpr const char* Phrases[] = {"{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1{ENTER}{ENTER}{ENTER}",
            "{ENTER}3{ENTER}2{ENTER}2.125{ENTER}7.3{ENTER}{ENTER}{ENTER}",
            "{ENTER}1{ENTER}5.55{ENTER}4.5{ENTER}{ENTER}{ENTER}",
            "{ENTER}2{ENTER}1.015{ENTER}6.7{ENTER}{ENTER}{ENTER}",
            "%n{ENTER}gaIta{ENTER}{ENTER}{ENTER}3{ENTER}1{ENTER}%s", "{DOWN}{ENTER}{ENTER}{ENTER}1{ENTER}"};
        return QLatin1String(Phrases[Throw(std::size(Phrases))]);
    }

    // The keys of a voucher, of a change and of a deletion, wherever they are typed.
    QString SensibleAtVouchers()
    {
        static constexpr const char* Phrases[] = {
            "%r%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}12.35{ENTER}{ENTER}{F4}{ENTER}%n",
            "%r%n15042026{ENTER}{ENTER}2{ENTER}{ENTER}4.05{ENTER}{ENTER}%n",
            "%r%d{ENTER}{ENTER}{ENTER}]cala{ENTER}7.25{ENTER}{ENTER}{F4}{ENTER}%h%n",
            "%r%d{ENTER}{ENTER}{ENTER}61.15{ENTER}{ENTER}%h", "%r%k{DOWN}{ENTER}{ENTER}%h", "%r", "%r%b",
            "%r+{TAB}{DOWN}"};
        return QLatin1String(Phrases[Throw(std::size(Phrases))]);
    }

    int Throw(std::size_t sides) { return static_cast<int>(m_dice() % sides); }

    // Every delivery's amount is its litres at its rate, and the copy has nothing that the books haven't.
    void ExpectSoundBooks()
    {
        EXPECT_EQ(Integrity(), "ok");
        for (Recordset row(gCn, "select * from MilkCollections"); !row.Eof(); row.MoveNext()) {
            const double liters = row[u"Liters"].Number();
            const double rate = row[u"Rate"].Number();
            EXPECT_EQ(Val(Format(liters * rate, u"#########0.00")), row[u"Amount"].Number())
                << liters << " x " << rate;
            EXPECT_GT(row[u"MemberNo"].Number(), 0);
            EXPECT_GT(row[u"Amount"].Number(), 0);
            EXPECT_LE(row[u"Fat"].Number(), 30);
            EXPECT_LE(rate, 60);
        }
    }

    // Each advance is the sum of its heads, each receipt has its row, and what a voucher adds to one balance
    // of a member it has taken from the other.
    void ExpectSoundVouchers()
    {
        for (Recordset row(gCn, "select * from TransactionsMaster"); !row.Eof(); row.MoveNext()) {
            const bool isReceipt = row[u"TranType"].Text() == u"irsaIT";
            const QString details = isReceipt
                ? QStringLiteral("AdvanceReceipt where AdvanceType='Uchal Receipt' and")
                : QStringLiteral("TransactionsDetails where");
            const QString sum =
                One(QStringLiteral("select sum(Amount) from %1 TranId=%2 and cstr(TranDate)='%3'")
                        .arg(details, row[u"TranId"].Text(), row[u"TranDate"].Text()));
            EXPECT_NEAR(row[u"Amount"].Number(), sum.toDouble(), 0.001)
                << qPrintable(row[u"TranDate"].Text()) << ' ' << row[u"TranId"].Number();
        }
        for (Recordset row(gCn, "select * from MembersMaster"); !row.Eof(); row.MoveNext())
            EXPECT_NEAR(row[u"ClosingBalance"].Number(), -row[u"ClosingUchal"].Number(), 0.001);
    }

    int Deliveries() { return One("select count(*) from MilkCollections").toInt(); }

    std::mt19937 m_dice{20260415};
};

// A key that is held down.
void Hold(Clerk& clerk, int key, int times)
{
    for (int at = 0; at < times && !clerk.ScreenName().isEmpty(); ++at)
        clerk.Do([key, at] {
            const Screen* screen = ModalStack::Current().Top();
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), at > 0);
            QCoreApplication::sendEvent(screen->KeyTarget(), &press);
        });
}

}

// Twenty thousand keys in all, in runs that each throw their own dice.
class MashedProgramTest : public MashedKeysTest, public ::testing::WithParamInterface<int> { };

TEST_P(MashedProgramTest, FiveThousandKeysOverTheWholeProgramNeverBreakIt)
{
    m_dice.seed(static_cast<unsigned>(GetParam()));
    constexpr int Keys = 5000;
    constexpr int MostStarts = 1000;
    Reopen();
    const QStringList before = AllRows();
    int typed = 0;
    QSet<QString> met;
    QString last;
    for (int starts = 0; typed < Keys && starts < MostStarts; ++starts) {
        TheBox.Shown.clear();
        const int pause = std::min(Keys, typed + Keys / 4); // so that no run is a single start
        const int exitCode = Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys());
            if (starts % 2 == 1)
                clerk.Type("{DOWN}{ENTER}{ENTER}"); // to the counter
            while (typed < pause && !clerk.ScreenName().isEmpty()) {
                met.insert(clerk.ScreenName());
                last = NextKeys();
                clerk.Type(last);
                typed += static_cast<int>(ParseKeys(last).size());
            }
        });
        // It ends because the clerk has left, or by a run-time error that is shown; in no other way.
        EXPECT_EQ(Boxes("Run-time error"), exitCode) << "key " << typed << ", " << last.toStdString();
        Reopen();
        ExpectSoundBooks();
    }
    EXPECT_GE(typed, Keys);
    EXPECT_NE(Difference(before, AllRows()), "") << "the keys have come as far as the books";
    for (const char* screen :
        {"MainMenuFrm", "frmMembers", "frmMilkCollections", "frmMessages", "frmKeyboardTutor"})
        EXPECT_TRUE(met.contains(QLatin1String(screen))) << screen;
}

INSTANTIATE_TEST_SUITE_P(Dice, MashedProgramTest, ::testing::Values(20260415, 20260416, 20260417, 20260420));

TEST_F(MashedKeysTest, TheCounterMashedAloneKeepsEveryAmountRight)
{
    constexpr int Keys = 6000;
    Reopen();
    Run("update AutoSettings set RepeatCollection='haoya'");
    int typed = 0;
    while (typed < Keys) {
        Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + "{DOWN}{ENTER}{ENTER}{ENTER}1{ENTER}");
            while (typed < Keys && clerk.ScreenName() != u"MainMenuFrm" && !clerk.ScreenName().isEmpty()) {
                const int kind = Throw(20);
                const QString keys = kind == 0 ? Sensible()
                    : kind < 3                 ? NextKeys()
                    : kind < 11                ? QStringLiteral("{ENTER}")
                                               : QString(QChar(u'0' + Throw(6)));
                clerk.Type(keys);
                typed += static_cast<int>(ParseKeys(keys).size());
            }
        });
        Reopen();
        ExpectSoundBooks();
    }
    EXPECT_GT(Deliveries(), 10);
}

TEST_F(MashedKeysTest, TheVouchersMashedAloneKeepTheBalancesRight)
{
    constexpr int Keys = 2500;
    Reopen();
    const QStringList before = AllRows();
    int typed = 0;
    while (typed < Keys) {
        Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + QStringLiteral("{F4}") + (Throw(2) == 0 ? "{DOWN}" : ""));
            while (typed < Keys && clerk.ScreenName() != u"MainMenuFrm" && !clerk.ScreenName().isEmpty()) {
                const int kind = Throw(20);
                const QString keys = kind < 3 ? SensibleAtVouchers()
                    : kind < 5                ? NextKeys()
                    : kind < 13               ? QStringLiteral("{ENTER}")
                                              : QString(QChar(u'0' + Throw(6)));
                clerk.Type(keys);
                typed += static_cast<int>(ParseKeys(keys).size());
            }
        });
        Reopen();
        ExpectSoundBooks();
        ExpectSoundVouchers();
    }
    EXPECT_NE(Difference(before, AllRows()), "") << "the keys have come as far as the books";
}

TEST_F(MashedKeysTest, EnterHeldDownFromTheTitleOnWritesNothing)
{
    Reopen();
    const QStringList before = AllRows();
    const int exitCode = Start([](Clerk& clerk) {
        Hold(clerk, Qt::Key_Return, 500);
        EXPECT_NE(OnTop(clerk), "");
        while (!clerk.ScreenName().isEmpty() && clerk.ScreenName() != u"MainMenuFrm")
            Type(clerk, clerk.ScreenName() == u"frmMessages" ? "{ENTER}" : "{ESC}");
        clerk.AskToLeave();
        Type(clerk, "%h");
    });
    EXPECT_EQ(exitCode, 0);
    Reopen();
    EXPECT_EQ(Difference(before, AllRows()), "");
}

TEST_F(MashedKeysTest, EnterHeldDownAtTheCounterSavesNothing)
{
    Reopen();
    const int before = Deliveries();
    Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys() + "{DOWN}{ENTER}{ENTER}{ENTER}1{ENTER}");
        Hold(clerk, Qt::Key_Return, 500);
        EXPECT_TRUE(OnTop(clerk) == "frmMilkCollections" || OnTop(clerk) == "frmMessages") << OnTop(clerk);
    });
    Reopen();
    EXPECT_EQ(Deliveries(), before);
}

TEST_F(MashedKeysTest, EnterHeldDownOnAFilledLineSavesItOnce)
{
    Reopen();
    const int before = Deliveries();
    Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys() + "{DOWN}{ENTER}{ENTER}{ENTER}1{ENTER}{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1");
        Hold(clerk, Qt::Key_Return, 500);
    });
    Reopen();
    EXPECT_EQ(Deliveries(), before + 1);
}
