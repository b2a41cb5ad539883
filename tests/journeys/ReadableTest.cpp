#include "tests/journeys/ReadableTest.h"
#include "core/start/MdlAccounts.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/Readable.h"

#include "core/messages/Messages.h"
#include "core/messages/Narrations.h"
#include "masters/frmMembers.h"
#include "platform/database/Sql.h"
#include "platform/forms/Button.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/DataGrid.h"
#include "platform/text/Shivaji01.h"
#include "rates/frmNewFatRates.h"
#include "utilities/frmBackup.h"

#include <QDir>
#include <QFile>

ReadableTest::ReadableTest()
{
    FillBooks();
    const QString name = Stored(u"श्री. बाळासाहेब रामचंद्र देशमुख-कुलकर्णी");
    const QString society = Stored(u"श्री गणेश सहकारी दूध उत्पादक संस्था मर्यादित, मसूर");
    Run(Sql(u"update MembersMaster set MemberName='", name, u"',Address='", Stored(u"माळ वस्ती, शाळेजवळ"),
        u"',City='", Stored(u"सातारा"), u"',PaymentType='ba^nk',BankName='",
        Stored(u"जिल्हा मध्यवर्ती सहकारी बँक"),
        u"',BankAccountNo='00123456789012',OpeningBalance=1234567.89,"
        u"ClosingBalance=1234567.89,OpeningUchal=1234567.89,ClosingUchal=1234567.89,CowOpeningThev=123456.78,"
        u"CowClosingThev=123456.78,BuffOpeningThev=123456.78,BuffClosingThev=123456.78,"
        u"CowOpeningLits=123456.789,CowClosingLits=123456.789,BuffOpeningLits=123456.789,"
        u"BuffClosingLits=123456.789 where MemberNo=3"));
    Run(Sql(u"update CompanySelected set CompanyName='", society, u"'"));
    AddLargeDeliveries(name);
    LoadAppState();
    gAppState.gAppDate = QDate(2026, 4, 15);
}

void ReadableTest::AddLargeDeliveries(const QString& name)
{
    int number = 98;
    for (const char* time : {"sakaL", "saMQyaakaL"})
        for (const char* animal : {"gaaya", "mhOsa"})
            Run(Sql(
                u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(1,"
                u"'14/04/2026','",
                QString::fromLatin1(time), u"',", ++number, u",3,'", name, u"','",
                QString::fromLatin1(animal), u"',1666.666,29.9,60,99999.96,0,'10.59')"));
}

QString ReadableTest::Stored(const char16_t* seen)
{
    return Shivaji01::FromUnicode(seen);
}

void ReadableTest::ExpectReadable(Clerk& clerk, const std::string& state)
{
    EXPECT_EQ(UnreadableOn(clerk.Top()), "") << OnTop(clerk) << ", " << state;
}

void ReadableTest::WalkAndLook(Clerk& clerk, const std::string& state)
{
    QStringList met;
    while (clerk.ScreenName() != u"frmMessages" && !met.contains(clerk.Focus())) {
        met.append(clerk.Focus());
        ExpectReadable(clerk, state + ", at " + Focus(clerk));
        Type(clerk, "{ENTER}");
    }
    EXPECT_GT(met.size(), 1) << state;
}

void ReadableTest::TypeAndLook(Clerk& clerk, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        Type(clerk, key);
        ExpectReadable(clerk, std::string("after ") + key + ", at " + Focus(clerk));
    }
}

namespace {

// A screen with one fault of each kind.
class frmUnreadable final : public Screen {
public:
    frmUnreadable() : Screen("frmUnreadable")
    {
        lblCut.Widget()->setGeometry(0, 0, 20, 30);
        txtNameless.Widget()->setGeometry(100, 0, 200, 40);
        cmdOver.Widget()->setGeometry(150, 20, 200, 40);
        chkCut.Widget()->setGeometry(0, 200, 60, 30);
        grdCut.Widget()->setGeometry(0, 300, 300, 200);
        txtBeyond.Widget()->setGeometry(1000, 100, 100, 40);
        txtBeyond.SetAccessibleName(Plain(u"beyond"));
        setFixedSize(1020, 740);
    }

private:
    Label lblCut{this, "lblCut", Plain(u"far too long for so little room")};
    NumberField txtNameless{this, "txtNameless", NumberField::Digits::Whole};
    Button cmdOver{this, "cmdOver", Plain(u"over")};
    NumberField txtBeyond{this, "txtBeyond", NumberField::Digits::Whole};
    CheckBox chkCut{this, "chkCut", Plain(u"far too long for so little room")};
    DataGrid grdCut{this, "grdCut",
        {{"Amount", Plain(u"unbrokenhead"), 30, "#######0.00", true}, {"AdvanceType", Plain(u"b"), 0}}};

