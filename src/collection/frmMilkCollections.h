#pragma once

#include "collection/CounterScreen.h"
#include "collection/MemberFrame.h"

class QStackedLayout;

// The counter of the society. F7 on a member's number lays a frame over the list of the shift, in which a
// member's own collection over a period is shown with its sums.
class frmMilkCollections final : public CounterScreen {
public:
    frmMilkCollections();

    static Keys::Places KeyPlaces();

private:
    MemberFrame Frame{this};
    QStackedLayout* m_views = nullptr; // the list of the shift, and the frame over it
    QStackedLayout* m_keys = nullptr; // the strips of keys of both

    void Load() override;
    void Escape() override;
    void MembersShown() override;

    void ShowMemberFrame();
    void LeaveMemberFrame();
    void Command2_Click();

    void ListNames();
    void ShowView(int view);

    QLayout* Views();
    QWidget* KeyStrips();
    QWidget* ShiftView();
};
