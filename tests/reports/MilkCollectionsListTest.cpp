// The list of a day's deliveries.

#include "tests/reports/ReportsTest.h"

#include "platform/forms/NameCombo.h"
#include "reports/frmReportMilkCollections.h"

#include <QRegularExpression>

namespace {

// One delivery of each shift and animal on the 15th, and one on another day. Each has litres of its own.
class MilkCollectionsListTest : public ReportsTest {
protected:
    MilkCollectionsListTest()
    {
        AddDelivery("15/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 1, 4, 30);
        AddDelivery("15/04/2026", "sakaL", 2, 3, "gaNaoSa", "mhOsa", 2, 7, 40);
        AddDelivery("15/04/2026", "saMQyaakaL", 1, 3, "gaNaoSa", "gaaya", 3, 5, 30);
        AddDelivery("15/04/2026", "saMQyaakaL", 2, 3, "gaNaoSa", "mhOsa", 4, 8, 40);
        AddDelivery("05/01/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 5, 4, 30);
        Run("insert into MilkCollectionsTemp(CompanyId,Liters) values(1,9)");
    }

    // The litres that a run has staged.
    std::string Staged(const char* keys)
    {
        Type<frmReportMilkCollections>(keys);
        EXPECT_FALSE(Failure);
        return Rows("select Liters from MilkCollectionsTemp order by Liters").join(u' ').toStdString();
    }
};

TEST_F(MilkCollectionsListTest, EachChoiceOfShiftAndAnimalTakesItsRowsOfTheDay)
{
    EXPECT_EQ(Staged("15042026{ENTER}{ENTER}%i"), "1 2 3 4");
    EXPECT_EQ(Staged("15042026{ENTER}gaaya{ENTER}%i"), "1 3");
    EXPECT_EQ(Staged("15042026{ENTER}mhOsa{ENTER}%d%i"), "2 4");
    EXPECT_EQ(Staged("15042026{ENTER}daonhI{ENTER}%s%i"), "1 2");
    EXPECT_EQ(Staged("15042026{ENTER}{ENTER}%k%i"), "3 4");
    EXPECT_EQ(Staged("15042026{ENTER}mhOsa{ENTER}%s%i"), "2");
    EXPECT_EQ(Staged("15042026{ENTER}gaaya{ENTER}%k%i"), "3");
    EXPECT_EQ(TheWindow.Shown.size(), 7U);
}

TEST_F(MilkCollectionsListTest, AFileOfItIsNamedAfterTheMilkTheShiftAndTheDay)
{
    Staged("15042026{ENTER}{ENTER}%i");
    EXPECT_EQ(TheWindow.Subject(), "15-04-2026");
    Staged("15042026{ENTER}mhOsa{ENTER}%s%i");
    EXPECT_EQ(TheWindow.Subject(), "म्हैस सकाळ 15-04-2026");
}

TEST_F(MilkCollectionsListTest, TheDayIsComparedAsText)
{
    EXPECT_EQ(Staged("05012026{ENTER}{ENTER}%i"), "5");
    EXPECT_EQ(Staged("01052026{ENTER}{ENTER}%i"), "");
}

TEST_F(MilkCollectionsListTest, TheOtherCompanysRowsOfTheDayAreListedAndThoseOfNoneAreNot)
{
    Run("update MilkCollections set CompanyId=2 where Liters=1");
    Run("update MilkCollections set CompanyId=0 where Liters=2");
    EXPECT_EQ(Staged("15042026{ENTER}{ENTER}%i"), "1 3 4");
}

TEST_F(MilkCollectionsListTest, AnEmptyAnimalBecomesBoth)
{
    On<frmReportMilkCollections>([](Clerk& clerk) {
        EXPECT_EQ(dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAnimal"))->Items().join(u' '),
            "gaaya mhOsa daonhI");
        Type(clerk, "15042026{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboAnimal"), "daonhI");
    });
}

TEST_F(MilkCollectionsListTest, AnEmptyAnimalBecomesBothStraightFromTheDateToo)
{
    EXPECT_EQ(Staged("15042026%i"), "1 2 3 4");
    EXPECT_EQ(Staged("15042026{ENTER}gaaya{ENTER}%i"), "1 3");
    On<frmReportMilkCollections>([](Clerk& clerk) {
        Type(clerk, "15042026");
        EXPECT_EQ(Focus(clerk), "MaskUserDate");
        Type(clerk, "%i");
        EXPECT_EQ(Reads(clerk, "ComboAnimal"), "daonhI");
    });
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp").size(), 4);
}

TEST_F(MilkCollectionsListTest, AWordThatIsBegunIsTheOneThatTheListStandsAt)
{
    for (const auto& [typed, word, liters] :
        {std::tuple("ga", "gaaya", "1 3"), std::tuple("mhO", "mhOsa", "2 4"),
            std::tuple("dao", "daonhI", "1 2 3 4"), std::tuple(" gaaya ", "gaaya", "1 3")}) {
        On<frmReportMilkCollections>([&, keys = typed, expected = word](Clerk& clerk) {
            clerk.Type("15042026{ENTER}" + QString::fromLatin1(keys));
            Type(clerk, "{ENTER}");
            EXPECT_EQ(clerk.Reads("ComboAnimal"), QString::fromLatin1(expected)) << keys;
            EXPECT_EQ(Focus(clerk), "OptionBoth") << keys;
        });
        EXPECT_EQ(Staged((std::string("15042026{ENTER}") + typed + "%i").c_str()), liters) << typed;
    }
}

TEST_F(MilkCollectionsListTest, AnAnimalThatIsNoneOfTheThreeIsEmptiedAndKeepsTheFocus)
{
    for (const char* typed : {"ga'", "'", "gaayaa", "Gaaya", "x"}) {
        On<frmReportMilkCollections>([&](Clerk& clerk) {
            clerk.Type("15042026{ENTER}" + QString::fromLatin1(typed));
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "ComboAnimal") << typed;
            EXPECT_EQ(Reads(clerk, "ComboAnimal"), "") << typed;
            EXPECT_EQ(clerk.Message(), QString());
            clerk.Type(QString::fromLatin1(typed));
            Type(clerk, "%i");
            EXPECT_TRUE(TheWindow.Shown.empty()) << typed;
            clerk.Type(QString::fromLatin1(typed));
            Type(clerk, "%b");
            EXPECT_EQ(OnTop(clerk), "") << "it doesn't keep the clerk from leaving";
        });
        EXPECT_FALSE(Failure) << typed;
    }
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp"), QStringList("9"));
}

TEST_F(MilkCollectionsListTest, TheListOfOneAnimalDoesntSpeakOfTheOther)
{
    const QString cow = "गाय";
    const QString buffalo = "म्हैस";
    // What stands below the total of the list.
    const auto sums = [this](const char* keys) {
        Type<frmReportMilkCollections>(keys);
        const QStringList texts = ReportTexts();
        return texts.mid(texts.indexOf(QRegularExpression("^एकूण \\(\\d+\\)$")));
    };
    QStringList below = sums("15042026{ENTER}gaaya%i");
    EXPECT_EQ(below.count(cow), 1);
    EXPECT_FALSE(below.contains(buffalo));
    EXPECT_FALSE(below.contains("0.000"));
    below = sums("15042026{ENTER}mhOsa%i");
    EXPECT_EQ(below.count(buffalo), 1);
    EXPECT_FALSE(below.contains(cow));
    EXPECT_FALSE(below.contains("0.000"));
    below = sums("15042026{ENTER}{ENTER}%i");
    EXPECT_TRUE(below.contains(cow));
    EXPECT_TRUE(below.contains(buffalo));
}

TEST_F(MilkCollectionsListTest, TheEndOfAListOfOneShiftOrOneAnimalDoesntSpeakOfTheWholeDay)
{
    EXPECT_EQ(Staged("15042026{ENTER}gaaya{ENTER}%k%i"), "3");
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("एकूण (1)"));
    EXPECT_FALSE(texts.join(u' ').contains("दिवस "));
}

