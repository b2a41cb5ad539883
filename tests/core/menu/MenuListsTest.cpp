#include "tests/core/menu/MenuTest.h"

#include "core/menu/ScreenDirectory.h"

#include <set>

namespace {

// An entry and what choosing it does; without a screen it opens none.
struct Entry {
    QString text;
    QString screen = {};
    QString mode = {};
    QString title = {};
};

using Table = std::vector<Entry>;

const QString Registers = "frmReportMilkPaymentsRegister";
const QString PurchaseSales = "frmReportPurchaseSales";
const Entry Back{"baahor"};

const Table Master = {
    {"]%padkacao rijasTr", "frmMembers"},
    {"ga`ahkacao rijasTr", "frmCustomers"},
    {"f^T dr badla", "frmNewFatRates"},
    Back,
};

const Table SVouchers = {
    {"dUQa saMklana 1", "frmMilkCollections"},
    {"dUQa saMklana 2", "frmCollectionGate"},
    {"dUQa saMklana 3", "frmDailyCollection"},
    {"]cala naaoMd", "frmUchalVouchers"},
    {"kpat zrvaa", "frmInstallment"},
    {"dUQa pomaonT", "frmNewMilkPayment"},
    {"dUQa ivaËI", "frmMilkSales"},
    Back,
};

const Table MReports = {
    {"dUQa saMklana irpaoT-", "frmReportMilkCollections"},
    {"dUQa saMklana pavatI", "frmSearchCollections"},
    {"dUQa pomaonT irpaoT-", "frmReportMilkPayments"},
    {"dUQa pomaonT ilasT", "frmReportPaymentList"},
    {"dUQa pomaonT rijasTr", Registers, "PR", " dUQa pomaonT rijasTr irpaoT-"},
    {"zova rijasTr", Registers, "TR", " zova rijasTr irpaoT-"},
    {"]cala rijasTr", Registers, "UR", " ]cala rijasTr irpaoT-"},
    {"vaOyai@tk ]cala irpaoT-", Registers, "UD", " ]cala rijasTr irpaoT-"},
    {"vaaZÀtUT p~k", "frmVadhTootReport"},
    {"dUQa KrodI irpaoT-", PurchaseSales, "MP", "  dUQa KrodI irpaoT-"},
    {"dUQa ivaËI irpaoT-", PurchaseSales, "MS", "  dUQa ivaËI irpaoT-"},
    {"dUQa ivaËIcaI tulanaa%mak AakDovaarI", "frmReportCashBook", "V",
        "  dUQa ivaËIcaI tulanaa%mak AakDovaarI"},
    {"dUQa saMklana À ivaËI irpaoT-", "frmReportMilkPS"},
    {"saBaasadaMcaI yaadI", "frmReportMembersList"},
    {"k^Sa bauk", "frmReportCashBook", "C", "  k^Sa bauk"},
    {"ba^nk bauk", "frmReportCashBook", "B", "  ba^nk bauk"},
    Back,
};

const Table YearlyReport = {
    {"]cala yaadI", Registers, "UchalBalanceStatement"},
    {"zova yaadI", Registers, "ThevBalanceStatement"},
    Back,
};

const Table Utilities = {
    {"ba^k Ap\\ fa[-lsa", "frmBackup"},
    {"Aa^Tao saoTIMgja", "frmAutoSettings"},
    {"baaonasa TUla", "frmBonusPayments"},
    {"zovaIcaa kalaavaQaI", "frmThevDate"},
    Back,
};

const Table* const Tables[] = {&Master, &SVouchers, &MReports, &YearlyReport, &Utilities};

const QString OwnTitle = "its own title";
const QString NoMode = "as it was";

// A screen that stands in for one of the rooms above the menu. It notes what it finds on opening.
class StandIn final : public Screen {
public:
    StandIn(const QString& name, QStringList& found) : Screen(qUtf8Printable(name)), m_found(found)
    {
        SetTitle(Plain(OwnTitle));
    }

private:
    void Load() override { m_found = {Name(), gAppState.gReportMode, Title().Text(), gAppState.gCallerTag}; }

    QStringList& m_found;
};

class MenuListsTest : public MenuTest {
protected:
    MenuListsTest()
    {
        for (const Table* table : Tables)
            for (const Entry& entry : *table)
                if (!entry.screen.isEmpty() && m_screens.insert(entry.screen).second)
                    ScreenDirectory::Add(entry.screen,
                        [this, name = entry.screen] { return std::make_unique<StandIn>(name, Found); });
    }

    ~MenuListsTest() override
    {
        for (const QString& screen : m_screens)
            ScreenDirectory::Add(screen, {});
    }

