#include "collection/frmMilkCollections.h"

#include "collection/Counter.h"
#include "core/menu/Keys.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

using namespace Counter;

namespace {

std::vector<DataGrid::Column> MilkColumns()
{
    return {
        {QStringLiteral("CollectionNo"), Shivaji(u"A.Ë."), Twips(900), {}, false, false},
        {QStringLiteral("CollectionDate"), Shivaji(u"idnaaMk"), Twips(1300), QStringLiteral("dd/MM/yyyy")},
        {QStringLiteral("CollectionTime"), Shivaji(u"vaoL"), 0},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), Twips(700)},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), Twips(1400), QStringLiteral("####0.000"), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), Twips(1200), QStringLiteral("#####0.00"), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), Twips(1200), QStringLiteral("#####0.00"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), Twips(1300), QStringLiteral("#####0.00"), true},
    };
}

}

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
    };
}

frmMilkCollections::frmMilkCollections()
    : CounterScreen(MainCounter, KeyPlaces())
    , DataGridMilk(this, "DataGridMilk", MilkColumns())
{
    When(cmbAccountName.GotFocus, &frmMilkCollections::cmbAccountName_GotFocus);
    cmbAccountName.SetGuide(Keys::Guide(QStringLiteral("NameCombo")));
    cmbAccountName.Accepts = ComboMemberName.Accepts;
    Command2.SetCancels(true); // the frame is left whatever stands in its dates

    LayOut(Views(), KeyStrips());
    ShowFrame(false);
}

void frmMilkCollections::Load()
{
    DataGridMilk.Bind(gCn,
        QStringLiteral("select CompanyId,CollectionNo,CollectionDate,CollectionTime,MemberNo,MemberName,"
                       "Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime from MilkCollectionsTemp "
                       "order by CollectionNo"));
    CounterScreen::Load();
    ShowMemberGrid();
    MemberLitersAndAmounts();
    MemberAverageFat();
}

// Esc in the member's frame is the way back to the shift.
void frmMilkCollections::Escape()
{
    if (!IsFrameOpen) {
        CounterScreen::Escape();
        return;
    }
    ShowFrame(false);
    ResetMemberFrame();
    txtCollectionNo.SetFocus();
}

void frmMilkCollections::LoadMemberNames()
{
    CounterScreen::LoadMemberNames();
    cmbAccountName.AddNames(ComboMemberName.Names());
}

void frmMilkCollections::MembersShown()
{
    const Recordset member(gCn, QStringLiteral("Select * from MembersMaster"));
    if (!member.Eof())
        cmbAccountName.AddNames({{member[u"MemberName"].Text(), member[u"MemberNo"].Text()}});
}
