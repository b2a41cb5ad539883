// What holds on every screen of the program, in each of its states: the way back, and the names of its keys.

#include "tests/journeys/EveryScreen.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/FakePrinter.h"

#include "core/menu/Keys.h"
#include "core/menu/MainMenu.h"
#include "core/menu/MenuEntries.h"
#include "core/menu/ScreenDirectory.h"
#include "core/preview/ReportHandover.h"
#include "platform/forms/Button.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"

#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace {

class EveryScreenTest : public ProgramTest, public ::testing::WithParamInterface<ScreenState> {
protected:
    EveryScreenTest() { FillBooks(); }

    // Plays on the screen in its state.
    void OnIt(const std::function<void(Clerk&)>& script)
    {
        PlayOn(TheClerk, GetParam(), [&](Clerk& clerk) {
            ASSERT_EQ(clerk.ScreenName(), GetParam().screen);
            script(clerk);
        });
    }

private:
    ReportHandover m_handover{std::make_unique<FakePrinter>(QStringList{"Office", "Store"})};
};

std::string NameOf(const ::testing::TestParamInfo<ScreenState>& info)
{
    return info.param.screen.toStdString() + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Program, EveryScreenTest, ::testing::ValuesIn(EveryScreen()), NameOf);

// The stop before the one that holds the focus, around the end, as the screen stands now.
QString Before(const Screen& screen, const QString& name)
{
    const std::vector<Control*>& controls = screen.Controls();
    const auto isStop = [](const Control* control) { return control->CanTakeFocus() && control->TabStop(); };
    const auto here = std::find_if(
        controls.begin(), controls.end(), [&](const Control* control) { return control->Name() == name; });
    auto at = here;
    do
        at = std::prev(at == controls.begin() ? controls.end() : at);
    while (at != here && !isStop(*at));
    return (*at)->Name();
}

// A field may open or close what is before it while it is left.
TEST_P(EveryScreenTest, ShiftTabLeadsFromEachFieldToTheOneBeforeIt)
{
    OnIt([](Clerk& clerk) {
        std::set<QString> met;
        while (met.insert(clerk.Focus()).second) {
            const QString from = clerk.Focus();
            const QString asItStood = Before(clerk.Top(), from);
            Type(clerk, "+{TAB}");
            if (clerk.ScreenName() != GetParam().screen)
                Type(clerk, "{ESC}"); // the field before it opens its look-up when it is entered
            ASSERT_EQ(clerk.ScreenName(), GetParam().screen) << "from " << from.toStdString();
            const QString asItStands = Before(clerk.Top(), from);
            EXPECT_TRUE(clerk.Focus() == asItStood || clerk.Focus() == asItStands)
                << "from " << from.toStdString() << " to " << Focus(clerk);
        }
        const bool hasOneStop = clerk.Focus() == Before(clerk.Top(), clerk.Focus());
        EXPECT_TRUE(hasOneStop || met.size() > 1);
    });
}

// All keys that the list of keys names for the screen on top, its places included; in the member's frame,
// which has a strip of its own, for the frame.
QString KeysNamedOn(Clerk& clerk)
{
    const QString screen = clerk.ScreenName();
    const Control* from = screen == u"frmMilkCollections" ? clerk.Top().Find(u"maskFromDate") : nullptr;
    const bool inFrame = from && from->Visible();
    QString named;
    for (const Keys::Place& place : Keys::Sheet()) {
        const bool isScreen = place.name == screen || place.name.startsWith(QString(screen + u'.'));
        if (inFrame ? !place.name.startsWith(u"FrameMilkCollection") : !isScreen)
            continue;
        for (const KeyHint& hint : place.keys)
            named += u' ' + hint.key + u' ';
    }
    return named;
}

TEST_P(EveryScreenTest, ItsKeysAreNamedInTheListOrInTheGuide)
{
    OnIt([](Clerk& clerk) {
        const QString named = KeysNamedOn(clerk);
        for (const Control* control : clerk.Top().Controls()) {
            const auto expect = [&](const QString& key) {
                EXPECT_TRUE(
                    named.contains(QString(u' ' + key + u' ')) || control->Guide().Seen().contains(key))
                    << key.toStdString() << " at " << control->Name().toStdString();
            };
            QChar mnemonic;
            if (const auto* button = dynamic_cast<const Button*>(control))
                mnemonic = button->Shown().Mnemonic();
            else if (const auto* option = dynamic_cast<const OptionButton*>(control))
                mnemonic = option->Shown().Mnemonic();
            if (!mnemonic.isNull() && control->CanTakeFocus())
                expect("Alt+" + mnemonic);
            if (dynamic_cast<const NameCombo*>(control)) {
                expect("↓");
                for (const char* key : {"Enter Tab", "Esc", "Alt+↓ Alt+↑"})
                    EXPECT_FALSE(Keys::Action(Keys::Of("NameCombo.list"), QString::fromUtf8(key)).IsEmpty())
                        << key << " at " << control->Name().toStdString();
            }
            if (dynamic_cast<const ChoiceField*>(control)) {
                EXPECT_TRUE(named.contains(u" 1 ") || control->Guide().Seen().contains(u'१'))
                    << "1 at " << control->Name().toStdString();
            }
            if (dynamic_cast<const CheckBox*>(control))
                expect("Space");
        }
    });
}

