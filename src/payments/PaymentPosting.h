#pragma once

#include "payments/DeductionHeads.h"
#include "payments/PaymentDays.h"
#include "payments/PaymentFigures.h"
#include "platform/forms/TextField.h"

// How a payment is made: one member's, with a question before it is written, or among those of many members.
enum class PaymentMode { Single, Multiple };

// Writes the payment that the fields show, and takes one back.
class PaymentPosting {
public:
    struct Fields {
        PaymentDays& days;
        NumberField& memberNo;
        TextField& memberName;
        PaymentFigures& figures;
    };

    explicit PaymentPosting(const Fields& fields);

    // Writes the payment to all its tables, whole or not at all. Nothing is written if the clerk says no.
    void PostPayment(PaymentMode mode);

    // Takes the payment that the fields show out of the books.
    void ReversePayment();

private:
    enum class Direction { Add, Del };

    void StageDetails();
    void StageDeposit(QStringView type, const NumberField& deposit);
    void ApplyPaiseRule();
    void PutPaiseToDeposit(double paise);
    void WritePayment();
    void MoveMemberClosing(Direction direction);
    void WriteRecovery();
    PaymentOf Of() const;

    PaymentDays& m_days;
    NumberField& m_memberNo;
    TextField& m_memberName;
    PaymentFigures& m_figures;

    // What stays owed after a payment. One that clears the whole debt leaves, and writes, the figure of the
    // payment before it.
    double m_currentBalance = 0;
};
