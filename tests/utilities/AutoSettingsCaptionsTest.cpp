// Every word that the settings show: on the pages, beside the fields and on the buttons.

#include "tests/utilities/AutoSettingsTest.h"

#include <QLabel>
#include <QTabBar>

#include <algorithm>

namespace {

class AutoSettingsCaptionsTest : public AutoSettingsTest {
protected:
    // The labels of the page that is seen, line by line, separated by '|'.
    static std::string Labels(Clerk& clerk)
    {
        const QWidget* pages = dynamic_cast<TabPages&>(*clerk.Top().Find(u"SSTab")).Pages();
        QList<QLabel*> labels = pages->findChildren<QLabel*>();
        labels.removeIf([pages](const QLabel* label) {
            return !label->isVisible() || label->text().isEmpty()
                || label->parentWidget()->parentWidget() != pages; // a combo's arrow
        });
        const auto place = [pages](const QLabel* label) {
            const QPoint at = label->mapTo(pages, label->rect().center());
            return std::pair(at.y(), at.x());
        };
        std::sort(labels.begin(), labels.end(),
            [&](const QLabel* one, const QLabel* other) { return place(one) < place(other); });
        QStringList texts;
        for (const QLabel* label : labels)
            texts.append(label->text());
        return texts.join(u'|').toStdString();
    }

    // Texts of the system the same way, without the blanks at their ends.
    static std::string AsSeen(std::initializer_list<const char*> texts)
    {
        QStringList seen;
        for (const char* text : texts)
            seen.append(Seen(Q(text)).trimmed());
        return seen.join(u'|').toStdString();
    }

    // What a screen reader calls a control: its question, and whose it is.
    static QString Called(Clerk& clerk, const char* control)
    {
        return clerk.Top().Find(Q(control))->Widget()->accessibleName();
    }

    static void ExpectCalled(
        Clerk& clerk, std::initializer_list<std::pair<const char*, const char*>> controls)
    {
        for (const auto& [control, text] : controls)
            EXPECT_EQ(Called(clerk, control), Seen(Q(text)).trimmed()) << control;
    }
};

}

TEST_F(AutoSettingsCaptionsTest, TheCollectionPage)
{
    Settings([](Clerk& clerk) {
        EXPECT_EQ(Labels(clerk),
            AsSeen({"vajana kaTa jaaoDlaolaa Aaho kaÆ", "f^T maiSana jaaoDlaolao Aaho kaÆ",
                "saMklana pavatIcaI ip`MT paihjao ka Æ", "k^nacaI  xamata", "gaaya", "ilaTr",
                "k^nacaI  xamata", "mhOsa", "ilaTr", "pavatI p`kar inavaDa"}));
        ExpectCalled(clerk,
            {{"ComboAutoLiters", "vajana kaTa jaaoDlaolaa Aaho kaÆ"},
                {"ComboAutoFat", "f^T maiSana jaaoDlaolao Aaho kaÆ"},
                {"ComboPrintStatus", "saMklana pavatIcaI ip`MT paihjao ka Æ"},
                {"txtCowLimit", "k^nacaI  xamata gaaya"}, {"txtBuffLimit", "k^nacaI  xamata mhOsa"},
                {"ComboReceipt", "pavatI p`kar inavaDa"}});
        EXPECT_EQ(dynamic_cast<CheckBox&>(*clerk.Top().Find(u"CheckRepeatCol")).Shown().Text(),
            "eka maombarcaI eka vaoLI ekapoxaa jaast vaoLa dUQa saMklana naaoMd kÉ VayacaI ka Æ");
        EXPECT_EQ(Reads(clerk, "cmdReceipt"), "pavatI p`kar");
    });
}

TEST_F(AutoSettingsCaptionsTest, ThePaymentPage)
{
    Settings([](Clerk& clerk) {
        clerk.Type("^{PGDN}");
        EXPECT_EQ(Labels(clerk),
            AsSeen({"pomaoMT kalaavaQaI", "zova kpat", "gaaya", "p`it ilaTr", "zova kpat", "mhOsa",
                "p`it ilaTr", "dracaa p`kar", "dUQa pomaoMT pOSaat yaot Asalyaasa "}));
        ExpectCalled(clerk,
            {{"ComboPaymentDuration", "pomaoMT kalaavaQaI"}, {"txtCow", "zova kpat gaaya"},
                {"txtBuff", "zova kpat mhOsa"}, {"cmbFatRateType", "dracaa p`kar"}});
        const std::pair<const char*, const char*> boxes[] = {
            {"CheckCNP", "dUQa KrodIcaI enT/I dUQa saMklana krtovaoLIca kravaI ka Æ"},
            {"CheckSNU",
                "maombarlaa kolaolaI ]Qaar ivaËI dUQa pomaonT krtovaoLI ]cala mhNaUna ivacaarat GyaavaI ka "
                "Æ"}};
        for (const auto& [box, caption] : boxes)
            EXPECT_EQ(dynamic_cast<CheckBox&>(*clerk.Top().Find(Q(box))).Shown().Text(), Q(caption));
        const std::pair<const char*, const char*> options[] = {{"OptionAddThev", "zovaImaQyao Gyaa"},
            {"OptionPayable", "doNao daKvaa"}, {"OptionPayIt", "pUNa- pomaonT kra"},
            {"OptionDiscount", "saUT daKvaa"}};
        for (const auto& [option, caption] : options)
            EXPECT_EQ(dynamic_cast<OptionButton&>(*clerk.Top().Find(Q(option))).Shown().Text(), Q(caption));
    });
}

TEST_F(AutoSettingsCaptionsTest, TheSalePage)
{
    Settings([](Clerk& clerk) {
        clerk.Type("^{PGUP}");
        EXPECT_EQ(Labels(clerk),
            AsSeen({"sqaainak dUQa ivaËI dr", "gaaya dUQa", "p`it ilaTr", "mhOsa dUQa", "p`it ilaTr",
                "eki~t dUQa", "p`it ilaTr", "ivaËI pavatIÀip`MT"}));
        ExpectCalled(clerk,
            {{"txtCowSaleRate", "sqaainak dUQa ivaËI dr gaaya dUQa"}, {"txtBuffSaleRate", "mhOsa dUQa"},
                {"txtMixSaleRate", "eki~t dUQa"}, {"ComboMSRPrintStatus", "ivaËI pavatIÀip`MT"}});
    });
}

TEST_F(AutoSettingsCaptionsTest, TheTitleTheTabsAndTheButtons)
{
    Settings([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), "Aa^Tao saoTIMgja");
        const auto& tabs = dynamic_cast<QTabBar&>(*clerk.Top().Find(u"SSTab")->Widget());
        EXPECT_EQ(tabs.tabText(0), "संकलन");
        EXPECT_EQ(tabs.tabText(1), "पेमेंट");
        EXPECT_EQ(tabs.tabText(2), Seen("dUQa ivaËI"));
        EXPECT_EQ(Reads(clerk, "CmdSave"), "&saovh");
        EXPECT_EQ(Reads(clerk, "CmdCancel"), "&r_");
        EXPECT_EQ(Reads(clerk, "CmdExit"), "&baahor");
    });
}
