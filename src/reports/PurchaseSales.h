#pragma once

#include <QDate>

class StagingProgress;
struct MilkBooks;

// Stages what was bought and sold in some days, both included.
namespace PurchaseSales {

// What the accounts say, a row for each day, into LedgersMaster: sales on the credit side, purchases on the
// debit side.
void StageAccounts(const QDate& from, const QDate& to, StagingProgress& progress);

// The deliveries or the sales themselves, into their working copy.
void StageMilk(const MilkBooks& books, const QDate& from, const QDate& to);

}
