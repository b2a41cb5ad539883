#pragma once

#include "bench/FloorStatement.h"

#include <array>
#include <string>
#include <vector>

// The row of KapatSummary of a payment, for the floors of slips and registers.
class FloorSummary {
public:
    // Reads the heads.
    void Begin();

    void Stage(int member, const std::string& from, const std::string& to);

private:
    std::vector<std::pair<std::string, double>> m_heads; // with their type

    FloorStatement m_types{"select * from UchalTypes where CompanyId=1"};
    FloorStatement m_details{
        "select * from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate>=? and TranDate<=?"};
    FloorStatement m_insert{"insert into KapatSummary(CompanyId,MemberNo,Other,Uchal,Khadya,Kirana) "
                            "values(1,?,?,?,?,?)"};
};

// The floor of the pay slips of all members: the same reads and writes of the staging tables, in prepared
// statements and one durable transaction, for members who were paid once on the date.
class FloorSlips {
public:
    // The days are ISO and in one month; `to` is the date of the payment. `yearBegins` is the first day of
    // the accounting year.
    FloorSlips(std::string from, std::string to, std::string yearBegins);

    void Stage(int members);

private:
    struct Payment {
        int member = 0;
        std::string name;
        std::string from, to;
        double litresCow = 0;
        double litresBuff = 0;
    };
    struct Delivery {
        bool isThere = false;
        double litres = 0, fat = 0, rate = 0, amount = 0;
    };
    // By day, animal and shift.
    using Days = std::vector<std::array<std::array<Delivery, 2>, 2>>;

    std::vector<Payment> ReadPayments();
    Days ReadDays(const Payment& payment);
    void StageDays(const Payment& payment);
    void StageKapat(const Payment& payment);
    double PreviousBalance(int member, double previousAdvance);
    void LookAtDays(const Payment& payment);
    void StageDeposit(const Payment& payment);
    std::string DayAt(std::size_t at) const;

    const std::string m_from;
    const std::string m_to;
    const std::string m_yearBegins;
    int m_dayCount = 0;
    FloorSummary m_summary;

    FloorStatement m_onDate{"select * from MilkPayments where CompanyId=1 and PaymentDate=?"};
    FloorStatement m_any{"select * from MilkPayments where CompanyId=1 and PaymentDate=? and MemberNo>=? and "
                         "MemberNo<=?"};
    FloorStatement m_settings{"select * from AutoSettings"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    std::array<FloorStatement, 5> m_empty{FloorStatement("delete from MilkPaymentsTemp"),
        FloorStatement("delete from MilkCollectionsTemp"), FloorStatement("delete from MilkCollectionsME"),
        FloorStatement("delete from KapatSummary"), FloorStatement("delete from KapatDetails")};
    FloorStatement m_copyPayments{"insert into MilkPaymentsTemp select * from MilkPayments where CompanyId=1 "
                                  "and PaymentDate=? and MemberNo>=? and MemberNo<=?"};
    FloorStatement m_payments{
        "select MemberNo,MemberName,FromDate,ToDate,LitersCow,LitersBuff from MilkPaymentsTemp order by "
        "MemberNo"};
    FloorStatement m_company{"select * from CompanyMaster where CompanyId=1"};
    FloorStatement m_copyMilk{
        "insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and "
        "CollectionDate>=? and CollectionDate<=? and +MemberNo>=? and +MemberNo<=?"};

    FloorStatement m_milk{
        "select CollectionDate,CollectionTime,CollectionNo,Animal,Liters,Fat,Rate,Amount from "
        "MilkCollectionsTemp where CompanyId=1 and MemberNo=? order by CollectionNo"};
    FloorStatement m_line{
        "insert into MilkCollectionsME(CompanyId,CollectionDate,MemberNo,MemberName,Animal,LitersM,FatM,"
        "RateM,AmountM,LitersE,FatE,RateE,AmountE) values(1,?,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_payment{
        "select FixedKapat,PreviousAdvance from MilkPayments where PaymentDate=? and MemberNo=?"};
    FloorStatement m_receipts{"select Amount from AdvanceReceipt where TranDate>=? and TranDate<=? and "
                              "MemberNo=? and AdvanceType='Uchal Receipt'"};
    FloorStatement m_details{
        "select AdvanceType,Amount from MilkPaymentsDetails where TranDate=? and MemberNo=?"};
    FloorStatement m_kapat{"insert into KapatDetails(CompanyId,MemberNo,CollectionDate,Label1,Value1) "
                           "values(1,?,?,?,?)"};
    FloorStatement m_daysOf{
        "select CollectionDate from MilkCollectionsME where CompanyId=1 and MemberNo=? and Animal=?"};
    FloorStatement m_depositBefore{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate>=? and "
        "TranDate<? and (trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')"};
    FloorStatement m_depositOn{
        "select sum(Amount) from MilkPaymentsDetails where CompanyId=1 and MemberNo=? and TranDate=? and "
        "(trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')"};
    FloorStatement m_setDeposit{
        "update KapatSummary set PrevThev=?,CurrentThev=?,BalThev=? where CompanyId=1 "
        "and MemberNo=?"};
    FloorStatement m_removeAnimal{"delete from MilkCollectionsME where CollectionDate>=? and "
                                  "CollectionDate<=? and MemberNo=? and Animal=?"};
};
