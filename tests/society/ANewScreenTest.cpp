// The screen of docs/a-new-screen.md, word for word, so that what the page says can be built and works.

#include "tests/support/SocietyTest.h"

#include "core/messages/Messages.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Button.h"
#include "platform/forms/Layout.h"
#include "platform/forms/TextField.h"
#include "society/Names.h"
#include "society/SocietyScreen.h"
#include "society/Wanted.h"

#include <QFile>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace {

// Adds a place to the list of those that members live in.
class frmAddPlace final : public SocietyScreen {
public:
    frmAddPlace();

    static Keys::Places KeyPlaces();

private:
    TextField txtName{this, "txtName", &frmAddPlace::txtName_LostFocus};
    Button cmdSave{this, "cmdSave", Shivaji(u"&saovh"), &frmAddPlace::cmdSave_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmAddPlace::cmdExit_Click};

    void txtName_LostFocus();
    void cmdSave_Click();
    void ShowCount();

    void LayOut();
    SqlText Places() const;
};

Keys::Places frmAddPlace::KeyPlaces()
{
    using namespace KeyHints;
    return {{QStringLiteral("frmAddPlace"), Plain(u"गाव जोडणे"),
        {Next, Back, Leave, TutorKey(), Save, ExitButton,
            {QStringLiteral("F5"), Plain(u"किती गावे"), &frmAddPlace::ShowCount}}}};
}

frmAddPlace::frmAddPlace() : SocietyScreen(KeyPlaces(), Plain(u"गाव जोडणे"))
{
    txtName.SetGuide(Plain(u"गावाचे नाव"));
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in it
    LayOut();
}

// A name of blanks is none.
void frmAddPlace::txtName_LostFocus()
{
    if (txtName.Text().trimmed().isEmpty())
        txtName.SetFocus(Wanted::Name());
}

void frmAddPlace::cmdSave_Click()
{
    const QString name = txtName.Text().trimmed();
    if (!RowOfName(Places(), u"CityName", name).Eof()) {
        ShowNotice(Plain(u"हे गाव यादीत आहे."));
        txtName.SetFocus();
        return;
    }
    Transaction saving(gCn);
    gCn.Execute(
        Sql(u"INSERT INTO CityMaster(CompanyId,CityName) VALUES(", Values(gAppState.gCompanyId, name), u")"));
    saving.Commit();
    txtName.Clear();
    txtName.SetFocus();
}

void frmAddPlace::ShowCount()
{
    int count = 0;
    for (Recordset place(gCn, Places()); !place.Eof(); place.MoveNext())
        ++count;
    ShowNotice(Plain(QStringLiteral("यादीत %1 गावे आहेत.").arg(count)));
}

SqlText frmAddPlace::Places() const
{
    return Sql(u"SELECT * FROM CityMaster WHERE CompanyId=", gAppState.gCompanyId);
}

void frmAddPlace::LayOut()
{
    Layout::Form form;
    form.Row(Plain(u"गाव"), txtName);

    auto* body = new QVBoxLayout;
    body->addLayout(form.Grid());
    body->addWidget(lblGuide.Widget());
    body->addStretch(1);
    body->addLayout(Layout::ButtonRow({&cmdSave, &cmdExit}));
    Stack(body);
}

class ANewScreenTest : public SocietyTest {
protected:
    ANewScreenTest() { Run("delete * from CityMaster"); }
};

}

TEST_F(ANewScreenTest, APlaceIsAddedOnceAndTheClerkGoesOnWithTheNext)
{
    On<frmAddPlace>([](Clerk& clerk) {
        Type(clerk, "pauNao{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtName");
        EXPECT_EQ(Reads(clerk, "txtName"), "");
        Type(clerk, "pauNao%s");
        EXPECT_EQ(clerk.Message(), "हे गाव यादीत आहे.");
    });
    EXPECT_EQ(Rows("select CompanyId,CityName from CityMaster"), QStringList("1|pauNao"));
    EXPECT_FALSE(Failure);
}

TEST_F(ANewScreenTest, AnEmptyNameKeepsTheFocusAndEscLeaves)
{
    On<frmAddPlace>([](Clerk& clerk) {
        Type(clerk, "{ENTER}%s");
        EXPECT_EQ(Focus(clerk), "txtName");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(One("select count(*) from CityMaster"), "0");
    EXPECT_FALSE(Failure);
}

TEST_F(ANewScreenTest, ItsKeyCountsThePlaces)
{
    On<frmAddPlace>([](Clerk& clerk) {
        Type(clerk, "pauNao%s{F5}");
        EXPECT_EQ(clerk.Message(), "यादीत 1 गावे आहेत.");
    });
    EXPECT_FALSE(Failure);
}

TEST(ANewScreenPageTest, QuotesThisFileWordForWord)
{
    const auto text = [](const char* path) {
        QFile file(QString::fromUtf8(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return QString::fromUtf8(file.readAll());
    };
    const QString code = text(NEW_SCREEN);
    static const QRegularExpression block(
        "```cpp\\n(.*?)```", QRegularExpression::DotMatchesEverythingOption);
    int blocks = 0;
    for (auto quotes = block.globalMatch(text(NEW_SCREEN_PAGE)); quotes.hasNext(); ++blocks) {
        const QString quoted = quotes.next().captured(1);
        EXPECT_TRUE(code.contains(quoted)) << quoted.toStdString();
    }
    EXPECT_EQ(blocks, 6);
}
