#pragma once

#include "collection/Deliveries.h"
#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/MemberCombo.h"
#include "society/SocietyScreen.h"

#include <optional>

// Finds a member's deliveries in a shift and prints the slip of one of them again. What a search
// finds takes the place of the shift in the copy, and stays there for the counter that has opened this
// screen.
class frmSearchCollections final : public SocietyScreen {
public:
    // What a counter hands over: the member in its line, and the shift.
    struct Handover {
        Shift shift;
        QString memberNo;
        QString memberName;
    };

    // As the menu opens it, or a counter.
    explicit frmSearchCollections(std::optional<Handover> handover = {});

    static Keys::Places KeyPlaces();

    bool TimerStart = false; // the timer of the opening has yet to tick

private:
    DateField maskDate{this, "maskDate", &frmSearchCollections::maskDate_LostFocus};
    ShiftField txtTime{this, "txtTime", &frmSearchCollections::txtTime_LostFocus};
    WholeField txtMemberNo{this, "txtMemberNo", &frmSearchCollections::txtMemberNo_LostFocus};
    MemberCombo ComboMemberName{this, "ComboMemberName", &frmSearchCollections::ComboMemberName_LostFocus};
    DataGrid DataGridInwards;
    Button cmdGo{this, "cmdGo", Plain(u"&Print"), &frmSearchCollections::cmdGo_Click};

    std::optional<Handover> m_handover;
    TemplateReport CRMilkReceipt;

    void Load() override;

    void TimerStart_Timer();
    void maskDate_GotFocus();
    void maskDate_LostFocus();
    void txtTime_GotFocus();
    void txtTime_LostFocus();
    void txtMemberNo_LostFocus();
    void ComboMemberName_LostFocus();
    void cmdGo_Click();

    void LayOut();
    QWidget* Question();

    void EnableMember(bool enabled);
    void EnableFound(bool enabled);
    void ForgetFound();
    void Search();
    bool StageReprint(double number);
    void ChooseTemplate();
};
