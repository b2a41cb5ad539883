#include "sales/frmMilkSales.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Transaction.h"
#include "platform/text/Shivaji01.h"
#include "sales/CustomerLitres.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <utility>

namespace {

constexpr double HighestRate = 60.0; // rupees a litre

std::vector<DataGrid::Column> SalesColumns()
{
    return {
        {QStringLiteral("SalesNo"), Shivaji(u"ivaËI Ë."), 56, {}, false, false},
        {QStringLiteral("SalesType"), Shivaji(u"ga`ahk p`kar"), 118},
        {QStringLiteral("CustomerNo"), Shivaji(u"ga`ahk Ë."), 60, {}, false, false},
        {QStringLiteral("CustomerName"), Shivaji(u"ga`ahkacao naava"), 0},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), 60},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 100, QStringLiteral("#####0.000"), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), 64, QStringLiteral("#####0.0"), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), 70, QStringLiteral("#####0.00"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 112, QStringLiteral("#####0.00"), true},
    };
}

bool ReadsCash(const QString& name)
{
    return Shivaji01::Reading(name) == Shivaji01::Reading(Word::Cash);
}

}

Keys::Places frmMilkSales::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmMilkSales"), Shivaji(u"dUQa ivaËI"),
            {Next, Back, Leave, CalculatorKey(), TutorKey(), OneOfTwo, ListOfNames, Tick,
                {QStringLiteral("F10"), Plain(u"विक्री खोडा"), {}, true, true}}},
        {QStringLiteral("frmMilkSales.txtSalesNo"), Plain(u"दूध विक्री, विक्री क्रमांकात"),
            {{QStringLiteral("↑"), Plain(u"आधीची विक्री"), &frmMilkSales::PreviousSale},
                {QStringLiteral("↓"), Plain(u"पुढची विक्री"), &frmMilkSales::NextSale}}},
        {QStringLiteral("frmMilkSales.ComboCustName"), Plain(u"दूध विक्री, ग्राहकाच्या नावात"),
            {{QStringLiteral("F10"), Plain(u"ही विक्री खोडा (न विचारता)"), &frmMilkSales::DeleteSale}}},
        {QStringLiteral("frmMilkSales.txtLiters"), Plain(u"दूध विक्री, लिटरमध्ये"),
            {{QStringLiteral("F9"), Plain(u"आपण मोजलेले लिटर्स"), &frmMilkSales::ShowOurMeasure}}},
    };
}

frmMilkSales::frmMilkSales()
    : SocietyScreen(KeyPlaces(), Shivaji(u" dUQa ivaËI"))
    , DataGridInwards(this, "DataGridInwards", SalesColumns())
{
    When(maskDate.GotFocus, &frmMilkSales::maskDate_GotFocus);
    When(txtTime.GotFocus, &frmMilkSales::txtTime_GotFocus);
    When(txtLiters.GotFocus, &frmMilkSales::txtLiters_GotFocus);
    When(txtRate.GotFocus, &frmMilkSales::txtRate_GotFocus);
    When(cmdGo.LostFocus, &frmMilkSales::cmdGo_LostFocus);
    maskDate.KeepForMending();
    ComboCustName.OpenOnFocus();
    ComboCustName.AddOwnKey(QStringLiteral("F10")); // its list hides the guide line
    txtSalesNo.SetGuide(KeyGuide(txtSalesNo));
    txtLiters.SetGuide(KeyGuide(txtLiters));
    // What is shown has to fit, too: it would be cut to the same length.
    for (const auto& [figure, longest] : {std::pair<Field*, int>(&txtSalesNo, 12), {&txtLiters, 12},
             {&txtFat, 9}, {&txtRate, 9}, {&txtAmount, 18}})
        figure->SetMaxLength(longest);
    DataGridInwards.SetTabStop(false);
    DataGridInwards.SetSearched();
    LayOut();
}

