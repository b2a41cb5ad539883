#pragma once

#include "bench/FloorStatement.h"

#include <string>

// The floor of a sale saved: the same reads and writes as on the screen, in prepared statements: the sale and
// the customer's litres, then the list of the shift and its sums.
class FloorSale {
public:
    struct Row {
        std::string day; // ISO
        std::string time;
        int number = 0;
        std::string customer;
        std::string animal; // of a cow
        double liters = 0;
        double fat = 0;
        double rate = 0;
        double amount = 0;
    };

    // Saves a new sale to a customer durably and reads the shift again. Returns the next number.
    double Save(const Row& row);

private:
    void Insert(const Row& row);
    void Advance(const Row& row);
    bool HasReceipt();
    void ReadList();
    void Summarise(const Row& row);

    FloorStatement m_buyer{"select CustomerNo,CustomerType from CustomersMaster where CustomerName=?"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_there{"select * from MilkSales where SalesDate=? and SalesTime=? and SalesNo=?"};
    FloorStatement m_insertBooks{
        "insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,"
        "Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) "
        "values(1,?,?,?,?,?,?,?,?,?,?,?,?,0,0,0,0)"};
    FloorStatement m_insertCopy{
        "insert into MilkSalesTemp(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,"
        "Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) "
        "values(1,?,?,?,?,?,?,?,?,?,?,?,?,0,0,0,0)"};
    FloorStatement m_litres{
        "select CowOpeningLits,CowClosinglits from CustomersMaster where CompanyId=1 and CustomerName=?"};
    FloorStatement m_advance{
        "update CustomersMaster set CowClosinglits=? where CompanyId=1 and CustomerName=?"};
    FloorStatement m_tidy{"delete from MilkSalesTemp where CompanyId=0"};
    FloorStatement m_settings{"select * from AutoSettings"};
    FloorStatement m_commit{"commit"};
    FloorStatement m_list{"select * from MilkSalesTemp"};
    FloorStatement m_summary{"select SalesType,Animal,Liters,Amount from MilkSales where CompanyId=1 and "
                             "SalesDate=? and SalesTime=?"};
    FloorStatement m_next{"select max(SalesNo) from MilkSales where SalesDate=? and SalesTime=?"};

    double m_customerNo = 0;
    std::string m_type;
};
