// The screen of the gain and loss statement.

#include "platform/forms/OptionButton.h"
#include "tests/reports/VadhTootTest.h"

#include <QEvent>
#include <QLabel>

namespace {

using VadhTootScreenTest = VadhTootTest;

// Keeps what a label was painted with.
class PaintedLabel final : public QObject {
public:
    explicit PaintedLabel(QLabel& label) { label.installEventFilter(this); }
    QStringList Texts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            Texts.append(static_cast<QLabel*>(watched)->text());
        return false;
    }
};

}

TEST_F(VadhTootScreenTest, ItsTitleItsChoicesAndItsButtonsAreCalledThis)
{
    On<frmVadhTootReport>([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), " vaaZÀtUT p~k");
        const auto captionOf = [&](const char* option) {
            return dynamic_cast<const OptionButton&>(*clerk.Top().Find(QString::fromLatin1(option)))
                .Shown()
                .Text();
        };
        EXPECT_EQ(captionOf("OptionLiters"), "ilaTsa-");
        EXPECT_EQ(captionOf("OptionAmount"), "r@kma");
        EXPECT_EQ(Reads(clerk, "cmdPrint"), "irpaoT-");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "&baahor");
        EXPECT_EQ(Label(clerk, "lblMessage"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VadhTootScreenTest, EnterLeadsFromTheDatesOverTheChoiceToTheReport)
{
    On<frmVadhTootReport>([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        Type(clerk, "15042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        Type(clerk, "15042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "OptionLiters") << "litres until something else is chosen";
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Focus(clerk), "OptionAmount");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdPrint");
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "cmdExit");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VadhTootScreenTest, ADateThatIsNoneTakesTheFocusBackWithoutAMessageAndNothingIsStaged)
{
    Run("insert into VadhTootReport(CompanyId,LitersIn) values(1,99)");
    On<frmVadhTootReport>([&](Clerk& clerk) {
        const auto keeps = [&](const char* keys, const char* field) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), field) << keys;
            EXPECT_EQ(Label(clerk, "lblGuide"), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर") << keys;
        };
        keeps("{ENTER}", "maskFromDate");
        keeps("31132026{ENTER}", "maskFromDate");
        keeps("15042026{ENTER}{ENTER}", "maskToDate");
        keeps("31042026{ENTER}", "maskToDate");
        Press(clerk, "cmdPrint");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_EQ(Label(clerk, "lblMessage"), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Staged("LitersIn"), QStringList("99"));
    EXPECT_EQ(TheBox.Shown, QStringList());
    EXPECT_TRUE(TheWindow.Shown.empty());
}

// A field may have become no date behind the clerk's back: the button asks again.
TEST_F(VadhTootScreenTest, TheButtonAsksBothDatesItself)
{
    for (const char* field : {"maskFromDate", "maskToDate"}) {
        On<frmVadhTootReport>([&](Clerk& clerk) {
            Type(clerk, "15042026{ENTER}15042026{ENTER}{ENTER}");
            clerk.Do(
                [&] { dynamic_cast<DateField*>(clerk.Top().Find(QString::fromLatin1(field)))->SetText({}); });
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), field);
        });
        EXPECT_FALSE(Failure);
    }
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(Rows("select * from ReportDates"), QStringList());
}

TEST_F(VadhTootScreenTest, EachChoiceHasItsTemplateAndAFileIsNamedAfterIt)
{
    InLiters();
    EXPECT_EQ(TheWindow.Titles(), QStringList("वाढ-तूट पत्रक : लिटर"));
    EXPECT_EQ(TheWindow.Subject(), "लिटर्स 15-04-2026");
    InAmounts("13042026");
    EXPECT_EQ(TheWindow.Titles().last(), "वाढ-तूट पत्रक : रक्कम");
    EXPECT_EQ(TheWindow.Subject(), "रक्कम 13-04-2026 ते 15-04-2026");
}

TEST_F(VadhTootScreenTest, ItSaysThatItTakesAWhileUntilTheReportIsThere)
{
    std::unique_ptr<PaintedLabel> message;
    for (const char* choice : {"", "{DOWN}"}) {
        On<frmVadhTootReport>([&](Clerk& clerk) {
            Type(clerk, "15042026{ENTER}15042026{ENTER}");
            Type(clerk, choice);
            Type(clerk, "{ENTER}");
            clerk.Do([&] {
                message = std::make_unique<PaintedLabel>(*clerk.Top().findChild<QLabel*>("lblMessage"));
            });
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Label(clerk, "lblMessage"), "");
            clerk.Do([&] {
                EXPECT_TRUE(message->Texts.contains("Generating Report... Please wait ")) << choice;
                message.reset();
            });
        });
        EXPECT_FALSE(Failure);
    }
    EXPECT_EQ(TheWindow.Shown.size(), 2U);
}

TEST_F(VadhTootScreenTest, AMissingTemplateEndsTheProgramWhenTheRowsAreStaged)
{
    for (const char* name : {"VadhTootLitersPatrak.rpt", "VadhTootAmountPatrak.rpt"})
        RemoveTemplate(QString::fromLatin1(name));
    Bring({.liters = 10, .amount = 300});
    InLiters();
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Staged("LitersIn"), QStringList("10"));
    InAmounts();
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Staged("LitersIn"), QStringList("300"));
}
