#include "masters/frmMembers.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Transaction.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <cmath>

namespace {

constexpr QStringView IdleTitle = u" ]%padkacao maasTr";

QString Trimmed(const Field& field)
{
    return field.Text().trimmed();
}

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
    , Modes(*this, IdleTitle, {cmdNew, cmdModify, cmdDelete, cmdCancel, cmdExit})
{
    Modes.SetFields({&txtMemberNo, &ComboMemberName},
        {&txtAddress, &ComboCity, &txtAnimal, &txtPaymentType, &ComboBankName, &txtBankAccountNo,
            &txtOpeningBalance, &txtOpeningDorC, &txtCowOpeningLits, &txtBuffOpeningLits, &txtOpeningUchal,
            &txtCowOpeningThev, &txtBuffOpeningThev});
    for (Control* shown :
        std::initializer_list<Control*>{&txtClosingBalance, &txtClosingDorC, &txtCowClosingLits,
            &txtBuffClosingLits, &txtClosingUchal, &txtCowClosingThev, &txtBuffClosingThev})
        shown->SetEnabled(false);
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

// The record and its fields

void frmMembers::LoadLists()
{
    FillCombo(ComboMemberName, u"MembersMaster", u"MemberName", u"order by MemberName");
    Cities.Load();
    Banks.Load();
}

void frmMembers::LoadRecord(const Recordset& row)
{
    Loaded = MemberRecord(row);
    Show(Loaded);
    if (Modes.IsModify())
        EnableFiguresOfAnimal();
}

void frmMembers::Show(const MemberRecord& member)
{
    txtMemberNo.Show(member.memberNo);
    ComboMemberName.SetEntry({member.memberName, txtMemberNo.Text()});
    txtAddress.SetText(member.address);
    ComboCity.SetText(member.city);
    txtAnimal.SetText(member.animal);
    txtPaymentType.SetText(member.paymentType);
    ShowBankFields(member.paymentType == Word::Bank);
    ComboBankName.SetText(member.bankName);
    txtBankAccountNo.SetText(member.bankAccountNo);
    txtOpeningBalance.Show(member.openingBalance);
    txtOpeningDorC.SetText(member.openingDirection);
    txtClosingBalance.Show(member.closingBalance);
    txtClosingDorC.SetText(member.closingDirection);
    txtCowOpeningLits.Show(member.cowOpeningLits);
    txtCowClosingLits.Show(member.cowClosingLits);
    txtBuffOpeningLits.Show(member.buffOpeningLits);
    txtBuffClosingLits.Show(member.buffClosingLits);
    txtOpeningUchal.Show(member.openingUchal);
    txtClosingUchal.Show(member.closingUchal);
    txtCowOpeningThev.Show(member.cowOpeningThev);
    txtCowClosingThev.Show(member.cowClosingThev);
    txtBuffOpeningThev.Show(member.buffOpeningThev);
    txtBuffClosingThev.Show(member.buffClosingThev);
}

MemberRecord frmMembers::Entered() const
{
    MemberRecord member;
    member.memberNo = MemberNo();
    member.memberName = Trimmed(ComboMemberName);
    member.accountId = Loaded.accountId;
    member.address = Trimmed(txtAddress);
    member.city = Trimmed(ComboCity);
    member.animal = Trimmed(txtAnimal);
    member.paymentType = Trimmed(txtPaymentType);
    member.bankName = Trimmed(ComboBankName);
    member.bankAccountNo = Trimmed(txtBankAccountNo);
    member.openingBalance = txtOpeningBalance.Value();
    member.openingDirection = txtOpeningDorC.Text();
    member.closingBalance = txtClosingBalance.Value();
    member.closingDirection = txtClosingDorC.Text();
    member.cowOpeningLits = txtCowOpeningLits.Value();
    member.cowClosingLits = txtCowClosingLits.Value();
    member.buffOpeningLits = txtBuffOpeningLits.Value();
    member.buffClosingLits = txtBuffClosingLits.Value();
    member.openingUchal = txtOpeningUchal.Value();
    member.closingUchal = txtClosingUchal.Value();
    member.cowOpeningThev = txtCowOpeningThev.Value();
    member.cowClosingThev = txtCowClosingThev.Value();
    member.buffOpeningThev = txtBuffOpeningThev.Value();
    member.buffClosingThev = txtBuffClosingThev.Value();
    return member;
}

void frmMembers::ClearFields()
{
    const double account = Loaded.accountId;
    Loaded = {};
    Loaded.accountId = account;
    Show(Loaded);
    txtMemberNo.Clear();
    ComboMemberName.Clear();
}

bool frmMembers::AreRequiredFieldsFilled()
{
    if (MemberNo() == 0) {
        Hold(txtMemberNo);
        return false;
    }
    for (Field* field : std::initializer_list<Field*>{&ComboMemberName, &txtAnimal, &txtPaymentType}) {
        if (Trimmed(*field).isEmpty()) {
            Hold(*field);
            return false;
        }
    }
    return true;
}

// Modes

// At rest there is nothing to cancel, and without a member nothing to change or delete.
void frmMembers::ShowIdle()
{
    Modes.Rest();
    cmdCancel.SetEnabled(false);
    const bool hasMembers = Finds(QStringLiteral("SELECT * FROM MembersMaster"));
    for (Button* button : {&cmdModify, &cmdDelete})
        button->SetEnabled(hasMembers);
    ClearFields();
}

// The focus goes to the button of the mode that was open, so that Enter begins the next record.
void frmMembers::ReturnToIdle()
{
    Button& mode = Modes.Open();
    ShowIdle();
    LoadLists();
    (mode.CanTakeFocus() ? mode : cmdNew).SetFocus();
}

void frmMembers::cmdNew_Click()
{
    if (Modes.IsNew()) {
        SaveNew();
        return;
    }
    const int next = MemberRecord::NextNo();
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
    Entered().Insert();
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
        const MemberRecord changed = Entered();
        Transaction saving(gCn);
        changed.Update();
        changed.RenameEverywhere(Loaded.memberName);
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
        MemberRecord::DeleteEverywhere(MemberNo(), Loaded.memberName);
        deleting.Commit();
    }
    ReturnToIdle();
}

void frmMembers::cmdCancel_Click()
{
    ReturnToIdle();
}

// Leaving the fields

void frmMembers::Refuse(Field& field, QStringView message)
{
    ShowNotice(Shivaji(message));
    Hold(field);
}

// The guide line adds which key gives up the record.
void frmMembers::Hold(Field& field)
{
    field.SetFocus(Plain(QString(field.Guide().Seen().trimmed() + QStringLiteral("    Alt+R : रद्द"))));
}

void frmMembers::txtMemberNo_LostFocus()
{
    if (Modes.IsNew() && !txtMemberNo.HoldsNumber()) {
        Refuse(txtMemberNo, u"maombar naMbar vyavaisqat Ta[-p kra");
        return;
    }
    if (txtMemberNo.IsEmpty())
        return; // the name will tell the member
    const Recordset member = MemberRecord::RowOf(MemberNo());
    if (Modes.IsNew()) {
        if (!member.Eof())
            Refuse(txtMemberNo, u"yaa maombar naMbarcao roka^D- Agaaodrca Aaho");
    } else if (member.Eof()) {
        Refuse(txtMemberNo, u"yaa maombar naMbarcao roka^D- ]plabQa naahI");
    } else {
        LoadRecord(member);
        if (Modes.IsDelete() && !IsSteppingBack())
            cmdDelete.SetFocus();
    }
}

void frmMembers::ComboMemberName_LostFocus()
{
    const QString name = ComboMemberName.Text().trimmed();
    if (name.isEmpty()) {
        Refuse(ComboMemberName, u"maombarcao naaMva vyavaisqat Ta[-p kra");
        return;
    }
    const Recordset member =
        Modes.IsNew() ? MemberOfName(ComboMemberName) : MemberOfName(ComboMemberName, MemberNo());
    if (member.Eof()) {
        if (!Modes.IsNew() && txtMemberNo.IsEmpty())
            Hold(ComboMemberName);
    } else if (Modes.IsNew()) {
        Refuse(ComboMemberName, u"yaa naavaacao roka^D- Agaaodrca Aaho");
    } else if (Modes.IsDelete()) {
        LoadRecord(member);
        if (!IsSteppingBack())
            cmdDelete.SetFocus();
    } else if (member[u"MemberNo"].Number() != MemberNo()) {
        LoadRecord(member);
    }
}

void frmMembers::ComboCity_LostFocus()
{
    if (!Cities.TakeIn())
        Hold(ComboCity);
}

void frmMembers::ComboBankName_LostFocus()
{
    if (!Banks.TakeIn())
        Hold(ComboBankName);
}

void frmMembers::txtAnimal_LostFocus()
{
    if (txtAnimal.IsEmpty())
        Hold(txtAnimal);
    else
        EnableFiguresOfAnimal();
}

void frmMembers::EnableFiguresOfAnimal()
{
    const bool cow = txtAnimal.Text() != Word::Buffalo;
    const bool buffalo = txtAnimal.Text() != Word::Cow;
    for (NumberField* field : std::initializer_list<NumberField*>{&txtCowOpeningLits, &txtCowOpeningThev})
        field->SetEnabled(cow);
    for (NumberField* field : std::initializer_list<NumberField*>{&txtBuffOpeningLits, &txtBuffOpeningThev})
        field->SetEnabled(buffalo);
}

void frmMembers::txtPaymentType_LostFocus()
{
    const bool bank = txtPaymentType.Text() == Word::Bank;
    if (txtPaymentType.IsEmpty())
        Hold(txtPaymentType);
    else
        ShowBankFields(bank);
}

void frmMembers::ShowBankFields(bool shown)
{
    for (Label* label : {&lblBankName, &lblBankAccountNo})
        label->SetVisible(shown);
    for (TextField* field : std::initializer_list<TextField*>{&ComboBankName, &txtBankAccountNo}) {
        if (!shown)
            field->Clear();
        field->SetVisible(shown);
    }
}

// Never true: the word that is stored is another one, Word::Bank. The system has it so.
bool frmMembers::IsAccountNoMissing() const
{
    return txtPaymentType.Text() == u"baÐk" && txtBankAccountNo.Text().trimmed().isEmpty();
}

void frmMembers::txtBankAccountNo_LostFocus()
{
    if (IsAccountNoMissing())
        Hold(txtBankAccountNo);
}

void frmMembers::txtOpeningBalance_LostFocus()
{
    txtOpeningBalance.Reformat();
    if (IsAccountNoMissing())
        Hold(txtBankAccountNo);
}

void frmMembers::txtOpeningDorC_LostFocus()
{
    if (txtOpeningDorC.IsEmpty())
        txtOpeningDorC.SetText(Direction::Payable.toString());
    ComputeClosingBalance();
}

void frmMembers::ComputeClosingBalance()
{
    const MemberClosing::Balance closing =
        MemberClosing::BalanceOf(MemberNo(), txtOpeningBalance.Value(), txtOpeningDorC.Text());
    txtClosingBalance.Show(closing.amount);
    txtClosingDorC.SetText(closing.word.toString());
}

void frmMembers::txtCowOpeningLits_LostFocus()
{
    const double opening = txtCowOpeningLits.Reformat();
    txtCowClosingLits.Show(std::abs(Loaded.cowClosingLits) - Loaded.cowOpeningLits + opening);
}

void frmMembers::txtBuffOpeningLits_LostFocus()
{
    const double opening = txtBuffOpeningLits.Reformat();
    txtBuffClosingLits.Show(std::abs(Loaded.buffClosingLits) - Loaded.buffOpeningLits + opening);
}

void frmMembers::txtOpeningUchal_LostFocus()
{
    const double opening = txtOpeningUchal.Reformat();
    txtClosingUchal.Show(MemberClosing::UchalOf(MemberNo(), opening));
}

void frmMembers::txtCowOpeningThev_LostFocus()
{
    const double opening = txtCowOpeningThev.Reformat();
    txtCowClosingThev.Show(MemberClosing::ThevOf(MemberNo(), opening, Word::CowThev));
    if (!txtBuffOpeningThev.Enabled())
        ToSaveButton();
}

void frmMembers::txtBuffOpeningThev_LostFocus()
{
    const double opening = txtBuffOpeningThev.Reformat();
    txtBuffClosingThev.Show(MemberClosing::ThevOf(MemberNo(), opening, Word::BuffThev));
    ToSaveButton();
}

void frmMembers::ToSaveButton()
{
    if (!IsSteppingBack())
        (Modes.IsNew() ? cmdNew : cmdModify).SetFocus();
}
