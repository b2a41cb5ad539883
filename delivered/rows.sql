-- The rows of every society, in the engine's own words. {society}, {year}, {from}, {to} and {chart} are put
-- in by the installer; literals in Devanagari are put into the stored encoding.

insert into CompanyMaster (CompanyId, FromDate, CompanyName) values (1, '{from}', '{society}');

insert into CompanySelected (CompanyId, CompanyName, AccountingYear, FromDate, ToDate, BstNo, CostCenter)
values (1, '{society}', '{year}', '{from}', '{to}', null, 0);

-- No scale, no tester, no printer yet; a ten days' payment to the last paisa.
insert into AutoSettings values (
    1, 'naahI', 'naahI', 'naahI', 'saovh', '40.000', '40.000', 'Tašp 1', 'naahI', '10 idvasa', 'Payment', 'Uchal',
    'PayIt', 0.5, 0.5, '48.00', '58.00', '52.00', 'NO', 'f^T nausaar', 0, 0, 0, 0, 0, 'False');

insert into MenuAccessTable (MenuName, AccessYesNo) values
    ('Master', 1),
    ('Account Voucher', 1),
    ('Stock Voucher', 1),
    ('Account Report', 1),
    ('Stock Report', 1),
    ('Statistical Report', 1),
    ('Utilities', 1);

-- The scale on the first port, the fat tester on the second, until a device is installed.
insert into PortTable (LComPortNo, LSetting, LTareCommand, LCounter, LReceiverCommand, FComPortNo, FSetting)
values (1, '2400,n,8,1', 'T', 170000, 'W', 2, '9600,n,8,1');

insert into UchalTypes (CompanyId, TypeId, UchalType) values
    (1, 1, ']cala'),
    (1, 0, 'KaV'),
    (1, 1, 'ikraNaa maalaÀroSana'),
    (1, 1, '[tr');

insert into AccountsMaster values
    (1, 1, 'raoK', 'Cash', '', 0, 'D', 0, 'D'),
    (1, 2, 'जिल्हा मध्यवर्ती सहकारी बँक', 'Bank', '', 0, 'D', 0, 'D');

insert into CityMaster (CompanyId, CityName) values (1, 'कराड'), (1, 'सातारा');

insert into BankMaster (CompanyId, BankName) values (1, 'जिल्हा मध्यवर्ती सहकारी बँक'), (1, 'महाराष्ट्र बँक');

create table {chart} (Fat TEXT,CowRate TEXT,BuffRate TEXT);

insert into FatDates (FromDate, FatFileName) values ('{from}', '{chart}');
