#include "vouchers/VoucherPanel.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Wanted.h"
#include "vouchers/frmSelectInwards.h"

namespace {

constexpr int LongestNo = 9; // digits, so that the look-up can hand the number over

}

VoucherPanel::VoucherPanel(
    Screen* screen, const VoucherKind& kind, const RecordModes& modes, const Names& names)
    : m_screen(screen)
    , MaskTranDate(screen, names.date, {this, &VoucherPanel::MaskTranDate_LostFocus})
    , txtTranNo(screen, names.number, {this, &VoucherPanel::txtTranNo_LostFocus})
    , txtMemberNo(screen, names.memberNo, {this, &VoucherPanel::txtMemberNo_LostFocus})
    , ComboMemberName(screen, names.memberName, {this, &VoucherPanel::ComboMemberName_LostFocus})
    , m_kind(kind)
    , m_modes(modes)
{
    MaskTranDate.GotFocus = [this] { OfferLookUp(); };
    ComboMemberName.OpenOnFocus();
    txtTranNo.SetMaxLength(LongestNo);
    MaskTranDate.SetGuide(Shivaji(u"idnaaMk"));
    txtTranNo.SetGuide(Shivaji(u"vha]car naMbar"));
    txtMemberNo.SetGuide(Shivaji(u"maombar naMbar"));
}

Voucher VoucherPanel::Entered(double amount) const
{
    return {&m_kind, MaskTranDate.Text(), txtTranNo.Value(), txtMemberNo.Value(),
        ComboMemberName.Text().trimmed(), amount};
}

void VoucherPanel::Clear()
{
    m_loaded.reset();
    for (Field* field :
        std::initializer_list<Field*>{&MaskTranDate, &txtTranNo, &txtMemberNo, &ComboMemberName})
        field->Clear();
}

// Which voucher

// On entering the date, when there is a voucher to be called up.
void VoucherPanel::OfferLookUp()
{
    if (!m_modes.IsModify() && !m_modes.IsDelete())
        return;
    gAppState.gReportMode = m_kind.reportMode.toString();
    gAppState.gSelectedVoucherDate = {};
    frmSelectInwards list;
    list.ShowModal();
    MaskTranDate.SelectAll(); // as on entering, for the clerk who types the day
    if (gAppState.gReportMode == u"N") {
        ShowPlain(QStringLiteral("Records Not Available"), QStringLiteral("Advance Records"));
        return;
    }
    if (!gAppState.gSelectedVoucherDate.isValid())
        return;
    MaskTranDate.SetDate(gAppState.gSelectedVoucherDate);
    txtTranNo.Show(gAppState.gSelectedVoucherNo);
    (m_modes.IsDelete() ? txtTranNo : txtMemberNo).SetFocus();
}

void VoucherPanel::MaskTranDate_LostFocus()
{
    if (!MaskTranDate.InsistOnDate(Wanted::Date())) {
        ClearDateField(MaskTranDate);
        return;
    }
    if (m_modes.IsNew())
        txtTranNo.Show(Voucher::NextNo(MaskTranDate.Text()));
    else if (!IsShown())
        CallUpByDate();
}

void VoucherPanel::CallUpByDate()
{
    std::optional<double> number;
    if (!txtTranNo.IsEmpty())
        number = txtTranNo.Value();
    if (const auto voucher = Voucher::Find(m_kind, MaskTranDate.Text(), number)) {
        Show(*voucher);
        return;
    }
    ShowNotice(Shivaji(u"roka^D- ]plabQa naahI"));
    FoundNone();
}

void VoucherPanel::txtTranNo_LostFocus()
{
    if (!m_modes.IsNew()) {
        if (!IsShown())
            CallUpByNumber();
    } else if (Voucher::IsThere(MaskTranDate.Text(), txtTranNo.Value())) {
        Refuse(txtTranNo, u"yaa vha]car naMbarcao roka^D- Agaaodrca Aaho");
    }
}

void VoucherPanel::CallUpByNumber()
{
    if (const auto voucher = Voucher::Find(m_kind, MaskTranDate.Text(), txtTranNo.Value()))
        Show(*voucher);
    else
        Refuse(txtTranNo, u"yaa vha]car naMbarcao roka^D- ]plabQa naahI");
}

// Whether the voucher of the fields is the one that was called up, so that going through them again doesn't
// undo what was changed.
bool VoucherPanel::IsShown() const
{
    return m_loaded && m_loaded->tranDate == MaskTranDate.Text() && m_loaded->tranId == txtTranNo.Value();
}

void VoucherPanel::Show(const Voucher& voucher)
{
    m_loaded = voucher;
    txtTranNo.Show(voucher.tranId);
    txtMemberNo.Show(voucher.memberNo);
    ComboMemberName.SetEntry({voucher.memberName, txtMemberNo.Text()});
    CalledUp();
}

// Whose

void VoucherPanel::txtMemberNo_LostFocus()
{
    if (txtMemberNo.IsEmpty())
        return; // the name will tell the member
    const Recordset member = MemberOfNumber(txtMemberNo.Value());
    if (member.Eof())
        Refuse(txtMemberNo, u"yaa maombar naMbarcao roka^D- ]plabQa naahI");
    else
        ShowMember(ComboMemberName, member);
}

void VoucherPanel::ComboMemberName_LostFocus()
{
    if (ComboMemberName.IsEmpty() && m_screen->IsSteppingBack())
        return;
    const Recordset member = MemberOfName(ComboMemberName, txtMemberNo.Value());
    if (member.Eof()) {
        Refuse(ComboMemberName, u"maombarcao naaMva vyavaisqat Ta[-p kra");
        return;
    }
    txtMemberNo.SetText(member[u"MemberNo"].Text());
    ShowMember(ComboMemberName, member);
}

void VoucherPanel::Refuse(Field& field, QStringView message)
{
    ShowNotice(Shivaji(message));
    field.SetFocus(Wanted::OrCancel(field.Guide()));
}
