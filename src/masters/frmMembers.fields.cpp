#include "masters/frmMembers.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "masters/MemberClosing.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <cmath>

namespace {

// The record of a number, whatever its company; an ended record set if there is none.
Recordset MemberOfNumber(double number)
{
    Recordset members(gCn, QStringLiteral("SELECT * FROM MembersMaster"));
    while (!members.Eof() && members[u"MemberNo"].Number() != number)
        members.MoveNext();
    return members;
}

}

void frmMembers::Refuse(Field& field, QStringView message)
{
    ShowNotice(Shivaji(message));
    Hold(field);
}

// The guide of a field that must not be left as it is says which key gives the record up, too.
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
    const Recordset member = MemberOfNumber(MemberNo());
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
    OfferToAdd(ComboCity, u"CityMaster", u"CityName", u"navaIna Sahr A^D kravao ka Æ");
}

void frmMembers::ComboBankName_LostFocus()
{
    OfferToAdd(ComboBankName, u"BankMaster", u"BankName", u"navaIna baÐk A^D kravaI ka Æ");
}

void frmMembers::OfferToAdd(NameCombo& combo, QStringView table, QStringView column, QStringView question)
{
    const QString name = combo.Text().trimmed();
    if (name.isEmpty())
        return;
    const QString ofCompany =
        Sql(u"SELECT ", column, u" FROM ", table, u" WHERE CompanyId=", gAppState.gCompanyId);
    if (Finds(Sql(ofCompany, u" and trim(", column, u")=", Quoted(name)))
        || !RowOfName(ofCompany, column, name).Eof())
        return;
    if (!Ask(Shivaji(question))) {
        Hold(combo);
        return;
    }
    Transaction adding(gCn);
    gCn.Execute(Sql(u"INSERT INTO ", table, u"(CompanyId,", column, u") VALUES(",
        Values(gAppState.gCompanyId, name), u")"));
    adding.Commit();
    LoadLists();
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

// The word asked for here isn't the one that is stored, so no member is ever held up for an account number.
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
    txtCowClosingLits.Show(std::abs(CowClosingLoaded) - CowOpeningLoaded + opening);
}

void frmMembers::txtBuffOpeningLits_LostFocus()
{
    const double opening = txtBuffOpeningLits.Reformat();
    txtBuffClosingLits.Show(std::abs(BuffClosingLoaded) - BuffOpeningLoaded + opening);
}

void frmMembers::txtOpeningUchal_LostFocus()
{
    const double opening = txtOpeningUchal.Reformat();
    txtClosingUchal.Show(MemberClosing::UchalOf(MemberNo(), opening));
}

void frmMembers::txtCowOpeningThev_LostFocus()
{
    const double opening = txtCowOpeningThev.Reformat();
    txtCowClosingThev.Show(MemberClosing::ThevOf(MemberNo(), opening, u"gaaya zova"));
    if (!txtBuffOpeningThev.Enabled())
        ToSaveButton();
}

void frmMembers::txtBuffOpeningThev_LostFocus()
{
    const double opening = txtBuffOpeningThev.Reformat();
    txtBuffClosingThev.Show(MemberClosing::ThevOf(MemberNo(), opening, u"mhOsa zova"));
    ToSaveButton();
}

void frmMembers::ToSaveButton()
{
    if (!IsSteppingBack())
        (Modes.IsNew() ? cmdNew : cmdModify).SetFocus();
}
