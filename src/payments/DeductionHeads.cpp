#include "payments/DeductionHeads.h"

#include "payments/Installments.h"
#include "payments/Precision.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"

namespace {

// A head with its place in the list. A credit under the advance stays in the list, under the others it drops
// out.
struct Head {
    QStringView type;
    int place = 0;
    bool keepsCredit = false;
};

// In the order in which they are written, which is the one in which repayments are taken off them.
constexpr Head Heads[] = {
    {Word::Uchal, 1, true},
    {Word::Khadya, 2},
    {Word::Kirana, 3},
    {Word::PreviousBalance, 0},
    {Word::OtherUchal, 4},
};
constexpr int FixedPlace = 10;

void AddHead(const PaymentOf& of, int place, QStringView type, float amount)
{
    gCn.Execute(Sql(u"Insert Into AdvanceTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) Values(",
        Values(gAppState.gCompanyId, of.Bill, place, of.MemberNo, type, amount), u")"));
}

// The sum of one head, in single precision, row by row.
float SumOfHead(const std::vector<std::pair<QString, double>>& rows, QStringView type)
{
    float sum = 0;
    for (const auto& [head, amount] : rows)
        if (head == type)
            sum = AddSingle(sum, amount);
    return sum;
}

float SumBefore(QStringView column, QStringView table, const PaymentOf& of)
{
    const Recordset sum(gCn,
        Sql(u"Select Sum(Amount)as ", column, u" From ", table, of.OfMember(), u" And TranDate<",
            SqlDay(of.From)));
    return sum.Eof() ? 0 : ToSingle(sum[column].Number());
}

SqlText OfHead(QStringView type)
{
    return Sql(u" And AdvanceType=", Quoted(type));
}

void SetAmount(QStringView table, const SqlText& rows, double amount)
{
    gCn.Execute(Sql(u"Update ", table, u" Set Amount=", amount, rows));
}

void Remove(QStringView table, const SqlText& rows)
{
    gCn.Execute(Sql(u"Delete * From ", table, rows));
}

// Takes what is left of the repayments off a head. Returns what is left then.
double TakeOff(QStringView table, const SqlText& rows, double amount, double left)
{
    if (amount > left) {
        SetAmount(table, rows, Decimal(amount - left));
        return 0;
    }
    Remove(table, rows);
    return Decimal(left - amount);
}

}

DeductionHeads::DeductionHeads(const CheckBox& installments, PaymentFigures& figures, DataGrid& list)
    : m_installments(installments)
    , m_figures(figures)
    , m_list(list)
{
}

std::vector<DataGrid::Column> DeductionHeads::HeadColumns()
{
    return {
        {QStringLiteral("AdvanceType"), Shivaji(u"]cala"), 0},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 92, QStringLiteral("######0.00"), true},
    };
}

void DeductionHeads::BuildDeductionHeads(const PaymentOf& of)
{
    Transaction building(gCn);
    gCn.Execute(u"Delete * from AdvanceTemp");
    gCn.Execute(
        Sql(u"Insert Into AdvanceTemp Select * From TransactionsDetails", of.InPeriod(), u" order by rowid"));
    AddPreviousBalance(of);
    ApplyPeriodReceipts(of, u"AdvanceTemp");
    AddFixedKapat(of);
    const float outstanding = OutstandingOf(of);
    gCn.Execute(u"Delete * From AdvanceTemp Where CompanyId=0");
    building.Commit();
    m_figures.ProposeUchal(outstanding);
}

// Everything unpaid from before the period. A credit isn't kept among the heads, but it counts.
void DeductionHeads::AddPreviousBalance(const PaymentOf& of)
{
    m_figures.PreviousAdvance = AddSingle(SumBefore(u"UchalPaid", u"TransactionsDetails", of),
        -SumBefore(u"UchalReceived", u"AdvanceReceipt", of));
    if (m_figures.PreviousAdvance != 0)
        AddHead(of, 0, Word::PreviousBalance, m_figures.PreviousAdvance);
}

