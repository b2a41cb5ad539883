#include "collection/CounterScreen.h"

#include "collection/ActualTime.h"
#include "collection/ClosingFigures.h"
#include "collection/Counter.h"
#include "collection/frmSearchCollections.h"
#include "core/menu/CommonKeys.h"
#include "core/menu/ScreenDirectory.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"
#include "society/Wanted.h"
#include "society/Words.h"

using namespace Counter;

// The amount takes what is left, which is more than its 1300 twips: a can paid by the lakh is not cut off.
std::vector<DataGrid::Column> CounterScreen::InwardsColumns(const CounterKind& kind)
{
    return {
        {QStringLiteral("CollectionNo"), Shivaji(u"saMklana Ë."), Twips(900), {}, false, false},
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naMbar"), Twips(1000), {}, false, false},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naaMva"), Twips(3100)},
        {QStringLiteral("Animal"), Shivaji(u"dUQa"), Twips(700)},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), Twips(1400), kind.liters.grid.toString(), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), Twips(1200), kind.gridFatFormat.toString(), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), Twips(1200), GridPattern::Figure.toString(), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 0, GridPattern::Figure.toString(), true},
    };
}

CounterScreen::CounterScreen(const CounterKind& kind, const Keys::Places& keys)
    : SocietyScreen(keys, Shivaji(kind.title), {.guide = "lblFooter", .company = kind.company})
    , Line(this, kind, {maskDate, txtTime, m_devices, Devices})
    , DataGridInwards(this, "DataGridInwards", InwardsColumns(kind))
    , m_kind(kind)
    , m_totals(this, kind.liters.total)
{
    When(maskDate.GotFocus, &CounterScreen::maskDate_GotFocus);
    When(txtTime.GotFocus, &CounterScreen::txtTime_GotFocus);
    When(txtCollectionNo.GotFocus, &CounterScreen::txtCollectionNo_GotFocus);
    When(cmdGo.LostFocus, &CounterScreen::cmdGo_LostFocus);
    Line.KeysOfMember.NameActions([this](const QString& key) { return KeyAction(Line.txtMemberNo, key); });
    maskDate.KeepForMending();
    maskDate.SetGuide(KeyGuide(maskDate));
    txtCollectionNo.SetGuide(KeyGuide(txtCollectionNo));
    EnableEntry(false);
}

void CounterScreen::Load()
{
    DataGridInwards.Bind(gCn, ShiftQuery.toString());
    if (!m_devices.ReadPortTable())
        ShowPlain(QStringLiteral("Check port setting"));
    EmptyShiftCopy();
    ShowInwardsGrid();
    maskDate.SetDate(gAppState.gAppDate);
    Line.ComboMemberName.LoadMemberNames();
    Devices.Show();
    RefreshActualTime();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    MilkReceipt::Prepare();
}

void CounterScreen::ShowInwardsGrid()
{
    DataGridInwards.Refresh();
}

// Keys

KeyHint CounterScreen::CalculatorKey()
{
    return {QStringLiteral("F2"), SocietyScreen::CalculatorKey().action, &CounterScreen::StartCalculator};
}

