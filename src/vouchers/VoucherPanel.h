#pragma once

#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/MemberCombo.h"
#include "society/RecordModes.h"
#include "vouchers/Voucher.h"

#include <functional>

// Which voucher, and whose: what the panels of advances and of receipts have alike. In the modes of a change
// and of a deletion, date and number call up the voucher.
class VoucherPanel {
    Screen* m_screen;

public:
    // The fields' names, which differ from panel to panel.
    struct Names {
        const char* date;
        const char* number;
        const char* memberNo;
        const char* memberName;
    };

    VoucherPanel(Screen* screen, const VoucherKind& kind, const RecordModes& modes, const Names& names);

    DateField MaskTranDate;
    WholeField txtTranNo;
    WholeField txtMemberNo;
    MemberCombo ComboMemberName;

    // A voucher was called up: the screen shows its figures.
    std::function<void()> CalledUp;

    // There is no voucher on the date: the screen goes back to rest.
    std::function<void()> FoundNone;

    // The voucher that was called up, as the books have it.
    const std::optional<Voucher>& Loaded() const { return m_loaded; }

    // The voucher that the fields tell, for `amount` rupees.
    Voucher Entered(double amount) const;

    bool HasNumber() const { return txtTranNo.Value() != 0; }
    bool HasMember() const { return txtMemberNo.Value() != 0 && !ComboMemberName.IsEmpty(); }

    void Clear();

private:
    void MaskTranDate_LostFocus();
    void txtTranNo_LostFocus();
    void txtMemberNo_LostFocus();
    void ComboMemberName_LostFocus();

    void OfferLookUp();
    void CallUpByDate();
    void CallUpByNumber();
    void Show(const Voucher& voucher);
    bool IsShown() const;
    void Refuse(Field& field, QStringView message);

    const VoucherKind& m_kind;
    const RecordModes& m_modes;
    std::optional<Voucher> m_loaded;
};
