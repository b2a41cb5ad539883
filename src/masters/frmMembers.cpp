#include "masters/frmMembers.h"

namespace {

constexpr MasterKind MembersKind{
    .people = People::Members,
    .title = u" ]%padkacao maasTr",
    .numberWanted = u"maombar naMbar vyavaisqat Ta[-p kra",
    .numberTaken = u"yaa maombar naMbarcao roka^D- Agaaodrca Aaho",
    .numberUnknown = u"yaa maombar naMbarcao roka^D- ]plabQa naahI",
    .nameWanted = u"maombarcao naaMva vyavaisqat Ta[-p kra",
    .deleteQuestion = u"maombarcaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ",
};

}

Keys::Places frmMembers::KeyPlaces()
{
    return {{QStringLiteral("frmMembers"), Shivaji(u"]%padkacao rijasTr"), MasterKeys()}};
}

frmMembers::frmMembers()
    : MasterScreen(KeyPlaces(), MembersKind, {txtMemberNo, ComboMemberName, txtAnimal, Modes})
    , Modes(*this, MembersKind.title, {cmdNew, cmdModify, cmdDelete, cmdCancel, cmdExit})
{
    Modes.SetFields({&txtMemberNo, &ComboMemberName},
        {&txtAddress, &ComboCity, &txtAnimal, &txtPaymentType, &ComboBankName, &txtBankAccountNo,
            &txtOpeningBalance, &txtOpeningDorC, &txtCowOpeningLits, &txtBuffOpeningLits, &txtOpeningUchal,
            &txtCowOpeningThev, &txtBuffOpeningThev});
    SetRequired({&ComboMemberName, &txtAnimal, &txtPaymentType});
    SetFigures({&txtCowOpeningLits, &txtCowOpeningThev}, {&txtBuffOpeningLits, &txtBuffOpeningThev});
    for (Control* shown :
        std::initializer_list<Control*>{&txtClosingBalance, &txtClosingDorC, &txtCowClosingLits,
            &txtBuffClosingLits, &txtClosingUchal, &txtCowClosingThev, &txtBuffClosingThev})
        shown->SetEnabled(false);
    LayOut();
}

void frmMembers::Load()
{
    SetGuides();
    MasterScreen::Load();
}

// The record and its fields

void frmMembers::LoadLists()
{
    MasterScreen::LoadLists();
    Cities.Load();
    Banks.Load();
}

void frmMembers::LoadRecord(const Recordset& row)
{
    Loaded = MemberRecord(row);
    Show(Loaded);
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

void frmMembers::InsertRecord()
{
    Entered().Insert();
}

void frmMembers::UpdateRecord()
{
    const MemberRecord changed = Entered();
    changed.Update();
    changed.RenameEverywhere(Loaded.memberName);
}

void frmMembers::DeleteRecord()
{
    MemberRecord::DeleteEverywhere(MemberNo(), Loaded.memberName);
}

// Leaving the fields

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
    ComputeClosing();
}

void frmMembers::ComputeClosing()
{
    const MemberClosing::Balance closing =
        MemberClosing::BalanceOf(MemberNo(), txtOpeningBalance.Value(), txtOpeningDorC.Text());
    txtClosingBalance.Show(closing.amount);
    txtClosingDorC.SetText(closing.word.toString());
}

void frmMembers::txtCowOpeningLits_LostFocus()
{
    const double opening = txtCowOpeningLits.Reformat();
    txtCowClosingLits.Show(ClosingLits(Loaded.cowClosingLits, Loaded.cowOpeningLits, opening));
}

void frmMembers::txtBuffOpeningLits_LostFocus()
{
    const double opening = txtBuffOpeningLits.Reformat();
    txtBuffClosingLits.Show(ClosingLits(Loaded.buffClosingLits, Loaded.buffOpeningLits, opening));
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
