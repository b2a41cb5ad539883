#pragma once

#include "tests/support/SocietyTest.h"

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

// The keys that type a stored text; signs that stand for Shift, Ctrl and Alt are typed as themselves.
QString Typed(const QString& stored);

// Types `keys`, and Enter after each.
void TypeEach(Clerk& clerk, const QStringList& keys);

// Begins a new member and goes through the fields of a plain one, up to the Save button.
void FillNewMember(Clerk& clerk, const QString& name, const QString& animalKey = QStringLiteral("3"));

// Opens the mode of Modify and calls up a member by number; the focus is on the name.
void CallUp(Clerk& clerk, int number);

// Goes to a field with the mouse and selects what is in it.
void GoTo(Clerk& clerk, const QString& field);

// Answers a notice that is expected on top.
void GoOn(Clerk& clerk, const QString& expected);