// What a list of fixed words answers, tried key by key: its guide names each digit with its word, and the
// list of keys that there are digits and how the list opens.
TEST_P(EveryScreenTest, TheKeysOfItsFixedWordsAreNamed)
{
    OnIt([](Clerk& clerk) {
        const QString named = KeysNamedOn(clerk);
        for (Control* control : clerk.Top().Controls()) {
            const auto* combo = dynamic_cast<ChoiceCombo*>(control);
            if (!combo || !combo->CanTakeFocus())
                continue;
            const std::string name = combo->Name().toStdString();
            clerk.Do([&] { control->SetFocus(); });
            ASSERT_EQ(Focus(clerk), name);
            Type(clerk, "{BS}");
            if (!combo->IsEmpty())
                continue; // it is for the mouse only
            for (int digit = 1; digit <= 9; ++digit) {
                clerk.Type(QStringLiteral("{BS}%1").arg(digit));
                if (combo->IsEmpty())
                    continue;
                const QRegularExpression told(QStringLiteral("%1:?–").arg(QChar(u'०' + digit)));
                EXPECT_TRUE(combo->Guide().Seen().contains(told))
                    << digit << " at " << name << ": " << qPrintable(combo->Guide().Seen());
                EXPECT_TRUE(named.contains(u" 1 ")) << digit << " at " << name;
            }
            Type(clerk, "%{DOWN}");
            EXPECT_TRUE(combo->IsDroppedDown()) << name;
            EXPECT_TRUE(named.contains(u" Alt+↓ ")) << name;
            Type(clerk, "{ESC}1"); // with a word it can be left
        }
    });
}

// Whether the list has them all

using ListOfScreensTest = ProgramTest;

// The screens that the key sheet names: those of the directory, and those that other screens open themselves.
QStringList ScreensWithKeys()
{
    QStringList names;
    for (const Keys::Place& place : Keys::Sheet())
        if (place.name.startsWith(u"frm") && !place.name.contains(u'.'))
            names.append(place.name);
    return names;
}

TEST_F(ListOfScreensTest, EveryScreenOfTheProgramIsOnIt)
{
    const std::vector<ScreenState>& states = EveryScreen();
    const QStringList screens = ScreenDirectory::Names() + ScreensWithKeys();
    for (const char* known : {"frmUchalVouchers", "frmSelectInwards", "frmReportFile", "frmMessages"})
        ASSERT_TRUE(screens.contains(known)) << known;
    for (const QString& screen : screens)
        EXPECT_TRUE(std::any_of(states.begin(), states.end(),
            [&screen](const ScreenState& state) { return state.screen == screen; }))
            << screen.toStdString() << ": its states are missing in tests/journeys/EveryScreen.cpp";
}

// Opens a screen of the menu, and leaves it.
void ExpectScreen(Clerk& clerk, const QString& keys, const QString& screen)
{
    clerk.Type(keys);
    EXPECT_EQ(clerk.ScreenName(), screen) << keys.toStdString();
    for (int left = 0; left < 3 && clerk.ScreenName() != u"MainMenuFrm"; ++left)
        clerk.Type("{ESC}");
    ASSERT_EQ(clerk.ScreenName(), "MainMenuFrm") << screen.toStdString();
}

