#include "vouchers/frmUchalVouchers.h"

#include "core/menu/CommonKeys.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"
#include "society/Wanted.h"
#include "vouchers/MemberVoucherBalance.h"
#include "vouchers/VoucherHeads.h"
#include "vouchers/VoucherPrint.h"

namespace {

constexpr QStringView IdleTitle = u"  ]cala naaoMd";
constexpr int LongestAmount = 13; // 9999999999.99

// What goes onto a member's balances: a receipt counts against an advance.
double SignedAmount(const Voucher& voucher)
{
    return voucher.IsReceipt() ? -voucher.amount : voucher.amount;
}

// Credit sales count as advances, so that no other head is entered by hand.
bool IsForSales()
{
    return Setting(u"UchalEntry") == u"Sales";
}

QStringList Heads()
{
    if (IsForSales())
        return {Word::Uchal.toString()};
    return {Word::Uchal.toString(), Word::Khadya.toString(), Word::Kirana.toString(),
        Word::OtherUchal.toString()};
}

std::vector<DataGrid::Column> HeadColumns()
{
    return {
        {QStringLiteral("AdvanceType"), Plain(u"प्रकार"), 0},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 180, QStringLiteral("########0.00"), true},
    };
}

}

Keys::Places frmUchalVouchers::KeyPlaces()
{
    using namespace KeyHints;
    return {{QStringLiteral("frmUchalVouchers"), Shivaji(u"]cala naaoMd"),
        {Next, Back, Leave, CommonKeys::CalculatorKey(&frmUchalVouchers::StartMachinesCalculator),
            {QStringLiteral("F4"), Plain(u"प्रकार झाले"), &frmUchalVouchers::LeaveHeads}, TutorKey(), New,
            Modify, Delete, Save, Cancel, ExitButton, ChooseOption, ListOfNames}}};
}

frmUchalVouchers::frmUchalVouchers()
    : SocietyScreen(KeyPlaces(), Shivaji(IdleTitle))
    , Advance(this, AdvanceVoucher, Modes, {"MaskTranDate", "txtTranNo", "txtMemberNo", "ComboMemberName"})
    , DataGridUchals(this, "DataGridUchals", HeadColumns())
    , Receipt(
          this, ReceiptVoucher, Modes, {"MaskTranDate1", "txtTranId1", "txtMemberNo1", "ComboMemberName1"})
    , AdvanceFrame(this,
          {&Advance.MaskTranDate, &Advance.txtTranNo, &Advance.txtMemberNo, &Advance.ComboMemberName,
              &ComboUchalTypes, &txtUchalAmount, &cmdGo, &DataGridUchals, &txtAmount})
    , Frame1(this,
          {&Receipt.MaskTranDate, &Receipt.txtTranNo, &Receipt.txtMemberNo, &Receipt.ComboMemberName,
              &txtAmount1})
    , Modes(*this, IdleTitle, {cmdAdd, cmdMod, cmdDel, cmdCancel, cmdExit})
{
    Modes.SetFields({&Advance.MaskTranDate, &Advance.txtTranNo, &Receipt.MaskTranDate, &Receipt.txtTranNo},
        {&Advance.txtMemberNo, &Advance.ComboMemberName, &ComboUchalTypes, &txtUchalAmount, &cmdGo,
            &DataGridUchals, &Receipt.txtMemberNo, &Receipt.ComboMemberName, &txtAmount1});
    for (VoucherPanel* panel : {&Advance, &Receipt}) {
        panel->CalledUp = [this] { ShowCalledUp(); };
        panel->FoundNone = [this] { ReturnToIdle(); };
    }
    When(cmdMod.GotFocus, &frmUchalVouchers::cmdMod_GotFocus);
    ComboUchalTypes.OpenOnFocus();
    ComboUchalTypes.SetGuide(Plain(u"उचलचा प्रकार    F4 : प्रकार झाले, सेव्हकडे"));
    txtUchalAmount.SetGuide(Plain(u"या प्रकाराची रक्कम"));
    txtAmount1.SetGuide(Plain(u"जमा रक्कम"));
    for (Field* amount : {&txtUchalAmount, &txtAmount1})
        amount->SetMaxLength(LongestAmount);
    DataGridUchals.SetTabStop(false);
    txtAmount.SetEnabled(false);
    LayOut();
}

void frmUchalVouchers::Load()
{
    ComboUchalTypes.SetItems(Heads());
    DataGridUchals.Bind(gCn, QStringLiteral("select * from TransactionsDetailsTemp"));
    OptUchalEntry.Choose();
    ShowIdle();
}

// The panels

void frmUchalVouchers::Command1_Click()
{
    ShowChosenPanel();
}

void frmUchalVouchers::ShowChosenPanel()
{
    AdvanceFrame.SetVisible(!IsReceipt());
    Frame1.SetVisible(IsReceipt());
}

