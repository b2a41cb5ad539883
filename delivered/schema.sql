-- The tables of every society's books, in the engine's own words.
--
-- Dates are ISO text (yyyy-MM-dd) in columns declared DATE. Yes and no are texts. Numbers kept as text
-- are declared TEXT and hold the shortest decimal form. The file enforces nothing: a row is told by the
-- columns that the statements use, and the screens see to it that it is the only one.
--
-- Tables that are copied whole from one another ("insert into X select * from Y") have the same columns
-- in the same order; a column added to one is added to its copies.
--
-- Literals in Devanagari are put into the stored encoding when the file is read.

-- === Permanent: company and settings =====================================================================

create table CompanyMaster (
    CompanyId INTEGER, FromDate DATE, CompanyName TEXT
);

create table CompanySelected (
    CompanyId INTEGER, CompanyName TEXT, AccountingYear TEXT, FromDate DATE, ToDate DATE, BstNo TEXT,
    CostCenter INTEGER
);

-- ShowTransportCharges is "True" or "False". What the settings screen doesn't write falls back to Null.
create table AutoSettings (
    CompanyId INTEGER, AutoLiters TEXT, AutoFat TEXT, PrintStatus TEXT, MSRPrintStatus TEXT,
    CanLimitBuff TEXT, CanLimitCow TEXT, ReceiptType TEXT, RepeatCollection TEXT, PaymentDuration TEXT,
    PurchaseEntry TEXT, UchalEntry TEXT, DecimalPayment TEXT, ThevKapatCow REAL, ThevKapatBuff REAL,
    SalesRateCow TEXT, SalesRateBuff TEXT, SalesRateMix TEXT, WeighScale TEXT, FatRateType TEXT,
    BasicCowRate REAL, BasicBuffRate REAL, CowBonusRate REAL, BuffBonusRate REAL, FixedKapat REAL,
    ShowTransportCharges TEXT
);

create table MenuAccessTable (
    MenuName TEXT, AccessYesNo INTEGER
);

-- L: the weighing scale (litres). F: the fat tester.
create table PortTable (
    LComPortNo INTEGER, LSetting TEXT, LTareCommand TEXT, LCounter INTEGER, LReceiverCommand TEXT,
    FComPortNo INTEGER, FSetting TEXT
);

create table rswords (
    no1 INTEGER, word1 TEXT
);


-- === Permanent: masters ==================================================================================

create table MembersMaster (
    CompanyId INTEGER, MemberNo INTEGER, MemberName TEXT, AccountId INTEGER, Address TEXT, City TEXT,
    Animal TEXT, PaymentType TEXT, BankName TEXT, BankAccountNo TEXT, OpeningBalance REAL,
    OpeningDorC TEXT, ClosingBalance REAL, ClosingDorC TEXT, CowOpeningThev REAL, CowClosingThev REAL,
    BuffOpeningThev REAL, BuffClosingThev REAL, OpeningUchal REAL, ClosingUchal REAL,
    CowOpeningLits REAL, CowClosingLits REAL, BuffOpeningLits REAL, BuffClosingLits REAL
);

create table CustomersMaster (
    CompanyId INTEGER, CustomerNo INTEGER, CustomerName TEXT, Animal TEXT, CustomerType TEXT,
    CowOpeningLits REAL, CowClosingLits REAL, BuffOpeningLits REAL, BuffClosingLits REAL
);

create table CityMaster (
    CompanyId INTEGER, CityName TEXT
);

create table BankMaster (
    CompanyId INTEGER, BankName TEXT
);

create table AccountsMaster (
    CompanyId INTEGER, AccountId INTEGER, AccountName TEXT, GroupCode TEXT, Category TEXT,
    OpeningBalance REAL, OpeningDorC TEXT, ClosingBalance REAL, ClosingDorC TEXT
);

-- TypeId 0 is summed as feed; TypeId 1 goes by the word.
create table UchalTypes (
    CompanyId INTEGER, TypeId INTEGER, UchalType TEXT
);

