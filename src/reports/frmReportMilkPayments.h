#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "reports/MemberRange.h"
#include "reports/StagingProgress.h"
#include "society/SocietyScreen.h"

// The pay slips of a payment date, one for each member of a range.
class frmReportMilkPayments final : public SocietyScreen {
public:
    frmReportMilkPayments();

    static Keys::Places KeyPlaces();

private:
    DateField MaskUserDate{this, "MaskUserDate", &frmReportMilkPayments::MaskUserDate_LostFocus};
    MemberRange Members{this};
    Button CmdReport{this, "CmdReport", Shivaji(u"&irpaoT-"), &frmReportMilkPayments::CmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMilkPayments::cmdExit_Click};

    StagingProgress Staging{this};
    TemplateReport CRMilkPayments;

    QDate FromDate, ToDate; // the period that was paid on the date

    void MaskUserDate_LostFocus();
    void CmdReport_Click();

    bool HoldPaymentDate();
    void PrintSlips();
    void LayOut();
};
