#include "payments/BulkPayment.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Painting.h"
#include "platform/forms/Screen.h"
#include "platform/text/Shivaji01.h"
#include "society/Wanted.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr QStringView OneMember = u"ek maombar"; // एक मेम्बर
constexpr QStringView ManyMembers = u"Anaok maombasa-"; // अनेक मेम्बर्स
constexpr QStringView Running = u"p`aosaosa caalau Aaho qaaoDa vaoL qaaMbaa..........";
constexpr QStringView Finished = u"pomaonT kaZNyaacaI p`aosaosa saMplaI.";

constexpr int LastNumber = 32767; // the members are counted in 16 bits
constexpr int LongestNumber = 9;

// The bar and the member at hand move with every painting; the lists and the totals, whose paintings take
// longest, with every fourth.
constexpr int PaintingsOfLists = 4;

std::vector<DataGrid::Column> PaymentColumns()
{
    return {
        {QStringLiteral("TranId"), Plain(u"बिल"), 48, QStringLiteral("####0"), true},
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naM."), 58, QStringLiteral("####0"), true},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naava"), 0},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 84, QStringLiteral("#####0.000"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 96, QStringLiteral("#####0.00"), true},
        {QStringLiteral("Kapat"), Shivaji(u"kpat"), 90, QStringLiteral("#####0.00"), true},
        {QStringLiteral("NetAmount"), Plain(u"निव्वळ"), 96, QStringLiteral("#####0.00"), true},
    };
}

std::vector<DataGrid::Column> ShortMemberColumns()
{
    return {
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naM."), 70, QStringLiteral("####0"), true},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naava"), 0},
    };
}

double CutToWhole(NumberField& field)
{
    field.Show(std::trunc(field.Value()));
    return field.Value();
}

double HighestMemberNo()
{
    const Recordset highest(
        gCn, Sql(u"Select max(MemberNo)as mno From MembersMaster Where CompanyId=", gAppState.gCompanyId));
    return highest.Eof() ? 0 : highest[u"mno"].Number();
}

Caption WantedNumber()
{
    return Plain(
        QStringLiteral("1 ते %1 मधील मेम्बर नंबर टाका    Esc : बाहेर").arg(ShortestDecimal(HighestMemberNo())));
}

void TidyPayments()
{
    gCn.Execute(u"Delete * From MilkPayments Where CompanyId=0");
}

void EmptyShortMemberList()
{
    Transaction emptying(gCn);
    gCn.Execute(u"delete * From ShortMemberList");
    emptying.Commit();
}

}

BulkPayment::BulkPayment(Screen* screen, const Handler& calculate, const Handler& exit)
    : m_screen(screen)
    , cmdCalculate(screen, "cmdCalculate", Plain(u">>"), calculate)
    , Command2(screen, "Command2", Shivaji(u"&baahor"), exit)
    , DataGridPayment(screen, "DataGridPayment", PaymentColumns())
    , DataGridMembers(screen, "DataGridMembers", ShortMemberColumns())
    , m_panel(screen,
          {&cmbPaymentType, &maskFromDate1, &MaskToDate1, &MaskBillDate1, &txtFromAc, &txtToAc, &cmdCalculate,
              &Command2, &DataGridPayment, &DataGridMembers})
{
    cmbPaymentType.SetDigits(0); // the list alone chooses
    cmbPaymentType.KeyDown = [](const QKeyEvent& key) {
        return key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete;
    };
    cmbPaymentType.GotFocus = [this] { cmbPaymentType_GotFocus(); };
    cmbPaymentType.SetGuide(Plain(u"↓ : निवडा    Enter : पुढे"));
    Command2.SetCancels(true);
    for (NumberField* number : {&txtFromAc, &txtToAc}) {
        number->TakeLetterN();
        number->SetMaxLength(LongestNumber);
    }
    cmdCalculate.SetGuide(Plain(u"Enter : पुढे"));
    EnableFields(false);
    DataGridPayment.SetEnabled(false);
}

void BulkPayment::Load(PaymentDays& days)
{
    m_days = &days;
    cmbPaymentType.SetWords({OneMember.toString(), ManyMembers.toString()});
    EmptyShortMemberList();
    DataGridPayment.Bind(gCn, QStringLiteral("Select * From Milkpayments Where CompanyId=0"));
    DataGridMembers.Bind(
        gCn, QStringLiteral("select MemberNo,MemberName from ShortMemberList order By MemberNo DESC"));
}

// The choice, and the fields of a run

bool BulkPayment::IsSingle() const
{
    return cmbPaymentType.Text() == OneMember;
}

bool BulkPayment::IsMultiple() const
{
    return cmbPaymentType.Text() == ManyMembers;
}

void BulkPayment::EnableFields(bool enabled)
{
    for (Control* field :
        std::initializer_list<Control*>{&maskFromDate1, &MaskBillDate1, &txtFromAc, &txtToAc})
        field->SetEnabled(enabled);
    MaskToDate1.SetEnabled(enabled && !PaymentDays::IsDerived());
}

void BulkPayment::cmbPaymentType_GotFocus()
{
    cmbPaymentType.DropDown(true);
}

void BulkPayment::cmbPaymentType_LostFocus()
{
    if (!IsSingle() && !IsMultiple())
        return;
    EnableFields(IsMultiple());
    if (m_screen->IsSteppingBack() || m_screen->GoingTo())
        return;
    if (IsSingle())
        cmdCalculate.SetFocus();
    else
        maskFromDate1.SetFocus();
}

void BulkPayment::maskFromDate1_LostFocus()
{
    if (!PaymentDays::InsistOnFirstDay(maskFromDate1))
        return;
    m_days->maskFromDate.SetText(maskFromDate1.Text());
    m_days->DerivePeriodEnd();
    MaskToDate1.SetText(m_days->maskToDate.Text());
    MaskBillDate1.SetText(m_days->MaskBillDate.Text());
}

