#include "tests/support/SocietyTest.h"

#include "platform/forms/Screen.h"
#include "society/RecordModes.h"

namespace {

class frmRecords final : public Screen {
public:
    frmRecords() : Screen("frmRecords")
    {
        Modes.SetFields({&txtNo}, {&txtName});
        Modes.Rest();
    }

    WholeField txtNo{this, "txtNo"};
    WholeField txtName{this, "txtName"};
    Button cmdAdd{this, "cmdAdd", Shivaji(u"&navaIna")};
    Button cmdMod{this, "cmdMod", Shivaji(u"ba&dla")};
    Button cmdDel{this, "cmdDel", Shivaji(u"&KaoDNao...")};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_")};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor")};
    RecordModes Modes{*this, u" ]%padkacao", {cmdAdd, cmdMod, cmdDel, cmdCancel, cmdExit}};

    // The captions of the three modes, and what can be entered: "navaIna badla ... | txtNo cmdAdd".
    std::string Reads() const
    {
        QStringList captions;
        QStringList open;
        for (const Button* button : {&cmdAdd, &cmdMod, &cmdDel})
            captions.append(button->Text());
        for (const Control* control : Controls())
            if (control->Enabled())
                open.append(control->Name());
        return QString(captions.join(u' ') + " | " + open.join(u' ')).toStdString();
    }
};

class RecordModesTest : public SocietyTest {
protected:
    frmRecords Screen;
};

}

TEST_F(RecordModesTest, AtRestTheCaptionsAreThoseDeclaredAndTheFieldsAreClosed)
{
    EXPECT_EQ(Screen.Reads(), "&navaIna ba&dla &KaoDNao... | cmdAdd cmdMod cmdDel cmdCancel cmdExit");
    EXPECT_EQ(Screen.Title().Text().toStdString(), " ]%padkacao");
    EXPECT_FALSE(Screen.Modes.IsNew() || Screen.Modes.IsModify() || Screen.Modes.IsDelete());
    EXPECT_EQ(&Screen.Modes.Open(), &Screen.cmdAdd);
    EXPECT_TRUE(Screen.cmdCancel.Cancels());
}

TEST_F(RecordModesTest, ANewRecordAndAChangeOpenAllFieldsAndLeaveNoWayButSaveAndCancel)
{
    Screen.Modes.EnterNew();
    EXPECT_TRUE(Screen.Modes.IsNew());
    EXPECT_EQ(Screen.Reads(), "&saovh ba&dla &KaoDNao... | txtNo txtName cmdAdd cmdCancel");
    EXPECT_EQ(Screen.Title().Text().toStdString(), " ]%padkacao navaIna roka^D-");
    Screen.Modes.Rest();
    Screen.Modes.EnterModify();
    EXPECT_TRUE(Screen.Modes.IsModify());
    EXPECT_EQ(Screen.Reads(), "&navaIna &saovh &KaoDNao... | txtNo txtName cmdMod cmdCancel");
    EXPECT_EQ(Screen.Title().Text().toStdString(), " ]%padkacao roka^D-maQyao badla");
    EXPECT_EQ(&Screen.Modes.Open(), &Screen.cmdMod);
}

TEST_F(RecordModesTest, ADeletionOpensOnlyWhatLooksTheRecordUpAndRestTakesAllBack)
{
    Screen.Modes.EnterDelete();
    EXPECT_TRUE(Screen.Modes.IsDelete());
    EXPECT_EQ(Screen.Reads(), "&navaIna ba&dla &KaoDa | txtNo cmdDel cmdCancel");
    EXPECT_EQ(Screen.Title().Text().toStdString(), " ]%padkacao roka^D- KaoDNao");
    EXPECT_EQ(&Screen.Modes.Open(), &Screen.cmdDel);
    Screen.Modes.Rest();
    EXPECT_EQ(Screen.Reads(), "&navaIna ba&dla &KaoDNao... | cmdAdd cmdMod cmdDel cmdCancel cmdExit");
}