TEST_F(ListOfScreensTest, EveryEntryOfTheMenuOpensItsScreen)
{
    const std::vector<MenuEntry> lists[] = {MenuEntries::Master(), MenuEntries::SVouchers(false),
        MenuEntries::MReports(), MenuEntries::YearlyReport(), MenuEntries::Utilities()};
    On<MainMenuFrm>([&](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}{ENTER}");
        for (int list = 0; list < 5; ++list) {
            clerk.Type("{HOME}" + QStringLiteral("{DOWN}").repeated(list) + "{ENTER}");
            for (int at = 0; at + 1 < static_cast<int>(lists[list].size()); ++at)
                ExpectScreen(clerk, "{HOME}" + QStringLiteral("{DOWN}").repeated(at) + "{ENTER}",
                    lists[list][at].screen);
            Type(clerk, "{ESC}");
        }
    });
    EXPECT_FALSE(Failure);
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(ListOfScreensTest, EveryKeyOfTheMenuOpensItsScreen)
{
    On<MainMenuFrm>([](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}{ENTER}");
        for (const auto& [key, screen] : {std::pair("{F4}", "frmUchalVouchers"), {"{F7}", "frmAutoSettings"},
                 {"{F8}", "frmCollectionGate"}, {"{F12}", "frmKeyboardTutor"}, {"{ESC}", "frmBackup"}})
            ExpectScreen(clerk, key, screen);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ListOfScreensTest, EveryKeyOfTheCountersThatLeadsElsewhereOpensItsScreen)
{
    for (const char* counter : {"frmMilkCollections", "frmCollectionGate"})
        for (const auto& [key, screen] : {std::pair("{F3}", "frmMembers"), {"{F6}", "frmUchalVouchers"}})
            PlayOn(TheClerk, {counter, key, [counter] { ScreenDirectory::Open(counter); }},
                [&, screen = screen](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), screen) << counter; });
}

TEST_F(ListOfScreensTest, TheMenuOpensTheCustomersBelowTheMembers)
{
    for (const auto& [keys, screen] : {std::pair("15042026{ENTER}{ENTER}{ENTER}{ENTER}", "frmMembers"),
             std::pair("15042026{ENTER}{ENTER}{ENTER}{DOWN}{ENTER}", "frmCustomers")}) {
        On<MainMenuFrm>([keys = keys, screen = screen](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(OnTop(clerk), screen);
        });
        EXPECT_FALSE(Failure) << screen;
    }
}

TEST_F(ListOfScreensTest, TheMenuOpensTheGainAndLossBelowTheRegisters)
{
    On<MainMenuFrm>([](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}{ENTER}{DOWN}{DOWN}{ENTER}");
        Type(clerk, "{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmVadhTootReport");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    });
    EXPECT_FALSE(Failure);
}

// Where a field keeps the focus without a message

class WantedOnEveryScreenTest : public ProgramTest {
protected:
    WantedOnEveryScreenTest() { FillBooks(); }

    // Plays on a screen as it opens with keys that the last of is refused, and looks at the guide line.
    void Expect(
        const char* screen, const char* keys, const char* focus, const char* guideLabel, const char* guide)
    {
        const ScreenState state{QString::fromLatin1(screen), QString::fromUtf8(keys),
            [screen] { ScreenDirectory::Open(QString::fromLatin1(screen)); }};
        PlayOn(TheClerk, state, [&](Clerk& clerk) {
            if (clerk.ScreenName() == u"frmMessages")
                Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), focus) << screen << ' ' << keys;
            EXPECT_EQ(Label(clerk, guideLabel), guide) << screen << ' ' << keys;
        });
    }
};

constexpr const char* DateWanted = "दिनांक असा टाका : 15/04/2026    Esc : बाहेर";
constexpr const char* ShiftWanted = "1 : सकाळ    2 : संध्याकाळ    Esc : बाहेर";

TEST_F(WantedOnEveryScreenTest, TheMembers)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmMembers", keys, focus, "lblGuide", guide);
    };
    expect("%n1{ENTER}", "txtMemberNo", "मेम्बर नंबर    Alt+R : रद्द");
    expect("%n{ENTER}{ENTER}", "ComboMemberName", "मेम्बरचे नांव    Alt+R : रद्द");
    expect("%d88{ENTER}", "txtMemberNo", "मेम्बर नंबर    Alt+R : रद्द");
    expect("%d{ENTER}xyz{ENTER}", "ComboMemberName", "मेम्बरचे नांव    Alt+R : रद्द");
    expect("%n{ENTER}gaIta{ENTER}{ENTER}{ENTER}{ENTER}", "txtAnimal",
        "१ - गाय    २ - म्हैस    ३ - दोन्ही    Alt+R : रद्द");
    expect("%n{ENTER}gaIta{ENTER}%s", "txtAnimal", "१ - गाय    २ - म्हैस    ३ - दोन्ही    Alt+R : रद्द");
}

