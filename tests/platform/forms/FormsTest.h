#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/Screen.h"
#include "tests/support/KeptFailure.h"
#include "tools/clerk/Clerk.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

// Readable comparisons and failures: all texts of these tests are UTF-8.
inline QString Q(const char* text)
{
    return QString::fromUtf8(text);
}

// A clerk at screens made for the test.
class FormsTest : public ::testing::Test {
protected:
    // Opens the screen that `make` makes, and plays on it. The screen is gone when this returns.
    template <class S> void Open(const std::function<void(S&)>& setUp, const std::function<void(S&)>& script)
    {
        S* screen = nullptr;
        Failure = TheClerk.Play(
            [&] {
                S made;
                screen = &made;
                setUp(made);
                made.ShowModal();
            },
            [&](Clerk&) { script(*screen); });
    }

    void Type(const char* keys) { TheClerk.Type(Q(keys)); }
    void Do(const std::function<void()>& action) { TheClerk.Do(action); }

    // Commits a text as an input method does, in one piece.
    void Compose(const char* text, const char* preedit = "");

    // Puts a text on the clipboard and presses Ctrl+V.
    void Paste(const char* text);

    std::string FocusName() const { return TheClerk.Focus().toStdString(); }
    std::string ScreenName() const { return TheClerk.ScreenName().toStdString(); }

    Clerk TheClerk;
    KeptFailure Failure;
};

// Three fields and two buttons that tell what happens to them: "+txtA" is GotFocus, "-txtA" LostFocus,
// "!cmdGo" a click. A test hangs more behind an event by name.
class Desk : public Screen {
public:
    Desk();

    NumberField txtA{this, "txtA", NumberField::Digits::Decimals};
    NumberField txtB{this, "txtB", NumberField::Digits::Decimals};
    NumberField txtC{this, "txtC", NumberField::Digits::Decimals};
    Button cmdGo{this, "cmdGo", Shivaji(u"&saovh")};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_")};
    Label lblGuide{this, "lblGuide"};
    Label lblTitle{this, "lblTitle"};

    // What is done besides telling, such as Also("-txtA", ...).
    void Also(const char* event, const Event& action) { m_also[event] = action; }

    // What has happened since this was last asked, in order, separated by blanks.
    std::string Happened();
    void Tell(const std::string& event);

    using Screen::After;
    using Screen::GoingTo;
    using Screen::SetColours;
    using Screen::SetGuideLabel;

protected:
    void Load() override { Tell("load"); }
    void Shown() override { Tell("shown"); }
    void Escape() override;
    void CloseBox() override;
    bool KeyDown(const QKeyEvent& key) override;

private:
    std::map<std::string, Event> m_also;
    std::string m_happened;
};

// A dialog with one button, as a message is.
class Notice : public Screen {
public:
    Notice() : Screen("Notice") { }
    Button cmdExit{this, "cmdExit", Shivaji(u"puZo")};
    NumberField txtNote{this, "txtNote", NumberField::Digits::Whole};

protected:
    bool KeyDown(const QKeyEvent& key) override;
};

inline void ShowTestNotice()
{
    Notice().ShowModal();
}
