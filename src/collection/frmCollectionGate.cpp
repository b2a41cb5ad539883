#include "frmCollectionGate.h"

#include "Counter.h"
#include "Layout.h"
#include "MdlAccounts.h"
#include "ScreenDirectory.h"
#include "Sql.h"

using namespace Counter;

frmCollectionGate::frmCollectionGate() : CounterScreen(GateCounter)
{
    When(cmdGo.GotFocus, &frmCollectionGate::cmdGo_GotFocus);
    When(cmdLtrOrder.Click, &frmCollectionGate::cmdLtrOrder_Click);
    When(cmdFatOrder.Click, &frmCollectionGate::cmdFatOrder_Click);
    When(cmdRateOrder.Click, &frmCollectionGate::cmdRateOrder_Click);
    When(cmdAmtOrder.Click, &frmCollectionGate::cmdAmtOrder_Click);
    When(Command1.Click, &frmCollectionGate::Command1_Click);
    When(Command3.Click, &frmCollectionGate::Command3_Click);
    When(txtMemberNo.TextChanged, &frmCollectionGate::txtMemberNo_Change);
    When(txtLiters.TextChanged, &frmCollectionGate::txtLiters_Change);
    When(txtFat.TextChanged, &frmCollectionGate::txtFat_Change);
    When(txtRate.TextChanged, &frmCollectionGate::txtRate_Change);
    When(txtAnimal.TextChanged, &frmCollectionGate::txtAnimal_Change);
    When(ComboMemberName.TextChanged, &frmCollectionGate::ComboMemberName_Change);

    LayOut(Layout::Header(lblTitle, lblCompanyName), ListAndTotals());
}

void frmCollectionGate::Load()
{
    lblCompanyName.SetText(gAppState.gCompanyName);
    CounterScreen::Load();
}

// It is white until it has been left for the first time.
void frmCollectionGate::cmdGo_GotFocus()
{
    cmdGo.SetColours(QColor(Look::FocusColour), QColor(0xFF, 0xFF, 0xC0));
}

// The order of the list

void frmCollectionGate::cmdLtrOrder_Click()
{
    ToggleOrder(cmdLtrOrder, u"Liters");
}

void frmCollectionGate::cmdFatOrder_Click()
{
    ToggleOrder(cmdFatOrder, u"Fat");
}

void frmCollectionGate::cmdRateOrder_Click()
{
    ToggleOrder(cmdRateOrder, u"Rate");
}

void frmCollectionGate::cmdAmtOrder_Click()
{
    ToggleOrder(cmdAmtOrder, u"Amount");
}

void frmCollectionGate::ToggleOrder(Button& button, QStringView column)
{
    const bool descending = button.Shown() == Ascending();
    DataGridInwards.Bind(
        gCn, Sql(u"SELECT * FROM MilkCollectionsTemp ORDER BY ", column, descending ? u" DESC" : u" ASC"));
    const QString name = button.Widget()->accessibleName(); // that of its column, not the arrow's
    button.SetCaption(descending ? Descending() : Ascending());
    button.SetAccessibleName(Plain(name));
}

// The search: the field changed last decides what the list shows.

void frmCollectionGate::txtMemberNo_Change()
{
    SearchNumber(txtMemberNo, u"MemberNo");
}

void frmCollectionGate::txtLiters_Change()
{
    SearchNumber(txtLiters, u"Liters");
}

void frmCollectionGate::txtFat_Change()
{
    SearchNumber(txtFat, u"Fat");
}

void frmCollectionGate::txtRate_Change()
{
    SearchNumber(txtRate, u"Rate");
}

void frmCollectionGate::txtAnimal_Change()
{
    Search(Sql(u" WHERE Animal='", txtAnimal.Text().trimmed(), u"'"));
}

void frmCollectionGate::ComboMemberName_Change()
{
    const QString name = ComboMemberName.Text().trimmed();
    Search(Sql(u" WHERE left(MemberName,", name.size(), u")='", name, u"'"));
}

// A field that was just emptied shows the whole shift.
void frmCollectionGate::SearchNumber(const Field& field, QStringView column)
{
    Search(IsNumeric(field.Text()) ? Sql(u" WHERE ", column, u"=", Value(field)) : QString());
}

void frmCollectionGate::Search(const QString& condition)
{
    if (chkSerachMode.Checked())
        DataGridInwards.Bind(
            gCn, Sql(u"SELECT * FROM MilkCollectionsTemp", condition, u" ORDER BY CollectionNo DESC"));
}

// Its own buttons

void frmCollectionGate::Command1_Click()
{
    Close();
}

void frmCollectionGate::Command3_Click()
{
    ScreenDirectory::Open(
        QStringLiteral("frmAbsenseMemberCollection"), Shivaji(u" dUQa saMklana nasaNaaro saBaasad"));
}
