// What becomes of the line of fields: saved as a delivery, deleted, or looked up.

#include "collection/CounterScreen.h"
#include "collection/ClosingFigures.h"
#include "collection/frmSearchCollections.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/ModalStack.h"
#include "society/Queries.h"
#include "society/Words.h"

void CounterScreen::cmdGo_Click()
{
    if (txtMemberNo.Value() != 0)
        ShowAmount(); // pressed by the mouse it comes straight from the litres, which make none
    if (txtMemberNo.Value() == 0 || txtAmount.Value() == 0) {
        txtCollectionNo.SetFocus(Plain(u"रक्कम किंवा मेम्बर नाही : काहीही सेव्ह झाले नाही"));
        return;
    }
    if (Setting(u"RepeatCollection") == Word::No && IsSecondDelivery()) {
        txtAnimal.SetEnabled(true);
        ShowPlain(QStringLiteral("Duplicate Record"));
        txtCollectionNo.SetFocus();
        ClearEntryFields();
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
    ClearEntryFields();
    m_totals.ShiftLitersTotal();
    m_totals.ShiftAverageFat();
    ShowNumber(NextNumberInCopy(shift));
    txtAnimal.SetEnabled(true);
    m_receipt.PrintReceipt(cmdPrinterOnOff.Text()); // the delivery is safe, whatever the printer does
    SendKeys(QStringLiteral("{Tab}"));
}

void CounterScreen::SendTareToScale()
{
    m_devices.SendTareToScale();
    txtLiters.SetText(QStringLiteral("0"));
}

// Whether the member has already brought milk of this animal to this shift.
bool CounterScreen::IsSecondDelivery() const
{
    const Shift shift = TheShift();
    return Finds(Sql(u"SELECT * FROM MilkCollectionsTemp where CollectionDate=", shift.Day(),
        u" and CollectionTime=", Quoted(shift.time), u" and CollectionNo<>", txtCollectionNo.Value(),
        u" and MemberNo=", txtMemberNo.Value(), u" and trim(Animal)=", Quoted(txtAnimal.Text())));
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

// No question is asked. A payment stops it only if its whole period is this one day.
void CounterScreen::DeleteRow()
{
    const Shift shift = TheShift();
    const double number = txtCollectionNo.Value();
    const double memberNo = txtMemberNo.Value();
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
    ClearEntryFields();
    m_totals.ShiftLitersTotal(); // the average fat stays as it was
    ShowNumber(NextNumberAfterDelete(shift));
    txtCollectionNo.SetFocus();
}

// The member's rows in the copy of the shift.
QString CounterScreen::RowsOfMember() const
{
    const Shift shift = TheShift();
    return Sql(u"SELECT * FROM MilkCollectionsTemp where CollectionDate=", shift.Day(),
        u" and CollectionTime=", Quoted(shift.time), u" AND MemberNo=", txtMemberNo.Value());
}

void CounterScreen::SearchMember()
{
    {
        const Recordset row(gCn, RowsOfMember());
        if (row.Eof())
            return;
        txtCollectionNo.SetText(row[u"CollectionNo"].Text());
        ShowRow(row);
    }
    DataGridInwards.ReadAll(); // the search puts other rows into the copy
    gAppState.gCallerTag = QStringLiteral("MC");
    frmSearchCollections search(
        frmSearchCollections::Handover{TheShift(), txtMemberNo.Text(), ComboMemberName.Text()});
    search.ShowModal();
    LightMemberKeys();
}
