#include "MainMenu.h"

#include "AppDate.h"
#include "CommonKeys.h"
#include "Dates.h"
#include "MdlAccounts.h"
#include "MenuEntries.h"
#include "Messages.h"
#include "Recordset.h"
#include "ScreenDirectory.h"
#include "World.h"

#include <QKeyEvent>

namespace {

// A main entry, its list by position in m_subLists, and the right that it needs.
struct MainEntry {
    QStringView text;
    int subList;
    const std::int16_t AppState::*accessFlag;
};

constexpr int Master = 0;
constexpr int SVouchers = 1;
constexpr int MReports = 2;
constexpr int YearlyReport = 3;
constexpr int Utilities = 4;

constexpr MainEntry MainEntries[] = {
    {u"maasTr", Master, &AppState::gAccessMaster},
    {u"dUQa vyavahar", SVouchers, &AppState::gAccessStockVoucher},
    {u"dUQa irpaoT-", MReports, &AppState::gAccessStockReport},
    {u"vaaiYa-k irpaoT-", YearlyReport, nullptr},
    {u"[tr sauivaQaa À TUlsa", Utilities, &AppState::gAccessUtilities},
};

// Where the main list stands after Esc or Left in a sub-list, by position in m_subLists; the tools leave
// it where it is.
constexpr int MainIndexAfter[] = {0, 2, 4, 4, -1};

bool ShowsTransport()
{
    const Recordset settings(gCn, QStringLiteral("Select ShowTransportCharges From AutoSettings"));
    return !settings.Eof() && !settings[u"ShowTransportCharges"].IsNull()
        && settings[u"ShowTransportCharges"].Text() == u"True";
}

}

MainMenuFrm::MainMenuFrm() : Screen("MainMenuFrm")
{
    When(ListMain.GotFocus, &MainMenuFrm::ListMain_GotFocus);
    When(ListMain.Chosen, &MainMenuFrm::ListMain_Chosen);
    for (MenuList* list : m_subLists) {
        list->Chosen = [this, list] { SubList_Chosen(*list); };
        list->KeyDown = [this, list](const QKeyEvent& key) {
            if (key.key() != Qt::Key_Left)
                return false;
            LeaveSubList(*list);
            return true;
        };
        list->SetVisible(false);
    }
    LayOut();
}

void MainMenuFrm::Load()
{
    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    lblAcYear.SetText({});
    lblCompanyTitle.SetText(company.Eof() ? QString() : company[u"CompanyName"].Text());
    FillLists();
    ListMain.SetCurrentIndex(0);
    if (gAppState.gCompanyId == 0)
        Recordset(gCn, QStringLiteral("select * from CompanyMaster"));
    lblTodayDate.SetFigure(DateText(World::Current().clock->Now().date()));
}

void MainMenuFrm::FillLists()
{
    std::vector<Caption> mainCaptions;
    for (const MainEntry& entry : MainEntries)
        mainCaptions.push_back(Shivaji(entry.text));
    mainCaptions.push_back(Shivaji(MenuBack));
    ListMain.SetEntries(mainCaptions);
    ListMaster.SetEntries(MenuEntries::Captions(MenuEntries::Master()));
    ListSVouchers.SetEntries(MenuEntries::Captions(MenuEntries::SVouchers(ShowsTransport())));
    ListMReports.SetEntries(MenuEntries::Captions(MenuEntries::MReports()));
    listYearlyReport.SetEntries(MenuEntries::Captions(MenuEntries::YearlyReport()));
    ListUtilities.SetEntries(MenuEntries::Captions(MenuEntries::Utilities()));
}

void MainMenuFrm::Shown()
{
    frmAppDate appDate;
    appDate.ShowModal();
}

// The function keys ignore the access flags.
bool MainMenuFrm::KeyDown(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_F4:
        ScreenDirectory::Open(QStringLiteral("frmUchalVouchers"), Shivaji(u"]cala naaoMd"));
        return true;
    case Qt::Key_F7:
        ScreenDirectory::Open(QStringLiteral("frmAutoSettings"), Shivaji(u"Aa^Tao saoTIMgja"));
        return true;
    case Qt::Key_F8:
        ScreenDirectory::Open(QStringLiteral("frmCollectionGate"), Shivaji(u"dUQa saMklana"));
        return true;
    default:
        return CommonKeys::Calculator(key) || CommonKeys::Tutor(key);
    }
}

void MainMenuFrm::Enter()
{
    if (auto* list = dynamic_cast<MenuList*>(FocusHolder()))
        list->Choose();
}

// On this screen alone Tab acts as Enter.
void MainMenuFrm::Tab()
{
    Enter();
}

void MainMenuFrm::Escape()
{
    auto* list = dynamic_cast<MenuList*>(FocusHolder());
    if (!list || list == &ListMain)
        LeaveSystem();
    else
        LeaveSubList(*list);
}

// The yearly list is not among them: only its own ways out hide it.
void MainMenuFrm::ListMain_GotFocus()
{
    for (MenuList* list : {&ListMaster, &ListSVouchers, &ListMReports, &ListUtilities})
        list->SetVisible(false);
}

void MainMenuFrm::ListMain_Chosen()
{
    const QString text = ListMain.Text();
    if (text == MenuBack) {
        LeaveSystem();
        return;
    }
    for (const MainEntry& entry : MainEntries)
        if (entry.text == text)
            OpenSubList(
                *m_subLists[entry.subList], entry.accessFlag ? &(gAppState.*entry.accessFlag) : nullptr);
}

void MainMenuFrm::OpenSubList(MenuList& list, const std::int16_t* accessFlag)
{
    if (accessFlag && *accessFlag == 0) {
        if (gAppState.gAdminLoggedIn != u"YES") {
            ShowPlain(QStringLiteral("Administrator LogIn Required"));
            return;
        }
        ShowPlain(QStringLiteral("Access Granted"));
    }
    list.SetVisible(true);
    list.SetFocus();
    list.SetCurrentIndex(&list == &ListUtilities ? 1 : 0);
}

void MainMenuFrm::SubList_Chosen(MenuList& list)
{
    const QString text = list.Text();
    if (text == MenuBack) {
        list.SetVisible(false);
        if (&list == &ListMReports || &list == &ListUtilities || &list == &listYearlyReport)
            ListMain.SetFocus();
        return;
    }
    const MenuEntry* entry = MenuEntries::Find(text);
    if (!entry || entry->screen.isEmpty())
        return;
    if (!entry->reportMode.isEmpty())
        gAppState.gReportMode = entry->reportMode;
    if (entry->asksCaller)
        gAppState.gCallerTag = QStringLiteral("N");
    ScreenDirectory::Open(
        entry->screen, Shivaji(entry->text), entry->title.isEmpty() ? Caption() : Shivaji(entry->title));
}

void MainMenuFrm::LeaveSubList(MenuList& list)
{
    list.SetVisible(false);
    ListMain.SetFocus();
    for (std::size_t at = 0; at < m_subLists.size(); ++at)
        if (m_subLists[at] == &list && MainIndexAfter[at] >= 0)
            ListMain.SetCurrentIndex(MainIndexAfter[at]);
}

void MainMenuFrm::LeaveSystem()
{
    ScreenDirectory::Open(QStringLiteral("frmBackup"), Shivaji(u"ba^k Ap\\ fa[-lsa"));
    if (Ask(u"saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ"))
        Close();
}