TEST_F(MilkCollectionsListTest, ABadDateIsToldAndTakesTheFocusBack)
{
    On<frmReportMilkCollections>([this](Clerk& clerk) {
        Type(clerk, "3113{ENTER}");
        EXPECT_EQ(clerk.Message(), "idnaaMk vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskUserDate");
        EXPECT_TRUE(TheWindow.Shown.empty());
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(MilkCollectionsListTest, TheReportGroupsByShiftMorningFirstAndWeighsTheFatByLitres)
{
    Type<frmReportMilkCollections>("15042026{ENTER}{ENTER}%i");
    const QStringList texts = ReportTexts();
    const auto morning = texts.indexOf("एकूण सकाळ (2)");
    const auto evening = texts.indexOf("एकूण संध्याकाळ (2)");
    ASSERT_GE(morning, 0);
    EXPECT_LT(morning, evening);
    EXPECT_EQ(texts.mid(morning + 1, 3).join(u' '), "3.000 6.0 110.00");
    EXPECT_EQ(texts.mid(evening + 1, 3).join(u' '), "7.000 6.7 250.00");
    const auto day = texts.indexOf("एकूण (4)");
    EXPECT_EQ(texts.mid(day + 1, 3).join(u' '), "10.000 6.5 360.00");
}

TEST_F(MilkCollectionsListTest, AnEmptyListSaysForWhichDateItIsEmpty)
{
    EXPECT_EQ(Staged("15042026{ENTER}{ENTER}%i"), "1 2 3 4");
    EXPECT_TRUE(ReportTexts().contains("दिनांक 15/04/2026"));
    EXPECT_EQ(Staged("16042026{ENTER}{ENTER}%i"), "");
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("दिनांक 16/04/2026"));
    EXPECT_TRUE(texts.contains("दिनांक 16/04/2026 : निवडीप्रमाणे दुधाची नोंद नाही."));
    EXPECT_EQ(Rows("select * from ReportDates").size(), 1);
}

TEST_F(MilkCollectionsListTest, AListThatTheChoiceLeavesEmptyDoesntSayThatTheDayHadNoMilk)
{
    Run("delete from MilkCollections where Liters=3");
    for (const char* keys :
        {"15042026{ENTER}gaaya{ENTER}%k%i", "05012026{ENTER}mhOsa%i", "05012026{ENTER}{ENTER}%k%i"}) {
        EXPECT_EQ(Staged(keys), "");
        const QString empty = ReportTexts().filter("नोंद नाही").join(u'|');
        EXPECT_TRUE(QRegularExpression("^दिनांक (15/04|05/01)/2026 : निवडीप्रमाणे दुधाची नोंद नाही\\.$")
                        .match(empty)
                        .hasMatch())
            << empty.toStdString();
    }
}

TEST_F(MilkCollectionsListTest, TwoRunsGiveTheSame)
{
    const std::string staged = Staged("15042026{ENTER}{ENTER}%i");
    const QStringList texts = ReportTexts();
    EXPECT_EQ(Staged("15042026{ENTER}{ENTER}%i"), staged);
    EXPECT_EQ(ReportTexts(), texts);
}

TEST_F(MilkCollectionsListTest, AMissingTemplateEndsTheProgramWithTheStagingDone)
{
    RemoveTemplate("MilkCollectionsReport.rpt");
    Type<frmReportMilkCollections>("15042026{ENTER}{ENTER}%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp").size(), 4);
}

}
