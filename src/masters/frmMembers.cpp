#include "masters/frmMembers.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "masters/MemberClosing.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/ModeTitles.h"

namespace {

constexpr QStringView IdleTitle = u" ]%padkacao maasTr";

}

Keys::Places frmMembers::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmMembers"), Shivaji(u"]%padkacao rijasTr"),
            {Next, Back, Leave, TutorKey(), New, Modify, Delete, Save, Cancel, ExitButton, OneOfThree,
                ListOfNames}},
    };
}

frmMembers::frmMembers()
    : SocietyScreen(KeyPlaces(), Shivaji(IdleTitle))
    , txtAnimal(this, "txtAnimal",
          {{u'1', QStringLiteral("gaaya")}, {u'2', QStringLiteral("mhOsa")},
              {u'3', QStringLiteral("daonhI")}},
          &frmMembers::txtAnimal_LostFocus)
    , txtPaymentType(this, "txtPaymentType",
          {{u'1', QStringLiteral("raoK")}, {u'2', QStringLiteral("ba^nk")}},
          &frmMembers::txtPaymentType_LostFocus)
    , txtOpeningDorC(this, "txtOpeningDorC",
          {{u'1', Direction::Payable.toString()}, {u'2', Direction::Due.toString()}},
          &frmMembers::txtOpeningDorC_LostFocus)
{
    cmdCancel.SetCancels(true);
    LayOut();
}

void frmMembers::Load()
{
    SetGuides();
    LoadLists();
    ShowIdle();
}

void frmMembers::Escape()
{
    ClearFields();
    Close();
}

// Modes

void frmMembers::EnterMode(Button& mode, const Caption& caption, QStringView title)
{
    mode.SetCaption(caption);
    SetTitle(Shivaji(QString(IdleTitle % title)));
    for (Button* button : {&cmdNew, &cmdModify, &cmdDelete, &cmdExit})
        button->SetEnabled(button == &mode);
    cmdCancel.SetEnabled(true);
    ClearFields();
    for (Control* field : EntryFields())
        field->SetEnabled(&mode != &cmdDelete || field == &txtMemberNo || field == &ComboMemberName);
}

void frmMembers::ShowIdle()
{
    cmdNew.SetCaption(Shivaji(u"&navaIna"));
    cmdModify.SetCaption(Shivaji(u"ba&dla"));
    cmdDelete.SetCaption(Shivaji(u"&KaoDNao"));
    SetTitle(Shivaji(IdleTitle));

    const bool hasMembers = !Recordset(gCn, QStringLiteral("SELECT * FROM MembersMaster")).Eof();
    for (Button* button : {&cmdModify, &cmdDelete})
        button->SetEnabled(hasMembers);
    for (Button* button : {&cmdNew, &cmdExit})
        button->SetEnabled(true);
    cmdCancel.SetEnabled(false);
    for (Control* field : EntryFields())
        field->SetEnabled(false);
    ClearFields();
}

// The focus waits on the button of the mode that was left, so that Enter begins the next record.
void frmMembers::ReturnToIdle()
{
    Button& mode = IsModify() ? cmdModify : IsDelete() ? cmdDelete : cmdNew;
    ShowIdle();
    LoadLists();
    (mode.CanTakeFocus() ? mode : cmdNew).SetFocus();
}

std::vector<Control*> frmMembers::EntryFields()
{
    return {&txtMemberNo, &ComboMemberName, &txtAddress, &ComboCity, &txtAnimal, &txtPaymentType,
        &ComboBankName, &txtBankAccountNo, &txtOpeningBalance, &txtOpeningDorC, &txtCowOpeningLits,
        &txtBuffOpeningLits, &txtOpeningUchal, &txtCowOpeningThev, &txtBuffOpeningThev};
}

void frmMembers::ClearFields()
{
    for (Field* field : std::initializer_list<Field*>{&txtMemberNo, &ComboMemberName, &txtAddress, &ComboCity,
             &txtAnimal, &txtPaymentType, &ComboBankName, &txtBankAccountNo, &txtClosingDorC})
        field->Clear();
    for (MoneyField* money : {&txtOpeningBalance, &txtClosingBalance, &txtOpeningUchal, &txtClosingUchal,
             &txtCowOpeningThev, &txtCowClosingThev, &txtBuffOpeningThev, &txtBuffClosingThev})
        money->Show(0);
    for (LitresField* litres :
        {&txtCowOpeningLits, &txtCowClosingLits, &txtBuffOpeningLits, &txtBuffClosingLits})
        litres->Show(0);
    txtOpeningDorC.SetText(Direction::Payable.toString());
    OldName.clear();
    CowOpeningLoaded = CowClosingLoaded = BuffOpeningLoaded = BuffClosingLoaded = 0;
    ShowBankFields(false);
}

void frmMembers::cmdNew_Click()
{
    if (IsNew())
        SaveNew();
    else
        StartNew();
}

void frmMembers::StartNew()
{
    const int next = NextMemberNo();
    EnterMode(cmdNew, Shivaji(u"&saovh"), ModeTitles::New);
    txtMemberNo.Show(next);
    txtMemberNo.SetFocus();
}

void frmMembers::SaveNew()
{
    if (!AreRequiredFieldsFilled())
        return;
    ComputeClosingBalance();
    Transaction saving(gCn);
    gCn.Execute(InsertStatement());
    saving.Commit();
    ReturnToIdle();
}

void frmMembers::cmdModify_Click()
{
    if (IsModify())
        SaveModified();
    else
        StartModify();
}

void frmMembers::StartModify()
{
    EnterMode(cmdModify, Shivaji(u"&saovh"), ModeTitles::Modify);
    txtMemberNo.SetFocus();
}

void frmMembers::SaveModified()
{
    if (!AreRequiredFieldsFilled())
        return;
    if (Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ"))) {
        ComputeClosingBalance();
        Transaction saving(gCn);
        gCn.Execute(UpdateStatement());
        RenameEverywhere();
        saving.Commit();
    }
    ReturnToIdle();
}

void frmMembers::cmdDelete_Click()
{
    if (IsDelete())
        DeleteFound();
    else
        StartDelete();
}

void frmMembers::StartDelete()
{
    EnterMode(cmdDelete, Shivaji(u"&KaoDa"), ModeTitles::Delete);
    txtMemberNo.SetFocus();
}

void frmMembers::DeleteFound()
{
    if (MemberNo() == 0) {
        Hold(txtMemberNo);
        return;
    }
    if (Ask(Shivaji(u"maombarcaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ"),
            OnEnter::No)) {
        Transaction deleting(gCn);
        DeleteEverywhere();
        deleting.Commit();
    }
    ReturnToIdle();
}

void frmMembers::cmdCancel_Click()
{
    ReturnToIdle();
}

bool frmMembers::AreRequiredFieldsFilled()
{
    if (MemberNo() == 0) {
        Hold(txtMemberNo);
        return false;
    }
    for (Field* field : std::initializer_list<Field*>{&ComboMemberName, &txtAnimal, &txtPaymentType}) {
        if (field->Text().trimmed().isEmpty()) {
            Hold(*field);
            return false;
        }
    }
    return true;
}
