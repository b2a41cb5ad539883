#include "masters/frmMembers.h"

#include "core/state/AppState.h"
#include "masters/MemberClosing.h"
#include "platform/database/Sql.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Words.h"

namespace {

QString Trimmed(const Field& field)
{
    return field.Text().trimmed();
}

}

double frmMembers::MemberNo() const
{
    return txtMemberNo.Value();
}

// One more than the highest number of all companies.
int frmMembers::NextMemberNo() const
{
    const Recordset last(gCn, u"SELECT max(MemberNo) as MaxMemberNo FROM MembersMaster");
    return ToInt16(last.Eof() ? 1 : last[u"MaxMemberNo"].Number() + 1);
}

void frmMembers::LoadLists()
{
    const SqlText ofCompany = Sql(u"where CompanyId=", gAppState.gCompanyId, u" ORDER BY ");
    FillCombo(ComboMemberName, u"MembersMaster", u"MemberName", u"order by MemberName");
    FillCombo(ComboCity, u"CityMaster", u"CityName", Sql(ofCompany, u"CityName"));
    FillCombo(ComboBankName, u"BankMaster", u"BankName", Sql(ofCompany, u"BankName"));
}

void frmMembers::LoadRecord(const Recordset& member)
{
    txtMemberNo.SetText(member[u"MemberNo"].Text());
    ShowMember(ComboMemberName, member);
    txtAddress.SetText(member[u"Address"].Text());
    ComboCity.SetText(member[u"City"].Text());
    txtAnimal.SetText(member[u"Animal"].Text());
    txtPaymentType.SetText(member[u"PaymentType"].Text());
    ShowBankFields(txtPaymentType.Text() == Word::Bank);
    ComboBankName.SetText(member[u"BankName"].Text());
    txtBankAccountNo.SetText(member[u"BankAccountNo"].Text());

    txtOpeningBalance.Show(member[u"OpeningBalance"].Number());
    txtOpeningDorC.SetText(Direction::Word(member[u"OpeningDorC"].Text()).toString());
    txtClosingBalance.Show(member[u"ClosingBalance"].Number());
    txtClosingDorC.SetText(Direction::Word(member[u"ClosingDorC"].Text()).toString());
    txtCowOpeningThev.Show(member[u"CowOpeningThev"].Number());
    txtCowClosingThev.Show(member[u"CowClosingThev"].Number());
    txtBuffOpeningThev.Show(member[u"BuffOpeningThev"].Number());
    txtBuffClosingThev.Show(member[u"BuffClosingThev"].Number());
    txtOpeningUchal.Show(member[u"OpeningUchal"].Number());
    txtClosingUchal.Show(member[u"ClosingUchal"].Number());
    txtCowOpeningLits.Show(member[u"CowOpeningLits"].Number());
    txtCowClosingLits.Show(member[u"CowClosingLits"].Number());
    txtBuffOpeningLits.Show(member[u"BuffOpeningLits"].Number());
    txtBuffClosingLits.Show(member[u"BuffClosingLits"].Number());

    AccountId = member[u"AccountId"].Number();
    OldName = member[u"MemberName"].Text();
    CowOpeningLoaded = member[u"CowOpeningLits"].Number();
    CowClosingLoaded = member[u"CowClosingLits"].Number();
    BuffOpeningLoaded = member[u"BuffOpeningLits"].Number();
    BuffClosingLoaded = member[u"BuffClosingLits"].Number();
    if (Modes.IsModify())
        EnableFiguresOfAnimal();
}

