// The screens of purchase and sales and of the books of cash and bank, in their modes.

#include "tests/reports/BooksTest.h"

#include "core/menu/MenuEntries.h"

namespace {

constexpr const char* Wanted = "दिनांक असा टाका : 15/04/2026    Esc : बाहेर";

class BookScreensTest : public BooksTest {
protected:
    // Plays on both screens in all their modes.
    void InAll(const std::function<void(Clerk&, const char* mode)>& script)
    {
        for (const char* mode : {"PS", "MP", "MS"})
            InMode<frmReportPurchaseSales>(mode, [&](Clerk& clerk) { script(clerk, mode); });
        for (const char* mode : {"C", "B", "V"})
            InMode<frmReportCashBook>(mode, [&](Clerk& clerk) { script(clerk, mode); });
    }

    template <class S> void ExpectTitle(const QString& mode, const QString& title)
    {
        InMode<S>(mode.toLatin1().constData(),
            [&](Clerk& clerk) { EXPECT_EQ(clerk.Top().Title().Text(), title) << mode.toStdString(); });
    }
};

}

TEST_F(BookScreensTest, EachModeHasItsTitleWhichIsTheMenus)
{
    int modes = 0;
    for (const MenuEntry& entry : MenuEntries::MReports())
        if (entry.screen == u"frmReportPurchaseSales" || entry.screen == u"frmReportCashBook") {
            ++modes;
            if (entry.screen == u"frmReportCashBook")
                ExpectTitle<frmReportCashBook>(entry.reportMode, entry.title.toString());
            else
                ExpectTitle<frmReportPurchaseSales>(entry.reportMode, entry.title.toString());
        }
    EXPECT_EQ(modes, 5);
    for (const char* mode : {"PS", "", "UR"})
        ExpectTitle<frmReportPurchaseSales>(mode, "  dUQa KrodI À ivaËI irpaoT-");
    ExpectTitle<frmReportCashBook>("UR", "  k^Sa bauk");
}

TEST_F(BookScreensTest, EachModePrintsItsTemplate)
{
    Post({.amount = 5});
    Post({.debit = "baÐk", .amount = 5});
    AddAccount("baÐk", "Bank", "");
    AddAccount("dUQa saMGa", "Debtors", "saMGa");
    AddSale("10/04/2026", "sakaL", 1, "dUQa saMGa", "gaaya", 5, 4, 8.5);
    for (const auto& [mode, title] :
        {std::pair("PS", "दूध खरेदी आणि विक्री"), {"MP", "दूध खरेदी रिपोर्ट"}, {"MS", "दूध विक्री रिपोर्ट"}}) {
        TheWindow.Shown.clear();
        Print<frmReportPurchaseSales>(mode, "01042026{ENTER}30042026{ENTER}%i");
        EXPECT_EQ(TheWindow.Titles(), Lines({title}));
        EXPECT_EQ(TheWindow.Subject(), "01-04-2026 ते 30-04-2026");
    }
    for (const auto& [mode, title, account] : {std::tuple("C", "कॅश बुक", ""), {"B", "बॅन्क बुक", "baÐk{ENTER}"},
             {"V", "दूध विक्रीची तुलना", "dUQa saMGa{ENTER}"}}) {
        TheWindow.Shown.clear();
        Print<frmReportCashBook>(
            mode, ("01042026{ENTER}30042026{ENTER}" + std::string(account) + "%i").c_str());
        EXPECT_EQ(TheWindow.Titles(), Lines({title}));
    }
}

TEST_F(BookScreensTest, ADateThatIsNoneIsEmptiedAndKeepsTheFocusWithoutAMessage)
{
    InAll([this](Clerk& clerk, const char* mode) {
        const auto keeps = [&](const char* keys, const char* field) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), field) << mode << ' ' << keys;
            EXPECT_EQ(Reads(clerk, field), "__/__/____") << mode << ' ' << keys;
            EXPECT_EQ(Label(clerk, "lblGuide"), Wanted) << mode;
        };
        keeps("{ENTER}", "maskFromDate");
        keeps("31132026{ENTER}", "maskFromDate");
        keeps("3104%i", "maskFromDate");
        keeps("05042026{ENTER}31132026{ENTER}", "maskToDate");
        keeps("3104%i", "maskToDate");
        keeps("+{TAB}%i", "maskToDate");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(BookScreensTest, TheButtonAsksForALastDateThatWasPassedOver)
{
    InAll([this](Clerk& clerk, const char* mode) {
        Type(clerk, "05042026%i");
        EXPECT_EQ(Focus(clerk), "maskToDate") << mode;
        EXPECT_EQ(Label(clerk, "lblGuide"), Wanted) << mode;
    });
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(TheBox.Shown, QStringList());
}

TEST_F(BookScreensTest, AnEmptyEndIsProposedAsTheDayOfTheNewestTransaction)
{
    Post({.date = "18/04/2026", .amount = 5});
    Post({.date = "17/04/2026", .amount = 5});
    Post({.date = "25/04/2026", .amount = 5, .company = 2});
    InAll([](Clerk& clerk, const char* mode) {
        Type(clerk, "05042026{ENTER}");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "18/04/2026") << mode;
        Type(clerk, "16042026{ENTER}");
        Type(clerk, "+{TAB}");
        if (Focus(clerk) != "maskToDate")
            Type(clerk, "+{TAB}");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "16/04/2026") << "what was typed stays: " << mode;
        Type(clerk, "31132026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "18/04/2026") << "emptied and entered anew: " << mode;
    });
}

TEST_F(BookScreensTest, TheCashBookNamesItsAccountAndOnlyTheOthersAskForOne)
{
    for (const char* mode : {"C", "B", "V"})
        InMode<frmReportCashBook>(mode, [&](Clerk& clerk) {
            const bool isCash = QLatin1String(mode) == u"C";
            EXPECT_EQ(CanEnter(clerk, "ComboAccountName"), !isCash) << mode;
            EXPECT_FALSE(CanEnter(clerk, "txtAccountName")) << mode;
            EXPECT_EQ(Reads(clerk, "txtAccountName"), isCash ? "raoK" : "") << mode;
        });
}

TEST_F(BookScreensTest, TheBanksAreThoseOfTheCompanyInTheirOrder)
{
    Run("delete * from AccountsMaster");
    AddAccount("ya baÐk", " Bank", "");
    AddAccount("A baÐk", "Bank ", "saMGa");
    AddAccount("raoK", "Cash", "");
    AddAccount("prko", "Bank", "", 0, "D", 2);
    InMode<frmReportCashBook>("B", [](Clerk& clerk) {
        EXPECT_EQ(dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAccountName"))->Items(),
            Lines({"A baÐk", "ya baÐk"}));
        Type(clerk, "01042026{ENTER}30042026{ENTER}ya{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboAccountName"), "ya baÐk") << "what is begun is completed";
        EXPECT_EQ(Reads(clerk, "txtAccountName"), "ya baÐk");
        EXPECT_EQ(Focus(clerk), "cmdPrint");
    });
}
