#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/OptionButton.h"
#include "reports/MemberRange.h"
#include "reports/StagingProgress.h"
#include "society/SocietyScreen.h"

// Six lists of payments, deposits and advances; gReportMode tells which, when the screen is made. Without a
// word that it knows it is the payment register.
class frmReportMilkPaymentsRegister final : public SocietyScreen {
public:
    frmReportMilkPaymentsRegister();

    static Keys::Places KeyPlaces();

private:
    enum class Mode { PR, TR, UR, UD, UchalBalanceStatement, ThevBalanceStatement };
    static Mode ModeOf(QStringView word);
    static Caption TitleOf(Mode mode);
    static Keys::Places KeysOf(Mode mode);

    explicit frmReportMilkPaymentsRegister(Mode mode);

    const Mode m_mode;

    DateField maskFromDate{this, "maskFromDate", &frmReportMilkPaymentsRegister::maskFromDate_LostFocus};
    DateField maskToDate{this, "maskToDate", &frmReportMilkPaymentsRegister::maskToDate_LostFocus};
    MemberRange Members{this};
    OptionButton OptionPT{this, "OptionPT", Shivaji(u"paoT/o-T")};
    OptionButton OptionLS{this, "OptionLS", Shivaji(u"la^nDskop")};
    OptionGroup shape{&OptionPT, &OptionLS};
    Button cmdReport{
        this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportMilkPaymentsRegister::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMilkPaymentsRegister::cmdExit_Click};

    StagingProgress Staging{this};
    TemplateReport CRMilkPaymentsRegister;

    void Load() override;

    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void cmdReport_Click();

    bool IsRegister() const;
    bool IsBalance() const;
    bool StageRegister();
    bool StageBalances();
    bool Stage();
    QStringView Template() const;
    void LayOut();
};
