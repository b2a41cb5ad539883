#pragma once

#include "bonus/BonusOfMember.h"
#include "bonus/BonusQuestions.h"
#include "core/preview/TemplateReport.h"
#include "platform/forms/DataGrid.h"
#include "society/SocietyScreen.h"

#include <optional>

class QStackedLayout;

// The bonus: so much for each litre of a period, worked out for a range of members, corrected member by
// member, and printed. It is a statement; no balance, voucher or payment is touched. Two panels, one at a
// time: what is asked, and the members.
class frmBonusPayments final : public SocietyScreen {
public:
    frmBonusPayments();

    static Keys::Places KeyPlaces();

private:
    BonusQuestions Frame1{this, &frmBonusPayments::cmdGo_Click};
    BonusOfMember Member{this, Frame1.txtCowBonusRate, Frame1.txtBuffBonusRate};
    Button cmdNext{this, "cmdNext", Plain(u">>"), &frmBonusPayments::cmdNext_Click};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmBonusPayments::cmdReport_Click};
    DataGrid DataGrid1;

    Panel Frame2;
    QStackedLayout* m_keys = nullptr; // the strips of keys of both
    std::optional<BonusParameters> LastRun;
    TemplateReport CrystalReport1{u"BonusPayments.rpt"};

    void Load() override;
    void Escape() override;

    void cmdGo_Click();
    void cmdNext_Click();
    void cmdReport_Click();
    void cmdReport_LostFocus();

    void Build(const BonusParameters& asked);
    void ShowMembers();
    void ShowQuestions();
    void ShowPanel(bool members);
    void SaveMember();
    void MarkMember();

    static std::vector<DataGrid::Column> BonusColumns();
    void LayOut();
    QWidget* MembersPanel();
    QWidget* Strips();
};
