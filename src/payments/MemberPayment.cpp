#include "payments/MemberPayment.h"

#include "core/messages/Messages.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Pieces.h"
#include "society/Queries.h"

#include <QHBoxLayout>

namespace {

void Tell(const QString& text)
{
    ShowPlain(text, QStringLiteral("Milk Payments"));
}

}

MemberPayment::MemberPayment(Screen* screen, const Beside& beside, const Handler& memberNoLostFocus)
    : m_screen(screen)
    , txtMemberNo(screen, "txtMemberNo", NumberField::Digits::Decimals, memberNoLostFocus)
    , Figures(screen, beside.installments, beside.extra)
    , Heads(beside.installments, Figures, beside.heads)
    , m_deliveries(beside.deliveries)
{
    constexpr int longestNumber = 9;
    txtMemberNo.SetMaxLength(longestNumber);
    txtMemberNo.TakeLetterN();
    ComboMemberName.SetEnabled(false);
}

// The shift and the rate are shown as narrow as they are: a rate has one decimal here.
std::vector<DataGrid::Column> MemberPayment::DeliveryColumns()
{
    return {
        {QStringLiteral("CollectionDate"), Shivaji(u"idnaaMk"), 72, QStringLiteral("dd/MM/yy")},
        {QStringLiteral("CollectionTime"), Shivaji(u"vaoL"), 80},
        {QStringLiteral("Animal"), Shivaji(u"duQa"), 52},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 66, QStringLiteral("#####0.000"), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), 38, QStringLiteral("#####0.0"), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), 46, QStringLiteral("#####0.0"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 84, QStringLiteral("#####0.00"), true},
    };
}

PaymentOf MemberPayment::Of() const
{
    return Days.Of(txtMemberNo.Value());
}

bool MemberPayment::FindMember()
{
    const Recordset member(gCn,
        Sql(u"Select MemberName From MembersMaster Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=",
            txtMemberNo.Value()));
    if (member.Eof())
        return false;
    ComboMemberName.SetText(member[u"MemberName"].Text());
    return true;
}

// Working it out

void MemberPayment::ComputeMemberPeriod()
{
    PaymentSkip = !InsistOnUnpaid();
    if (PaymentSkip)
        return;
    Transaction working(gCn);
    WorkOut();
    working.Commit();
    if (PaymentSkip)
        Tell(QStringLiteral("No Milk Collection Found     MemberNO:") + txtMemberNo.Text());
    else
        Heads.ShowHeads();
}

// The first day of the period may lie in none that was paid for.
bool MemberPayment::InsistOnUnpaid()
{
    const PaymentOf of = Of();
    const bool isPaid = Finds(Sql(u"Select * From  MilkPayments", of.OfMember(), u" And (FromDate<=",
        SqlDay(of.From), u" And Todate>=", SqlDay(of.From), u")"));
    if (isPaid)
        Tell(QStringLiteral(
                 "Milk Payments for this member and milk collection period already exist  MemberNo:")
            + txtMemberNo.Text());
    return !isPaid;
}

void MemberPayment::WorkOut()
{
    const PaymentOf of = Of();
    PaymentSkip = !Figures.ReadMilk(of);
    if (PaymentSkip) {
        ListShortMember();
        return;
    }
    CopyDeliveries(of);
    Heads.BuildDeductionHeads(of);
    Figures.SummariseDeductions(of.MemberNo);
    m_workedOut = What();
}

void MemberPayment::ListShortMember()
{
    gCn.Execute(Sql(u"Insert Into ShortMemberList(CompanyId,MemberNo,MemberName) Values(",
        Values(gAppState.gCompanyId, txtMemberNo.Value(), ComboMemberName.Text()), u")"));
    gCn.Execute(u"Delete * From ShortMemberList Where CompanyId=0");
}

void MemberPayment::CopyDeliveries(const PaymentOf& of)
{
    gCn.Execute(Sql(u"Delete * From MilkCollectionsTemp where companyId=", gAppState.gCompanyId));
    gCn.Execute(Sql(u"Insert Into MilkCollectionsTemp Select *", of.Deliveries()));
}

QStringList MemberPayment::What() const
{
    return {Days.maskFromDate.Text(), Days.maskToDate.Text(), Days.MaskBillDate.Text(), txtMemberNo.Text()};
}

bool MemberPayment::IsWorkedOut() const
{
    return m_workedOut == What();
}

// Looking it up

bool MemberPayment::LoadPayment()
{
    const PaymentOf of = Of();
    const Recordset payment(gCn, Sql(u"Select * From Milkpayments", of.Payment()));
    if (payment.Eof()) {
        Tell(QStringLiteral("No MilkPayment is found. Please Check Dates and MemberNo."));
        return false;
    }
    if (!IsLatest(payment)) {
        Tell(QStringLiteral("You can't Modify/Delete Previous Payments."));
        return false;
    }
    Days.MaskBillDate.SetDate(payment[u"PaymentDate"].Date());
    Days.txtBillNo.SetText(payment[u"TranId"].Text());
    ComboMemberName.SetText(payment[u"MemberName"].Text());
    Figures.ShowMade(payment);

    const PaymentOf paid = Of(); // with the date of its bill
    Transaction working(gCn);
    Heads.BuildDeductionHeads(paid);
    CopyDeliveries(paid);
    working.Commit();
    const Recordset thev(gCn,
        Sql(u"Select sum(Amount) as TAmount from MilkPaymentsDetails", paid.OfMember(), u" And TranDate=",
            SqlDay(paid.Bill), u" And AdvanceType=", Quoted(Word::Thev)));
    Figures.ShowDeducted(payment, thev.Eof() ? 0 : thev[u"TAmount"].Number());
    Heads.ShowHeads();
    ShowDeliveries();
    m_workedOut = What();
    return true;
}

// A payment with a later one behind it stays as it is.
bool MemberPayment::IsLatest(const Recordset& payment) const
{
    return !Finds(Sql(u"Select * From MilkPayments Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=",
        payment[u"MemberNo"].Number(), u" And FromDate>", SqlDay(payment[u"ToDate"].Date())));
}

void MemberPayment::ShowDeliveries()
{
    m_deliveries.Bind(gCn,
        Sql(u"Select CollectionDate,CollectionTime,Animal,Liters,Fat,Rate,Amount", Of().Deliveries(),
            u" Order by CollectionDate,CollectionTime"));
}

void MemberPayment::Clear()
{
    Days.Clear();
    txtMemberNo.Clear();
    ComboMemberName.Clear();
    Figures.Clear();
    Heads.Clear();
    m_deliveries.Unbind();
    m_workedOut.clear();
}

QLayout* MemberPayment::Row()
{
    QHBoxLayout* row = Days.Row();
    row->addLayout(Pieces::InLine(Shivaji(u"maombar naMbar"), txtMemberNo, 92));
    row->addLayout(Pieces::Under(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0, Look::Size::Normal,
                       Pieces::LineField),
        1);
    return row;
}