    void Load() override
    {
        gCn.Execute("insert into AdvanceTemp(AdvanceType,Amount) values('a',1234567.89)");
        grdCut.Bind(gCn, "select * from AdvanceTemp");
    }
};

}

TEST_F(ReadableTest, WhatCantBeReadIsFound)
{
    On<frmUnreadable>([](Clerk& clerk) {
        const std::string faults = UnreadableOn(clerk.Top());
        for (const char* fault :
            {"frmUnreadable: is 1020 x 740", "frmUnreadable: has no title", "lblCut: \"far too long",
                "txtNameless: has no name", "chkCut: \"far too long", "grdCut: the head \"unbrokenhead",
                "grdCut: \"1234567.89\" needs", "txtBeyond: hangs over the edge"})
            EXPECT_NE(faults.find(fault), std::string::npos) << fault << " in\n" << faults;
        EXPECT_TRUE(faults.find("lies over txtNameless") != std::string::npos
            || faults.find("lies over cmdOver") != std::string::npos)
            << faults;
    });
}

TEST_F(ReadableTest, TheLettersHaveTheSizeThatThisRunIsFor)
{
    Start([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().devicePixelRatioF(), qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
        Type(clerk, "%x");
    });
}

TEST_F(ReadableTest, TheScreensFromTheTitleToTheMenu)
{
    Start([](Clerk& clerk) {
        for (const char* screen : {"frmAbout", "frmTip", "frmAppDate"}) {
            EXPECT_EQ(OnTop(clerk), screen);
            ExpectReadable(clerk, "as it opens");
            Type(clerk, "{ENTER}");
        }
        ExpectReadable(clerk, "on the button");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
        ExpectReadable(clerk, "as it opens");
    });
}

TEST_F(ReadableTest, TheMenuWithEachOfItsLists)
{
    Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys());
        QStringList lists;
        for (int entry = 0; entry < 5; ++entry) {
            Type(clerk, "{HOME}");
            clerk.Type(QStringLiteral("{DOWN}").repeated(entry) + "{ENTER}");
            lists.append(clerk.Focus());
            ExpectReadable(clerk, "with " + Focus(clerk));
            Type(clerk, "{END}");
            ExpectReadable(clerk, "at the end of " + Focus(clerk));
            Type(clerk, "{ESC}");
        }
        EXPECT_EQ(lists,
            Lines({"ListMaster", "ListSVouchers", "ListMReports", "listYearlyReport", "ListUtilities"}));
    });
}

TEST_F(ReadableTest, TheQuestionOfTheEnd)
{
    Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys());
        clerk.AskToLeave();
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        ExpectReadable(clerk, "leaving");
        Type(clerk, "%h");
    });
}

TEST_F(ReadableTest, TheMenuWithAnOldBackup)
{
    QFile copy(FolderFile("Backup/Morvelta.mdb"));
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    for (const int days : {3, 365}) {
        copy.setFileTime(TheClock.Time.addDays(-days), QFileDevice::FileModificationTime);
        Start([days](Clerk& clerk) {
            clerk.Type(OpeningKeys());
            EXPECT_NE(Label(clerk, "lblLastBackup").find(std::to_string(days)), std::string::npos);
            ExpectReadable(clerk, "with an old backup");
        });
    }
}

