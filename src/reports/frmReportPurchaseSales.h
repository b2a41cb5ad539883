#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "reports/StagingProgress.h"
#include "reports/TransactionDays.h"
#include "society/SocietyScreen.h"

// What was bought and sold in a range of days; gReportMode tells in which form, when the screen is made: "PS"
// the totals of each day by the accounts, "MP" the deliveries, "MS" the sales. Without a word that it knows
// it is the first.
class frmReportPurchaseSales final : public SocietyScreen {
public:
    frmReportPurchaseSales();

    static Keys::Places KeyPlaces();

private:
    enum class Mode { PS, MP, MS };
    static Mode ModeOf(QStringView word);
    static Caption TitleOf(Mode mode);

    explicit frmReportPurchaseSales(Mode mode);

    const Mode m_mode;

    TransactionDays Days{this};
    Button cmdPrint{this, "cmdPrint", Shivaji(u"&irpaoT-"), &frmReportPurchaseSales::cmdPrint_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportPurchaseSales::cmdExit_Click};

    StagingProgress Staging{this};
    TemplateReport CRPurchaseSales;

    void cmdPrint_Click();

    void Stage();
    QStringView Template() const;
    void LayOut();
};