void frmMilkSales::Load()
{
    SalesShift::EmptyCopy();
    DataGridInwards.Bind(gCn, QStringLiteral("select * from MilkSalesTemp"));
    ClearFields();
    maskDate.SetDate(gAppState.gAppDate);
    FillCombo(ComboCustName, u"CustomersMaster", u"CustomerName", {});
    ComboCustName.PutFirst(Word::Cash.toString());
    Summary.ShowNone();
    Receipt.Prepare();
    EnableEntry(false);
}

void frmMilkSales::Escape()
{
    ClearFields();
    Close();
}

// Date and shift

// Nothing is entered until the shift of the day is open.
void frmMilkSales::maskDate_GotFocus()
{
    FrameOurLiters.Close();
    EnableEntry(false);
}

void frmMilkSales::maskDate_LostFocus()
{
    maskDate.InsistOnDate(Wanted::Date());
}

// The way to another day leads back over the shift.
void frmMilkSales::txtTime_GotFocus()
{
    maskDate.SetEnabled(true);
}

void frmMilkSales::txtTime_LostFocus()
{
    if (IsSteppingBack() || GoingTo() == &maskDate)
        return;
    if (txtTime.HoldsShift())
        OpenShift();
    else
        maskDate.SetFocus(Plain(u"Enter, मग वेळ निवडा : 1 सकाळ, 2 संध्याकाळ    Esc : बाहेर"));
}

SalesShift frmMilkSales::TheShift() const
{
    return {maskDate.Date(), txtTime.Text()};
}

void frmMilkSales::OpenShift()
{
    maskDate.SetEnabled(false);
    if (Stored)
        ClearFields();
    const SalesShift shift = TheShift();
    txtSalesNo.Show(shift.NextNumber());
    shift.Open();
    ShowShift();
    EnableEntry(true);
}

// The newest sale stands at the end and is to be seen.
void frmMilkSales::ShowShift()
{
    DataGridInwards.RefreshToEnd();
    Summary.Show(TheShift());
}

void frmMilkSales::ShowAddedSale()
{
    DataGridInwards.ShowAdded();
    Summary.Show(TheShift());
}

void frmMilkSales::EnableEntry(bool enabled)
{
    for (Control* control :
        std::initializer_list<Control*>{&txtSalesNo, &ComboCustName, &txtAnimal, &txtLiters,
            &FrameOurLiters.txtOurLiters, &FrameOurLiters.chkCalculate, &FrameOurLiters.txtOurFat,
            &FrameOurLiters.txtOurRate, &FrameOurLiters.txtSNF, &txtFat, &txtRate, &txtAmount, &cmdGo})
        control->SetEnabled(enabled);
}

// The number

void frmMilkSales::PreviousSale()
{
    if (txtSalesNo.Value() > 0)
        GoToNumber(txtSalesNo.Value() - 1);
}

void frmMilkSales::NextSale()
{
    GoToNumber(txtSalesNo.Value() + 1);
}

void frmMilkSales::GoToNumber(double number)
{
    ClearFields();
    txtSalesNo.Show(number);
    txtSalesNo.SelectAll();
    ShowSaleOfNumber();
}

// A number that was typed shows its sale, too: saving would write over it.
void frmMilkSales::txtSalesNo_LostFocus()
{
    txtSalesNo.Reformat();
    if (Stored && Stored->number != txtSalesNo.Value())
        ClearFields();
    if (!Stored)
        ShowSaleOfNumber();
}

void frmMilkSales::ShowSaleOfNumber()
{
    if (const std::optional<Sale> sale = Sale::Find(TheShift(), txtSalesNo.Value()))
        ShowSale(*sale);
}

void frmMilkSales::ShowSale(const Sale& sale)
{
    Stored = sale;
    ComboCustName.SetEntry(
        {sale.customerName, sale.customerNo == 0 ? QString() : ShortestDecimal(sale.customerNo)});
    ComboCustName.SetGuide(KeyGuide(ComboCustName));
    txtAnimal.SetText(sale.animal);
    txtLiters.Show(sale.liters);
    txtFat.Show(sale.fat);
    txtRate.Show(sale.rate);
    txtAmount.Show(sale.amount);
    FrameOurLiters.Show(sale);
}

