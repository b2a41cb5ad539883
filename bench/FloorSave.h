#pragma once

#include "bench/FloorStatement.h"

#include <string>

// The floor of a save: the same reads and writes as at the counter, in prepared statements: the delivery and
// its slip, then the list of the shift and its totals.
class FloorSave {
public:
    struct Row {
        std::string day; // ISO
        std::string time;
        int number = 0;
        int memberNo = 0;
        std::string memberName;
        std::string animal;
        double liters = 0;
        double fat = 0;
        double rate = 0;
        double amount = 0;
        std::string actualTime;
    };

    // Saves a new row durably and reads the shift again. Returns the next collection number.
    double Save(const Row& row);

private:
    bool IsSetting(FloorStatement& settings, int column, std::string_view value);
    void Post(const Row& row);
    void RefreshLitres(const Row& row);
    void StageReceipt(const Row& row);
    void ReadList();
    double WalkCopy();

    FloorStatement m_settings{"select * from AutoSettings"};
    FloorStatement m_second{"select * from MilkCollectionsTemp where CollectionDate=? and CollectionTime=? "
                            "and CollectionNo<>? and MemberNo=? and trim(Animal)=?"};
    FloorStatement m_there{"select * from MilkCollectionsTemp where CollectionDate=? and CollectionTime=? "
                           "and CollectionNo=?"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_insertBooks{
        "insert into MilkCollections (CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
        "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
        "values (1,?,?,?,?,?,?,?,?,?,?,0,?)"};
    FloorStatement m_insertCopy{
        "insert into MilkCollectionsTemp (CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
        "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
        "values (1,?,?,?,?,?,?,?,?,?,?,0,?)"};
    FloorStatement m_balance{"select * from MembersMaster where CompanyId=1 and trim(MemberName)=?"};
    FloorStatement m_post{"update MembersMaster set ClosingBalance=?,ClosingDorC=? "
                          "where CompanyId=1 and trim(MemberName)=?"};
    FloorStatement m_opening{
        "select CowOpeningLits,BuffOpeningLits from MembersMaster where CompanyId=1 and MemberNo=?"};
    FloorStatement m_sum{
        "select sum(Liters) from MilkCollections where CompanyId=1 and Animal=? and MemberNo=?"};
    FloorStatement m_litres{"update MembersMaster set CowClosingLits=?,BuffClosingLits=? "
                            "where CompanyId=1 and MemberNo=?"};
    FloorStatement m_tidy{"delete from MilkCollectionsTemp where CollectionNo=0"};
    FloorStatement m_emptyReceipt{"delete from MilkReceipt"};
    FloorStatement m_stage{
        "insert into MilkReceipt (CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
        "Animal,Liters,Fat,Rate,Amount,ActualCollectionTime) values (1,?,?,?,?,?,?,?,?,?,?,?)"};
    FloorStatement m_commit{"commit"};
    FloorStatement m_list{"select * from MilkCollectionsTemp order by CollectionNo desc"};
    FloorStatement m_copy{"select * from MilkCollectionsTemp where CompanyId=1"};
    FloorStatement m_next{
        "select max(CollectionNo) from MilkCollectionsTemp where CollectionDate=? and CollectionTime=?"};
};
