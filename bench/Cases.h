#pragma once

#include <QString>

// Registers the cases of each subject. `drives` is the folder of the society's drives.

void RegisterCounterCases(const QString& drives); // leaving the fat, opening a shift
void RegisterSaveCases(const QString& drives);
void RegisterListCases(const QString& drives); // a long list after a write
void RegisterPaymentCases(const QString& drives); // one member's, and all members' in one run
void RegisterRatesCases(const QString& drives); // deliveries priced anew
void RegisterStatementCases(const QString& drives);
void RegisterReportCases(const QString& drives);
void RegisterSlipsCases(const QString& drives); // pay slips and registers
void RegisterVoucherCases(const QString& drives); // the look-up of many vouchers
void RegisterProgramCases(const QString& drives); // start to menu, memory, a shift with slips
void RegisterSalesCases(const QString& drives);
void RegisterBonusCases(const QString& drives);
void RegisterVadhTootCases(const QString& drives); // the gain and loss statement
void RegisterLedgerCases(const QString& drives); // the cash book
void RegisterBackupCases(const QString& drives);
