#pragma once

#include "tests/support/SocietyTest.h"

#include "utilities/frmAutoSettings.h"

// Texts of these tests are UTF-8.
inline QString Q(const char* text)
{
    return QString::fromUtf8(text);
}

// A clerk at the settings of the delivered society, whose row is whole.
class AutoSettingsTest : public SocietyTest {
protected:
    // Opens the screen and plays on it; no run-time error is expected.
    void Settings(const std::function<void(Clerk&)>& script);

    // Gives columns of the row other values before the screen opens, such as "AutoFat='haoya'".
    void Given(const char* columns);

    // Takes the row away.
    void WithoutARow();

    // Turns to the page of a control and enters it. What is left on the way runs its own rules.
    static void GoTo(Clerk& clerk, const char* control);

    // Puts a text into a field, whatever its keys would take.
    static void Put(Clerk& clerk, const char* control, const char* text);

    // Presses the tab of a page, from 1, with the mouse.
    static void PressTab(Clerk& clerk, int page);

    // Presses the row of the list that is open.
    static void PickFromList(Clerk& clerk, int row);

    static QString Focus(Clerk& clerk) { return clerk.Focus(); }
    static QString Reads(Clerk& clerk, const char* control) { return clerk.Reads(Q(control)); }

    // The page that is seen: 1 collection, 2 payment, 3 milk sale.
    static QString Page(Clerk& clerk) { return clerk.Reads(Q("SSTab")); }

    // What the guide line shows.
    static QString Guide(Clerk& clerk);

    // Whether the row of the society is there.
    bool HasRow() { return One(Q("select count(*) from AutoSettings where CompanyId=1")) == u"1"; }
};
