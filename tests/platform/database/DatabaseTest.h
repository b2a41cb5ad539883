#pragma once

#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sqlcipher/sqlite3.h>

inline const QString TestPassword = QStringLiteral("dUQa;p'w\"d=1");

// The tables that the statements of the counter, the masters, the menu and the rate charts name.
inline const char* const TestTables = R"sql(
create table CompanyMaster(CompanyId INTEGER, FromDate DATE);
create table CompanySelected(CompanyId INTEGER, CompanyName TEXT, AccountingYear TEXT, FromDate DATE,
    ToDate DATE,
    BstNo TEXT, CostCenter INTEGER);
create table AutoSettings(CompanyId INTEGER, AutoLiters TEXT, AutoFat TEXT, CanLimitCow TEXT,
    CanLimitBuff TEXT,
    RepeatCollection TEXT, PaymentDuration TEXT, PurchaseEntry TEXT, WeighScale TEXT, FatRateType TEXT,
    BasicCowRate REAL, BasicBuffRate REAL, ShowTransportCharges TEXT);
create table MenuAccessTable(MenuName TEXT, AccessYesNo INTEGER);
create table PortTable(LComPortNo INTEGER, LSetting TEXT);
create table CityMaster(CompanyId INTEGER, CityName TEXT);
create table BankMaster(CompanyId INTEGER, BankName TEXT);
create table MembersMaster(CompanyId INTEGER, MemberNo INTEGER, MemberName TEXT, AccountId INTEGER,
    Address TEXT,
    City TEXT, Animal TEXT, PaymentType TEXT, BankName TEXT, BankAccountNo TEXT, OpeningBalance REAL,
    OpeningDorC TEXT, ClosingBalance REAL, ClosingDorC TEXT, CowOpeningThev REAL, CowClosingThev REAL,
    BuffOpeningThev REAL, BuffClosingThev REAL, OpeningUchal REAL, ClosingUchal REAL, CowOpeningLits REAL,
    CowClosingLits REAL, BuffOpeningLits REAL, BuffClosingLits REAL);
create table FatDates(FromDate DATE, FatFileName TEXT);
create table FatRates(Fat REAL, CowRate REAL, BuffRate REAL);
create table MilkCollections(CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT,
    CollectionNo INTEGER,
    MemberNo INTEGER, MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    TranId INTEGER,
    ActualCollectionTime TEXT, SNF REAL);
create index MilkCollectionsByShift on MilkCollections(CollectionDate, CollectionTime, CollectionNo);
create table MilkCollectionsTemp(CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT,
    CollectionNo INTEGER,
    MemberNo INTEGER, MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    TranId INTEGER,
    ActualCollectionTime TEXT, SNF REAL);
create table MilkReceipt(CompanyId INTEGER, CollectionDate DATE, CollectionTime TEXT, CollectionNo INTEGER,
    MemberNo INTEGER, MemberName TEXT, Animal TEXT, Liters REAL, Fat REAL, Rate REAL, Amount REAL,
    ActualCollectionTime TEXT);
create view MRView as select CompanyId, CollectionDate, CollectionTime, CollectionNo, MemberNo, MemberName,
    Animal,
    Liters, Fat, Rate, Amount, ActualCollectionTime from MilkCollections;
create table MilkPayments(CompanyId INTEGER, FromDate DATE, ToDate DATE, PaymentDate DATE, TranId INTEGER,
    MemberNo INTEGER, MemberName TEXT, Amount REAL, NetAmount REAL);
create table MilkPaymentsDetails(CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER,
    AdvanceType TEXT, Amount REAL);
create table TransactionsMaster(CompanyId INTEGER, TranDate DATE, TranId INTEGER, TranType TEXT,
    DAccountName TEXT,
    CAccountName TEXT, Amount REAL, BillNo TEXT, Narration TEXT, RsInWords TEXT, Printname TEXT);
create table TransactionsDetails(CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER,
    AdvanceType TEXT, Amount REAL);
create table AdvanceReceipt(CompanyId INTEGER, TranDate DATE, TranId INTEGER, MemberNo INTEGER,
    AdvanceType TEXT,
    Amount REAL);
create table MilkSales(CompanyId INTEGER, SalesDate DATE, SalesTime TEXT, SalesNo INTEGER, CustomerName TEXT,
    Animal TEXT, Liters REAL);
)sql";

// A fresh, encrypted database for each test.
class DatabaseTest : public ::testing::Test {
protected:
    DatabaseTest()
    {
        connection.Create(file, TestPassword);
        connection.RunScript(QString::fromUtf8(TestTables));
        DataSource::Register("VetrolanDSN", file);
    }

    int Run(const char* statement) { return connection.Execute(QString::fromUtf8(statement)); }

    Recordset Rows(const char* query) { return Recordset(connection, QString::fromUtf8(query)); }

    // The text of the first column of the first row.
    QString One(const char* query) { return Rows(query).At(0).Text(); }

    // The number of the error that the statement ends in, or 0.
    int ErrorOf(const QString& statement)
    {
        try {
            connection.Execute(statement);
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }
    int ErrorOf(const char* statement) { return ErrorOf(QString::fromUtf8(statement)); }

    void Open(const QString& password = TestPassword)
    {
        connection.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + password);
    }

    QTemporaryDir folder;
    QString file = folder.filePath("Morvelta.mdb");
    Connection connection;
};

// Whether the engine finds every page of the open file in order.
inline bool IsSound(const Connection& connection)
{
    sqlite3_stmt* check = nullptr;
    sqlite3_prepare_v2(connection.Handle(), "pragma integrity_check", -1, &check, nullptr);
    const bool isSound = sqlite3_step(check) == SQLITE_ROW
        && qstrcmp(reinterpret_cast<const char*>(sqlite3_column_text(check, 0)), "ok") == 0;
    sqlite3_finalize(check);
    return isSound;
}