create table InstallmentTable (
    MemberNo INTEGER, MemberName TEXT, Kapat REAL
);


-- === Permanent: rate charts ==============================================================================

create table FatDates (
    FromDate DATE, FatFileName TEXT
);

-- NUMERIC, not REAL: a whole number copied from here into a chart's text must read 4 and not 4.0.
create table FatRates (
    Fat NUMERIC, CowRate NUMERIC, BuffRate NUMERIC
);


-- === Permanent: milk =====================================================================================

create table MilkCollections (
    CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, CollectionNo INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL, TranId INTEGER,
    ActualCollectionTime TEXT, SNF REAL
);

create table MilkSales (
    CompanyId INTEGER, SalesDate DATE, SalesTime TEXT, SalesType TEXT, SalesNo INTEGER,
    CustomerNo INTEGER, CustomerName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    OurLiters REAL, SNF REAL, OurFat REAL, OurRate REAL, OurAmount REAL
);


-- === Permanent: payments and money =======================================================================

create table MilkPayments (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, PaymentDate DATE, TranId INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Amount REAL, Kapat REAL, NetAmount REAL,
    PreviousBalance REAL, CurrentBalance REAL, TotalUchal REAL, ThevKapatCow REAL, ThevKapatBuff REAL,
    LitersCow REAL, LitersBuff REAL, CowAmount REAL, BuffAmount REAL, FixedKapat REAL,
    PreviousAdvance REAL
);

create table MilkPaymentsDetails (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);

create table TransactionsMaster (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, TranType TEXT, DAccountName TEXT,
    CAccountName TEXT, Amount REAL, BillNo TEXT, Narration TEXT, RsInWords TEXT, Printname TEXT,
    Narration2 TEXT, Narration3 TEXT
);

create table TransactionsDetails (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);

create table AdvanceReceipt (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);


-- === Kept by the engine: sums of years ===================================================================

-- What each member was given (TransactionsDetails), gave back (AdvanceReceipt) and had kept back
-- (MilkPaymentsDetails) in a calendar year. A balance adds up whole years and reads the rows of its last one
-- only, so that it takes no longer for an old society than for a young one. Deposit: 1 for the deposit heads,
-- 0 for the others, 2 for rows without a head.
create table YearSums (
    Entries TEXT, CompanyId INTEGER, MemberNo INTEGER, Year TEXT, Deposit INTEGER, Amount REAL,
    primary key (Entries, CompanyId, MemberNo, Year, Deposit)
) without rowid;

-- What is inserted here is added to its year. Whatever program writes to the three tables keeps their sums,
-- the engine's shell too. They are rounded, or a row that is taken back would leave binary dust behind. Rows
-- without a company, member or day are in no sum.
create view YearEntries as
select '' as Entries, CompanyId, TranDate, MemberNo, AdvanceType, Amount from AdvanceReceipt limit 0;

create trigger YearEntriesAdded instead of insert on YearEntries
when new.Amount is not null
begin
    insert or ignore into YearSums values (new.Entries, new.CompanyId, new.MemberNo,
        substr(new.TranDate, 1, 4), ifnull(trim(new.AdvanceType) in ('gaaya zova', 'mhOsa zova'), 2), 0);
    update YearSums set Amount = round(Amount + new.Amount, 6)
    where Entries = new.Entries and CompanyId = new.CompanyId and MemberNo = new.MemberNo
        and Year = substr(new.TranDate, 1, 4)
        and Deposit = ifnull(trim(new.AdvanceType) in ('gaaya zova', 'mhOsa zova'), 2);
end;

