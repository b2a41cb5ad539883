#pragma once

#include "bench/FloorStatement.h"

#include <string>

// The floor of a bonus with the advances taken off: the same reads and writes for each member, in prepared
// statements and one durable transaction, and the rows read again for the list.
class FloorBonus {
public:
    // The days are ISO.
    FloorBonus(std::string from, std::string to, double cowRate, double buffRate);

    void Build(int members);

private:
    void Add(int serialNo, int members);
    void ReadList();

    const std::string m_from;
    const std::string m_to;
    const double m_cowRate; // rupees a litre
    const double m_buffRate;

    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    FloorStatement m_empty{"delete from BonusPayments"};
    FloorStatement m_members{"select * from MembersMaster where CompanyId=1 and MemberNo>=? and MemberNo<=? "
                             "order by MemberNo"};
    FloorStatement m_litres{"select sum(Liters) from MilkCollections where CollectionDate>=? and "
                            "CollectionDate<=? and MemberNo=? and Animal=?"};
    FloorStatement m_given{"select sum(Amount) from TransactionsMaster where CompanyId=1 and DAccountName=? "
                           "and Narration=']cala idlaI.' and TranDate>=? and TranDate<=?"};
    FloorStatement m_received{"select sum(Amount) from AdvanceReceipt where CompanyId=1 and TranDate>? and "
                              "TranDate<=? and MemberNo=?"};
    FloorStatement m_insert{
        "insert into BonusPayments(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,"
        "BuffBonusRate,SerialNo,MemberNo,MemberName,CurrentCowLiters,CurrentBuffLiters,TotalCowLiters,"
        "TotalBuffLiters,TotalCowBonus,TotalBuffBonus,TotalBonus,Advance) "
        "values(1,?,?,1,?,'daonhI',?,?,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_tidy{"delete from BonusPayments where SerialNo=0"};
    FloorStatement m_list{"select * from BonusPayments"};
};