void frmUchalVouchers::ShowCalledUp()
{
    const Voucher& voucher = *Chosen().Loaded();
    OldAmount = voucher.amount;
    if (IsReceipt()) {
        txtAmount1.Show(voucher.amount);
    } else {
        VoucherHeads::Load(voucher);
        DataGridUchals.Refresh();
        txtAmount.Show(voucher.amount);
    }
    if (Modes.IsDelete() && !IsSteppingBack())
        cmdDel.SetFocus();
}

void frmUchalVouchers::ClearFields()
{
    VoucherHeads::Clear();
    DataGridUchals.Refresh();
    Advance.Clear();
    Receipt.Clear();
    for (Field* field :
        std::initializer_list<Field*>{&ComboUchalTypes, &txtUchalAmount, &txtAmount, &txtAmount1})
        field->Clear();
    OldAmount = 0;
}

// The heads of an advance

void frmUchalVouchers::ComboUchalTypes_LostFocus()
{
    if (IsForSales())
        ComboUchalTypes.SetText(Word::Uchal.toString());
    if (ComboUchalTypes.IsEmpty() && (IsSteppingBack() || GoingTo()))
        return;
    if (!IsForSales() && !IsHeadKnown()) {
        ComboUchalTypes.Clear();
        ComboUchalTypes.SetFocus(Wanted::OrCancel(Plain(u"↓ ने यादीतून प्रकार निवडा    F4 : प्रकार झाले")));
        return;
    }
    if (const auto amount = VoucherHeads::AmountOf(ComboUchalTypes.Text().trimmed()))
        txtUchalAmount.Show(*amount);
}

bool frmUchalVouchers::IsHeadKnown() const
{
    return Finds(Sql(u"SELECT UchalType FROM UchalTypes WHERE trim(UchalType)=",
        Quoted(ComboUchalTypes.Text().trimmed())));
}

void frmUchalVouchers::txtUchalAmount_LostFocus()
{
    txtUchalAmount.Reformat();
}

// Takes the head into the voucher and goes on with the next.
void frmUchalVouchers::cmdGo_Click()
{
    if (!Advance.HasNumber()) {
        ShowNotice(Shivaji(u"vha}car naM.0 Asalyaanao hI naaoMd punha kravaI."));
        Close();
        return;
    }
    if (!Advance.HasMember()) {
        Advance.txtMemberNo.SetFocus();
        return;
    }
    if (ComboUchalTypes.IsEmpty()) {
        ComboUchalTypes.SetFocus();
        return;
    }
    VoucherHeads::Put(Entered(), ComboUchalTypes.Text().trimmed(), txtUchalAmount.Value());
    ShowHeads();
    ComboUchalTypes.Clear();
    txtUchalAmount.Clear();
    ComboUchalTypes.SetFocus();
}

void frmUchalVouchers::ShowHeads()
{
    DataGridUchals.Refresh();
    txtAmount.Show(VoucherHeads::Total());
}

// F4
void frmUchalVouchers::LeaveHeads()
{
    if (VoucherHeads::Any())
        Modes.Open().SetFocus();
    else
        ComboUchalTypes.SetFocus();
}

void frmUchalVouchers::txtAmount1_LostFocus()
{
    txtAmount1.Reformat();
    if (!IsSteppingBack() && !GoingTo())
        Modes.Open().SetFocus();
}

// Modes

void frmUchalVouchers::OpenMode(void (RecordModes::*enter)())
{
    ShowChosenPanel();
    (Modes.*enter)();
    for (Control* choice : std::initializer_list<Control*>{&OptUchalEntry, &OptPaymentEntry, &Command1})
        choice->SetEnabled(false);
    ClearFields();
    Chosen().ComboMemberName.LoadMemberNames();
    Chosen().MaskTranDate.SetFocus();
}

void frmUchalVouchers::ShowIdle()
{
    Modes.Rest();
    cmdCancel.SetEnabled(false);
    for (Control* choice : std::initializer_list<Control*>{&OptUchalEntry, &OptPaymentEntry, &Command1})
        choice->SetEnabled(true);
    ClearFields();
    ShowChosenPanel();
}

// The focus goes to the button of the mode that was open, so that Enter begins the next voucher.
void frmUchalVouchers::ReturnToIdle()
{
    Button& mode = Modes.Open();
    ShowIdle();
    mode.SetFocus();
}

void frmUchalVouchers::cmdAdd_Click()
{
    if (Modes.IsNew())
        SaveNew();
    else
        OpenMode(&RecordModes::EnterNew);
}

void frmUchalVouchers::cmdMod_Click()
{
    if (Modes.IsModify())
        SaveModified();
    else
        OpenMode(&RecordModes::EnterModify);
}

