#include "masters/MemberRecord.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"

MemberRecord::MemberRecord(const Recordset& row)
    : memberNo(row[u"MemberNo"].Number())
    , memberName(row[u"MemberName"].Text())
    , accountId(row[u"AccountId"].Number())
    , address(row[u"Address"].Text())
    , city(row[u"City"].Text())
    , animal(row[u"Animal"].Text())
    , paymentType(row[u"PaymentType"].Text())
    , bankName(row[u"BankName"].Text())
    , bankAccountNo(row[u"BankAccountNo"].Text())
    , openingBalance(row[u"OpeningBalance"].Number())
    , openingDirection(Direction::Word(row[u"OpeningDorC"].Text()).toString())
    , closingBalance(row[u"ClosingBalance"].Number())
    , closingDirection(Direction::Word(row[u"ClosingDorC"].Text()).toString())
    , cowOpeningLits(row[u"CowOpeningLits"].Number())
    , cowClosingLits(row[u"CowClosingLits"].Number())
    , buffOpeningLits(row[u"BuffOpeningLits"].Number())
    , buffClosingLits(row[u"BuffClosingLits"].Number())
    , openingUchal(row[u"OpeningUchal"].Number())
    , closingUchal(row[u"ClosingUchal"].Number())
    , cowOpeningThev(row[u"CowOpeningThev"].Number())
    , cowClosingThev(row[u"CowClosingThev"].Number())
    , buffOpeningThev(row[u"BuffOpeningThev"].Number())
    , buffClosingThev(row[u"BuffClosingThev"].Number())
{
}

void MemberRecord::Insert() const
{
    gCn.Execute(Sql(
        u"Insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address, City,Animal,PaymentType,"
        u"BankName,BankAccountNo,OpeningBalance, OpeningDorC,ClosingBalance,ClosingDorC,"
        u"CowOpeningThev,CowClosingThev,BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,"
        u"CowOpeningLits,CowClosingLits,BuffOpeningLits ,BuffClosingLits)values(",
        Values(gAppState.gCompanyId, memberNo, memberName, accountId, address, city, animal, paymentType,
            bankName, bankAccountNo, openingBalance, Direction::Letter(openingDirection), closingBalance,
            Direction::Letter(closingDirection), cowOpeningThev, cowClosingThev, buffOpeningThev,
            buffClosingThev, openingUchal, closingUchal, cowOpeningLits, cowClosingLits, buffOpeningLits,
            buffClosingLits),
        u")"));
}

void MemberRecord::Update() const
{
    gCn.Execute(Sql(u"update MembersMaster set MemberName=", Quoted(memberName), u",Address=",
        Quoted(address), u" ,City=", Quoted(city), u",Animal=", Quoted(animal), u",PaymentType=",
        Quoted(paymentType), u",BankName=", Quoted(bankName), u",BankAccountNo=", Quoted(bankAccountNo),
        u" ,OpeningBalance=", openingBalance, u",OpeningDorC=", Quoted(Direction::Letter(openingDirection)),
        u",ClosingBalance=", closingBalance, u" ,ClosingDorC=", Quoted(Direction::Letter(closingDirection)),
        u",CowOpeningThev=", cowOpeningThev, u",CowClosingThev=", cowClosingThev, u", BuffOpeningThev=",
        buffOpeningThev, u",BuffClosingThev=", buffClosingThev, u",OpeningUchal=", openingUchal,
        u",ClosingUchal=", closingUchal, u", CowOpeningLits=", cowOpeningLits, u", CowClosingLits=",
        cowClosingLits, u",BuffOpeningLits= ", buffOpeningLits, u",BuffClosingLits= ", buffClosingLits,
        u" where CompanyId=", gAppState.gCompanyId, u" and MemberNo=", memberNo));
}

void MemberRecord::RenameEverywhere(const QString& oldName) const
{
    const SqlText name = Quoted(memberName);
    const SqlText old = Quoted(oldName);
    gCn.Execute(Sql(u"update MilkCollections set MemberName=", name, u" where MemberName=", old));
    gCn.Execute(Sql(u"Update MilkPayments Set MemberName=", name, u" Where MemberName=", old));
    gCn.Execute(Sql(u"Update TransactionsMaster Set DAccountName=", name, u" Where DAccountName=", old));
    gCn.Execute(Sql(u"Update TransactionsMaster Set CAccountName=", name, u" Where CAccountName=", old));
}

void MemberRecord::DeleteEverywhere(double no, const QString& name)
{
    const int company = gAppState.gCompanyId;
    gCn.Execute(Sql(u"delete * from MembersMaster where CompanyId=", company, u" and MemberNo=", no));
    gCn.Execute(Sql(u"delete * from MilkCollections Where CompanyId=", company, u" and MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From MilkPayments Where CompanyId=", company, u" and Memberno=", no));
    gCn.Execute(Sql(u"Delete * From TransactionsMaster Where CompanyId=", company, u" And (DAccountName=",
        Quoted(name), u" or CAccountName=", Quoted(name), u")"));
    gCn.Execute(Sql(u"Delete * From TransactionsDetails Where CompanyId=", company, u" And MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From AdvanceReceipt Where CompanyId=", company, u" And MemberNo=", no));
    gCn.Execute(Sql(u"Delete * From MilkPaymentsDetails Where CompanyId=", company, u" And MemberNo=", no));
}
