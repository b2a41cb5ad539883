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

const QString Registers = QStringLiteral("frmReportMilkPaymentsRegister");
const QString PurchaseSales = QStringLiteral("frmReportPurchaseSales");
const Entry Back{QStringLiteral("baahor")};

const Table Master = {
    {QStringLiteral("]%padkacao rijasTr"), QStringLiteral("frmMembers")},
    {QStringLiteral("ga`ahkacao rijasTr"), QStringLiteral("frmCustomers")},
    {QStringLiteral("f^T dr badla"), QStringLiteral("frmNewFatRates")},
    Back,
};

const Table SVouchers = {
    {QStringLiteral("dUQa saMklana 1"), QStringLiteral("frmMilkCollections")},
    {QStringLiteral("dUQa saMklana 2"), QStringLiteral("frmCollectionGate")},
    {QStringLiteral("dUQa saMklana 3"), QStringLiteral("frmDailyCollection")},
    {QStringLiteral("]cala naaoMd"), QStringLiteral("frmUchalVouchers")},
    {QStringLiteral("kpat zrvaa"), QStringLiteral("frmInstallment")},
    {QStringLiteral("dUQa pomaonT"), QStringLiteral("frmNewMilkPayment")},
    {QStringLiteral("dUQa ivaËI"), QStringLiteral("frmMilkSales")},
    Back,
};

const Table MReports = {
    {QStringLiteral("dUQa saMklana irpaoT-"), QStringLiteral("frmReportMilkCollections")},
    {QStringLiteral("dUQa saMklana pavatI"), QStringLiteral("frmSearchCollections")},
    {QStringLiteral("dUQa pomaonT irpaoT-"), QStringLiteral("frmReportMilkPayments")},
    {QStringLiteral("dUQa pomaonT ilasT"), QStringLiteral("frmReportPaymentList")},
    {QStringLiteral("dUQa pomaonT rijasTr"), Registers, QStringLiteral("PR"),
        QStringLiteral(" dUQa pomaonT rijasTr irpaoT-")},
    {QStringLiteral("zova rijasTr"), Registers, QStringLiteral("TR"),
        QStringLiteral(" zova rijasTr irpaoT-")},
    {QStringLiteral("]cala rijasTr"), Registers, QStringLiteral("UR"),
        QStringLiteral(" ]cala rijasTr irpaoT-")},
    {QStringLiteral("vaOyai@tk ]cala irpaoT-"), Registers, QStringLiteral("UD"),
        QStringLiteral(" ]cala rijasTr irpaoT-")},
    {QStringLiteral("vaaZÀtUT p~k"), QStringLiteral("frmVadhTootReport")},
    {QStringLiteral("dUQa KrodI irpaoT-"), PurchaseSales, QStringLiteral("MP"),
        QStringLiteral("  dUQa KrodI irpaoT-")},
    {QStringLiteral("dUQa ivaËI irpaoT-"), PurchaseSales, QStringLiteral("MS"),
        QStringLiteral("  dUQa ivaËI irpaoT-")},
    {QStringLiteral("dUQa ivaËIcaI tulanaa%mak AakDovaarI"), QStringLiteral("frmReportCashBook"),
        QStringLiteral("V"), QStringLiteral("  dUQa ivaËIcaI tulanaa%mak AakDovaarI")},
    {QStringLiteral("dUQa saMklana À ivaËI irpaoT-"), QStringLiteral("frmReportMilkPS")},
    {QStringLiteral("saBaasadaMcaI yaadI"), QStringLiteral("frmReportMembersList")},
    Back,
};

const Table YearlyReport = {
    {QStringLiteral("]cala yaadI"), Registers, QStringLiteral("UchalBalanceStatement")},
    {QStringLiteral("zova yaadI"), Registers, QStringLiteral("ThevBalanceStatement")},
    Back,
};

const Table Utilities = {
    {QStringLiteral("ba^k Ap\\ fa[-lsa"), QStringLiteral("frmBackup")},
    {QStringLiteral("Aa^Tao saoTIMgja"), QStringLiteral("frmAutoSettings")},
    {QStringLiteral("baaonasa TUla"), QStringLiteral("frmBonusPayments")},
    {QStringLiteral("zovaIcaa kalaavaQaI"), QStringLiteral("frmThevDate")},
    Back,
};

const Table* const Tables[] = {&Master, &SVouchers, &MReports, &YearlyReport, &Utilities};

const QString OwnTitle = QStringLiteral("its own title");
const QString NoMode = QStringLiteral("as it was");

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
        gAppState.gCallerTag = QStringLiteral("MC");
        clerk.Type(
            QStringLiteral("{HOME}") + QStringLiteral("{DOWN}").repeated(index) + QStringLiteral("{ENTER}"));
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
            QStringList({QStringLiteral("maasTr"), QStringLiteral("dUQa vyavahar"),
                QStringLiteral("dUQa irpaoT-"), QStringLiteral("vaaiYa-k irpaoT-"),
                QStringLiteral("[tr sauivaQaa À TUlsa"), QStringLiteral("baahor")}));
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
    Run(QStringLiteral("update AutoSettings set ShowTransportCharges='True'"));
    QStringList withTransport = TextsOf(SVouchers);
    withTransport.insert(7, QStringLiteral("dUQa vaahtUk Kca-"));
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
    Run(QStringLiteral("delete * from AutoSettings"));
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
            EXPECT_EQ(clerk.Message(), QStringLiteral("saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ"));
            Type(clerk, "%n");
            EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
        }
    });
}
