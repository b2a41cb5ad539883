#pragma once

#include "bench/FloorSlips.h"
#include "bench/FloorStatement.h"
#include "reports/PaymentRegister.h"

#include <string>
#include <vector>

// The floor of a register of a payment period for all members: the same reads and writes of the staging
// tables, in prepared statements and one durable transaction.
class FloorRegister {
public:
    // The days are ISO; `to` is the date of all payments, `yearBegins` the first day of the accounting year.
    FloorRegister(PaymentRegister::Kind kind, std::string from, std::string to, std::string yearBegins);

    void Stage(int members);

private:
    struct Payment {
        std::string date;
        double tranId = 0;
        int member = 0;
        std::string name, animal;
        double amount = 0, kapat = 0, net = 0, previous = 0, current = 0, deposit = 0, previousAdvance = 0;
    };

    std::vector<Payment> ReadPayments();
    void StagePayment(const Payment& payment);
    void StageDeposit(const Payment& payment);
    void StageAdvance(const Payment& payment);
    void AddPreviousBalance(const Payment& payment);

    const PaymentRegister::Kind m_kind;
    const std::string m_from;
    const std::string m_to;
    const std::string m_yearBegins;
    FloorSummary m_summary;

    FloorStatement m_any{"select * from MilkPayments where CompanyId=1 and FromDate=? and ToDate=? and "
                         "MemberNo>=? and MemberNo<=?"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    std::array<FloorStatement, 5> m_empty{FloorStatement("delete from ReportDates"),
        FloorStatement("delete from MilkPaymentsTemp"), FloorStatement("delete from MilkPaymentsRegister"),
        FloorStatement("delete from KapatSummary"), FloorStatement("delete from MilkCollectionsTemp")};
    FloorStatement m_copyMilk{
        "insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and "
        "CollectionDate>=? and CollectionDate<=? and +MemberNo>=? and +MemberNo<=?"};
    FloorStatement m_company{"select * from CompanyMaster where CompanyId=1"};
    FloorStatement m_copyPayments{"insert into MilkPaymentsTemp select * from MilkPayments where CompanyId=1 "
                                  "and FromDate=? and ToDate=? and MemberNo>=? and MemberNo<=?"};
    FloorStatement m_payments{
        "select PaymentDate,TranId,MemberNo,MemberName,Animal,Amount,Kapat,NetAmount,PreviousBalance,"
        "CurrentBalance,ThevKapatCow+ThevKapatBuff,PreviousAdvance from MilkPaymentsTemp order by MemberNo"};

    FloorStatement m_litres{"select sum(Liters) from MilkCollectionsTemp where MemberNo=? and Animal=?"};
    FloorStatement m_depositOn{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate=? and "
        "(trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')"};
    FloorStatement m_payment{
        "insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
        "Animal,CowLiters,BuffLiters,Amount,ThevKapat,OtherKapat,NetAmount,PreviousBalance,CurrentBalance,"
        "ActualKapat,PreviousAdvance) values(1,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_unpaid{
        "select Amount from MilkPaymentsDetails where CompanyId=1 and TranDate=? and MemberNo=? and "
        "AdvanceType='maagaIla baakI'"};
    FloorStatement m_addUnpaid{"update KapatSummary set Uchal=Uchal+? where CompanyId=1 and MemberNo=?"};

    FloorStatement m_opening{"select CowOpeningThev,BuffOpeningThev from MembersMaster where CompanyId=1 and "
                             "MemberNo=?"};
    FloorStatement m_depositBefore{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate>=? and "
        "TranDate<? and (trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')"};
    FloorStatement m_deposit{
        "insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
        "ThevKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) "
        "values(1,?,?,?,?,?,?,?,?,?,?,?)"};

    FloorStatement m_given{
        "select sum(Amount) from TransactionsDetails where CompanyId=1 and MemberNo=? and TranDate<? and "
        "trim(AdvanceType)<>'gaaya zova' and trim(AdvanceType)<>'mhOsa zova'"};
    FloorStatement m_received{
        "select sum(Amount) from AdvanceReceipt where CompanyId=1 and MemberNo=? and TranDate<?"};
    FloorStatement m_headsBefore{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate<? and "
        "trim(AdvanceType)<>'gaaya zova' and trim(AdvanceType)<>'mhOsa zova'"};
    FloorStatement m_headsOn{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate=? and "
        "trim(AdvanceType)<>'gaaya zova' and trim(AdvanceType)<>'mhOsa zova'"};
    FloorStatement m_advance{
        "insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
        "OtherKapat,PreviousBalance,CurrentBalance,ActualKapat,PreviousAdvance) "
        "values(1,?,?,?,?,?,?,?,?,?,?,?)"};

    FloorStatement m_dates{"insert into ReportDates(CompanyId,FromDate,ToDate) values(1,?,?)"};
    FloorStatement m_tidy{"delete from MilkPaymentsRegister where CompanyId=0"};
};

// The same of the balances of all members.
class FloorBalances {
public:
    enum class Kind { Advances, Deposits };

    FloorBalances(Kind kind, std::string from, std::string to);

    void Stage(int members);

private:
    const Kind m_kind;
    const std::string m_from;
    const std::string m_to;

    FloorStatement m_members{"select MemberNo,MemberName from MembersMaster where MemberNo>=? and "
                             "MemberNo<=? order by MemberNo"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    std::array<FloorStatement, 2> m_empty{
        FloorStatement("delete from ReportDates"), FloorStatement("delete from MilkPaymentsRegister")};
    FloorStatement m_given{
        "select sum(Amount) from TransactionsDetails where CompanyId=1 and TranDate<=? and MemberNo=?"};
    FloorStatement m_received{
        "select sum(Amount) from AdvanceReceipt where CompanyId=1 and TranDate<=? and MemberNo=?"};
    FloorStatement m_deposits{"select sum(ThevKapatCow),sum(ThevKapatBuff) from MilkPayments where "
                              "CompanyId=1 and PaymentDate>=? and PaymentDate<=? and MemberNo=?"};
    FloorStatement m_insert{
        "insert into MilkPaymentsRegister(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,"
        "Animal,CowLiters,BuffLiters,Amount,ThevKapat,OtherKapat,NetAmount,PreviousBalance,CurrentBalance,"
        "ActualKapat,PreviousAdvance) values(1,?,?,?,0,?,?,'N/AP',0,0,0,?,0,?,?,?,0,0)"};
    FloorStatement m_dropAdvances{"delete from MilkPaymentsRegister where CurrentBalance=0"};
    FloorStatement m_dropDeposits{"delete from MilkPaymentsRegister where ThevKapat=0"};
    FloorStatement m_tidy{"delete from MilkPaymentsRegister where CompanyId=992"};
    FloorStatement m_dates{"insert into ReportDates(CompanyId,FromDate,ToDate) values(1,?,?)"};
};
