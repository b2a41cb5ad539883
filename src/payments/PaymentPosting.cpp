#include "payments/PaymentPosting.h"

#include "core/messages/Messages.h"
#include "payments/Precision.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"

namespace {

SqlText ThevRow()
{
    return Sql(u" where CompanyId=", gAppState.gCompanyId, u" and AdvanceType=", Quoted(Word::Thev));
}

}

PaymentPosting::PaymentPosting(const Fields& fields)
    : m_days(fields.days)
    , m_memberNo(fields.memberNo)
    , m_memberName(fields.memberName)
    , m_figures(fields.figures)
{
}

PaymentOf PaymentPosting::Of() const
{
    return m_days.Of(m_memberNo.Value());
}

// Posting

void PaymentPosting::PostPayment(PaymentMode mode)
{
    Transaction staging(gCn);
    StageDetails();
    ApplyPaiseRule();
    staging.Commit();
    if (mode == PaymentMode::Single && !Ask(Plain(u"Are You Sure to Save ?")))
        return;

    if (m_figures.Outstanding() > m_figures.txtUchal.Value())
        m_currentBalance = Decimal(m_figures.Outstanding() - m_figures.txtUchal.Value());
    Transaction posting(gCn);
    WritePayment();
    MoveMemberClosing(Direction::Add);
    WriteRecovery();
    gCn.Execute(u"update MilkPaymentsDetailsTemp set TranId=0");
    gCn.Execute(u"insert into MilkPaymentsDetails select * from MilkPaymentsDetailsTemp");
    DeductionHeads::Empty(); // the screen is reset next, which writes nothing more then
    posting.Commit();
}

void PaymentPosting::StageDetails()
{
    gCn.Execute(u"Delete * From MilkPaymentsDetailsTemp");
    gCn.Execute(u"Insert Into MilkPaymentsDetailsTemp Select * From AdvanceTemp");
    StageDeposit(Word::CowThev, m_figures.txtCowDepositkapat);
    StageDeposit(Word::BuffThev, m_figures.txtBuffDep0sitKapat);
}

