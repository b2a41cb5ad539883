-- The indexes of every society's books. Each one costs a page on every save of a row of its table, so each
-- says what it is for. They are made after the rows, which is quicker.

-- Number series, opening, change and deletion of a shift; every report over a span of days. The litres of a
-- year's gain and loss are summed up from it alone. The amounts aren't in it: pricing deliveries anew would have
-- to move each of its entries.
create index MilkCollectionsByShift
    on MilkCollections (CollectionDate, CollectionTime, CollectionNo, Animal, Liters);

-- A member's last fat is its last entry; the closing litres and a period's litres are summed from it alone.
create index MilkCollectionsByMember
    on MilkCollections (MemberNo, Animal, CollectionTime, CollectionDate, CollectionNo, CompanyId, Liters);

-- A member's milk of a period, four sums and a copy of it for every member of a payment run: without this a
-- run would read all that the member has ever brought. The litres are summed up from it alone, or the bonus of
-- a year would have to find a million rows, each on a page of its own.
create index MilkCollectionsByMemberDay on MilkCollections (MemberNo, CollectionDate, Animal, Liters);

-- Deliveries are priced anew by fat and animal, once for each fat of a chart. The animal doesn't lead, or sums
-- of one animal over some days would go through all its deliveries.
create index MilkCollectionsByFat on MilkCollections (Fat, Animal, CollectionDate);

-- The counter's list shows the newest rows of the copy after every save, and reads no others.
create index MilkCollectionsTempByNumber on MilkCollectionsTemp (CollectionNo);

-- The payment report asks for every member, day and shift of the copy, the counter for a member's second can.
create index MilkCollectionsTempByMember on MilkCollectionsTemp (MemberNo, CollectionDate);

-- The payment report and the registers take a span of days of the past year; nothing is ever saved there.
create index MilkCollectionsOldByDate on MilkCollectionsOld (CollectionDate);

-- The day lines of a pay slip are looked up and filled by member and day.
create index MilkCollectionsMEByMember on MilkCollectionsME (MemberNo, CollectionDate);

-- Number series, opening, change and deletion of a shift of sales; the gain and loss statement by day.
create index MilkSalesByShift on MilkSales (SalesDate, SalesTime, SalesNo);

-- The counter and the payment find a member by number, and write the closing columns by it.
create index MembersMasterByNumber on MembersMaster (MemberNo);

-- Whether a member's period is paid, which payment is the latest, what has been paid to a member; with all the
-- days of a payment, so that of his years only the rows that are meant are read.
create index MilkPaymentsByMember on MilkPayments (MemberNo, CompanyId, FromDate, ToDate, PaymentDate);

-- The bill number of a day and the day's list; the run over many members empties company 0 after each one.
create index MilkPaymentsByDay on MilkPayments (CompanyId, PaymentDate, MemberNo);

-- The payments of one period, for the registers; whether a payment reaches to the first day of a new chart.
-- Without the company in front the list of the day would be searched for both, through all the years.
create index MilkPaymentsByPeriod on MilkPayments (CompanyId, ToDate, FromDate);

-- The deductions of a member's payment, and the deposits up to a day; summed up from it alone.
create index MilkPaymentsDetailsByMember
    on MilkPaymentsDetails (MemberNo, TranDate, CompanyId, AdvanceType, Amount);

-- Voucher numbers of a day, a voucher by its number, the newest date, the cash book in its order.
create index TransactionsMasterByDay on TransactionsMaster (TranDate, TranId);

-- The advances given to a member are found by name, once for every member of a bonus run.
create index TransactionsMasterByDebit on TransactionsMaster (DAccountName, TranDate);

-- The advances of a member before and within a period, once for every member of a payment run. Those of all his
-- years before are summed up from it alone.
create index TransactionsDetailsByMember
    on TransactionsDetails (MemberNo, TranDate, CompanyId, AdvanceType, Amount);

-- The repayments of a member before and within a period, likewise.
create index AdvanceReceiptByMember on AdvanceReceipt (MemberNo, TranDate, CompanyId, Amount);

-- The gate's list in the order of a column shows its first rows after every save, and reads no others.
create index MilkCollectionsTempByLiters on MilkCollectionsTemp (Liters);
create index MilkCollectionsTempByFat on MilkCollectionsTemp (Fat);
create index MilkCollectionsTempByRate on MilkCollectionsTemp (Rate);
create index MilkCollectionsTempByAmount on MilkCollectionsTemp (Amount);

-- The purchases and the sales are summed from the copy, twice for every day of the report.
create index TransactionsMasterTempByDay on TransactionsMasterTemp (TranDate);
