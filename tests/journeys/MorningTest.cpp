#include "tests/journeys/ProgramTest.h"

namespace {

class MorningTest : public ProgramTest {
protected:
    // A delivery is put on the member's balance at once.
    MorningTest() { Run("update AutoSettings set PurchaseEntry='Collection'"); }

    // From the number through the line and back to it; a member of one animal.
    static void Deliver(Clerk& clerk, const char* member, const char* liters, const char* fat)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}{ENTER}{ENTER}")
                       .arg(QLatin1String(member), QLatin1String(liters), QLatin1String(fat)));
    }
    static void DeliverOf(
        Clerk& clerk, const char* member, const char* animal, const char* liters, const char* fat)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}{ENTER}{ENTER}")
                       .arg(QLatin1String(member), QLatin1String(animal), QLatin1String(liters),
                           QLatin1String(fat)));
    }

    static void OpenTheDay(Clerk& clerk, const char* proposed, const char* keys)
    {
        EXPECT_EQ(OnTop(clerk), "frmAbout");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmTip");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmAppDate");
        EXPECT_EQ(Reads(clerk, "MaskAppDate"), proposed);
        Type(clerk, keys);
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    }

    static void EnterMember(
        Clerk& clerk, const char* name, const char* animal, const char* balance, const char* way)
    {
        Type(clerk, "%n");
        clerk.Type(
            QStringLiteral("{ENTER}%1{ENTER}{ENTER}{ENTER}%2{ENTER}1{ENTER}%3{ENTER}%4")
                .arg(QLatin1String(name), QLatin1String(animal), QLatin1String(balance), QLatin1String(way)));
        Type(clerk, "%s");
        EXPECT_EQ(Focus(clerk), "cmdNew") << name << " is saved";
    }

    static void EnterMembers(Clerk& clerk)
    {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMembers");
        EnterMember(clerk, "rama", "1", "250", "1");
        EnterMember(clerk, "saIta", "2", "0", "1");
        EnterMember(clerk, "gaNaoSa", "3", "100.50", "2");
        EnterMember(clerk, "rajaa", "2", "0", "1");
        Type(clerk, "{ESC}{ESC}");
        EXPECT_EQ(Focus(clerk), "ListMain");
    }

    static void OpenTheCounter(Clerk& clerk, const char* keys)
    {
        Type(clerk, keys);
        EXPECT_EQ(OnTop(clerk), "frmMilkCollections");
    }

    void TakeTheMorning(Clerk& clerk)
    {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        Deliver(clerk, "1", "12.5", "4.2");

        Type(clerk, "{ENTER}2{ENTER}8.25{ENTER}42{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat") << "no milk has a fat of 42";
        Type(clerk, "0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "7.1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "393.11");
        Type(clerk, "{ENTER}{ENTER}");

        DeliverOf(clerk, "3", "1", "1.125", "4.3");
        DeliverOf(clerk, "3", "2", "4.3", "6.8");

        Type(clerk, "{ENTER}{ENTER}raj");
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rajaa");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "4");
        Type(clerk, "{ENTER}7.125{ENTER}6.5{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6");
    }

    void MendTheMorning(Clerk& clerk)
    {
        Deliver(clerk, "1", "3", "4.2");
        EXPECT_EQ(TheBox.Shown, Lines({"Duplicate Record"}));
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6");

        Type(clerk, "3{ENTER}{ENTER}{ENTER}"); // number, member and animal stay
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "2.375{ENTER}{ENTER}{ENTER}{ENTER}");
        Type(clerk, "4{ENTER}{F10}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6") << "a gap stays in the series";
        DeliverOf(clerk, "3", "2", "4.3", "6.8");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "7");
    }

    void TakeTheEvening(Clerk& clerk)
    {
        TheClock.Time.setTime(QTime(18, 20, 0));
        Type(clerk, "+{TAB}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        Deliver(clerk, "1", "11", "4.4");
    }

    // A can of the day before is entered, and its fat set right afterwards.
    static void CorrectTheDayBefore(Clerk& clerk)
    {
        Type(clerk, "{ESC}");
        OpenTheCounter(clerk, "{ENTER}");
        Type(clerk, "14042026{ENTER}1{ENTER}");
        Deliver(clerk, "2", "3", "7.1");
        Type(clerk, "1{ENTER}{ENTER}{ENTER}6.8{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
    }

    static void Leave(Clerk& clerk)
    {
        Type(clerk, "{ESC}");
        clerk.AskToLeave();
        EXPECT_EQ(clerk.Message(), "saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ");
        Type(clerk, "%h");
        EXPECT_EQ(OnTop(clerk), "");
    }

    void PlayTheDay(Clerk& clerk)
    {
        OpenTheDay(clerk, "01/04/2026", "15042026{ENTER}{ENTER}");
        EnterMembers(clerk);
        OpenTheCounter(clerk, "{DOWN}{ENTER}{ENTER}");
        TakeTheMorning(clerk);
        MendTheMorning(clerk);
        TakeTheEvening(clerk);
        CorrectTheDayBefore(clerk);
        Leave(clerk);
    }

    QStringList Deliveries(const char* table)
    {
        return Rows(
            QStringLiteral("select CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
                           "Liters,Fat,Rate,Amount,ActualCollectionTime from %1 "
                           "order by CollectionDate,CollectionTime,CollectionNo")
                .arg(QLatin1String(table)));
    }

    QStringList Members()
    {
        return Rows("select MemberNo,MemberName,Animal,PaymentType,OpeningBalance,OpeningDorC,"
                    "ClosingBalance,ClosingDorC,CowClosingLits,BuffClosingLits "
                    "from MembersMaster order by MemberNo");
    }
};

}

