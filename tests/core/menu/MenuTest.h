#pragma once

#include "tests/support/SocietyTest.h"
#include "tests/support/StandInScreens.h"

#include "core/menu/MainMenu.h"
#include "core/menu/MenuEntries.h"

// A clerk who stands at the main menu. What its entries open are stand-ins.
class MenuTest : public SocietyTest {
protected:
    // Opens the menu and passes the date, so that the script begins on the main list.
    void Menu(const std::function<void(Clerk&)>& script)
    {
        On<MainMenuFrm>([&](Clerk& clerk) {
            ASSERT_EQ(clerk.ScreenName(), "frmAppDate");
            clerk.Type("{ENTER}{ENTER}");
            ASSERT_EQ(clerk.ScreenName(), "MainMenuFrm");
            script(clerk);
        });
        EXPECT_FALSE(Failure);
    }

    static bool Shows(Clerk& clerk, const char* list) { return clerk.CanEnter(QLatin1String(list)); }

    static MenuList& List(Clerk& clerk, const char* list)
    {
        return dynamic_cast<MenuList&>(*clerk.Top().Find(QString::fromLatin1(list)));
    }

    static QStringList Entries(Clerk& clerk, const char* list)
    {
        QStringList entries;
        for (const Caption& entry : List(clerk, list).Entries())
            entries.append(entry.Text());
        return entries;
    }

    static int IndexOfMain(Clerk& clerk) { return List(clerk, "ListMain").CurrentIndex(); }

    // Moves to an entry of the main list, counted from 0, and chooses it.
    static void ChooseMain(Clerk& clerk, int index)
    {
        clerk.Type(
            QStringLiteral("{HOME}") + QStringLiteral("{DOWN}").repeated(index) + QStringLiteral("{ENTER}"));
    }

    // Closes every list that a right can close.
    static void CloseEverything()
    {
        gAppState.gAccessMaster = gAppState.gAccessStockVoucher = gAppState.gAccessStockReport =
            gAppState.gAccessUtilities = 0;
    }

    // The lists in the order of the main entries that open them.
    static constexpr const char* SubLists[] = {
        "ListMaster", "ListSVouchers", "ListMReports", "listYearlyReport", "ListUtilities"};

private:
    static QStringList ScreensOfTheEntries()
    {
        QStringList names;
        for (const std::vector<MenuEntry>& list : {MenuEntries::Master(), MenuEntries::SVouchers(true),
                 MenuEntries::MReports(), MenuEntries::YearlyReport(), MenuEntries::Utilities()})
            for (const MenuEntry& entry : list)
                if (!entry.screen.isEmpty())
                    names.append(entry.screen);
        return names;
    }

    StandInScreens m_screens{ScreensOfTheEntries()};
};