TEST_F(WantedOnEveryScreenTest, TheCustomers)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmCustomers", keys, focus, "lblGuide", guide);
    };
    expect("%n1{ENTER}", "txtCustomerNo", "ग्राहक नंबर    Alt+R : रद्द");
    expect("%d{ENTER}xyz{ENTER}", "ComboCustomerName", "ग्राहकाचे नांव    Alt+R : रद्द");
    expect("%n{ENTER}gaIta{ENTER}{ENTER}", "txtAnimal", "१ - गाय    २ - म्हैस    ३ - दोन्ही    Alt+R : रद्द");
    expect("%n{ENTER}gaIta{ENTER}1%s", "txtCustomerType", "१ - स्थानिक विक्री    २ - संघ विक्री    Alt+R : रद्द");
}

TEST_F(WantedOnEveryScreenTest, TheMembersFrameOfTheCounter)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmMilkCollections", (std::string("{ENTER}1{ENTER}{ENTER}{F7}") + keys).c_str(), focus,
            "lblFooter", guide);
    };
    expect("{ENTER}", "maskFromDate", DateWanted);
    expect("14042026{ENTER}{ENTER}", "maskToDate", DateWanted);
    expect("14042026{ENTER}15042026{ENTER}%i", "txtAccountId", "मेम्बर नंबर टाका");
}

TEST_F(WantedOnEveryScreenTest, TheFatRates)
{
    Expect("frmNewFatRates", "%d{BS}{ENTER}", "maskDate", "lblGuide", DateWanted);
    Expect("frmNewFatRates", "%d31032026{ENTER}", "maskDate", "lblGuide",
        "01/04/2026 किंवा त्यानंतरचा दिनांक टाका    Alt+R : रद्द");
}

TEST_F(WantedOnEveryScreenTest, TheVouchers)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmUchalVouchers", keys, focus, "lblGuide", guide);
    };
    expect("%n{ENTER}", "MaskTranDate", DateWanted);
    expect("%n31022026{ENTER}", "MaskTranDate", DateWanted);
    expect("%n12042026{ENTER}1{ENTER}", "txtTranNo", "व्हाउचर नंबर    Alt+R : रद्द");
    expect("%n12042026{ENTER}{ENTER}88{ENTER}", "txtMemberNo", "मेम्बर नंबर    Alt+R : रद्द");
    expect("%n12042026{ENTER}{ENTER}1{ENTER}{ENTER}{ENTER}", "ComboUchalTypes",
        "↓ ने यादीतून प्रकार निवडा    F4 : प्रकार झाले    Alt+R : रद्द");
    expect("%n12042026{ENTER}%s", "txtMemberNo", "मेम्बर नंबर टाका    Alt+R : रद्द");
    expect("%n12042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100%s", "cmdGo",
        "Enter : हा प्रकार घ्या    Alt+R : रद्द");
    expect("{DOWN}%n12042026{ENTER}{ENTER}1%s", "txtAmount1", "जमा रक्कम टाका    Alt+R : रद्द");
}

TEST_F(WantedOnEveryScreenTest, TheSearchAndTheAbsentMembers)
{
    Expect("frmSearchCollections", "31022026{ENTER}", "maskDate", "lblFooter", DateWanted);
    Expect("frmSearchCollections", "15042026{ENTER}{ENTER}", "txtTime", "lblFooter", ShiftWanted);
    Expect("frmSearchCollections", "15042026{ENTER}1{ENTER}{ENTER}xyz{ENTER}", "ComboMemberName", "lblFooter",
        "नाव टाका, किंवा ↓ ने यादीतून निवडा    Esc : यादी बंद, मग बाहेर");
    Expect("frmAbsenseMemberCollection", "{ENTER}", "MaskDate", "lblFooter", DateWanted);
    Expect("frmAbsenseMemberCollection", "15042026{ENTER}{ENTER}", "txtTime", "lblFooter", ShiftWanted);
}

TEST_F(WantedOnEveryScreenTest, TheSettings)
{
    Expect("frmAutoSettings", "{BS}{ENTER}", "ComboAutoLiters", "lblMessage",
        "Alt+↓ : यादीतून निवडा    Alt+R : रद्द");
    Expect("frmAutoSettings", "{ENTER}{ENTER}{ENTER}0{ENTER}", "txtCowLimit", "lblMessage",
        "0 पेक्षा जास्त टाका    Alt+R : रद्द");
}

TEST_F(WantedOnEveryScreenTest, ThePayments)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmNewMilkPayment", keys, focus, "lblGuide", guide);
    };
    expect("{DOWN}{DOWN}{ENTER}{ENTER}", "maskFromDate1", DateWanted);
    expect("{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}{ENTER}", "txtFromAc",
        "1 ते 3 मधील मेम्बर नंबर टाका    Esc : बाहेर");
    expect("{DOWN}{ENTER}{ENTER}%n{ENTER}", "maskFromDate", DateWanted);
    expect("{DOWN}{ENTER}{ENTER}%n02042026{ENTER}", "maskFromDate",
        "पेमेंटचा पहिला दिवस 01, 11 किंवा 21 तारीख असावी    Esc : बाहेर");
    expect(
        "{DOWN}{ENTER}{ENTER}%n01042026{ENTER}{ENTER}{ENTER}", "txtMemberNo", "मेम्बर नंबर टाका    Alt+R : रद्द");
    Expect("frmThevDate", "{BS}%s", "maskFromDate", "lblGuide", DateWanted);
}