// Of a voucher that gets another member, the balances of the first one stay as they are.
void frmUchalVouchers::cmdMod_GotFocus()
{
    const std::optional<Voucher>& loaded = Chosen().Loaded();
    const bool isOfAnother = Modes.IsModify() && loaded && Entered().memberNo != loaded->memberNo;
    cmdMod.SetGuide(
        isOfAnother ? Plain(u"मेम्बर बदलला : फक्त नव्या मेम्बरची बाकी बदलेल, आधीच्याची तशीच राहील") : Caption());
}

void frmUchalVouchers::cmdDel_Click()
{
    if (Modes.IsDelete())
        DeleteFound();
    else
        OpenMode(&RecordModes::EnterDelete);
}

void frmUchalVouchers::cmdCancel_Click()
{
    ReturnToIdle();
}

Voucher frmUchalVouchers::Entered()
{
    return Chosen().Entered(IsReceipt() ? txtAmount1.Value() : txtAmount.Value());
}

// Without a number an advance goes back to its date, and a receipt closes the screen.
bool frmUchalVouchers::IsNumbered()
{
    if (Chosen().HasNumber())
        return true;
    if (IsReceipt()) {
        ShowPlain(QStringLiteral("Transaction No. not generated. Please re-enter the data."));
        Close();
    } else {
        ShowNotice(Shivaji(u"vha}car naM. caukIcaa Aaho. punha enT/I kra."));
        Advance.MaskTranDate.SetFocus(Wanted::Date());
    }
    return false;
}

// Nothing is written without a member, without the heads of an advance or the amount of a receipt: the focus
// goes to what is missing.
bool frmUchalVouchers::IsComplete()
{
    if (!Chosen().HasMember()) {
        Chosen().txtMemberNo.SetFocus(Wanted::OrCancel(Plain(u"मेम्बर नंबर टाका")));
        return false;
    }
    return IsReceipt() ? IsAmountGiven() : AreHeadsTaken();
}

bool frmUchalVouchers::IsAmountGiven()
{
    if (txtAmount1.Value() != 0)
        return true;
    txtAmount1.SetFocus(Wanted::OrCancel(Plain(u"जमा रक्कम टाका")));
    return false;
}

// A head that was typed and not yet taken into the voucher would be lost.
bool frmUchalVouchers::AreHeadsTaken()
{
    const QString head = ComboUchalTypes.Text().trimmed();
    const double amount = txtUchalAmount.Value();
    if (!head.isEmpty() && amount != 0 && VoucherHeads::AmountOf(head) != amount) {
        cmdGo.SetFocus(Wanted::OrCancel(Plain(u"Enter : हा प्रकार घ्या")));
        return false;
    }
    if (!VoucherHeads::Any())
        ComboUchalTypes.SetFocus();
    return VoucherHeads::Any();
}

// What is to be changed or deleted was called up before.
bool frmUchalVouchers::IsCalledUp()
{
    if (Chosen().Loaded())
        return true;
    Chosen().MaskTranDate.SetFocus(Wanted::Date());
    return false;
}

void frmUchalVouchers::SaveNew()
{
    if (!IsNumbered() || !IsComplete())
        return;
    const Voucher voucher = Entered();
    Transaction saving(gCn);
    voucher.Insert();
    MoveMemberVoucherBalance(voucher.memberNo, SignedAmount(voucher), VoucherMove::Add);
    saving.Commit();
    if (IsReceipt())
        PrintReceipt(voucher);
    else
        PrintVoucher(voucher);
    ReturnToIdle();
}

void frmUchalVouchers::SaveModified()
{
    if (!IsCalledUp() || !IsComplete())
        return;
    const Voucher voucher = Entered();
    if (gAppState.gCallerTag == u"PV" || Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ"))) {
        Transaction saving(gCn);
        voucher.Update();
        MoveMemberVoucherBalance(voucher.memberNo, SignedAmount(voucher), VoucherMove::Mod, OldAmount);
        saving.Commit();
        if (!IsReceipt())
            PrintVoucher(voucher);
    }
    gAppState.gCallerTag = QStringLiteral("N");
    ReturnToIdle();
}

void frmUchalVouchers::DeleteFound()
{
    if (!IsCalledUp())
        return;
    if (Ask(Shivaji(u"roka^D- na@kI KaoDayacao ka Æ"), OnEnter::No)) {
        const Voucher& voucher = *Chosen().Loaded();
        Transaction deleting(gCn);
        voucher.Delete();
        MoveMemberVoucherBalance(voucher.memberNo, SignedAmount(voucher), VoucherMove::Del);
        VoucherHeads::Clear();
        deleting.Commit();
    }
    ReturnToIdle();
}

// F2 is the calculator of the machine here, not that of AppFolder, and in a normal window.
void frmUchalVouchers::StartMachinesCalculator()
{
    CommonKeys::StartCalculator(QStringLiteral("C:\\Windows\\calc.exe"), false);
}
