#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/NameCombo.h"
#include "reports/StagingProgress.h"
#include "reports/TransactionDays.h"
#include "society/SocietyScreen.h"

// The ledger of the cash account or of a bank, or the sales to an account of the federation beside the
// society's own measure; gReportMode tells which, "C", "B" or "V", when the screen is made. Without a word
// that it knows it is the cash book.
class frmReportCashBook final : public SocietyScreen {
public:
    frmReportCashBook();

    static Keys::Places KeyPlaces();

private:
    enum class Mode { C, B, V };
    static Mode ModeOf(QStringView word);
    static Caption TitleOf(Mode mode);
    static Keys::Places KeysOf(Mode mode);

    explicit frmReportCashBook(Mode mode);

    const Mode m_mode;

    TransactionDays Days{this};
    NameCombo ComboAccountName{this, "ComboAccountName", &frmReportCashBook::ComboAccountName_LostFocus};
    TextField txtAccountName{this, "txtAccountName"}; // whose ledger it is
    Button cmdPrint{this, "cmdPrint", Shivaji(u"&irpaoT-"), &frmReportCashBook::cmdPrint_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportCashBook::cmdExit_Click};

    StagingProgress Staging{this};
    TemplateReport CRCashBook;

    void Load() override;

    void ComboAccountName_LostFocus();
    void cmdPrint_Click();

    bool Stage();
    bool StageLedger();
    bool StageComparison();
    QStringView Template() const;
    QString Account() const;
    void LayOut();
};
