#include "collection/frmMilkCollections.h"

#include "core/menu/Keys.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <QStackedLayout>

Keys::Places frmMilkCollections::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmMilkCollections"), Shivaji(u"dUQa saMklana 1"),
            {Next, Back, Leave, CalculatorKey(), MembersKey(), AdvanceKey(), TutorKey(), OneOfTwo,
                ListOfNames}},
        {QStringLiteral("frmMilkCollections.maskDate"), Plain(u"दूध संकलन १, दिनांकात"),
            {{QStringLiteral("Shift+Tab"), Plain(u"वजन काटा, फॅट मशीन, प्रिंटर")}}},
        {QStringLiteral("frmMilkCollections.txtCollectionNo"), Plain(u"दूध संकलन १, संकलन क्रमांकात"),
            NumberKeys()},
        {QStringLiteral("frmMilkCollections.txtMemberNo"), Plain(u"दूध संकलन १, मेम्बर नंबरात"),
            {{QStringLiteral("F7"), Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana"),
                 &frmMilkCollections::ShowMemberFrame},
                SearchKey(), DeleteKey()}},
        {QStringLiteral("FrameMilkCollection"), Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana"),
            {Next, Back, Leave, {QStringLiteral("Alt+I"), Shivaji(u"irpaoT-")},
                {QStringLiteral("Alt+B"), Shivaji(u"baahor")}, CalculatorKey(), MembersKey(), AdvanceKey(),
                TutorKey()}},
        {QStringLiteral("FrameMilkCollection.cmbAccountName"), Plain(u"उत्पादकाचे वैयक्तिक दूध संकलन, नावात"),
            {ListOfNames}},
    };
}

frmMilkCollections::frmMilkCollections() : CounterScreen(CounterKinds::Main, KeyPlaces())
{
    When(Line.ComboMemberName.NamesLoaded, &frmMilkCollections::ListNames);
    When(Frame.Command2.Click, &frmMilkCollections::Command2_Click);
    LayOut(Views(), KeyStrips());
}

void frmMilkCollections::Load()
{
    CounterScreen::Load();
    Frame.Load();
}

// Esc in the member's frame is the way back to the shift.
void frmMilkCollections::Escape()
{
    if (!Frame.IsOpen()) {
        CounterScreen::Escape();
        return;
    }
    LeaveMemberFrame();
    txtCollectionNo.SetFocus();
}

// The frame has the names of the line, and keeps those that it has.
void frmMilkCollections::ListNames()
{
    Frame.cmbAccountName.AddNames(Line.ComboMemberName.Names());
}

void frmMilkCollections::MembersShown()
{
    const Recordset member(gCn, QStringLiteral("Select * from MembersMaster"));
    if (!member.Eof())
        Frame.cmbAccountName.AddNames({{member[u"MemberName"].Text(), member[u"MemberNo"].Text()}});
}

// The member's frame

void frmMilkCollections::ShowMemberFrame()
{
    Line.SkipMemberChecks = true;
    ShowView(1);
    Frame.Open();
    Line.LightMemberKeys();
}

void frmMilkCollections::LeaveMemberFrame()
{
    Frame.Close();
    ShowView(0);
    Line.ShowMemberKeys(false); // the focus won't be at the number
    Frame.ResetMemberFrame(TheShift());
    ShowInwardsGrid();
}

void frmMilkCollections::Command2_Click()
{
    LeaveMemberFrame();
    SendKeys(QStringLiteral("{TAB}{TAB}{TAB}")); // over date and shift to the entry line
}

void frmMilkCollections::ShowView(int view)
{
    for (QStackedLayout* stack : {m_views, m_keys})
        stack->setCurrentIndex(view);
}
