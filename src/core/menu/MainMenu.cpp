#include "core/menu/MainMenu.h"

#include "core/menu/CommonKeys.h"
#include "core/menu/MenuEntries.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/Messages.h"
#include "core/start/AppDate.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/shell/World.h"
#include "platform/text/Dates.h"

#include <QKeyEvent>

namespace {

// An entry of the main list. Its list stands at the same place in m_subLists.
struct MainEntry {
    QStringView text;
    const std::int16_t AppState::*accessFlag = nullptr; // the right that its list needs; null for none
    int indexAfter = -1; // where Esc and Left leave the main list; -1 leaves it where it is
};

constexpr MainEntry MainEntries[] = {
    {u"maasTr", &AppState::gAccessMaster, 0},
    {u"dUQa vyavahar", &AppState::gAccessStockVoucher, 2},
    {u"dUQa irpaoT-", &AppState::gAccessStockReport, 4},
    {u"vaaiYa-k irpaoT-", nullptr, 4},
    {u"[tr sauivaQaa À TUlsa", &AppState::gAccessUtilities, -1},
};

bool ShowsTransport()
{
    const Recordset settings(gCn, QStringLiteral("Select ShowTransportCharges From AutoSettings"));
    return !settings.Eof() && !settings[u"ShowTransportCharges"].IsNull()
        && settings[u"ShowTransportCharges"].Text() == u"True";
}

}

Keys::Place MainMenuFrm::KeyPlace()
{
    return {QStringLiteral("MainMenuFrm"), Shivaji(u"maona maonaU"),
        {{QStringLiteral("Enter"), Plain(u"निवडा")}, KeyHints::Leave,
            CommonKeys::CalculatorKey(&MainMenuFrm::StartCalculator),
            {QStringLiteral("F4"), Shivaji(u"]cala naaoMd"), &MainMenuFrm::ShowAdvances},
            {QStringLiteral("F7"), Shivaji(u"Aa^Tao saoTIMgja"), &MainMenuFrm::ShowSettings},
            {QStringLiteral("F8"), Shivaji(u"dUQa saMklana"), &MainMenuFrm::ShowCounter},
            {QStringLiteral("F9"), Shivaji(u"dUQa ivaËI"), {}, false},
            CommonKeys::TutorKey(&MainMenuFrm::ShowTutor)}};
}

MainMenuFrm::MainMenuFrm() : Screen("MainMenuFrm")
{
    When(ListMain.GotFocus, &MainMenuFrm::ListMain_GotFocus);
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
    for (std::size_t at = 0; at < m_subLists.size(); ++at) {
        mainCaptions.push_back(Shivaji(MainEntries[at].text));
        m_subLists[at]->SetAccessibleName(mainCaptions.back());
    }
    mainCaptions.push_back(Shivaji(MenuEntries::Back));
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
    m_day.Show();
}

// Keys. The function keys ignore the access flags.

bool MainMenuFrm::KeyDown(const QKeyEvent& key)
{
    return Keys::Answer(*this, Keys::Of(Name()), key);
}

void MainMenuFrm::StartCalculator()
{
    CommonKeys::Calculator();
}

void MainMenuFrm::ShowAdvances()
{
    OpenScreen(QStringLiteral("frmUchalVouchers"));
}

void MainMenuFrm::ShowSettings()
{
    OpenScreen(QStringLiteral("frmAutoSettings"));
}

void MainMenuFrm::ShowCounter()
{
    OpenScreen(QStringLiteral("frmCollectionGate"));
}

void MainMenuFrm::ShowTutor()
{
    CommonKeys::Tutor();
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

// The yearly list stays: only its own ways out hide it.
void MainMenuFrm::ListMain_GotFocus()
{
    for (MenuList* list : {&ListMaster, &ListSVouchers, &ListMReports, &ListUtilities})
        list->SetVisible(false);
}

void MainMenuFrm::ListMain_Chosen()
{
    const QString text = ListMain.Text();
    if (text == MenuEntries::Back) {
        LeaveSystem();
        return;
    }
    for (std::size_t at = 0; at < m_subLists.size(); ++at) {
        const auto flag = MainEntries[at].accessFlag;
        if (MainEntries[at].text == text)
            OpenSubList(*m_subLists[at], flag ? &(gAppState.*flag) : nullptr);
    }
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
    if (text == MenuEntries::Back) {
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
    OpenScreen(entry->screen, entry->title.isEmpty() ? Caption() : Shivaji(entry->title));
}

void MainMenuFrm::LeaveSubList(MenuList& list)
{
    list.SetVisible(false);
    ListMain.SetFocus();
    for (std::size_t at = 0; at < m_subLists.size(); ++at)
        if (m_subLists[at] == &list && MainEntries[at].indexAfter >= 0)
            ListMain.SetCurrentIndex(MainEntries[at].indexAfter);
}

void MainMenuFrm::LeaveSystem()
{
    OpenScreen(QStringLiteral("frmBackup"));
    if (Ask(Shivaji(u"saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ")))
        Close();
}

// The screen may have changed the day's figures.
void MainMenuFrm::OpenScreen(const QString& screen, const Caption& title)
{
    ScreenDirectory::Open(screen, title);
    m_day.Show();
}
