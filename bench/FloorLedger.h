#pragma once

#include "bench/FloorStatement.h"

#include <string>
#include <string_view>

// The floor of a ledger: the same reads and writes of the staging table, in prepared statements and one
// durable transaction. Amounts are exact to four decimals.
class FloorLedger {
public:
    // The days are ISO.
    FloorLedger(std::string account, std::string from, std::string to);

    void Stage();

private:
    void Take(FloorStatement& row);
    void StageLine();
    void BeginDay();
    std::string_view Side() const { return m_balance > 0 ? "C" : "D"; }

    const std::string m_account;
    const std::string m_from;
    const std::string m_to;

    // In ten-thousandths of a rupee; the balance is below nought on the debit side.
    long long m_balance = 0;
    long long m_debits = 0;
    long long m_credits = 0;
    std::string m_day;

    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    FloorStatement m_opening{"select * from AccountsMaster where CompanyId=1 and AccountName=?"};
    FloorStatement m_years{"select sum(Entries),sum(Amount) from AccountYearSums where CompanyId=1 and "
                           "AccountName=? and Year<?"};
    FloorStatement m_before{"select * from TransactionsMaster where CompanyId=1 and (trim(DAccountName)=? or "
                            "trim(CAccountName)=?) and TranDate>=? and TranDate<? order by TranDate,TranId"};
    FloorStatement m_empty{"delete from LedgersMaster"};
    FloorStatement m_rows{"select * from TransactionsMaster where CompanyId=1 and (trim(DAccountName)=? or "
                          "trim(CAccountName)=?) and TranDate>=? and TranDate<=? order by TranDate,TranId"};
    FloorStatement m_insert{
        "insert into LedgersMaster(LedgerName,FromDate,ToDate,CompanyId,TranDate,TranId,TranType,AccountName,"
        "DAmount,CAmount,Narration,Narration2,Narration3,OpeningBalance,OpeningDorC,ClosingBalance,"
        "ClosingDorC,Total) values(?,?,?,1,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_tidy{"delete from LedgersMaster where DAmount=0 and CAmount=0"};
};