TEST_F(ReadableTest, TheBackupAtEachFieldAndBehindACopy)
{
    const QString folder = FolderFile("Backup");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile replaced(folder + "/Morvelta Before 30 September 2026 181500.mdb");
    ASSERT_TRUE(replaced.open(QIODevice::WriteOnly));
    On<frmBackup>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        WalkAndLook(clerk, "walking");
        Press(clerk, "cmdBackup");
        EXPECT_NE(Label(clerk, "lblContent"), "");
        ExpectReadable(clerk, "behind a copy");
        clerk.Do([&] {
            dynamic_cast<Field*>(clerk.Top().Find(u"Text1"))
                ->SetText("C:\\Tarvel01\\Vetrolan\\Morvelta On 15 September 2026 before the payment.mdb");
            clerk.Top().Find(u"cmbBackupType")->SetFocus();
        });
        Type(clerk, "2");
        Press(clerk, "cmdBackup");
        EXPECT_NE(Label(clerk, "lblContent").find("before the payment.mdb मध्ये"), std::string::npos);
        ExpectReadable(clerk, "behind a copy that lies elsewhere");
        clerk.Do([&] { clerk.Top().Find(u"cmdRestore")->SetFocus(); });
        ExpectReadable(clerk, "before a restore");
        Type(clerk, "{ESC}");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableTest, TheKeyboardTutor)
{
    Start([](Clerk& clerk) {
        clerk.Type(OpeningKeys() + "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
        ExpectReadable(clerk, "as it opens");
        Type(clerk, "gaayaIcao dUQa");
        ExpectReadable(clerk, "with a text");
    });
}

TEST_F(ReadableTest, TheMessagesWithTheLongestTexts)
{
    const QString longest = "maombarcaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ";
    for (const QString& text : QStringList{longest, QString(longest + u' ' + longest), "idnaaMk"}) {
        for (const auto mode : {frmMessages::Mode::Notice, frmMessages::Mode::Question}) {
            Failure = TheClerk.Play(
                [&] {
                    frmMessages message(mode, Shivaji(text));
                    message.ShowModal();
                },
                [](Clerk& clerk) { ExpectReadable(clerk, clerk.Message().toStdString()); });
        }
    }
}

TEST_F(ReadableTest, TheOneLinePrompt)
{
    Failure = TheClerk.Play(
        [] {
            frmNarrations prompt(Shivaji(u"maombarcao naaMva vyavaisqat Ta[-p kra"));
            prompt.ShowModal();
        },
        [](Clerk& clerk) {
            ExpectReadable(clerk, "as it opens");
            Type(clerk, "gaayaIcao dUQa{TAB}");
            ExpectReadable(clerk, "on the button");
        });
}

TEST_F(ReadableTest, TheMembersAtRestAndInEveryMode)
{
    for (const char* mode : {"", "%n", "%d", "%K"}) {
        On<frmMembers>([mode](Clerk& clerk) {
            Type(clerk, mode);
            ExpectReadable(clerk, std::string("after ") + mode);
        });
        EXPECT_FALSE(Failure);
    }
}

TEST_F(ReadableTest, TheFatRatesAtRestInAChangeAndWithTheFrame)
{
    On<frmNewFatRates>([](Clerk& clerk) {
        ExpectReadable(clerk, "at rest");
        for (const char* keys :
            {"%d", "31032026{ENTER}", "01042026{ENTER}", "{ENTER}999999.99{ENTER}999999.99", "{F5}"}) {
            Type(clerk, keys);
            ExpectReadable(clerk, std::string("after ") + keys);
        }
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableTest, AMemberWithABankAndLargeFiguresAtEveryField)
{
    On<frmMembers>([](Clerk& clerk) {
        Type(clerk, "%d3{ENTER}");
        EXPECT_TRUE(clerk.CanEnter("txtBankAccountNo"));
        WalkAndLook(clerk, "modify");
        EXPECT_EQ(OnTop(clerk), "frmMessages") << "the last of them is the button that saves";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadableTest, AMemberToDeleteAndTheQuestion)
{
    On<frmMembers>([](Clerk& clerk) {
        Type(clerk, "%K3{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        ExpectReadable(clerk, "before the delete");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        ExpectReadable(clerk, "delete");
    });
    EXPECT_FALSE(Failure);
}
