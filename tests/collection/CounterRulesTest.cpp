// Rules of the entry line that only particular rows and devices bring to light.

#include "tests/collection/EachCounterTest.h"

#include "platform/forms/ModalStack.h"
#include "tests/support/FakeSerialPort.h"

#include <map>

namespace {

using namespace std::chrono_literals;

class CounterRulesTest : public EachCounterTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_EQ(Error(), ""); }

    void AddYesterdays(int number, int member, const char* name, const char* animal, double fat)
    {
        AddDelivery("14/04/2026", "sakaL", number, member, QString::fromLatin1(name),
            QString::fromLatin1(animal), 5, fat, 35, 175);
    }

    // From the number to the fat of a member with one animal; what he is offered there.
    static std::string OfferedFat(Clerk& clerk, const char* member)
    {
        Type(clerk, "{ENTER}");
        Type(clerk, member);
        Type(clerk, "{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        return Reads(clerk, "txtFat");
    }

    FakeSerialPorts Ports;
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterRulesTest, Counters(), CounterName);

// A plain box that reads the line of the counter beneath it.
class ReadingBox final : public MessageBox {
public:
    std::map<QString, QStringList> Line; // what was told -> member, litres, amount at that time
    void Show(const QString& text, const QString&) override
    {
        for (const char* field : {"txtMemberNo", "txtLiters", "txtAmount"})
            Line[text].append(ModalStack::Current().Top()->Find(QString::fromLatin1(field))->Text());
    }
};

// A second can

TEST_P(CounterRulesTest, ADuplicateIsFoundWhateverBlanksStandAroundItsAnimal)
{
    AddMorningDelivery(1);
    Run("update MilkCollections set Animal=' gaaya '");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
    });
}

TEST_P(CounterRulesTest, ADuplicateIsToldWhileItsLineCanStillBeRead)
{
    ReadingBox box;
    World::Current().messageBox = &box;
    AddMorningDelivery(1);
    InTheShift([](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "") << "it is cleared afterwards";
    });
    World::Current().messageBox = &TheBox;
    EXPECT_EQ(
        box.Line["Duplicate Record"], QStringList({"1", QString::fromStdString(Litres("2.00")), "70.00"}));
}

// The last fat

TEST_P(CounterRulesTest, OfTwoMembersOfOneNameEachIsOfferedHisOwnFat)
{
    AddMember(8, "rama", "gaaya");
    AddYesterdays(1, 1, "rama", "gaaya", 4.2);
    AddYesterdays(2, 8, "rama", "gaaya", 5.5);
    InTheShift([](Clerk& clerk) { EXPECT_EQ(OfferedFat(clerk, "1"), "4.2"); });
    InTheShift([](Clerk& clerk) { EXPECT_EQ(OfferedFat(clerk, "8"), "5.5"); });
}

TEST_P(CounterRulesTest, AFatUnderAnotherNameOfTheNumberIsNotOffered)
{
    AddYesterdays(1, 1, "rama", "gaaya", 4.2);
    AddYesterdays(2, 1, "laxamaNa", "gaaya", 5.5);
    InTheShift([](Clerk& clerk) { EXPECT_EQ(OfferedFat(clerk, "1"), "4.2"); });
}

TEST_P(CounterRulesTest, TheFatIsOfferedWithOneDecimal)
{
    AddYesterdays(1, 1, "rama", "gaaya", 4.25);
    InTheShift([](Clerk& clerk) { EXPECT_EQ(OfferedFat(clerk, "1"), "4.3"); });
}

TEST_P(CounterRulesTest, WhatTheTesterSaysStandsInPlaceOfTheOffer)
{
    AddYesterdays(1, 1, "rama", "gaaya", 4.2);
    gAppState.gWeighScale = "NO";
    gAppState.gAutoFat = "haoya"; // by the switch: the stored setting says no
    Ports.Replies.insert("W", {{"ST,GS,00000000 5.1%", 1ms}});
    InTheShift([](Clerk& clerk) { EXPECT_EQ(OfferedFat(clerk, "1"), "5.1"); });
}

TEST_P(CounterRulesTest, ANewNumberAfterAnExistingRowIsOfferedAFatAgain)
{
    AddMorningDelivery(1);
    AddYesterdays(1, 2, "saIta", "mhOsa", 8.1);
    InTheShift([](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        clerk.Press("txtCollectionNo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        Type(clerk, "{HOME}+{END}2");
        EXPECT_EQ(OfferedFat(clerk, "2"), "8.1");
    });
}

// Devices that say nothing

TEST_P(CounterRulesTest, ASilentScaleLeavesTheLitresThatStandThere)
{
    AddMorningDelivery(1);
    gAppState.gWeighScale = "ELECTRO";
    gAppState.gAutoLiters = "haoya";
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}");
        EXPECT_TRUE(Ports.Log.contains("write W")) << "it was asked";
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("5.00"));
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_P(CounterRulesTest, ASilentTesterLeavesTheFatThatStandsThere)
{
    AddMorningDelivery(1);
    gAppState.gWeighScale = "NO";
    gAppState.gAutoFat = "haoya";
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_TRUE(Ports.Log.contains("write W")) << "it was asked";
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

// The tare

TEST_P(CounterRulesTest, NoTareIsSentForACanThatWasNotSaved)
{
    gAppState.gWeighScale = "NO";
    gAppState.gAutoLiters = "haoya";
    InTheShift([](Clerk& clerk) {
        gCn.RunScript("create trigger NoRoom before insert on MilkReceipt "
                      "begin select raise(abort, 'no room'); end");
        Deliver(clerk, 1, "5", "4.5");
    });
    ASSERT_TRUE(Failure);
    EXPECT_FALSE(Ports.Log.contains("write t"));
    Failure.reset();
}

TEST_P(CounterRulesTest, AChangedRowSendsTheTareToo)
{
    AddMorningDelivery(1);
    gAppState.gWeighScale = "NO";
    gAppState.gAutoLiters = "haoya";
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}"); // the litres go on by themselves
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_FALSE(Ports.Log.contains("write t")) << "not yet";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Ports.Log.count("write t"), 1);
    });
    EXPECT_EQ(Error(), "");
}

// The list of names

TEST_P(CounterRulesTest, AnUnknownNameBesideANumberLoadsTheListAnew)
{
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1{ENTER}2");
        AddMember(4, "Aajaaobaa");
        clerk.Press("ComboMemberName");
        Type(clerk, "{END}+{HOME}raja{ENTER}");
        EXPECT_EQ(dynamic_cast<NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).Items(),
            Of({"Aajaaobaa", "gaNaoSa", "rama", "saIta"}));
    });
}

// The slip

TEST_P(CounterRulesTest, ASlipOfNoCompanyIsGoneBeforeTheSlipIsPrinted)
{
    Set("PrintStatus", "haoya");
    QStringList atPrinting;
    TemplateReport::Engine() = [&](const TemplateReport::Run&) {
        atPrinting.append(One("select count(*) from MilkReceipt"));
    };
    InTheShift([](Clerk& clerk) {
        gAppState.gCompanyId = 0;
        Deliver(clerk, 1, "2", "4.5");
    });
    EXPECT_EQ(atPrinting, Of({"0"}));
}

}
