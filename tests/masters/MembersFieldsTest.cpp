#include "tests/masters/MembersTest.h"

namespace {

class MembersFieldsTest : public MembersTest {
protected:
    // A new member on its way, with the focus on the field; only fields that any keys lead to.
    void OnField(const QString& field, const std::function<void(Clerk&)>& script)
    {
        Play([&](Clerk& clerk) {
            Type(clerk, "{ENTER}");
            TypeEach(clerk, {QString(), "gaNaoXa", QString(), QString(), "3"});
            GoTo(clerk, field);
            if (clerk.Focus() == field) // the payment type holds the focus until it is given
                return script(clerk);
            Type(clerk, "1");
            GoTo(clerk, field);
            ASSERT_EQ(clerk.Focus(), field);
            script(clerk);
        });
    }

    QStringList CitiesAdded()
    {
        return Rows("select CompanyId,CityName from CityMaster where CityName='Kod'");
    }

    QStringList BanksAdded()
    {
        return Rows("select CompanyId,BankName from BankMaster where BankName='sTuT'");
    }
};

const QString CityQuestion = "navaIna Sahr A^D kravao ka Æ";
const QString BankQuestion = "navaIna baÐk A^D kravaI ka Æ";

QStringList ListOf(const Clerk& clerk, QStringView combo)
{
    const auto* list = dynamic_cast<NameCombo*>(clerk.Top().Find(combo));
    return list ? list->Items() : QStringList();
}

QString GuideOf(Clerk& clerk, const QString& field)
{
    return clerk.Top().Find(field)->Guide().Text();
}

}

TEST_F(MembersFieldsTest, EachFieldHasItsGuide)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(GuideOf(clerk, "txtAnimal"), "1 ¹ gaaya    2 ¹ mhOsa    3 ¹ daonhI");
        EXPECT_EQ(GuideOf(clerk, "txtPaymentType"), "1 ¹ raoK    2 ¹ ba^nk");
        EXPECT_EQ(GuideOf(clerk, "txtOpeningDorC"), "1 ¹ doNao  2 ¹ yaoNao");
        EXPECT_EQ(GuideOf(clerk, "txtMemberNo"), "maombar naMbar");
        EXPECT_EQ(GuideOf(clerk, "ComboMemberName"), "maombarcao naaMva");
        EXPECT_EQ(GuideOf(clerk, "txtAddress"), "p<aa");
        EXPECT_EQ(GuideOf(clerk, "ComboCity"), "gaava");
        EXPECT_EQ(GuideOf(clerk, "ComboBankName"), "ba^nkocao naava");
        EXPECT_EQ(GuideOf(clerk, "txtBankAccountNo"), "ba^nk Kato naMbar");
    });
}

TEST_F(MembersFieldsTest, TheGuideOfTheOpeningBalanceNamesTheFirstDayOfTheYear)
{
    Run("update CompanySelected set FromDate='02/04/2025'");
    Play([](Clerk& clerk) {
        EXPECT_EQ(
            GuideOf(clerk, "txtOpeningBalance"), "02.04.2025 raojaI doNao ikMvaa yaoNao AsalaolaI r@kma");
    });
}

TEST_F(MembersFieldsTest, ADigitPutsTheWordInPlaceAndStaysThere)
{
    OnField("txtAnimal", [](Clerk& clerk) {
        const QStringList words = {"gaaya", "mhOsa", "daonhI"};
        for (int digit = 1; digit <= 3; ++digit) {
            clerk.Type(QString::number(digit));
            EXPECT_EQ(clerk.Reads("txtAnimal"), words[digit - 1]);
        }
        Type(clerk, "4x ");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "daonhI");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
}

TEST_F(MembersFieldsTest, AnEmptyAnimalAndAnEmptyPaymentTypeHoldTheFocusInSilence)
{
    OnField("txtAnimal", [](Clerk& clerk) {
        Type(clerk, "{BS}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "1{ENTER}{BS}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtPaymentType");
        EXPECT_EQ(clerk.Message(), QString());
    });
}

TEST_F(MembersFieldsTest, TheAnimalOpensItsOwnFiguresOnly)
{
    OnField("txtAnimal", [](Clerk& clerk) {
        const auto expect = [&clerk](const QString& key, bool cow, bool buffalo) {
            clerk.Type(key + "{ENTER}");
            EXPECT_EQ(CanEnter(clerk, "txtCowOpeningLits"), cow);
            EXPECT_EQ(CanEnter(clerk, "txtCowOpeningThev"), cow);
            EXPECT_EQ(CanEnter(clerk, "txtBuffOpeningLits"), buffalo);
            EXPECT_EQ(CanEnter(clerk, "txtBuffOpeningThev"), buffalo);
            Type(clerk, "1+{TAB}");
        };
        expect("1", true, false);
        expect("2", false, true);
        expect("3", true, true);
    });
}

TEST_F(MembersFieldsTest, BankShowsTheBankFieldsAndGoesOnThere)
{
    OnField("txtPaymentType", [](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "ComboBankName"));
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboBankName");
        EXPECT_TRUE(CanEnter(clerk, "txtBankAccountNo"));
    });
}

TEST_F(MembersFieldsTest, CashEmptiesAndHidesTheBankFields)
{
    AddMember(1, "rama");
    Run("update MembersMaster set PaymentType='ba^nk',BankName='sTuT',BankAccountNo='47'");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtPaymentType");
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtOpeningBalance");
        EXPECT_FALSE(CanEnter(clerk, "ComboBankName"));
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows("select PaymentType,BankName,BankAccountNo from MembersMaster"), QStringList{"raoK||"});
}

