#pragma once

#include <vector>

// Statements as the screens send them, with values filled in, in an order in which each finds its tables.
inline const std::vector<const char*>& SystemStatements()
{
    static const std::vector<const char*> statements = {
        "SELECT * FROM CompanySelected",
        "select * from AutoSettings where CompanyId=1",
        "SELECT * FROM MenuAccessTable",
        "select * from CompanyMaster",
        "SELECT * FROM PortTable",
        "UPDATE CompanySelected SET FromDate='01/04/2026', ToDate='31/03/2027'",
        "UPDATE Companyselected SET CostCenter=1",
        "DELETE * FROM MilkCollections WHERE CompanyId=999",
        "select * from CityMaster where CompanyId=1 ORDER BY CityName",
        "Select ShowTransportCharges From AutoSettings",
        "select CollectionDate from MilkCollections order by CollectionDate desc",
        "SELECT max(MemberNo) as MaxMemberNo FROM MembersMaster",
        "Insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address, "
        "City,Animal,PaymentType,BankName,"
        "BankAccountNo,OpeningBalance, OpeningDorC,ClosingBalance,ClosingDorC,CowOpeningThev,CowClosingThev,"
        "BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,CowOpeningLits,CowClosingLits,"
        "BuffOpeningLits ,"
        "BuffClosingLits)values(1,5,'rama',5,'','gaava','gaaya','raoK','','',0.00,'C',12.50,'C',0,0,0,0,0,0,"
        "0,0,0,0)",
        "update MembersMaster set MemberName='rama',Address='a' "
        ",City='gaava',Animal='gaaya',PaymentType='raoK',"
        "BankName='',BankAccountNo='' ,OpeningBalance=1,OpeningDorC='C',ClosingBalance=13.5 ,ClosingDorC='C',"
        "CowOpeningThev=0,CowClosingThev=0, "
        "BuffOpeningThev=0,BuffClosingThev=0,OpeningUchal=0,ClosingUchal=0,"
        " CowOpeningLits=0, CowClosingLits=0,BuffOpeningLits= 0,BuffClosingLits= 0 where CompanyId=1 and "
        "MemberNo=5",
        "update MilkCollections set MemberName='rama' where MemberName='raama'",
        "Update MilkPayments Set MemberName='rama' Where MemberName='raama'",
        "Update TransactionsMaster Set DAccountName='rama' Where DAccountName='raama'",
        "SELECT CityName FROM CityMaster WHERE CompanyId=1 and trim(CityName)='gaava'",
        "INSERT INTO CityMaster(CompanyId,CityName) VALUES(1,'gaava')",
        "Select sum(Amount) as TrAmount From Milkcollections Where CompanyId=1 And MemberNo=5",
        "Select Sum(NetAmount) as PayAmount From MilkPayments Where CompanyId=1 And MemberNo=5",
        "Select sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=1 And MemberNo=5 And "
        "AdvanceType<>'Uchal Kapat'",
        "Select sum(Amount) as ThevAmount From MilkPaymentsDetails Where CompanyId=1 And MemberNo=5 And "
        "(AdvanceType='mhOsa zova' or AdvanceType='gaaya zova' or AdvanceType='zova')",
        "create table Fat150307(Fat TEXT,CowRate TEXT,BuffRate TEXT)",
        "insert into Fat150307(Fat,CowRate,BuffRate) values(4.0,23.50,30.00)",
        "insert into Fat150307(Fat,CowRate,BuffRate) values(4.5,24.05,31.10)",
        "insert into FatDates(FromDate,FatFileName) values('15/03/2007','Fat150307')",
        "select * from FatDates order by FromDate",
        "Select max(FromDate) as mdate From FatDates",
        "select * from Fat150307 where Fat='4.5'",
        "Select FatFileName  From Fatdates Where cstr(FromDate)='15/03/2007'",
        "Delete * From FatRates",
        "Insert Into Fatrates Select * From Fat150307",
        "Delete * From FatRates Where Fat=0",
        "SELECT * FROM FatRates where Fat=4.5",
        "UPDATE FatRates SET CowRate=24.35, BuffRate=31.5 WHERE Fat=4.5",
        "delete * from Fat150307",
        "insert into Fat150307 select * from FatRates",
        "select Fat,BuffRate,CowRate from FatRates order by Fat",
        "SELECT * FROM CompanySelected",
        "delete * from MilkCollectionsTemp",
        "SELECT MemberName FROM MembersMaster order by MemberName",
        "SELECT max(CollectionNo) as MaxTrId FROM MilkCollections WHERE cstr(CollectionDate)=#04/15/2026# "
        "and "
        "CollectionTime='sakaL'",
        "insert into "
        "MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
        "Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
        "values(1,'15/04/2026','sakaL',1,5,'rama','gaaya',1.5,4.3,24.35,36.53,0, '6:05:00 AM')",
        "insert into MilkCollectionsTemp select * from MilkCollections where "
        "cstr(CollectionDate)=#04/15/2026# and "
        "CollectionTime='sakaL'",
        "delete * from MilkCollectionsTemp where CollectionNo=0",
        "SELECT * FROM MilkCollectionsTemp where cstr(CollectionDate)=#04/15/2026# and "
        "CollectionTime='sakaL' AND "
        "CollectionNo=1",
        "SELECT * FROM MembersMaster where MemberNo=5",
        "select * from MilkCollections where CollectionDate<=#04/15/2026# and CollectionTime='sakaL' and "
        "Animal='gaaya' and MemberNo=5 and MemberName='rama' order by CollectionDate desc,CollectionNo desc",
        "SELECT * FROM MilkCollectionsTemp where CollectionDate=#04/15/2026# and CollectionTime='sakaL' and "
        "CollectionNo<>2 and MemberNo=5 and trim(Animal)='gaaya'",
        "update MilkCollections set CompanyId=1,MemberNo=5,MemberName='rama',Animal='gaaya',Liters=2,Fat=4.3,"
        "Rate=24.35,Amount=48.7, ActualCollectionTime='6:06:00 AM' where CollectionDate=#04/15/2026# and "
        "CollectionTime='sakaL' and CollectionNo=1",
        "UPDATE MilkCollections SET Liters=2,Fat=4.3,Rate=24.35,Amount=48.7 WHERE CollectionNo=1 AND "
        "CollectionDate=#04/15/2026# AND MemberNo=5 AND CollectionTime ='sakaL'AND Animal='gaaya'",
        "update MembersMaster set ClosingBalance=62.2,ClosingDorC='C' where CompanyId=1 and "
        "trim(MemberName)='rama'",
        "Select CowOpeningLits,BuffOpeningLits From MembersMaster where CompanyId=1 And Memberno=5",
        "Select sum(Liters) as CowLiters from MilkCollections Where CompanyId=1 And Animal='gaaya' And "
        "MemberNo=5",
        "Update MembersMaster Set CowClosingLits=2,BuffClosingLits=0 where CompanyId=1 And Memberno=5",
        "select * from MilkPayments where CompanyId=1 and FromDate>=#04/15/2026# and ToDate<=#04/15/2026# "
        "and "
        "MemberNo=5",
        "select * from MilkCollectionsTemp order by CollectionNo desc",
        "insert into MilkReceipt select * from MRView",
        "update MilkReceipt set CompanyId=1",
        "select * from MRView",
        "update MilkCollections set Amount=Liters * Rate where CompanyId=1 and CollectionDate>=#04/15/2026#",
        "Select Distinct MemberNo From MilkCollections",
        "Select CompanyId,TranDate,Sum(Amount) as mCAmount from TransactionsMaster where CompanyId=1 And  "
        "TranDate=#04/15/2026# and (TranType='raoK' or TranType=']Qaar') Group By CompanyId,TranDate",
        "update TransactionsMaster set RsInWords='x', Printname='y' where (CompanyId=1) and "
        "(cstr(TranDate)='15/04/2026') and (TranId=1)",
        "Insert Into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "Values(1,'01/01/1940',0,5,'OpeningBalance',-12.5)",
        "Update AdvanceReceipt Set Amount=Amount +-5 Where CompanyId=1 And MemberNo=5",
        "Insert Into AdvanceReceipt Select * From TransactionsDetails Where TranDate>=#04/01/2026# And "
        "Trandate<=#04/15/2026# And Memberno=5",
        "select * from MembersMaster where left(MemberName,1)='r'",
        "Select Sum(Amount)as mUchalPaid From TransactionsMaster Where companyId=1 And DAccountName='rama' "
        "AND "
        "Narration=']cala idlaI.' AND (TranDate>=#04/01/2026# And TranDate<=#04/15/2026#)",
        "SELECT max(SalesNo) as MaxTrId FROM MilkSales WHERE cstr(SalesDate)=#04/15/2026# and "
        "SalesTime='sakaL' ",
        "Delete * From TransactionsMaster Where CompanyId=1 And (DAccountName='rama' or CAccountName='rama')",
        "delete * from MilkCollections where CollectionDate=#04/15/2026# and CollectionTime='sakaL' and "
        "CollectionNo=1",
        "delete * from MembersMaster where CompanyId=1 and MemberNo=5",
    };
    return statements;
}