void frmMilkSales::ClearFields()
{
    Stored.reset();
    IsRateRefused = false;
    for (Field* field :
        std::initializer_list<Field*>{&ComboCustName, &txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    ComboCustName.SetGuide(Plain(u"↓ ने यादीतून निवडा, किंवा नावाची सुरुवात टाका"));
    FrameOurLiters.Clear();
}

// Customer

void frmMilkSales::ComboCustName_LostFocus()
{
    if (ComboCustName.IsEmpty() && (IsSteppingBack() || GoingTo() == &txtSalesNo))
        return; // to another number
    if (TakeCustomer())
        return;
    ShowNotice(Shivaji(u"ga`ahkacao naaMva vyavaisqat Ta[-p kra"));
    ComboCustName.SetFocus(Wanted::Name());
}

// Shows the name as it is stored; false if nobody has it.
bool frmMilkSales::TakeCustomer()
{
    if (ReadsCash(ComboCustName.Text())) {
        ComboCustName.SetText(Word::Cash.toString());
        return true;
    }
    const Recordset customer = PersonOfName(People::Customers, ComboCustName);
    if (customer.Eof())
        return false;
    ComboCustName.SetEntry({customer[u"CustomerName"].Text(), customer[u"CustomerNo"].Text()});
    return true;
}

// Milk

void frmMilkSales::txtLiters_GotFocus()
{
    LitersBefore = txtLiters.Value();
}

void frmMilkSales::txtLiters_LostFocus()
{
    txtLiters.Reformat();
    if (txtLiters.Value() == 0) {
        txtLiters.SetFocus(Plain(u"लिटर टाका    F9 : आपण मोजलेले    Esc : बाहेर"));
        return;
    }
    FrameOurLiters.FollowLitres();
    if (txtRate.Value() != 0 && txtLiters.Value() != LitersBefore)
        ShowAmount();
}

void frmMilkSales::ShowOurMeasure()
{
    FrameOurLiters.Open();
}

void frmMilkSales::txtFat_LostFocus()
{
    txtFat.Reformat();
}

void frmMilkSales::txtRate_GotFocus()
{
    if (std::exchange(IsRateRefused, false))
        return; // the clerk is to see what was refused
    if (txtAnimal.Text() == Word::Cow)
        txtRate.Show(Val(Setting(u"SalesRateCow")));
    else if (txtAnimal.Text() == Word::Buffalo)
        txtRate.Show(Val(Setting(u"SalesRateBuff")));
    txtRate.SelectAll();
    const bool isOther = Stored && Stored->rate != txtRate.Value();
    txtRate.SetGuide(isOther
            ? Plain(
                QStringLiteral("सेटिंगमधील दर; या नोंदीचा दर %1 होता").arg(Format(Stored->rate, u"#####0.00")))
            : Plain(u"दर : 60.00 पर्यंत"));
}

void frmMilkSales::txtRate_LostFocus()
{
    const double typed = txtRate.Reformat();
    if (txtRate.Value() == 0 || typed > HighestRate) {
        IsRateRefused = true;
        txtRate.SetFocus(Plain(u"दर टाका : 0.01 ते 60.00    Esc : बाहेर"));
        return;
    }
    ShowAmount();
}

void frmMilkSales::ShowAmount()
{
    txtAmount.Show(txtLiters.Value() * txtRate.Value());
}

void frmMilkSales::txtAmount_LostFocus()
{
    txtAmount.Reformat();
}

// Saving

void frmMilkSales::cmdGo_Click()
{
    if (!InsistOnSale())
        return;
    Transaction saving(gCn);
    const Sale sale = TheSale();
    const bool isNew = !sale.IsStored();
    if (isNew) {
        sale.Insert();
        if (!sale.IsForCash())
            CustomerLitres::Advance(sale.customerName, sale.animal, sale.liters);
    } else {
        sale.Update();
        if (!sale.IsForCash())
            for (const QStringView animal : {Word::Cow, Word::Buffalo})
                CustomerLitres::Recompute(sale.customerName, animal);
    }
    SalesShift::TidyCopy();
    const bool hasReceipt = SaleReceipt::IsWanted();
    if (hasReceipt)
        SaleReceipt::Stage(sale);
    saving.Commit();

    if (isNew)
        ShowAddedSale();
    else
        ShowShift();
    txtSalesNo.Show(sale.shift.NextNumber());
    ClearFields();
    txtSalesNo.SetFocus();
    if (hasReceipt)
        Receipt.Print(sale); // the sale is safe, whatever the printer does
}

// What isn't whole stays on the screen, and nothing is written.
bool frmMilkSales::InsistOnSale()
{
    if (txtSalesNo.Value() == 0)
        txtSalesNo.SetFocus(Plain(u"विक्री क्रमांक 0 नसतो : काहीही सेव्ह झाले नाही"));
    else if (txtRate.Value() == 0)
        txtSalesNo.SetFocus(Plain(u"दर नाही : काहीही सेव्ह झाले नाही"));
    else if (ComboCustName.IsEmpty())
        ComboCustName.SetFocus(Wanted::Name());
    else if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus(Wanted::Animal());
    else if (txtLiters.Value() == 0)
        txtLiters.SetFocus(Plain(u"लिटर टाका    F9 : आपण मोजलेले    Esc : बाहेर"));
    else
        return true;
    return false;
}

Sale frmMilkSales::TheSale() const
{
    Sale sale{TheShift(), txtSalesNo.Value(), Word::Cash.toString(), 0, ComboCustName.Text(),
        txtAnimal.Text(), txtLiters.Value(), txtFat.Value(), txtRate.Value(), txtAmount.Value(),
        FrameOurLiters.txtOurLiters.Value(), FrameOurLiters.txtSNF.Value(), FrameOurLiters.txtOurFat.Value(),
        FrameOurLiters.txtOurRate.Value()};
    if (!sale.IsForCash())
        FindBuyer(sale);
    return sale;
}

// A name may be in several companies. A customer who is gone keeps the number that the sale has.
void frmMilkSales::FindBuyer(Sale& sale) const
{
    sale.type.clear();
    if (Stored && Stored->customerName == sale.customerName)
        sale.customerNo = Stored->customerNo;
    for (Recordset buyer(gCn,
             Sql(u"SELECT CustomerNo,CustomerType FROM CustomersMaster Where CustomerName=",
                 Quoted(sale.customerName)));
         !buyer.Eof(); buyer.MoveNext()) {
        if (!ComboCustName.MayMean(buyer[u"CustomerNo"].Text()))
            continue;
        sale.customerNo = buyer[u"CustomerNo"].Number();
        sale.type = buyer[u"CustomerType"].Text();
        return;
    }
}

void frmMilkSales::cmdGo_LostFocus()
{
    const double rate = txtRate.Value();
    if (rate == 0 || rate > HighestRate)
        txtSalesNo.SetFocus();
}

// Deleting

// No question is asked. What is deleted is the sale as the books have it, whatever was typed over it.
void frmMilkSales::DeleteSale()
{
    if (!Stored)
        return;
    const Sale sale = *Stored;
    Transaction deleting(gCn);
    sale.Delete();
    if (!sale.IsForCash())
        CustomerLitres::Recompute(sale.customerName, sale.animal);
    SalesShift::TidyCopy();
    deleting.Commit();
    ShowShift();
    ClearFields();
    txtSalesNo.Show(sale.shift.NextNumberInCopy());
    txtSalesNo.SetFocus();
}
