#include "core/start/BooksKeeper.h"

#include "core/messages/InputBox.h"
#include "core/messages/Messages.h"
#include "core/messages/Narrations.h"
#include "core/messages/PlainBox.h"
#include "platform/database/Transaction.h"
#include "tests/support/SocietyTest.h"

namespace {

// Nobody leaves a screen here and no second passes, so that only the length of the log can fold it.
class BooksKeeperTest : public SocietyTest {
protected:
    void Write(qsizetype letters)
    {
        Transaction writing(gCn);
        Run(QStringLiteral("insert into CityMaster(CompanyId,CityName) values(1,'%1')")
                .arg(QString(letters, u'a')));
        writing.Commit();
    }

    QString Written() { return One("select count(*) from CityMaster where CityName like 'aaa%'"); }

    BooksKeeper Keeper;
};

TEST_F(BooksKeeperTest, ALogAboveEightMegabytesIsFoldedOnTheWay)
{
    Write(7 * 1024 * 1024);
    EXPECT_GT(gCn.LogSize(), 7 * 1024 * 1024);
    Write(1024 * 1024);
    EXPECT_EQ(gCn.LogSize(), 0);
    EXPECT_EQ(Written(), "2");
}

TEST_F(BooksKeeperTest, LeavingAScreenFoldsWhatWasSaved)
{
    Write(5);
    ASSERT_GT(gCn.LogSize(), 0);
    Failure = TheClerk.Play(
        [] {
            frmNarrations prompt(Plain(u"नाव"));
            prompt.ShowModal();
        },
        [](Clerk& clerk) { Type(clerk, "a{ENTER}{ENTER}"); });
    EXPECT_EQ(gCn.LogSize(), 0);
}

TEST_F(BooksKeeperTest, ABoxIsAnsweredInTheMidstOfAnotherScreensWorkAndFoldsNothing)
{
    Write(5);
    const qint64 unfolded = gCn.LogSize();
    const std::function<void()> boxes[] = {
        [] { ShowNotice(Shivaji(u"yaa naavaacao roka^D- Agaaodrca Aaho")); },
        [] { PlainBoxCards().Show("Duplicate Record"); },
        [] { InputBoxCards().Ask("Enter Folder Name"); },
    };
    for (const auto& box : boxes) {
        Failure = TheClerk.Play(box, [](Clerk& clerk) {
            EXPECT_NE(OnTop(clerk), "");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "");
        });
        EXPECT_EQ(gCn.LogSize(), unfolded);
    }
}

}