TEST_F(WantedOnEveryScreenTest, TheSales)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmMilkSales", keys, focus, "lblGuide", guide);
    };
    expect("31022026{ENTER}", "maskDate", DateWanted);
    expect("{ENTER}{ENTER}", "maskDate", "Enter, मग वेळ निवडा : 1 सकाळ, 2 संध्याकाळ    Esc : बाहेर");
    expect("{ENTER}1{ENTER}{ENTER}xyz{ENTER}", "ComboCustName",
        "नाव टाका, किंवा ↓ ने यादीतून निवडा    Esc : यादी बंद, मग बाहेर");
    expect("{ENTER}1{ENTER}{ENTER}raoK{ENTER}1{ENTER}{ENTER}", "txtLiters",
        "लिटर टाका    F9 : आपण मोजलेले    Esc : बाहेर");
    expect("{ENTER}1{ENTER}{ENTER}raoK{ENTER}1{ENTER}2{ENTER}4{ENTER}0{ENTER}", "txtRate",
        "दर टाका : 0.01 ते 60.00    Esc : बाहेर");
}

TEST_F(WantedOnEveryScreenTest, TheBonus)
{
    const auto expect = [this](const char* keys, const char* focus, const char* guide) {
        Expect("frmBonusPayments", keys, focus, "lblGuide", guide);
    };
    expect("31022026{ENTER}", "maskFromDate", DateWanted);
    expect("01042026{ENTER}{ENTER}", "maskToDate", DateWanted);
    expect("01042026{ENTER}30042026{ENTER}{ENTER}", "txtFromAcNo", "पहिला मेम्बर नंबर टाका    Esc : बाहेर");
    expect("01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}.5{ENTER}.75{ENTER}{ENTER}{ENTER}{ENTER}",
        "txtMemberNo", "मेम्बर नंबर टाका    Alt+I : रिपोर्ट    Esc : बाहेर");
    expect("01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}.5{ENTER}.75{ENTER}{ENTER}{ENTER}8{ENTER}",
        "txtMemberNo", "या नंबरचा मेम्बर या बोनसमध्ये नाही    Esc : बाहेर");
}

TEST_F(WantedOnEveryScreenTest, TheReports)
{
    Expect("frmReportMilkPS", "{ENTER}", "maskFromDate", "lblGuide", DateWanted);
    Expect("frmReportMilkPS", "14042026{ENTER}{ENTER}", "maskToDate", "lblGuide", DateWanted);
    Expect("frmReportMilkCollections", "{ENTER}", "MaskUserDate", "lblGuide", DateWanted);
    Expect("frmReportMilkCollections", "14042026{ENTER}xyz{ENTER}", "ComboAnimal", "lblGuide",
        "↓ ने यादीतून निवडा    Esc : बाहेर");
    Expect("frmReportPaymentList", "{ENTER}", "MaskFromDate", "lblGuide", DateWanted);
    Expect("frmReportMilkPayments", "{ENTER}", "MaskUserDate", "lblGuide", DateWanted);
    Expect("frmReportMilkPayments", "12042026{ENTER}", "MaskUserDate", "lblGuide",
        "ज्या दिवशी दुधाचे पेमेंट झाले तो दिनांक टाका    Esc : बाहेर");
    Expect("frmReportMilkPaymentsRegister", "{ENTER}", "maskFromDate", "lblGuide", DateWanted);
    Expect("frmReportMilkPaymentsRegister", "05042026{ENTER}{ENTER}", "maskToDate", "lblGuide", DateWanted);
    for (const char* screen : {"frmReportPurchaseSales", "frmReportCashBook"}) {
        Expect(screen, "{ENTER}", "maskFromDate", "lblGuide", DateWanted);
        Expect(screen, "05042026{ENTER}31132026{ENTER}", "maskToDate", "lblGuide", DateWanted);
    }
    Expect("frmVadhTootReport", "{ENTER}", "maskFromDate", "lblGuide", DateWanted);
    Expect("frmVadhTootReport", "14042026{ENTER}{ENTER}", "maskToDate", "lblGuide", DateWanted);
}

}