// Folds the rows to one for each head, on the date of the bill. Rows of other names drop out.
void DeductionHeads::ConsolidateHeads(const PaymentOf& of)
{
    std::vector<std::pair<QString, double>> rows;
    for (Recordset row(gCn, u"Select * From AdvanceTemp"); !row.Eof(); row.MoveNext())
        rows.emplace_back(row[u"AdvanceType"].Text(), row[u"Amount"].Number());
    gCn.Execute(u"Delete * From AdvanceTemp");
    for (const Head& head : Heads) {
        const float sum = SumOfHead(rows, head.type);
        if (head.keepsCredit ? sum != 0 : sum > 0)
            AddHead(of, head.place, head.type, sum);
    }
}

// What came back during the period comes off the advance first, and then off the other heads. Rows are found
// by the period, though they bear the date of the bill: with a bill outside its period nothing comes off.
void DeductionHeads::ApplyPeriodReceipts(const PaymentOf& of, QStringView table)
{
    ConsolidateHeads(of);
    double left = 0;
    bool hasReceipts = false;
    for (Recordset receipt(gCn,
             Sql(u"Select * From AdvanceReceipt", of.InPeriod(), u" And AdvanceType<>",
                 Quoted(Word::UchalKapat)));
         !receipt.Eof(); receipt.MoveNext()) {
        left = Decimal(left + receipt[u"Amount"].Number());
        hasReceipts = true;
    }
    if (!hasReceipts)
        return;

    const SqlText advance = Sql(of.InPeriod(), OfHead(Word::Uchal));
    if (const Recordset row(gCn, Sql(u"Select * From ", table, advance)); !row.Eof())
        left = TakeOff(table, advance, row[u"Amount"].Number(), left);
    if (left == 0)
        return;
    for (Recordset row(gCn,
             Sql(u"Select * From ", table, of.InPeriod(), u" And AdvanceType<>", Quoted(Word::Uchal),
                 u" And AdvanceType <> ", Quoted(Word::CowThev), u" And AdvanceType <> ",
                 Quoted(Word::BuffThev)));
         left != 0 && !row.Eof(); row.MoveNext())
        left = TakeOff(
            table, Sql(of.InPeriod(), OfHead(row[u"AdvanceType"].Text())), row[u"Amount"].Number(), left);
}

// Added for every member and every payment, whatever is owed.
void DeductionHeads::AddFixedKapat(const PaymentOf& of)
{
    const Recordset settings(gCn, u"Select FixedKapat From Autosettings");
    m_figures.FixedKapat = settings.Eof() ? 0 : ToSingle(settings[u"FixedKapat"].Number());
    if (m_figures.FixedKapat == 0)
        return;
    const SqlText other = Sql(of.OfMember(), u" And TranDate=", SqlDay(of.Bill), OfHead(Word::OtherUchal));
    if (Finds(Sql(u"Select * From AdvanceTemp", other)))
        gCn.Execute(Sql(u"Update AdvanceTemp Set Amount=Amount+", m_figures.FixedKapat, other));
    else
        AddHead(of, FixedPlace, Word::OtherUchal, m_figures.FixedKapat);
}

// All heads, or the installment if it is less than they are.
float DeductionHeads::OutstandingOf(const PaymentOf& of) const
{
    const Recordset sum(
        gCn, Sql(u"Select sum(Amount) as TAmount From AdvanceTemp where CompanyId=", gAppState.gCompanyId));
    const float heads = sum.Eof() ? 0 : ToSingle(sum[u"TAmount"].Number());
    if (m_installments.Checked())
        if (const auto installment = InstallmentOf(of.MemberNo);
            installment && heads > ToSingle(*installment))
            return ToSingle(*installment + Decimal(m_figures.FixedKapat));
    return heads;
}

void DeductionHeads::ShowHeads()
{
    m_list.Bind(gCn, QStringLiteral("select AdvanceType,Amount from AdvanceTemp order by TranId,TranDate"));
}

void DeductionHeads::Empty()
{
    Transaction emptying(gCn);
    gCn.Execute(u"Delete * From AdvanceTemp");
    emptying.Commit();
}

void DeductionHeads::Clear()
{
    if (Finds(QStringLiteral("select * from AdvanceTemp")))
        Empty();
    m_list.Unbind();
}
