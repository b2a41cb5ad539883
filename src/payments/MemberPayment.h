#pragma once

#include "payments/DeductionHeads.h"
#include "payments/ExtraRate.h"
#include "payments/PaymentDays.h"
#include "payments/PaymentFigures.h"
#include "payments/PaymentPosting.h"

// The payment of one member for one period: it is worked out, written, looked up and taken back in these
// fields, by the clerk or by the run over many members.
class MemberPayment {
    Screen* m_screen;

public:
    // What of the screen it uses. The lists, of DeliveryColumns and HeadColumns, stand behind the buttons in
    // tab order.
    struct Beside {
        const CheckBox& installments;
        ExtraRate& extra;
        DataGrid& deliveries;
        DataGrid& heads;
    };

    // The number's LostFocus is the screen's.
    MemberPayment(Screen* screen, const Beside& beside, const Handler& memberNoLostFocus);

    static std::vector<DataGrid::Column> DeliveryColumns();

    PaymentDays Days{m_screen};
    NumberField txtMemberNo;
    TextField ComboMemberName{m_screen, "ComboMemberName"};
    PaymentFigures Figures;
    DeductionHeads Heads;
    PaymentPosting Posting{{Days, txtMemberNo, ComboMemberName, Figures}};

    bool PaymentSkip = false; // there is nothing to pay

    // Looks the member of the number up and shows his name; false if there is none.
    bool FindMember();

    // Works everything out for the member and the period. If there is nothing to pay, it says why.
    void ComputeMemberPeriod();

    // The two halves of it, for the run over many members: whether the period isn't paid for yet, which is
    // said, and all the rest, which says nothing.
    bool InsistOnUnpaid();
    void WorkOut();

    // Whether the figures were worked out for what stands in the dates and the number now.
    bool IsWorkedOut() const;

    // Shows the payment of exactly this member and period. If there is none, or a later one, it says so and
    // returns false.
    bool LoadPayment();

    // Shows the deliveries of the period, or none.
    void ShowDeliveries();

    void Clear();

    // The days and the member in a row.
    QLayout* Row();

private:
    DataGrid& m_deliveries;

    PaymentOf Of() const;
    bool IsLatest(const Recordset& payment) const;
    void CopyDeliveries(const PaymentOf& of);
    void ListShortMember();

    QStringList What() const;
    QStringList m_workedOut;
};
