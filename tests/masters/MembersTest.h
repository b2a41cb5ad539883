#pragma once

#include "tests/masters/MasterTest.h"

#include "masters/frmMembers.h"

// A clerk at the screen of the members.
class MembersTest : public SocietyTest {
protected:
    void Play(const std::function<void(Clerk&)>& script) { On<frmMembers>(script); }

    // A delivery, a payment, an advance, a repayment and a deduction of a member.
    void AddCollection(int number, const QString& name, double amount, int company = 1);
    void AddPayment(int number, const QString& name, double netAmount, int company = 1);
    void AddUchal(int number, double amount, int company = 1);
    void AddReceipt(int number, const QString& type, double amount, int company = 1);
    void AddDeduction(int number, const QString& type, double amount, int company = 1);

    // A voucher between two accounts.
    void AddVoucher(const QString& debit, const QString& credit, int company = 1);
};

// Begins a new member and goes through the fields of a plain one, up to the Save button.
void FillNewMember(Clerk& clerk, const QString& name, const QString& animalKey = QStringLiteral("3"));