TEST_F(MorningTest, ADayFromTheTitleToTheEndIsInTheBooksToThePaisa)
{
    EXPECT_EQ(Start([this](Clerk& clerk) { PlayTheDay(clerk); }), 0);
    Reopen();
    EXPECT_EQ(Deliveries("MilkCollections"),
        Lines({"14/04/2026|sakaL|1|2|saIta|mhOsa|3|6.8|47.2|141.6|6.20",
            "15/04/2026|saMQyaakaL|1|1|rama|gaaya|11|4.4|34.88|383.68|6.20",
            "15/04/2026|sakaL|1|1|rama|gaaya|12.5|4.2|34.64|433|6.05",
            "15/04/2026|sakaL|2|2|saIta|mhOsa|8.25|7.1|47.65|393.11|6.05",
            "15/04/2026|sakaL|3|3|gaNaoSa|gaaya|2.375|4.3|34.76|82.56|6.05",
            "15/04/2026|sakaL|5|4|rajaa|mhOsa|7.125|6.5|46.75|333.09|6.05",
            "15/04/2026|sakaL|6|3|gaNaoSa|mhOsa|4.3|6.8|47.2|202.96|6.05"}));
    EXPECT_EQ(
        Deliveries("MilkCollectionsTemp"), Lines({"14/04/2026|sakaL|1|2|saIta|mhOsa|3|6.8|47.2|141.6|6.20"}))
        << "the copy holds the shift that was open last";
    // The balance is raised by what was new: 39.11 before the change, 202.96 twice, 142.95 before the
    // correction.
    EXPECT_EQ(Members(),
        Lines({"1|rama|gaaya|raoK|250|C|1066.68|C|23.5|0", "2|saIta|mhOsa|raoK|0|C|536.06|C|0|11.25",
            "3|gaNaoSa|daonhI|raoK|100.5|D|545.53|C|2.375|4.3", "4|rajaa|mhOsa|raoK|0|C|333.09|C|0|7.125"}));
    EXPECT_EQ(Integrity(), "ok");
}

TEST_F(MorningTest, TheNextStartProposesTheLastDayAndGoesOnWithTheSeries)
{
    ASSERT_EQ(Start([this](Clerk& clerk) { PlayTheDay(clerk); }), 0);
    const int exitCode = Start([this](Clerk& clerk) {
        OpenTheDay(clerk, "15/04/2026", "{ENTER}{ENTER}");
        OpenTheCounter(clerk, "{DOWN}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "7");
        Type(clerk, "+{TAB}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        Deliver(clerk, "2", "2", "7.1");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        Leave(clerk);
    });
    EXPECT_EQ(exitCode, 0);
    Reopen();
    EXPECT_EQ(Deliveries("MilkCollectionsTemp"),
        Lines({"15/04/2026|saMQyaakaL|1|1|rama|gaaya|11|4.4|34.88|383.68|6.20",
            "15/04/2026|saMQyaakaL|2|2|saIta|mhOsa|2|7.1|47.65|95.3|6.20"}));
    EXPECT_EQ(Members().value(1), "2|saIta|mhOsa|raoK|0|C|631.36|C|0|13.25");
}