QString frmMembers::InsertStatement() const
{
    return Sql(u"Insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address, City,Animal,"
               u"PaymentType,BankName,BankAccountNo,OpeningBalance, OpeningDorC,ClosingBalance,ClosingDorC,"
               u"CowOpeningThev,CowClosingThev,BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,"
               u"CowOpeningLits,CowClosingLits,BuffOpeningLits ,BuffClosingLits)values(",
        Values(gAppState.gCompanyId, MemberNo(), Trimmed(ComboMemberName), AccountId, Trimmed(txtAddress),
            Trimmed(ComboCity), Trimmed(txtAnimal), Trimmed(txtPaymentType), Trimmed(ComboBankName),
            Trimmed(txtBankAccountNo), txtOpeningBalance.Value(), Direction::Letter(txtOpeningDorC.Text()),
            txtClosingBalance.Value(), Direction::Letter(txtClosingDorC.Text()), txtCowOpeningThev.Value(),
            txtCowClosingThev.Value(), txtBuffOpeningThev.Value(), txtBuffClosingThev.Value(),
            txtOpeningUchal.Value(), txtClosingUchal.Value(), txtCowOpeningLits.Value(),
            txtCowClosingLits.Value(), txtBuffOpeningLits.Value(), txtBuffClosingLits.Value()),
        u")");
}

QString frmMembers::UpdateStatement() const
{
    return Sql(u"update MembersMaster set MemberName=", Quoted(Trimmed(ComboMemberName)), u",Address=",
        Quoted(Trimmed(txtAddress)), u" ,City=", Quoted(Trimmed(ComboCity)), u",Animal=",
        Quoted(Trimmed(txtAnimal)), u",PaymentType=", Quoted(Trimmed(txtPaymentType)), u",BankName=",
        Quoted(Trimmed(ComboBankName)), u",BankAccountNo=", Quoted(Trimmed(txtBankAccountNo)),
        u" ,OpeningBalance=", txtOpeningBalance.Value(), u",OpeningDorC=",
        Quoted(Direction::Letter(txtOpeningDorC.Text())), u",ClosingBalance=", txtClosingBalance.Value(),
        u" ,ClosingDorC=", Quoted(Direction::Letter(txtClosingDorC.Text())), u",CowOpeningThev=",
        txtCowOpeningThev.Value(), u",CowClosingThev=", txtCowClosingThev.Value(), u", BuffOpeningThev=",
        txtBuffOpeningThev.Value(), u",BuffClosingThev=", txtBuffClosingThev.Value(), u",OpeningUchal=",
        txtOpeningUchal.Value(), u",ClosingUchal=", txtClosingUchal.Value(), u", CowOpeningLits=",
        txtCowOpeningLits.Value(), u", CowClosingLits=", txtCowClosingLits.Value(), u",BuffOpeningLits= ",
        txtBuffOpeningLits.Value(), u",BuffClosingLits= ", txtBuffClosingLits.Value(), u" where CompanyId=",
        gAppState.gCompanyId, u" and MemberNo=", MemberNo());
}

// The other tables know a member by name, in every company.
void frmMembers::RenameEverywhere()
{
    const SqlText name = Quoted(Trimmed(ComboMemberName));
    const SqlText oldName = Quoted(OldName);
    gCn.Execute(Sql(u"update MilkCollections set MemberName=", name, u" where MemberName=", oldName));
    gCn.Execute(Sql(u"Update MilkPayments Set MemberName=", name, u" Where MemberName=", oldName));
    gCn.Execute(Sql(u"Update TransactionsMaster Set DAccountName=", name, u" Where DAccountName=", oldName));
    gCn.Execute(Sql(u"Update TransactionsMaster Set CAccountName=", name, u" Where CAccountName=", oldName));
}

void frmMembers::DeleteEverywhere()
{
    const int company = gAppState.gCompanyId;
    const double no = MemberNo();
    gCn.Execute(Sql(u"delete * from MembersMaster where CompanyId=", company, u" and MemberNo=", no));
    gCn.Execute(Sql(u"delete * from MilkCollections Where CompanyId=", company, u" and MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From MilkPayments Where CompanyId=", company, u" and Memberno=", no));
    gCn.Execute(Sql(u"Delete * From TransactionsMaster Where CompanyId=", company, u" And (DAccountName=",
        Quoted(OldName), u" or CAccountName=", Quoted(OldName), u")"));
    gCn.Execute(Sql(u"Delete * From TransactionsDetails Where CompanyId=", company, u" And MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From AdvanceReceipt Where CompanyId=", company, u" And MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From MilkPaymentsDetails Where CompanyId=", company, u" And MemberNo=", no));
}
