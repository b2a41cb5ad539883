#pragma once

#include "masters/MemberClosing.h"
#include "platform/database/Recordset.h"

// A member as MembersMaster holds them, and what saving and deleting one does to the other tables, most of
// which know members by name. The caller opens the transaction.
struct MemberRecord {
    double memberNo = 0;
    QString memberName;
    double accountId = 0;
    QString address;
    QString city;
    QString animal;
    QString paymentType;
    QString bankName;
    QString bankAccountNo;

    // Balances are absolute values; the word says which way they go.
    double openingBalance = 0; // rupees
    QString openingDirection = Direction::Payable.toString();
    double closingBalance = 0;
    QString closingDirection;

    double cowOpeningLits = 0;
    double cowClosingLits = 0;
    double buffOpeningLits = 0;
    double buffClosingLits = 0;
    double openingUchal = 0; // rupees, like the deposits below
    double closingUchal = 0;
    double cowOpeningThev = 0;
    double cowClosingThev = 0;
    double buffOpeningThev = 0;
    double buffClosingThev = 0;

    MemberRecord() = default;

    // From a row of MembersMaster; Null is an empty text, or 0.
    explicit MemberRecord(const Recordset& row);

    // Adds the row to the selected company, or changes its row of this number.
    void Insert() const;
    void Update() const;

    // Replaces the old name by this one in the other tables, in every company.
    void RenameEverywhere(const QString& oldName) const;

    // Deletes the member and all their entries in the selected company: vouchers by name, the rest by number.
    static void DeleteEverywhere(double memberNo, const QString& name);
};