void PaymentPosting::StageDeposit(QStringView type, const NumberField& deposit)
{
    if (deposit.Value() > 0)
        gCn.Execute(
            Sql(u"insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                u"values(",
                Values(gAppState.gCompanyId, m_days.MaskBillDate.Text(), m_days.txtBillNo.Value(),
                    m_memberNo.Value(), type, Val(Format(deposit.Value(), u"######0.00"))),
                u")"));
}

// What becomes of the paise of the net amount. "Payable" and "Discount" differ in name only.
void PaymentPosting::ApplyPaiseRule()
{
    NumberField& net = m_figures.txtNetPayable;
    net.Show(m_figures.txtTotalPayment.Value());
    const double paise = PaiseOf(net.Text());
    if (paise <= 0)
        return;
    const QString rule = Setting(u"DecimalPayment");
    if (rule == u"AddThev")
        PutPaiseToDeposit(paise);
    if (rule == u"AddThev" || rule == u"Payable" || rule == u"Discount")
        net.Show(net.Value() - paise);
}

void PaymentPosting::PutPaiseToDeposit(double paise)
{
    if (Finds(Sql(u"SELECT * FROM MilkPaymentsDetailsTemp", ThevRow())))
        gCn.Execute(Sql(u"update MilkPaymentsDetailsTemp set Amount=", paise, ThevRow()));
    else
        gCn.Execute(
            Sql(u"insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                u"values(",
                Values(gAppState.gCompanyId, m_days.MaskBillDate.Text(), m_days.txtBillNo.Value(),
                    m_memberNo.Value(), Word::Thev, paise),
                u")"));
    gCn.Execute(u"delete * from MilkPaymentsDetailsTemp where CompanyId=0");
    m_figures.ShowKapat(m_figures.Kapat() + paise);
    m_figures.txtTotalPayment.Show(m_figures.txtTotalPayment.Value() - paise);
}

// Kapat is what is deducted now, and not the sum of the heads that the screen may show.
void PaymentPosting::WritePayment()
{
    const PaymentFigures& f = m_figures;
    const double cow = f.txtCowDepositkapat.Value();
    const double buff = f.txtBuffDep0sitKapat.Value();
    const double uchal = f.txtUchal.Value();
    gCn.Execute(Sql(u"insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,"
                    u"MemberName,Animal,Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,"
                    u"TotalUchal,ThevKapatCow,ThevKapatBuff,LitersCow,LitersBuff,CowAmount,BuffAmount,"
                    u"FixedKapat,PreviousAdvance) values(",
        Values(gAppState.gCompanyId, m_days.maskFromDate.Text(), m_days.maskToDate.Text(),
            m_days.MaskBillDate.Text(), m_days.txtBillNo.Value(), m_memberNo.Value(), m_memberName.Text(),
            f.PaymentAnimal, f.txtCowlitres.Value() + f.txtBufflitres.Value(),
            f.txtTotalMilkPurchaseAmount.Value(), cow + buff + uchal, f.txtNetPayable.Value(),
            f.PreviousAdvance, m_currentBalance, uchal, cow, buff, f.txtCowlitres.Value(),
            f.txtBufflitres.Value(), f.txtCowAmount.Value(), f.txtBuffAmount.Value(), f.FixedKapat,
            f.PreviousAdvance),
        u")"));
}

void PaymentPosting::MoveMemberClosing(Direction direction)
{
    const Recordset member(gCn,
        Sql(u"Select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From MembersMaster",
            Of().OfMember()));
    if (member.Eof())
        return;
    const double net = m_figures.txtNetPayable.Value();
    const double cow = m_figures.txtCowDepositkapat.Value();
    const double buff = m_figures.txtBuffDep0sitKapat.Value();
    const double uchal = m_figures.txtUchal.Value();
    const double sign = direction == Direction::Add ? 1 : -1;
    const auto moved = [&](QStringView column, double by) {
        return AddSingle(ToSingle(member[column].Number()), sign * by);
    };
    gCn.Execute(Sql(u"Update MembersMaster Set ClosingBalance=",
        moved(u"ClosingBalance", uchal - net - cow - buff), u", CowClosingThev=",
        moved(u"CowClosingThev", cow), u", BuffClosingThev=", moved(u"BuffClosingThev", buff),
        u", ClosingUchal=", moved(u"ClosingUchal", -uchal), Of().OfMember()));
}

// The fixed deduction isn't taken off the debt; its bill number is one above that of the payment.
void PaymentPosting::WriteRecovery()
{
    const double uchal = m_figures.txtUchal.Value();
    if (uchal == 0)
        return;
    gCn.Execute(
        Sql(u"insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
            Values(gAppState.gCompanyId, m_days.MaskBillDate.Text(), m_days.txtBillNo.Value() + 1,
                m_memberNo.Value(), Word::UchalKapat, Decimal(uchal - Decimal(m_figures.FixedKapat))),
            u")"));
}

// Reversal

// The recoveries go by the date of the bill, the details by the period: those of a bill outside its period
// stay.
void PaymentPosting::ReversePayment()
{
    const PaymentOf of = Of();
    Transaction reversing(gCn);
    gCn.Execute(Sql(u"Delete * From Milkpayments", of.Payment(), u" And TranId=", m_days.txtBillNo.Value()));
    MoveMemberClosing(Direction::Del);
    gCn.Execute(Sql(u"Delete * From AdvanceReceipt", of.OfMember(), u" And TranDate=", SqlDay(of.Bill),
        u" And AdvanceType=", Quoted(Word::UchalKapat)));
    gCn.Execute(Sql(u"delete * from MilkPaymentsDetails", of.InPeriod()));
    DeductionHeads::Empty();
    reversing.Commit();
}
