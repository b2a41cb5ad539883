#pragma once

#include "bench/FloorStatement.h"

#include <array>
#include <map>
#include <string>
#include <vector>

// The floor of the gain and loss statement in litres: the same reads and writes of the staging tables, in
// prepared statements and one durable transaction.
class FloorVadhToot {
public:
    // `days` are all days of the range, ISO.
    explicit FloorVadhToot(std::vector<std::string> days);

    void Stage();

private:
    using Day = std::array<double, 4>; // by shift and animal

    void ReadMilk();
    void StageDay(const std::string& day);

    const std::vector<std::string> m_days;
    std::string m_name; // of the federation
    std::map<std::string, Day> m_in;

    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_commit{"commit"};
    std::array<FloorStatement, 2> m_empty{
        FloorStatement("delete from VadhTootReport"), FloorStatement("delete from ReportDates")};
    FloorStatement m_dates{"insert into ReportDates(CompanyId,FromDate,ToDate) values(1,?,?)"};
    FloorStatement m_federation{
        "select * from CustomersMaster where CompanyId=1 and trim(CustomerType)='saMGa ivaËI'"};
    FloorStatement m_milk{
        "select CollectionDate,trim(CollectionTime),sum(case when trim(Animal)='gaaya' then Liters end),"
        "sum(case when trim(Animal)='mhOsa' then Liters end) from MilkCollections where CollectionDate>=? "
        "and "
        "CollectionDate<=? group by CollectionDate,CollectionTime"};
    FloorStatement m_toFederation{"select sum(Liters) from MilkSales where SalesDate=? and trim(SalesTime)=? "
                                  "and trim(Animal)=? and trim(CustomerName)=?"};
    FloorStatement m_out{
        "select sum(Liters) from MilkSales where SalesDate=? and trim(SalesTime)=? and trim(Animal)=?"};
    FloorStatement m_our{
        "select sum(OurLiters) from MilkSales where SalesDate=? and trim(SalesTime)=? and trim(Animal)=?"};
    FloorStatement m_insert{
        "insert into VadhTootReport(CompanyId,CollectionDate,CollectionTime,Animal,"
        "LitersIn,LitersLocal,LitersSangh,LitersOut,OurLiters) values(1,?,?,?,?,?,?,?,?)"};
    FloorStatement m_tidy{"delete from VadhTootReport where CompanyId=0"};
};
