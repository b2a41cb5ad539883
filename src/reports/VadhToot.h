#pragma once

#include <QDate>
#include <QStringList>

// Stages what the members brought and what was sold, a row for each day, shift and animal of a range. The
// milk of every company counts; the rows are the selected company's.
namespace VadhToot {

// The names of the federation among the customers, as they are stored; there is room for the first eleven.
QStringList FederationCustomers();

// In litres; what these customers bought went to the federation, all else was sold locally.
void StageLiters(const QDate& from, const QDate& to, const QStringList& federationCustomers);

// In rupees; here the federation is the customer by the name of its ledger account.
void StageAmounts(const QDate& from, const QDate& to);

}
