// The list of the members.

#include "tests/reports/ReportsTest.h"

#include "platform/forms/NameCombo.h"
#include "reports/frmReportMembersList.h"

#include <QLabel>

namespace {

class MembersListTest : public ReportsTest {
protected:
    MembersListTest()
    {
        AddMember(1, "Anata", "gaaya");
        AddMember(2, "gaNaoSa", "mhOsa");
        AddMember(3, "maaQava", "daonhI");
        for (const char* town : {"kraD", "masaUr"})
            Run(QStringLiteral("update MembersMaster set City='%1' where MemberNo=%2")
                    .arg(QString::fromLatin1(town))
                    .arg(town[0] == 'k' ? 1 : 2));
        Run("delete * from CityMaster");
        for (const char* town : {"masaUr", "kraD"})
            Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                    .arg(QString::fromLatin1(town)));
        Run("insert into MembersListReport(CompanyId,MemberNo) values(1,9)");
    }

    std::string Staged(const char* keys)
    {
        Type<frmReportMembersList>(keys);
        EXPECT_FALSE(Failure);
        return Rows("select Crieteria,CrieteriaValue,MemberNo,MemberName,City,Animal from "
                    "MembersListReport where CompanyId=1")
            .join(u' ')
            .toStdString();
    }
};

TEST_F(MembersListTest, TheFullListHoldsAllOfThemUnderNoValue)
{
    EXPECT_EQ(Staged("%i"),
        "Complete||1|Anata|kraD|gaaya Complete||2|gaNaoSa|masaUr|mhOsa "
        "Complete||3|maaQava||daonhI");
    EXPECT_TRUE(ReportTexts().contains("एकूण सभासद : 3"));
}

TEST_F(MembersListTest, AFileOfItIsNamedAfterWhatIsListedAndTheDay)
{
    Staged("%i");
    EXPECT_EQ(TheWindow.Subject(), "15-04-2026");
    Staged("%2{ENTER}masaUr%i");
    EXPECT_EQ(TheWindow.Subject(), "मसूर 15-04-2026");
}

TEST_F(MembersListTest, OneAreaHoldsItsOwn)
{
    EXPECT_EQ(Staged("%2{ENTER}kraD%i"), "Area|kraD|1|Anata|kraD|gaaya");
}

TEST_F(MembersListTest, AnAreaThatIsBegunIsTheOneThatTheListStandsAt)
{
    EXPECT_EQ(Staged("%2{ENTER}kr%i"), "Area|kraD|1|Anata|kraD|gaaya");
    EXPECT_EQ(Staged("%2{ENTER}m{ENTER}{ENTER}"), "Area|masaUr|2|gaNaoSa|masaUr|mhOsa");
    EXPECT_EQ(Staged("%2{ENTER} kraD %i"), "Area|kraD|1|Anata|kraD|gaaya");
    EXPECT_EQ(Staged("%2{ENTER}krm%i"), "") << "no area begins like this";
}

TEST_F(MembersListTest, AnAreaHoldsItsMembersInAnySpelling)
{
    AddMember(4, "rama", "gaaya");
    AddMember(5, "saIta", "gaaya");
    Run("update MembersMaster set City='vaaru' where MemberNo=4");
    Run("update MembersMaster set City='vaa$' where MemberNo=5");
    Run("insert into CityMaster(CompanyId,CityName) values(1,'vaa$')");
    EXPECT_EQ(Staged("%2{ENTER}vaaru%i"), "Area|vaa$|5|saIta|vaa$|gaaya Area|vaa$|4|rama|vaaru|gaaya");
}

