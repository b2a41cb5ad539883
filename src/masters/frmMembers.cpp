#include "masters/frmMembers.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "masters/MemberClosing.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"
#include "society/Words.h"

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
    , txtAnimal(this, "txtAnimal", ChoicesOf({Word::Cow, Word::Buffalo, Word::Both}),
          &frmMembers::txtAnimal_LostFocus)
    , txtPaymentType(
          this, "txtPaymentType", ChoicesOf({Word::Cash, Word::Bank}), &frmMembers::txtPaymentType_LostFocus)
    , txtOpeningDorC(this, "txtOpeningDorC", ChoicesOf({Direction::Payable, Direction::Due}),
          &frmMembers::txtOpeningDorC_LostFocus)
    , Modes(*this, IdleTitle, {cmdNew, cmdModify, cmdDelete, cmdCancel, cmdExit})
{
    Modes.SetFields({&txtMemberNo, &ComboMemberName},
        {&txtAddress, &ComboCity, &txtAnimal, &txtPaymentType, &ComboBankName, &txtBankAccountNo,
            &txtOpeningBalance, &txtOpeningDorC, &txtCowOpeningLits, &txtBuffOpeningLits, &txtOpeningUchal,
            &txtCowOpeningThev, &txtBuffOpeningThev});
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

// Cancel has nothing to cancel at rest, and without a member there is nothing to change or delete.
void frmMembers::ShowIdle()
{
    Modes.Rest();
    cmdCancel.SetEnabled(false);
    const bool hasMembers = Finds(QStringLiteral("SELECT * FROM MembersMaster"));
    for (Button* button : {&cmdModify, &cmdDelete})
        button->SetEnabled(hasMembers);
    ClearFields();
}

// The focus waits on the button of the mode that was left, so that Enter begins the next record.
void frmMembers::ReturnToIdle()
{
    Button& mode = Modes.Open();
    ShowIdle();
    LoadLists();
    (mode.CanTakeFocus() ? mode : cmdNew).SetFocus();
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
    if (Modes.IsNew()) {
        SaveNew();
        return;
    }
    const int next = NextMemberNo();
    Modes.EnterNew();
    ClearFields();
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
    if (Modes.IsModify()) {
        SaveModified();
        return;
    }
    Modes.EnterModify();
    ClearFields();
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
    if (Modes.IsDelete()) {
        DeleteFound();
        return;
    }
    Modes.EnterDelete();
    ClearFields();
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