    // Chooses an entry of the list that is open, counted from 0, and closes the screen that it opens.
    void OpenEntry(Clerk& clerk, int index)
    {
        Found.clear();
        gAppState.gReportMode = NoMode;
        gAppState.gCallerTag = "MC";
        clerk.Type("{HOME}" + QStringLiteral("{DOWN}").repeated(index) + "{ENTER}");
        if (!Found.isEmpty())
            Type(clerk, "{ESC}");
    }

    QStringList Found; // name, gReportMode, title and gCallerTag at the last opening

private:
    std::set<QString> m_screens;
};

QStringList TextsOf(const Table& table)
{
    QStringList texts;
    for (const Entry& entry : table)
        texts.append(entry.text);
    return texts;
}

}

TEST_F(MenuListsTest, HoldTheirEntriesInOrderAsTheyAreSpelt)
{
    Menu([](Clerk& clerk) {
        EXPECT_EQ(Entries(clerk, "ListMain"),
            QStringList({"maasTr", "dUQa vyavahar", "dUQa irpaoT-", "vaaiYa-k irpaoT-",
                "[tr sauivaQaa À TUlsa", "baahor"}));
        EXPECT_EQ(IndexOfMain(clerk), 0);
        for (int at = 0; at < 5; ++at)
            EXPECT_EQ(Entries(clerk, SubLists[at]), TextsOf(*Tables[at])) << SubLists[at];
    });
}

TEST_F(MenuListsTest, EachEntrySetsItsModeAndTitleAndThenOpensItsScreenAndTheListStaysAsItWas)
{
    Menu([&](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            for (int i = 0; i + 1 < static_cast<int>(Tables[at]->size()); ++i) {
                const Entry& entry = (*Tables[at])[i];
                OpenEntry(clerk, i);
                const bool asksCaller = entry.screen == u"frmSearchCollections";
                EXPECT_EQ(Found,
                    QStringList({entry.screen, entry.mode.isEmpty() ? NoMode : entry.mode,
                        entry.title.isEmpty() ? OwnTitle : entry.title,
                        asksCaller ? QStringLiteral("N") : QStringLiteral("MC")}))
                    << qPrintable(entry.text);
                EXPECT_EQ(clerk.Focus(), QLatin1String(SubLists[at]));
                EXPECT_EQ(List(clerk, SubLists[at]).CurrentIndex(), i);
            }
            Type(clerk, "{ESC}");
        }
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(MenuListsTest, TransportIsOfferedOnlyWhenTheSettingReadsTrueAndThenDoesNothing)
{
    for (const char* setting : {"NULL", "'False'", "'true'", "'haoya'"}) {
        Run(QStringLiteral("update AutoSettings set ShowTransportCharges=") + QLatin1String(setting));
        Menu(
            [&](Clerk& clerk) { EXPECT_EQ(Entries(clerk, "ListSVouchers"), TextsOf(SVouchers)) << setting; });
    }
    Run("update AutoSettings set ShowTransportCharges='True'");
    QStringList withTransport = TextsOf(SVouchers);
    withTransport.insert(7, "dUQa vaahtUk Kca-");
    Menu([&](Clerk& clerk) {
        ASSERT_EQ(Entries(clerk, "ListSVouchers"), withTransport);
        ChooseMain(clerk, 1);
        OpenEntry(clerk, 7);
        EXPECT_TRUE(Found.isEmpty());
        EXPECT_EQ(Focus(clerk), "ListSVouchers");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MenuListsTest, WithoutASettingsRowNoTransportIsOffered)
{
    Run("delete * from AutoSettings");
    Menu([](Clerk& clerk) { EXPECT_EQ(Entries(clerk, "ListSVouchers"), TextsOf(SVouchers)); });
}

TEST_F(MenuListsTest, TheFunctionKeysOpenTheirScreensAlsoWithEverythingClosed)
{
    CloseEverything();
    const std::pair<const char*, const char*> keys[] = {
        {"{F4}", "frmUchalVouchers"}, {"{F7}", "frmAutoSettings"}, {"{F8}", "frmCollectionGate"}};
    Menu([&](Clerk& clerk) {
        for (const auto& [key, screen] : keys) {
            clerk.Type(QLatin1String(key));
            EXPECT_EQ(clerk.ScreenName(), QLatin1String(screen));
            Type(clerk, "{ESC}");
        }
        Type(clerk, "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
        Type(clerk, "{ESC}{F2}");
        EXPECT_EQ(TheCalculator.Started.size(), 1);
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(MenuListsTest, LeavingTheSystemOpensTheBackupBeforeTheQuestionByBaahorAndByEsc)
{
    Menu([&](Clerk& clerk) {
        for (const char* keys : {"{END}{ENTER}", "{ESC}"}) {
            clerk.Type(QLatin1String(keys));
            EXPECT_EQ(OnTop(clerk), "frmBackup");
            Type(clerk, "{ESC}");
            EXPECT_EQ(clerk.Message(), "saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ");
            Type(clerk, "%n");
            EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
        }
    });
}