create trigger TransactionsDetailsAdded after insert on TransactionsDetails begin
    insert into YearEntries
    values ('TransactionsDetails', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger TransactionsDetailsChanged after update on TransactionsDetails begin
    insert into YearEntries
    values ('TransactionsDetails', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
    insert into YearEntries
    values ('TransactionsDetails', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger TransactionsDetailsRemoved after delete on TransactionsDetails begin
    insert into YearEntries
    values ('TransactionsDetails', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
end;

create trigger AdvanceReceiptAdded after insert on AdvanceReceipt begin
    insert into YearEntries
    values ('AdvanceReceipt', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger AdvanceReceiptChanged after update on AdvanceReceipt begin
    insert into YearEntries
    values ('AdvanceReceipt', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
    insert into YearEntries
    values ('AdvanceReceipt', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger AdvanceReceiptRemoved after delete on AdvanceReceipt begin
    insert into YearEntries
    values ('AdvanceReceipt', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
end;

create trigger MilkPaymentsDetailsAdded after insert on MilkPaymentsDetails begin
    insert into YearEntries
    values ('MilkPaymentsDetails', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger MilkPaymentsDetailsChanged after update on MilkPaymentsDetails begin
    insert into YearEntries
    values ('MilkPaymentsDetails', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
    insert into YearEntries
    values ('MilkPaymentsDetails', new.CompanyId, new.TranDate, new.MemberNo, new.AdvanceType, new.Amount);
end;
create trigger MilkPaymentsDetailsRemoved after delete on MilkPaymentsDetails begin
    insert into YearEntries
    values ('MilkPaymentsDetails', old.CompanyId, old.TranDate, old.MemberNo, old.AdvanceType, -old.Amount);
end;

-- What each account was credited less what it was debited in a calendar year, to the ten thousandth of a
-- rupee, and how many entries that were: what a ledger brings forward. A transaction is an entry on each side.
create table AccountYearSums (
    CompanyId INTEGER, AccountName TEXT, Year TEXT, Entries INTEGER, Amount REAL,
    primary key (CompanyId, AccountName, Year)
) without rowid;

create view AccountYearEntries as
select CompanyId, TranDate, DAccountName as AccountName, 1 as Entries, Amount from TransactionsMaster limit 0;

create trigger AccountYearEntriesAdded instead of insert on AccountYearEntries begin
    insert or ignore into AccountYearSums
    values (new.CompanyId, trim(new.AccountName), substr(new.TranDate, 1, 4), 0, 0);
    update AccountYearSums
    set Entries = Entries + new.Entries, Amount = round(Amount + ifnull(new.Amount, 0), 4)
    where CompanyId = new.CompanyId and AccountName = trim(new.AccountName)
        and Year = substr(new.TranDate, 1, 4);
end;

create trigger TransactionsMasterAdded after insert on TransactionsMaster begin
    insert into AccountYearEntries values (new.CompanyId, new.TranDate, new.DAccountName, 1, -new.Amount);
    insert into AccountYearEntries values (new.CompanyId, new.TranDate, new.CAccountName, 1, new.Amount);
end;
create trigger TransactionsMasterChanged
after update of CompanyId, TranDate, DAccountName, CAccountName, Amount on TransactionsMaster begin
    insert into AccountYearEntries values (old.CompanyId, old.TranDate, old.DAccountName, -1, old.Amount);
    insert into AccountYearEntries values (old.CompanyId, old.TranDate, old.CAccountName, -1, -old.Amount);
    insert into AccountYearEntries values (new.CompanyId, new.TranDate, new.DAccountName, 1, -new.Amount);
    insert into AccountYearEntries values (new.CompanyId, new.TranDate, new.CAccountName, 1, new.Amount);
end;
create trigger TransactionsMasterRemoved after delete on TransactionsMaster begin
    insert into AccountYearEntries values (old.CompanyId, old.TranDate, old.DAccountName, -1, old.Amount);
    insert into AccountYearEntries values (old.CompanyId, old.TranDate, old.CAccountName, -1, -old.Amount);
end;


-- === Year-old copies =====================================================================================

create table MilkCollectionsOld (
    CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, CollectionNo INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL, TranId INTEGER,
    ActualCollectionTime TEXT, SNF REAL
);

create table MilkPaymentsOld (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, PaymentDate DATE, TranId INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Amount REAL, Kapat REAL, NetAmount REAL,
    PreviousBalance REAL, CurrentBalance REAL, TotalUchal REAL, ThevKapatCow REAL, ThevKapatBuff REAL,
    LitersCow REAL, LitersBuff REAL, CowAmount REAL, BuffAmount REAL, FixedKapat REAL,
    PreviousAdvance REAL
);

create table TransactionsMasterOld (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, TranType TEXT, DAccountName TEXT,
    CAccountName TEXT, Amount REAL, BillNo TEXT, Narration TEXT, RsInWords TEXT, Printname TEXT,
    Narration2 TEXT, Narration3 TEXT
);

create table AccountsMasterOld (
    CompanyId INTEGER, AccountId INTEGER, AccountName TEXT, GroupCode TEXT, Category TEXT,
    OpeningBalance REAL, OpeningDorC TEXT, ClosingBalance REAL, ClosingDorC TEXT
);


-- === Working copies: a screen fills one, edits it and discards it ========================================

create table MilkCollectionsTemp (
    CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, CollectionNo INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL, TranId INTEGER,
    ActualCollectionTime TEXT, SNF REAL
);

create table MilkSalesTemp (
    CompanyId INTEGER, SalesDate DATE, SalesTime TEXT, SalesType TEXT, SalesNo INTEGER,
    CustomerNo INTEGER, CustomerName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    OurLiters REAL, SNF REAL, OurFat REAL, OurRate REAL, OurAmount REAL
);

create table MilkPaymentsTemp (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, PaymentDate DATE, TranId INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Amount REAL, Kapat REAL, NetAmount REAL,
    PreviousBalance REAL, CurrentBalance REAL, TotalUchal REAL, ThevKapatCow REAL, ThevKapatBuff REAL,
    LitersCow REAL, LitersBuff REAL, CowAmount REAL, BuffAmount REAL, FixedKapat REAL,
    PreviousAdvance REAL
);

create table MilkPaymentsDetailsTemp (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);

create table AdvanceTemp (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);

create table TransactionsDetailsTemp (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER, AdvanceType TEXT, Amount REAL
);

create table TransactionsMasterTemp (
    CompanyId INTEGER, TranDate DATE, TranId INTEGER, TranType TEXT, DAccountName TEXT,
    CAccountName TEXT, Amount REAL, BillNo TEXT, Narration TEXT, RsInWords TEXT, Printname TEXT,
    Narration2 TEXT, Narration3 TEXT
);

create table BonusPaymentsTemp (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, FromAcNo INTEGER, ToAcNo INTEGER, MilkType TEXT,
    CowBonusRate REAL, BuffBonusRate REAL, SerialNo INTEGER, MemberNo INTEGER, MemberName TEXT,
    CurrentCowLiters REAL, CurrentBuffLiters REAL, PreviousCowLiters REAL, PreviousBuffLiters REAL,
    TotalCowLiters REAL, TotalBuffLiters REAL, TotalCowBonus REAL, TotalBuffBonus REAL, TotalBonus REAL,
    Advance REAL, RemainingBonus REAL, PreviousThev REAL, AcNo INTEGER, AccountName TEXT, Animal TEXT,
    TotalMilk REAL, BonusCharges REAL
);

create table ShortMemberList (
    CompanyId INTEGER, MemberNo INTEGER, MemberName TEXT
);


-- === Report staging: emptied, filled, read by a template =================================================

create table ReportDates (
    CompanyId INTEGER, FromDate DATE, ToDate DATE
);

create table MilkReceipt (
    CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, CollectionNo INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    ActualCollectionTime TEXT
);

create table MilkSalesReceipt (
    CompanyId INTEGER, SalesDate DATE, SalesTime TEXT, SalesType TEXT, SalesNo INTEGER,
    CustomerNo INTEGER, CustomerName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    OurLiters REAL, SNF REAL, OurFat REAL, OurRate REAL, OurAmount REAL
);

create table MilkCollectionsME (
    CompanyId INTEGER, CollectionDate DATE, MemberNo INTEGER, MemberName TEXT, Animal TEXT,
    LitersM REAL, FatM REAL, RateM REAL, AmountM REAL, LitersE REAL, FatE REAL, RateE REAL,
    AmountE REAL, SNFM REAL, SNFE REAL
);

create table KapatDetails (
    CompanyId INTEGER, MemberNo INTEGER, CollectionDate DATE, Label1 TEXT, Value1 REAL
);

create table KapatSummary (
    CompanyId INTEGER, MemberNo INTEGER, Other REAL, Uchal REAL, Khadya REAL, Kirana REAL,
    PrevThev REAL, CurrentThev REAL, BalThev REAL
);

create table MilkPaymentsRegister (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, PaymentDate DATE, TranId INTEGER, MemberNo INTEGER,
    MemberName TEXT, Animal TEXT, CowLiters REAL, BuffLiters REAL, Amount REAL, ThevKapat REAL,
    OtherKapat REAL, NetAmount REAL, PreviousBalance REAL, CurrentBalance REAL, ActualKapat REAL,
    PreviousAdvance REAL
);

create table MembersListReport (
    CompanyId INTEGER, Crieteria TEXT, CrieteriaValue TEXT, MemberNo INTEGER, MemberName TEXT,
    City TEXT, Animal TEXT
);

create table VadhTootReport (
    CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, Animal TEXT, LitersIn REAL,
    LitersLocal REAL, LitersSangh REAL, LitersOut REAL, OurLiters REAL
);

create table LedgersMaster (
    LedgerName TEXT, FromDate DATE, ToDate DATE, CompanyId INTEGER, TranDate DATE, TranId INTEGER,
    TranType TEXT, AccountName TEXT, DAmount REAL, CAmount REAL, Narration TEXT, Narration2 TEXT,
    Narration3 TEXT, OpeningBalance REAL, OpeningDorC TEXT, ClosingBalance REAL, ClosingDorC TEXT,
    Total REAL
);

-- A run's result and its report in one.
create table BonusPayments (
    CompanyId INTEGER, FromDate DATE, ToDate DATE, FromAcNo INTEGER, ToAcNo INTEGER, MilkType TEXT,
    CowBonusRate REAL, BuffBonusRate REAL, SerialNo INTEGER, MemberNo INTEGER, MemberName TEXT,
    CurrentCowLiters REAL, CurrentBuffLiters REAL, PreviousCowLiters REAL, PreviousBuffLiters REAL,
    TotalCowLiters REAL, TotalBuffLiters REAL, TotalCowBonus REAL, TotalBuffBonus REAL, TotalBonus REAL,
    Advance REAL, RemainingBonus REAL, PreviousThev REAL, AcNo INTEGER, AccountName TEXT, Animal TEXT,
    TotalMilk REAL, BonusCharges REAL
);


-- === Stored views ========================================================================================

-- The account of the ledger that was staged last, if it is among the accounts.
create view LedgerAccount as
select AccountsMaster.AccountName as AccountName
from (select LedgerName, CompanyId from LedgersMaster limit 1) as Ledger, AccountsMaster
where AccountsMaster.CompanyId = Ledger.CompanyId and AccountsMaster.AccountName = Ledger.LedgerName;

-- The one row of the sample bill, in the shape of MilkReceipt: a delivery on the first day of the year.
create view MRView as
select CompanyId, FromDate as CollectionDate, 'sakaL' as CollectionTime, 1 as CollectionNo, 1 as MemberNo,
    'नमुना सभासद' as MemberName, 'gaaya' as Animal, 5.25 as Liters, 4.5 as Fat, 35 as Rate, 183.75 as Amount,
    '6.45' as ActualCollectionTime
from CompanySelected limit 1;