KeyHint CounterScreen::MembersKey()
{
    return {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr"), &CounterScreen::ShowMembers};
}

KeyHint CounterScreen::AdvanceKey()
{
    return {QStringLiteral("F6"), Shivaji(u"]cala naaoMd"), &CounterScreen::ShowAdvances};
}

KeyHint CounterScreen::SearchKey()
{
    return {QStringLiteral("F9"), Shivaji(u"dUQa saMklana pavatI"), &CounterScreen::SearchMember};
}

KeyHint CounterScreen::DeleteKey()
{
    return {QStringLiteral("F10"), Shivaji(u"KaoDNao"), &CounterScreen::DeleteRow};
}

std::vector<KeyHint> CounterScreen::NumberKeys()
{
    return {{QStringLiteral("↑"), Plain(u"आधीची नोंद"), &CounterScreen::PreviousNumber},
        {QStringLiteral("↓"), Plain(u"पुढची नोंद"), &CounterScreen::NextNumber}};
}

void CounterScreen::StartCalculator()
{
    CommonKeys::Calculator(false);
}

void CounterScreen::ShowMembers()
{
    ScreenDirectory::Open(QStringLiteral("frmMembers"));
    MembersShown();
}

void CounterScreen::ShowAdvances()
{
    ScreenDirectory::Open(QStringLiteral("frmUchalVouchers"));
}

void CounterScreen::Escape()
{
    Line.ClearEntryFields();
    Close();
}

// Date and shift

void CounterScreen::maskDate_GotFocus()
{
    EnableEntry(false);
}

void CounterScreen::maskDate_LostFocus()
{
    maskDate.InsistOnDate(Wanted::Date());
}

void CounterScreen::txtTime_GotFocus()
{
    txtCollectionNo.SetEnabled(true);
}

void CounterScreen::txtTime_LostFocus()
{
    if (!InsistOnShift(maskDate, txtTime))
        return;
    const Shift shift = TheShift();
    ShowNumber(NextNumberInBooks(shift));
    OpenShift(shift);
    ShowInwardsGrid();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    if (!IsSteppingBack()) // the way to another day
        txtCollectionNo.SetFocus();
}

Shift CounterScreen::TheShift() const
{
    return ShiftOf(maskDate, txtTime);
}

void CounterScreen::EnableEntry(bool enabled)
{
    txtCollectionNo.SetEnabled(enabled);
    Line.SetEnabled(enabled);
    cmdGo.SetEnabled(enabled);
    DataGridInwards.SetEnabled(enabled);
}

// Collection number

void CounterScreen::txtCollectionNo_GotFocus()
{
    EnableEntry(true);
    if (txtTime.IsEmpty())
        txtTime.SetFocus(Wanted::Shift());
}

void CounterScreen::PreviousNumber()
{
    if (txtCollectionNo.Value() > 1)
        ShowNumberToGoTo(txtCollectionNo.Value() - 1);
}

void CounterScreen::NextNumber()
{
    ShowNumberToGoTo(txtCollectionNo.Value() + 1);
}

void CounterScreen::ShowNumberToGoTo(double number)
{
    txtCollectionNo.Show(number);
    txtCollectionNo.SelectAll();
}

void CounterScreen::txtCollectionNo_LostFocus()
{
    if (txtTime.IsEmpty()) // it has sent the clerk back itself
        return;
    RefreshActualTime();
    const double number = txtCollectionNo.Value();
    if (number == 0) {
        Line.ClearEntryFields();
        ShowNumber(NextCollectionNo);
        txtCollectionNo.SetFocus(Plain(u"क्रमांक 0 नसतो : नवीन नोंदीसाठी Enter    Esc : बाहेर"));
        return;
    }
    const Shift shift = TheShift();
    const Recordset row(gCn,
        Sql(u"SELECT * FROM MilkCollectionsTemp where cstr(CollectionDate)=", shift.Day(),
            u" and CollectionTime=", Quoted(shift.time), u" AND CollectionNo=", number));
    Line.IsExistingRow = !row.Eof();
    if (Line.IsExistingRow) {
        Line.txtMemberNo.SetText(row[u"MemberNo"].Text());
        Line.Show(row);
    } else {
        ShowNumber(NextCollectionNo);
    }
}

// Shows the number that the next new row takes.
void CounterScreen::ShowNumber(std::int16_t number)
{
    NextCollectionNo = number;
    txtCollectionNo.Show(number);
}

void CounterScreen::RefreshActualTime()
{
    lblActualCollectionTime.SetFigure(ActualTimeNow());
}

// Saving

Delivery CounterScreen::TheDelivery() const
{
    return {TheShift(), txtCollectionNo.Value(), Line.txtMemberNo.Value(), Line.ComboMemberName.Text(),
        Line.txtAnimal.Text(), Line.txtLiters.Value(), Line.txtFat.Value(), Line.txtRate.Value(),
        Line.txtAmount.Value(), lblActualCollectionTime.Shown().Text()};
}

void CounterScreen::cmdGo_Click()
{
    if (Line.txtMemberNo.Value() != 0)
        Line.ShowAmount(); // with the mouse it can be pressed right after the litres, which make none
    if (Line.txtMemberNo.Value() == 0 || Line.txtAmount.Value() == 0) {
        txtCollectionNo.SetFocus(Plain(u"रक्कम किंवा मेम्बर नाही : काहीही सेव्ह झाले नाही"));
        return;
    }
    if (Setting(u"RepeatCollection") == Word::No && IsSecondDelivery()) {
        Line.txtAnimal.SetEnabled(true);
        ShowPlain(QStringLiteral("Duplicate Record"));
        txtCollectionNo.SetFocus();
        Line.ClearEntryFields();
        return;
    }
    const Shift shift = TheShift();
    const bool isThere = Finds(Sql(u"SELECT * FROM MilkCollectionsTemp where CollectionDate=", shift.Day(),
        u" and CollectionTime=", Quoted(shift.time), u" and CollectionNo=", txtCollectionNo.Value()));
    RefreshActualTime();
    const Delivery delivery = TheDelivery();

    Transaction save(gCn);
    if (isThere)
        UpdateDelivery(delivery); // a change leaves the money balance alone: only a new row raises it
    else
        StoreNew(delivery);
    RefreshClosingLitres(delivery.memberNo);
    TidyShiftCopy();
    MilkReceipt::StageReceipt(delivery);
    save.Commit();

    ShowInwardsGrid();
    if (DeviceSwitch::IsOn(gAppState.gAutoLiters))
        SendTareToScale();
    Line.ClearEntryFields();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    ShowNumber(NextNumberInCopy(shift));
    Line.txtAnimal.SetEnabled(true);
    m_receipt.PrintReceipt(cmdPrinterOnOff.Text()); // the delivery is safe, whatever the printer does
    SendKeys(QStringLiteral("{Tab}"));
}

void CounterScreen::SendTareToScale()
{
    m_devices.SendTareToScale();
    Line.txtLiters.SetText(QStringLiteral("0"));
}

// Whether the member has already brought milk of this animal to this shift.
bool CounterScreen::IsSecondDelivery() const
{
    const Shift shift = TheShift();
    return Finds(Sql(u"SELECT * FROM MilkCollectionsTemp where CollectionDate=", shift.Day(),
        u" and CollectionTime=", Quoted(shift.time), u" and CollectionNo<>", txtCollectionNo.Value(),
        u" and MemberNo=", Line.txtMemberNo.Value(), u" and trim(Animal)=", Quoted(Line.txtAnimal.Text())));
}

void CounterScreen::StoreNew(const Delivery& delivery)
{
    InsertDelivery(delivery);
    if (delivery.animal == Word::Cow)
        CowLitersTaken += delivery.liters;
    else if (delivery.animal == Word::Buffalo)
        BuffLitersTaken += delivery.liters;
    if (Setting(u"PurchaseEntry") == u"Collection")
        PostClosingBalance(delivery.memberName, delivery.amount, PostAction::Add);
}

void CounterScreen::cmdGo_LostFocus()
{
    if (!IsSteppingBack())
        txtCollectionNo.SetFocus();
}

// Deleting and searching

// No question is asked. A payment stops it only if its whole period is this one day.
void CounterScreen::DeleteRow()
{
    const Shift shift = TheShift();
    const double number = txtCollectionNo.Value();
    const double memberNo = Line.txtMemberNo.Value();
    if (Finds(Sql(u"select * from MilkPayments where CompanyId=", gAppState.gCompanyId, u" and FromDate>=",
            shift.Day(), u" and ToDate<=", shift.Day(), u" and MemberNo=", memberNo))) {
        ShowPlain(QStringLiteral("Milk Payment Already Done, You Cannot Delete this Collection"));
        return;
    }
    if (Finds(Sql(u"select * from MilkCollections where CollectionDate=", shift.Day(),
            u" and CollectionTime=", Quoted(shift.time), u" and CollectionNo=", number))) {
        Transaction deleting(gCn);
        DeleteDelivery(shift, number);
        TidyShiftCopy();
        RefreshClosingLitres(memberNo);
        deleting.Commit();
    }
    ShowInwardsGrid();
    Line.ClearEntryFields();
    m_totals.ShiftLitersTotal(); // the average fat stays as it was
    ShowNumber(NextNumberAfterDelete(shift));
    txtCollectionNo.SetFocus();
}

void CounterScreen::SearchMember()
{
    const Shift shift = TheShift();
    {
        const Recordset row(gCn, RowsOfMember(shift, Line.txtMemberNo.Value()));
        if (row.Eof())
            return;
        txtCollectionNo.SetText(row[u"CollectionNo"].Text());
        Line.Show(row);
    }
    DataGridInwards.ReadAll(); // the search puts other rows into the copy
    gAppState.gCallerTag = QStringLiteral("MC");
    frmSearchCollections search({{shift, Line.txtMemberNo.Text(), Line.ComboMemberName.Text()}});
    search.ShowModal();
    Line.LightMemberKeys();
}

// The slips

void CounterScreen::cmdPrinterOnOff_Click()
{
    const bool isOn = cmdPrinterOnOff.Reads(MilkReceipt::PrinterOn);
    cmdPrinterOnOff.SetCaption(Shivaji(isOn ? MilkReceipt::PrinterOff : MilkReceipt::PrinterOn));
}