// As real days, which those of one member's payment are not.
void BulkPayment::MaskToDate1_LostFocus()
{
    if (MaskToDate1.InsistOnDate(Wanted::Date()) && MaskToDate1.Date() < maskFromDate1.Date())
        MaskToDate1.SetFocus(
            Plain(QStringLiteral("शेवटचा दिवस %1 च्या आधीचा नको    Esc : बाहेर").arg(maskFromDate1.Text())));
}

void BulkPayment::MaskBillDate1_LostFocus()
{
    MaskBillDate1.InsistOnDate(Wanted::Date());
}

void BulkPayment::txtFromAc_LostFocus()
{
    const double highest = HighestMemberNo();
    const double from = CutToWhole(txtFromAc);
    if (from == 0 || from > highest)
        txtFromAc.SetFocus(WantedNumber());
    else
        txtToAc.Show(highest);
}

void BulkPayment::txtToAc_LostFocus()
{
    const double to = CutToWhole(txtToAc);
    if (to == 0) {
        txtToAc.SetFocus(WantedNumber());
    } else if (to > HighestMemberNo() || to < txtFromAc.Value()) {
        ShowPlain(QStringLiteral("Please Enter Valid Range"), QStringLiteral("Milk Payments"));
        txtToAc.SetFocus(WantedNumber());
    }
}

bool BulkPayment::InsistOnAll()
{
    if (cmbPaymentType.IsEmpty()) {
        cmbPaymentType.SetFocus();
        return false;
    }
    for (DateField* day : {&maskFromDate1, &MaskToDate1, &MaskBillDate1})
        if (!day->InsistOnDate(Wanted::Date()))
            return false;
    for (NumberField* number : {&txtFromAc, &txtToAc})
        if (number->Value() == 0) {
            number->SetFocus(WantedNumber());
            return false;
        }
    if (txtFromAc.Value() > txtToAc.Value()) {
        txtFromAc.SetFocus(WantedNumber());
        return false;
    }
    return true;
}

// The run

void BulkPayment::Run(MemberPayment& payment)
{
    cmdCalculate.SetEnabled(false);
    Command2.SetEnabled(false);
    EmptyShortMemberList();
    DataGridMembers.Refresh();
    TidyPayments();
    BindPayments();
    Label43.SetCaption(Shivaji(Running));
    for (const auto& [from, to] : {std::pair(&maskFromDate1, &payment.Days.maskFromDate),
             std::pair(&MaskToDate1, &payment.Days.maskToDate),
             std::pair(&MaskBillDate1, &payment.Days.MaskBillDate)})
        to->SetText(from->Text());

    const int first = static_cast<int>(std::min<double>(txtFromAc.Value(), LastNumber + 1));
    const int last = static_cast<int>(std::min<double>(txtToAc.Value(), LastNumber));
    ProgressBar1.Begin(last - first + 1);
    int paintings = 0;
    for (int number = first; number <= last; ++number) {
        PayMember(payment, number);
        if (Painting::IsDue() && ++paintings % PaintingsOfLists == 0)
            ShowSoFar();
        ProgressBar1.Step();
    }

    payment.Clear();
    lblMember.SetFigure({});
    Label43.SetCaption(Shivaji(Finished));
    BindPayments();
    ShowSoFar();
    DataGridPayment.SetEnabled(true);
    cmdCalculate.SetEnabled(true);
    Command2.SetEnabled(true);
    cmbPaymentType.SetFocus();
}

// A gap in the numbers is passed in silence.
void BulkPayment::PayMember(MemberPayment& payment, int number)
{
    payment.txtMemberNo.Show(number);
    if (!payment.FindMember())
        return;
    lblMember.SetFigure(
        QString::number(number) + u' ' + Shivaji01::ToUnicode(payment.ComboMemberName.Text()));
    payment.Days.NextBillNo();
    if (!payment.InsistOnUnpaid())
        return;
    Transaction paying(gCn);
    payment.WorkOut();
    if (!payment.PaymentSkip) {
        payment.Posting.PostPayment(PaymentMode::Multiple);
        TidyPayments();
    }
    paying.Commit();
}

SqlText BulkPayment::InRange() const
{
    return Sql(u" From Milkpayments Where CompanyId=", gAppState.gCompanyId, u" And PaymentDate=",
        SqlDay(MaskBillDate1.Date()), u" And MemberNo>=", txtFromAc.Value(), u" And MemberNo<= ",
        txtToAc.Value());
}

void BulkPayment::BindPayments()
{
    DataGridPayment.Bind(gCn, Sql(u"Select *", InRange(), u" order by MemberNo DESC"));
}

// The lists and the totals move as members are paid.
void BulkPayment::ShowSoFar()
{
    DataGridPayment.Refresh();
    DataGridMembers.Refresh();
    UpdateTotals();
}

void BulkPayment::UpdateTotals()
{
    const Recordset sums(gCn,
        Sql(u"Select sum(Liters) as TLiters, Sum(Amount) as TAmount,Sum(Kapat) as TKapat,"
            u"Sum(NetAmount) as TNetAmount",
            InRange()));
    lblLiters.SetFigure(Format(sums.Eof() ? 0 : sums[u"TLiters"].Number(), u"#####0.000"));
    lblAmount.SetFigure(Format(sums.Eof() ? 0 : sums[u"TAmount"].Number(), u"#####0.00"));
    lblAdvance.SetFigure(Format(sums.Eof() ? 0 : sums[u"TKapat"].Number(), u"#####0.00"));
    lblNetAmount.SetFigure(Format(sums.Eof() ? 0 : sums[u"TNetAmount"].Number(), u"#####0.00"));
}
