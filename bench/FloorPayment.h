#pragma once

#include "bench/FloorStatement.h"

#include <string>

// The floor of a payment: the reads and writes of one member's payment of a period that isn't paid yet, in
// prepared statements, with the settings of FillPayments.
class FloorPayment {
public:
    // The days are ISO.
    FloorPayment(std::string from, std::string to);

    // Works out the payment of a member, durably.
    void WorkOut(int member);

    // Works it out and writes it to all its tables, durably.
    void Pay(int member);

private:
    void Reckon();
    void ReadMilk();
    void BuildHeads();
    void AddHead(int place, std::string_view type, double amount);
    void ConsolidateHeads();
    void TakeOffReceipts();
    double AddFixedKapat();
    void SummariseDeductions();
    void Post();
    void StageDeposits();
    void PutPaiseToDeposit();
    void MoveClosing();

    const std::string m_from;
    const std::string m_to; // the date of the bill, too

    int m_member = 0;
    std::string m_name;
    double m_bill = 0;
    double m_cowLitres = 0, m_buffLitres = 0;
    double m_cowAmount = 0, m_buffAmount = 0;
    double m_cowDeposit = 0, m_buffDeposit = 0;
    double m_previous = 0;
    double m_outstanding = 0;
    double m_uchal = 0;
    double m_total = 0;
    double m_net = 0;
    double m_currentBalance = 0;

    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};

    // Working it out
    FloorStatement m_findMember{"select MemberName from MembersMaster where CompanyId=1 and MemberNo=?"};
    FloorStatement m_highestBill{"select max(TranId) from MilkPayments where CompanyId=1 and PaymentDate=?"};
    FloorStatement m_paid{
        "select * from MilkPayments where CompanyId=1 and MemberNo=? and FromDate<=? and ToDate>=?"};
    FloorStatement m_litres{"select sum(Liters) from MilkCollections where CompanyId=1 and MemberNo=? and "
                            "CollectionDate>=? and CollectionDate<=? and Animal=?"};
    FloorStatement m_amount{"select sum(Amount) from MilkCollections where CompanyId=1 and MemberNo=? and "
                            "CollectionDate>=? and CollectionDate<=? and Animal=?"};
    FloorStatement m_depositRates{"select ThevKapatCow,ThevKapatBuff from AutoSettings"};
    FloorStatement m_emptyCopy{"delete from MilkCollectionsTemp where CompanyId=1"};
    FloorStatement m_copy{
        "insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and "
        "MemberNo=? and CollectionDate>=? and CollectionDate<=?"};
    FloorStatement m_emptyHeads{"delete from AdvanceTemp"};
    FloorStatement m_given{"insert into AdvanceTemp select * from TransactionsDetails where CompanyId=1 and "
                           "MemberNo=? and TranDate>=? and TranDate<=?"};
    FloorStatement m_givenBefore{
        "select sum(Amount) from TransactionsDetails where CompanyId=1 and MemberNo=? and TranDate<?"};
    FloorStatement m_receivedBefore{
        "select sum(Amount) from AdvanceReceipt where CompanyId=1 and MemberNo=? and TranDate<?"};
    FloorStatement m_addHead{"insert into AdvanceTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                             "values(1,?,?,?,?,?)"};
    FloorStatement m_heads{"select * from AdvanceTemp"};
    FloorStatement m_received{"select * from AdvanceReceipt where CompanyId=1 and MemberNo=? and TranDate>=? "
                              "and TranDate<=? and AdvanceType<>'Uchal Kapat'"};
    FloorStatement m_advance{"select * from AdvanceTemp where CompanyId=1 and MemberNo=? and TranDate>=? and "
                             "TranDate<=? and AdvanceType=']cala'"};
    FloorStatement m_lowerHead{"update AdvanceTemp set Amount=? where CompanyId=1 and MemberNo=? and "
                               "TranDate>=? and TranDate<=? and AdvanceType=?"};
    FloorStatement m_fixedKapat{"select FixedKapat from AutoSettings"};
    FloorStatement m_other{
        "select * from AdvanceTemp where CompanyId=1 and MemberNo=? and TranDate=? and AdvanceType='[tr'"};
    FloorStatement m_sumOfHeads{"select sum(Amount) from AdvanceTemp where CompanyId=1"};
    FloorStatement m_tidyHeads{"delete from AdvanceTemp where CompanyId=0"};
    FloorStatement m_sumOfAllHeads{"select sum(Amount) from AdvanceTemp"};

    // Posting
    FloorStatement m_emptyDetails{"delete from MilkPaymentsDetailsTemp"};
    FloorStatement m_stageDetails{"insert into MilkPaymentsDetailsTemp select * from AdvanceTemp"};
    FloorStatement m_stageDeposit{
        "insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "values(1,?,?,?,?,?)"};
    FloorStatement m_settings{"select * from AutoSettings"};
    FloorStatement m_thev{"select * from MilkPaymentsDetailsTemp where CompanyId=1 and AdvanceType='zova'"};
    FloorStatement m_tidyDetails{"delete from MilkPaymentsDetailsTemp where CompanyId=0"};
    FloorStatement m_pay{
        "insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,Animal,"
        "Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,TotalUchal,ThevKapatCow,ThevKapatBuff,"
        "LitersCow,LitersBuff,CowAmount,BuffAmount,FixedKapat,PreviousAdvance) "
        "values(1,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_closing{"select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from "
                             "MembersMaster where CompanyId=1 and MemberNo=?"};
    FloorStatement m_moveClosing{"update MembersMaster set ClosingBalance=?,CowClosingThev=?,"
                                 "BuffClosingThev=?,ClosingUchal=? where CompanyId=1 and MemberNo=?"};
    FloorStatement m_recover{"insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
                             "Amount) values(1,?,?,?,'Uchal Kapat',?)"};
    FloorStatement m_clearNumbers{"update MilkPaymentsDetailsTemp set TranId=0"};
    FloorStatement m_keepDetails{"insert into MilkPaymentsDetails select * from MilkPaymentsDetailsTemp"};
    FloorStatement m_tidyPayments{"delete from MilkPayments where CompanyId=0"};
};
