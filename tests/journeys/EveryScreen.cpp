#include "tests/journeys/EveryScreen.h"

#include "collection/frmSearchCollections.h"
#include "core/menu/KeyboardTutor.h"
#include "core/menu/MainMenu.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/InputBox.h"
#include "core/messages/Messages.h"
#include "core/messages/Narrations.h"
#include "core/messages/PlainBox.h"
#include "core/start/AppDate.h"
#include "core/start/OpeningScreens.h"
#include "core/state/AppState.h"
#include "platform/text/RunTimeError.h"

#include <QDeadlineTimer>

namespace {

// A screen that the menu or another screen opens by its name.
ScreenState ByName(const char* screen, const char* keys)
{
    const QString name = QString::fromLatin1(screen);
    return {name, QString::fromUtf8(keys), [name] { ScreenDirectory::Open(name); }};
}

// A screen that is reached from another with keys of it.
ScreenState From(const char* opening, const char* screen, const char* keys)
{
    ScreenState state = ByName(opening, keys);
    state.screen = QString::fromLatin1(screen);
    return state;
}

// A screen of several reports in a mode, as the menu opens it.
ScreenState InMode(const char* screen, const char* mode, const char* keys)
{
    const QString name = QString::fromLatin1(screen);
    const QString word = QString::fromLatin1(mode);
    return {name, QString::fromUtf8(keys), [name, word] {
                gAppState.gReportMode = word;
                ScreenDirectory::Open(name);
            }};
}

ScreenState Register(const char* mode, const char* keys)
{
    return InMode("frmReportMilkPaymentsRegister", mode, keys);
}

template <class S> ScreenState Alone(const char* screen, const char* keys = "")
{
    return {QString::fromLatin1(screen), QString::fromUtf8(keys), [] {
                S shown;
                shown.ShowModal();
            }};
}

// The tick of the search's opening calls the clerk back: it is waited for.
void WaitForTheSearch(Clerk& clerk)
{
    const QDeadlineTimer limit(10000);
    while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
        clerk.Do([] {});
}

std::vector<ScreenState> All()
{
    constexpr const char* line = "{ENTER}1{ENTER}{ENTER}3{ENTER}1{ENTER}5{ENTER}4.5{ENTER}{ENTER}";
    constexpr const char* sale =
        "{ENTER}1{ENTER}{ENTER}ha{^}Tola{ENTER}1{ENTER}10{ENTER}4.5{ENTER}{ENTER}{ENTER}";
    constexpr const char* bonus = "01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}.5{ENTER}.75{ENTER}{"
                                  "ENTER}{ENTER}1{ENTER}{ENTER}";
    constexpr const char* advance =
        "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}]cala{ENTER}50{ENTER}";
    return {
        Alone<frmAbout>("frmAbout"),
        Alone<frmTip>("frmTip"),
        Alone<frmAppDate>("frmAppDate", "15042026{ENTER}"),
        Alone<frmKeyboardTutor>("frmKeyboardTutor"),
        Alone<MainMenuFrm>("MainMenuFrm", "{ENTER}{ENTER}{ENTER}"),
        {"frmNarrations", {},
            [] {
                frmNarrations prompt(Plain(u"नाव"));
                prompt.ShowModal();
            }},
        {"frmPlainBox", {}, [] { PlainBoxCards().Show("Administrator LogIn Required"); }},
        {"frmPlainBox", {},
            [] { PlainBoxCards().Show(QStringLiteral("insert into MilkCollections ").repeated(400)); }},
        {"frmInputBox", {}, [] { InputBoxCards().Ask("Enter Folder Name", "Backup"); }},
        {"frmMessages", {}, [] { Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ")); }},
        ByName("frmMembers", ""),
        ByName("frmMembers", "%n{ENTER}gaIta{ENTER}{ENTER}{ENTER}3{ENTER}2{ENTER}"),
        ByName("frmMembers", "%d3{ENTER}"),
        ByName("frmMembers", "%k1{ENTER}"),
        ByName("frmCustomers", ""),
        ByName("frmCustomers", "%n{ENTER}gaIta{ENTER}3{ENTER}2{ENTER}"),
        ByName("frmCustomers", "%d1{ENTER}"),
        ByName("frmCustomers", "%k1{ENTER}"),
        ByName("frmNewFatRates", ""),
        ByName("frmNewFatRates", "%d{ENTER}4.5{ENTER}"),
        ByName("frmNewFatRates", "%d{ENTER}4.5{ENTER}{F5}"),
        ByName("frmMilkCollections", line),
        ByName(
            "frmMilkCollections", "{ENTER}1{ENTER}{ENTER}3{F7}14042026{ENTER}15042026{ENTER}3{ENTER}{ENTER}"),
        ByName("frmCollectionGate", line),
        ByName("frmDailyCollection", ""),
        ByName("frmDailyCollection",
            "%n3{ENTER}{ENTER}16042026{ENTER}2{ENTER}{ENTER}1{ENTER}5{ENTER}4.5{ENTER}"),
        ByName("frmDailyCollection", "%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}1{ENTER}"),
        ByName("frmDailyCollection", "%k1{ENTER}{ENTER}15042026{ENTER}1{ENTER}1{ENTER}"),
        ByName("frmSearchCollections", "15042026{ENTER}1{ENTER}1{ENTER}{ENTER}"),
        ByName("frmAbsenseMemberCollection", "15042026{ENTER}1{ENTER}"),
        ByName("frmUchalVouchers", ""),
        ByName("frmUchalVouchers", advance),
        ByName("frmUchalVouchers", "{DOWN}%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}40"),
        ByName("frmUchalVouchers", "%d{ENTER}{ENTER}"),
        ByName("frmUchalVouchers", "%k{ENTER}"),
        From("frmUchalVouchers", "frmSelectInwards", "%d"),
        From("frmUchalVouchers", "frmSelectInwards", "{DOWN}%d"),
        ByName("frmInstallment", ""),
        ByName("frmNewMilkPayment", ""),
        ByName("frmNewMilkPayment", "{DOWN}{DOWN}{ENTER}11042026{ENTER}{ENTER}1{ENTER}3{ENTER}"),
        ByName("frmNewMilkPayment", "{DOWN}{DOWN}{ENTER}11042026{ENTER}{ENTER}1{ENTER}3{ENTER}{ENTER}"),
        ByName("frmNewMilkPayment", "{DOWN}{ENTER}{ENTER}"),
        ByName("frmNewMilkPayment", "{DOWN}{ENTER}{ENTER}%n11042026{ENTER}{ENTER}1{ENTER}"),
        ByName("frmNewMilkPayment", "{DOWN}{ENTER}{ENTER}%n11042026{ENTER}{ENTER}1{ENTER}{F5}"),
        ByName("frmNewMilkPayment", "{DOWN}{ENTER}{ENTER}%k01042026{ENTER}1{ENTER}"),
        ByName("frmMilkSales", ""),
        ByName("frmMilkSales", "{ENTER}1{ENTER}{UP}"),
        ByName("frmMilkSales", sale),
        ByName("frmMilkSales", "{ENTER}1{ENTER}{ENTER}raoK{ENTER}1{ENTER}10{F9}10.5{ENTER} "),
        ByName("frmBonusPayments", "01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}"),
        ByName("frmBonusPayments", bonus),
        ByName("frmThevDate", ""),
        ByName("frmBackup", ""),
        ByName("frmBackup", "2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}"),
        ByName("frmAutoSettings", ""),
        ByName("frmAutoSettings", "^{PGDN}"),
        ByName("frmAutoSettings", "^{PGDN}^{PGDN}{ENTER}"),
        ByName("frmReportMilkPS", "14042026{ENTER}15042026{ENTER}{ENTER}{ENTER}"),
        ByName("frmReportMilkCollections", "14042026{ENTER}{ENTER}"),
        ByName("frmReportMembersList", ""),
        ByName("frmReportMembersList", "%2"),
        ByName("frmReportMembersList", "%3"),
        ByName("frmReportPaymentList", "11042026{ENTER}"),
        ByName("frmReportMilkPayments", "11042026{ENTER}1{ENTER}{ENTER}"),
        Register("PR", "01042026{ENTER}{ENTER}1{ENTER}{ENTER}"),
        Register("TR", "01042026{ENTER}{ENTER}1{ENTER}{ENTER}"),
        Register("UR", "01042026{ENTER}"),
        Register("UD", "01042026{ENTER}20042026{ENTER}1{ENTER}"),
        Register("UchalBalanceStatement", "01042026{ENTER}20042026{ENTER}1{ENTER}{ENTER}"),
        Register("ThevBalanceStatement", "01042026{ENTER}20042026{ENTER}"),
        InMode("frmReportPurchaseSales", "PS", "01042026{ENTER}{ENTER}"),
        InMode("frmReportPurchaseSales", "MP", "01042026{ENTER}"),
        InMode("frmReportPurchaseSales", "MS", "01042026{ENTER}15042026{ENTER}"),
        InMode("frmReportCashBook", "C", "01042026{ENTER}{ENTER}"),
        InMode("frmReportCashBook", "B", "01042026{ENTER}{ENTER}"),
        InMode("frmReportCashBook", "V", "01042026{ENTER}{ENTER}dUQa saMGa{ENTER}"),
        ByName("frmVadhTootReport", "14042026{ENTER}15042026{ENTER}"),
        From("frmReportMembersList", "frmReportPreview", "%i"),
        From("frmReportMembersList", "frmReportFile", "%i^s"),
        From("frmReportMembersList", "frmReportPrinter", "%i^p"),
    };
}

}

const std::vector<ScreenState>& EveryScreen()
{
    static const std::vector<ScreenState> all = All();
    return all;
}

void PlayOn(Clerk& theClerk, const ScreenState& state, const std::function<void(Clerk&)>& script)
{
    const auto failure = theClerk.Play(state.open, [&](Clerk& clerk) {
        if (clerk.ScreenName() == u"frmSearchCollections")
            WaitForTheSearch(clerk);
        clerk.Type(state.keys);
        script(clerk);
    });
    if (failure)
        ADD_FAILURE() << failure->what();
}