TEST_F(MembersListTest, AnApostropheInTheAreaFailsTheListAndNothingIsStaged)
{
    const QStringList before = Rows("select * from MembersListReport");
    for (const char* area : {"kr'aD", "kraD'' or ''a''=''a"}) {
        On<frmReportMembersList>([area](Clerk& clerk) {
            clerk.Type("%2{ENTER}" + QString::fromLatin1(area));
            EXPECT_EQ(clerk.Reads("ComboArea"), QString::fromLatin1(area));
            Type(clerk, "%i");
            EXPECT_EQ(OnTop(clerk), "");
        });
        ASSERT_TRUE(Failure) << area;
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(Failure->Statement().contains(QString::fromLatin1(area))) << Failure->what();
        EXPECT_EQ(Rows("select * from MembersListReport"), before);
        EXPECT_TRUE(TheWindow.Shown.empty());
    }
}

TEST_F(MembersListTest, AllAreasHoldEachMemberUnderItsOwn)
{
    const char* all = "Area|kraD|1|Anata|kraD|gaaya Area|masaUr|2|gaNaoSa|masaUr|mhOsa "
                      "Area||3|maaQava||daonhI";
    EXPECT_EQ(Staged("%2%i"), all);
    EXPECT_EQ(Staged("%2{ENTER}{ENTER}{ENTER}"), all) << "Enter through the empty area leaves it empty";
}

TEST_F(MembersListTest, AnAnimalHoldsOnlyThoseOfExactlyThatWordSoOneOfBothIsNotInTheCowsList)
{
    EXPECT_EQ(Staged("%3%i"), "Milk|gaaya|1|Anata|kraD|gaaya");
    EXPECT_EQ(Staged("%3{ENTER}{DOWN}%i"), "Milk|mhOsa|2|gaNaoSa|masaUr|mhOsa");
    EXPECT_EQ(Staged("%3{ENTER}{UP}%i"), "Milk|daonhI|3|maaQava||daonhI");
}

TEST_F(MembersListTest, TheReportGroupsByArea)
{
    Staged("%2%i");
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("विभाग : " + Seen("kraD")));
    EXPECT_EQ(texts.count("सभासद : 1"), 3);
}

TEST_F(MembersListTest, OnlyWhatBelongsToTheChosenListCanBeEntered)
{
    On<frmReportMembersList>([](Clerk& clerk) {
        const auto open = [&] {
            std::string names;
            for (const char* name : {"ComboArea", "OptionCow", "OptionBuff", "OptionBoth"})
                names += clerk.CanEnter(QString::fromLatin1(name)) ? '1' : '0';
            return names;
        };
        EXPECT_EQ(open(), "0000");
        Type(clerk, "%2");
        EXPECT_EQ(open(), "1000");
        EXPECT_EQ(
            dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboArea"))->Items().join(u' '), "kraD masaUr");
        Type(clerk, "%3");
        EXPECT_EQ(open(), "0111");
        Type(clerk, "%1{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdReport");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(MembersListTest, TheAreasGuideSaysThatNoneMeansAll)
{
    On<frmReportMembersList>([](Clerk& clerk) {
        const auto guide = [&] { return clerk.Top().findChild<QLabel*>("lblGuide")->text(); };
        EXPECT_EQ(guide(), QString());
        Type(clerk, "%2{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboArea");
        EXPECT_EQ(guide(), "रिकामे ठेवल्यास सर्व विभाग");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(guide(), QString());
    });
}

TEST_F(MembersListTest, TwoRunsGiveTheSame)
{
    const std::string staged = Staged("%i");
    const QStringList texts = ReportTexts();
    EXPECT_EQ(Staged("%i"), staged);
    EXPECT_EQ(ReportTexts(), texts);
}

TEST_F(MembersListTest, NoMemberAtAllIsAReportThatSaysSo)
{
    Run("delete * from MembersMaster");
    EXPECT_EQ(Staged("%i"), "");
    EXPECT_TRUE(ReportTexts().contains("सभासद नाहीत."));
}

TEST_F(MembersListTest, AMissingTemplateEndsTheProgramWithTheStagingDone)
{
    RemoveTemplate("ReportListMembers.rpt");
    Type<frmReportMembersList>("%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Rows("select * from MembersListReport").size(), 3);
}

}
