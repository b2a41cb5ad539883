// Where a counter keeps the focus without a message, the guide line says what is wanted and what leads out.

#include "tests/collection/EachCounterTest.h"

namespace {

class CounterGuidesTest : public EachCounterTest { };

INSTANTIATE_TEST_SUITE_P(AtEach, CounterGuidesTest, Counters(), CounterName);

TEST_P(CounterGuidesTest, AFieldThatKeepsTheFocusSaysWhatItWants)
{
    struct Trap {
        const char* keys;
        const char* field;
        const char* guide;
    };
    for (const Trap& trap : std::initializer_list<Trap>{
             {"+{TAB}+{TAB}31022026{ENTER}", "maskDate", "दिनांक असा टाका : 15/04/2026    Esc : बाहेर"},
             {"0{ENTER}", "txtCollectionNo", "क्रमांक 0 नसतो : नवीन नोंदीसाठी Enter    Esc : बाहेर"},
             {"{ENTER}77{ENTER}", "txtMemberNo", "मेम्बर नंबर टाका    Enter : नावाने"},
             {"{ENTER}{ENTER}xyz{ENTER}", "ComboMemberName",
                 "नाव टाका, किंवा ↓ ने यादीतून निवडा    Esc : यादी बंद, मग बाहेर"},
             {"{ENTER}{ENTER}rama{ENTER}", "ComboMemberName", "Enter : पुढे"},
             {"{ENTER}3{ENTER}{ENTER}", "txtAnimal", "1 : गाय    2 : म्हैस    Esc : बाहेर"},
             {"{ENTER}1{ENTER}0{ENTER}", "txtLiters", "लिटर टाका    Esc : बाहेर"},
             {"{ENTER}1{ENTER}2{ENTER}0{ENTER}", "txtFat", "फॅट टाका : 0.1 ते 30.0    Esc : बाहेर"},
             {"{ENTER}1{ENTER}2{ENTER}42{ENTER}", "txtFat", "फॅट टाका : 0.1 ते 30.0    Esc : बाहेर"},
             {"{ENTER}1{ENTER}2{ENTER}30{ENTER}{ENTER}", "txtRate",
                 "तक्त्यात या फॅटचा दर नाही : दर टाका    Esc : बाहेर"},
             {"{ENTER}1{ENTER}2{ENTER}4.5{ENTER}60.01{ENTER}", "txtRate",
                 "दर टाका : 60.00 पर्यंत    Esc : बाहेर"}})
        InTheShift([&](Clerk& clerk) {
            Type(clerk, trap.keys);
            EXPECT_EQ(Focus(clerk), trap.field) << trap.keys;
            EXPECT_EQ(Label(clerk, "lblFooter"), trap.guide) << trap.keys;
        });
}

TEST_P(CounterGuidesTest, AnEmptyNameIsStillSaidAfterItsNotice)
{
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}{ENTER}");
        ASSERT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Label(clerk, "lblFooter"), "नाव टाका, किंवा ↓ ने यादीतून निवडा    Esc : यादी बंद, मग बाहेर");
    });
}

TEST_P(CounterGuidesTest, WhatWasWantedIsSaidNoLongerWhenItIsThere)
{
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}30{ENTER}{ENTER}35{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        EXPECT_EQ(Label(clerk, "lblFooter"), "");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Label(clerk, "lblFooter"), "");
    });
}

TEST_P(CounterGuidesTest, ALineThatIsNotSavedIsSaid)
{
    InTheShift([this](Clerk& clerk) {
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Label(clerk, "lblFooter"), "रक्कम किंवा मेम्बर नाही : काहीही सेव्ह झाले नाही");
        EXPECT_TRUE(Books().isEmpty());
    });
}

TEST_P(CounterGuidesTest, ANumberThatIsNotThereIsSaidBesideASettledAnimal)
{
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5+{TAB}+{TAB}77{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Label(clerk, "lblFooter"), "हा मेम्बर नंबर नाही    Shift+Tab : मागे");
        Type(clerk, "+{TAB}+{TAB}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Label(clerk, "lblFooter"), "");
    });
}

// The keys beside the member's number

TEST_P(CounterGuidesTest, F9IsLitOnlyBesideAMemberWhoHasARowInTheShift)
{
    AddMorningDelivery(1);
    const auto isLit = [](Clerk& clerk, bool lit) {
        for (const char* label : {"lblF9", "lblSearch"})
            EXPECT_EQ(LabelOf(clerk, label).isEnabled(), lit) << label;
    };
    InTheShift([&](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        isLit(clerk, false);
        Type(clerk, "1");
        isLit(clerk, true);
        Type(clerk, "2");
        isLit(clerk, false);
        Type(clerk, "{BS}");
        isLit(clerk, true);
        Type(clerk, "{BS}2");
        isLit(clerk, false);
    });
}

}

TEST_F(CounterTest, F7IsLitAtTheNumberAndNotBehindTheMembersFrame)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}2");
        EXPECT_TRUE(LabelOf(clerk, "lblF7").isEnabled());
        Type(clerk, "{F7}");
        for (const char* label : {"lblF7", "lblMilk", "lblF9", "lblSearch"})
            EXPECT_FALSE(LabelOf(clerk, label).isEnabled()) << label;
    });
}
