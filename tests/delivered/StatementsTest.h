#pragma once

#include "platform/database/Connection.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <string>
#include <vector>

// Rows as they are read, a text each, the fields separated by '|'; "null" where nothing stands.
using Lines = std::vector<std::string>;

// The books as a new society gets them, and the system's statements on them, worded as the screens and the
// reports word them: each runs, and what it answers or leaves behind is looked at.
class StatementsTest : public ::testing::Test {
protected:
    StatementsTest();

    // Runs a statement that answers no rows, and returns how many rows it changed.
    int Run(const std::string& statement);

    Lines Rows(const std::string& query);

    // The only line of a query; an error of the test if there are none or more.
    std::string Row(const std::string& query);

    int Count(const std::string& table) { return static_cast<int>(Rows("select * from " + table).size()); }

    // A member with a name, an animal, and figures that all differ: opening balance 101, closing balance 102,
    // deposits 103 to 106, advance 107 and 108, litres 109 to 112.
    void AddMember(int company, int number, const std::string& name, const std::string& animal = "daonhI");

    // A delivery at fat 4.5 and rate 30.
    void AddDelivery(int company, const std::string& day, const std::string& shift, int number, int member,
        const std::string& name, const std::string& animal, double liters, double amount);

    void AddSale(int company, const std::string& day, const std::string& shift, const std::string& type,
        int number, int customer, const std::string& name, const std::string& animal, double liters,
        double amount);

    // A payment of a period: amount 1000, deductions 150 with 20 and 30 of deposit in them.
    void AddPayment(int company, const std::string& from, const std::string& to, const std::string& paid,
        int number, int member, const std::string& name);

    // A row of one of the tables of advances and deductions, which have the same columns.
    void AddHead(const std::string& table, int company, const std::string& day, int number, int member,
        const std::string& type, double amount);

    void AddVoucher(int company, const std::string& day, int number, const std::string& type,
        const std::string& debit, const std::string& credit, double amount, const std::string& bill,
        const std::string& narration);

    // The society's name as it is stored.
    std::string SocietyName;

private:
    QTemporaryDir m_folder;
    Connection m_connection;
};