TEST_F(MembersFieldsTest, AnEmptyAccountNumberNeverHoldsTheClerkUp)
{
    OnField("txtPaymentType", [](Clerk& clerk) {
        Type(clerk, "2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtOpeningBalance");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtOpeningDorC");
    });
}

TEST_F(MembersFieldsTest, AKnownCityPassesWhateverItsBlanks)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,' Kod ')");
    OnField("ComboCity", [](Clerk& clerk) {
        Type(clerk, "Kod{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "+{TAB}{BS}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
    EXPECT_TRUE(CitiesAdded().isEmpty());
}

TEST_F(MembersFieldsTest, ANewCityIsAddedOnYesAndStandsOnTheList)
{
    OnField("ComboCity", [](Clerk& clerk) {
        Type(clerk, "Kod{ENTER}");
        EXPECT_EQ(clerk.Message(), CityQuestion);
        Type(clerk, "%h");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_TRUE(ListOf(clerk, u"ComboCity").contains("Kod"));
        EXPECT_EQ(Reads(clerk, "ComboCity"), "Kod");
    });
    EXPECT_EQ(CitiesAdded(), QStringList{"1|Kod"});
}

TEST_F(MembersFieldsTest, ANewCityStaysOutOnNoAndTheFocusStays)
{
    OnField("ComboCity", [](Clerk& clerk) {
        Type(clerk, "Kod{ENTER}%n");
        EXPECT_EQ(Focus(clerk), "ComboCity");
    });
    EXPECT_TRUE(CitiesAdded().isEmpty());
}

TEST_F(MembersFieldsTest, ACityOfAnotherCompanyIsNewHere)
{
    Run("insert into CityMaster(CompanyId,CityName) values(2,'Kod')");
    OnField("ComboCity", [](Clerk& clerk) {
        EXPECT_FALSE(ListOf(clerk, u"ComboCity").contains("Kod"));
        Type(clerk, "Kod{ENTER}");
        EXPECT_EQ(clerk.Message(), CityQuestion);
    });
}

TEST_F(MembersFieldsTest, ANewBankIsAddedOnYesAndStaysOutOnNo)
{
    OnField("txtPaymentType", [](Clerk& clerk) {
        Type(clerk, "2{ENTER}sTuT{ENTER}");
        EXPECT_EQ(clerk.Message(), BankQuestion);
        Type(clerk, "%n");
        EXPECT_EQ(Focus(clerk), "ComboBankName");
        EXPECT_FALSE(ListOf(clerk, u"ComboBankName").contains("sTuT"));
        Type(clerk, "{ENTER}%h");
        EXPECT_EQ(Focus(clerk), "txtBankAccountNo");
        EXPECT_TRUE(ListOf(clerk, u"ComboBankName").contains("sTuT"));
    });
    EXPECT_EQ(BanksAdded(), QStringList{"1|sTuT"});
}

TEST_F(MembersFieldsTest, LettersAreDroppedInNumbersAndTheirTextTakesItsPattern)
{
    OnField("txtOpeningBalance", [](Clerk& clerk) {
        Type(clerk, "a1x2-.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOpeningBalance"), "12.50");
        Type(clerk, "{ENTER}7.0005{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowOpeningLits"), "7.001");
        Type(clerk, "q8{ENTER}{BS}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBuffOpeningLits"), "8.000");
        EXPECT_EQ(Reads(clerk, "txtOpeningUchal"), "0.00");
        GoTo(clerk, "txtMemberNo");
        Type(clerk, "x4.5y");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "45");
    });
}

TEST_F(MembersFieldsTest, AnEmptyDirectionTakesPayable)
{
    OnField("txtOpeningDorC", [](Clerk& clerk) {
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtOpeningDorC"), "yaoNao");
        Type(clerk, "{BS}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtOpeningDorC"), "doNao");
    });
}

TEST_F(MembersFieldsTest, TheLastFieldOfTheAnimalLeadsToTheSaveButton)
{
    Play([](Clerk& clerk) {
        FillNewMember(clerk, "rama", "1");
        GoTo(clerk, "txtCowOpeningThev");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        Type(clerk, "{ENTER}");
        CallUp(clerk, 1);
        GoTo(clerk, "txtAnimal");
        Type(clerk, "3{ENTER}");
        GoTo(clerk, "txtCowOpeningThev");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtBuffOpeningThev");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdModify");
    });
}

TEST_F(MembersFieldsTest, DevanagariFromAnInputMethodIsWrittenAsTheSystemSpellsIt)
{
    const QString seen = "शिंदे वाडा";
    OnField("txtAddress", [&](Clerk& clerk) {
        clerk.Type(seen);
        const auto* address = dynamic_cast<TextField*>(clerk.Top().Find(u"txtAddress"));
        ASSERT_NE(address, nullptr);
        EXPECT_EQ(address->Seen(), seen);
        GoTo(clerk, "txtPaymentType");
        Type(clerk, "1%s");
    });
    const QString stored = One("select Address from MembersMaster");
    EXPECT_EQ(stored, "iSaMdo vaaDa");
    EXPECT_EQ(Seen(stored), seen);
}

TEST_F(MembersFieldsTest, ATownThatReadsLikeOneOfTheListIsNotAskedFor)
{
    Run("insert into CityMaster(CompanyId,CityName) values(1,'maa$tI')");
    Run("insert into CityMaster(CompanyId,CityName) values(2,'saata$')");
    Play([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}rama{ENTER}{ENTER}maarutI{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "ComboCity"), "maarutI");
        Type(clerk, "1+{TAB}saataru{ENTER}");
        EXPECT_EQ(clerk.Message(), CityQuestion) << "the other company's town";
    });
}
