#pragma once

#include "core/menu/DayAtAGlance.h"
#include "core/menu/Keys.h"
#include "platform/forms/MenuList.h"
#include "platform/forms/Screen.h"

#include <array>

// The main menu: a list, and beside it one list for each of its entries. Every screen is opened from here and
// returns here. What an entry opens depends on its text, which is also what is shown.
class MainMenuFrm final : public Screen {
public:
    MainMenuFrm();

    static Keys::Place KeyPlace();

private:
    Label lblTitle{this, "lblTitle"};
    Label lblSystem{this, "lblSystem", Shivaji(u" dUQa saMklana va vyavasqaapna p`NaalaI")};
    Label lblMenu{this, "lblMenu", Shivaji(u"maona maonaU")};
    Label lblVersion{this, "lblVersion", Plain(u"Ver 2.0")};
    Label lblVersionFoot{this, "lblVersionFoot", Plain(u"Ver 2.0")};
    Label lblCompanyTitle{this, "lblCompanyTitle"};
    Label lblAcYear{this, "lblAcYear"};
    Label lblTodayDate{this, "lblTodayDate"};

    MenuList ListMain{this, "ListMain", &MainMenuFrm::ListMain_Chosen};
    MenuList ListMaster{this, "ListMaster"};
    MenuList ListSVouchers{this, "ListSVouchers"};
    MenuList ListMReports{this, "ListMReports"};
    MenuList listYearlyReport{this, "listYearlyReport"};
    MenuList ListUtilities{this, "ListUtilities"};

    const std::array<MenuList*, 5> m_subLists{
        &ListMaster, &ListSVouchers, &ListMReports, &listYearlyReport, &ListUtilities};

    DayAtAGlance m_day;

    void LayOut();
    void Load() override;
    void Shown() override;
    bool KeyDown(const QKeyEvent& key) override;
    void Enter() override;
    void Tab() override;
    void Escape() override;

    void StartCalculator();
    void ShowAdvances();
    void ShowSettings();
    void ShowCounter();
    void ShowTutor();

    void FillLists();
    void ListMain_GotFocus();
    void ListMain_Chosen();
    void SubList_Chosen(MenuList& list);
    void OpenSubList(MenuList& list, const std::int16_t* accessFlag);
    void LeaveSubList(MenuList& list);
    void LeaveSystem();
    void OpenScreen(const QString& screen, const Caption& title = {});
};
