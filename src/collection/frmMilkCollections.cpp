#include "frmMilkCollections.h"

#include "ActualTime.h"
#include "CommonKeys.h"
#include "CompanyTitle.h"
#include "Counter.h"
#include "LookupFatRate.h"
#include "MdlAccounts.h"
#include "Messages.h"
#include "ModalStack.h"
#include "Recordset.h"
#include "ScreenDirectory.h"
#include "Sql.h"

#include <QKeyEvent>

#include <utility>

using namespace Counter;

namespace {

constexpr QStringView LitersFormat = u"########0.000";

}

frmMilkCollections::frmMilkCollections() : Screen("frmMilkCollections")
{
    When(maskDate.GotFocus, &frmMilkCollections::maskDate_GotFocus);
    When(maskDate.LostFocus, &frmMilkCollections::maskDate_LostFocus);
    When(txtTime.GotFocus, &frmMilkCollections::txtTime_GotFocus);
    When(txtTime.LostFocus, &frmMilkCollections::txtTime_LostFocus);
    When(txtCollectionNo.GotFocus, &frmMilkCollections::txtCollectionNo_GotFocus);
    When(txtCollectionNo.LostFocus, &frmMilkCollections::txtCollectionNo_LostFocus);
    When(txtMemberNo.GotFocus, &frmMilkCollections::txtMemberNo_GotFocus);
    When(txtMemberNo.LostFocus, &frmMilkCollections::txtMemberNo_LostFocus);
    When(ComboMemberName.GotFocus, &frmMilkCollections::ComboMemberName_GotFocus);
    When(ComboMemberName.LostFocus, &frmMilkCollections::ComboMemberName_LostFocus);
    When(txtAnimal.GotFocus, &frmMilkCollections::txtAnimal_GotFocus);
    When(txtAnimal.LostFocus, &frmMilkCollections::txtAnimal_LostFocus);
    When(txtLiters.LostFocus, &frmMilkCollections::txtLiters_LostFocus);
    When(txtFat.GotFocus, &frmMilkCollections::txtFat_GotFocus);
    When(txtFat.LostFocus, &frmMilkCollections::txtFat_LostFocus);
    When(txtRate.LostFocus, &frmMilkCollections::txtRate_LostFocus);
    When(cmdGo.Click, &frmMilkCollections::cmdGo_Click);
    When(cmdGo.LostFocus, &frmMilkCollections::cmdGo_LostFocus);
    txtCollectionNo.KeyDown = [this](const QKeyEvent& key) { return txtCollectionNo_KeyDown(key); };
    txtMemberNo.KeyDown = [this](const QKeyEvent& key) { return txtMemberNo_KeyDown(key); };

    txtTime.SetLocked(true);
    txtTime.SetGuide(Shivaji(u"  1 ¹ sakaL    2 ¹ saMQyaakaL"));
    txtAnimal.SetLocked(true);
    txtAnimal.SetGuide(Shivaji(u"  1 ¹ gaaya    2 ¹ mhOsa"));
    ComboMemberName.Accepts = [](QChar c) { return c != u'\'' && !c.isDigit(); };
    txtLiters.SetMaxLength(9);
    txtAmount.SetEnabled(false);
    EnableEntry(false);
    LayOut();
}

void frmMilkCollections::Load()
{
    ShowCompany(lblCompanyTitle, lblAcYear);
    EmptyShiftCopy();
    maskDate.SetDate(gAppState.gAppDate);
    LoadMemberNames();
    RefreshActualTime();
}

bool frmMilkCollections::KeyDown(const QKeyEvent& key)
{
    if (CommonKeys::Calculator(key, false) || CommonKeys::Tutor(key))
        return true;
    switch (key.key()) {
    case Qt::Key_F3:
        ScreenDirectory::Open(QStringLiteral("frmMembers"), Shivaji(u"]%padkacao rijasTr"));
        return true;
    case Qt::Key_F6:
        ScreenDirectory::Open(QStringLiteral("frmUchalVouchers"), Shivaji(u"]cala naaoMd"));
        return true;
    default:
        return false;
    }
}

void frmMilkCollections::Escape()
{
    ClearEntryFields();
    Close();
}

// Date and shift

void frmMilkCollections::maskDate_GotFocus()
{
    EnableEntry(false);
    // A date that has to be mended is not selected: one key would wipe it out.
    if (!maskDate.HoldsDate())
        SendKeys(QStringLiteral("{Home}"));
}

void frmMilkCollections::maskDate_LostFocus()
{
    HoldDate();
}

// Keeps the focus in a date that is none; true if the date is good.
bool frmMilkCollections::HoldDate()
{
    if (!maskDate.HoldsDate())
        maskDate.SetFocus();
    return maskDate.HoldsDate();
}

void frmMilkCollections::txtTime_GotFocus()
{
    txtCollectionNo.SetEnabled(true);
}

void frmMilkCollections::txtTime_LostFocus()
{
    if (!HoldDate())
        return;
    if (txtTime.Text() != u"sakaL" && txtTime.Text() != u"saMQyaakaL") {
        txtTime.SetFocus();
        return;
    }
    const Shift shift = TheShift();
    ShowNumber(NextNumberInBooks(shift));
    OpenShift(shift);
    // The list of the shift, its litres and its average fat are shown here, from the copy just filled.
    txtCollectionNo.SetFocus();
}

// Collection number

void frmMilkCollections::txtCollectionNo_GotFocus()
{
    EnableEntry(true);
    if (txtTime.IsEmpty())
        SendBack(txtTime);
}

bool frmMilkCollections::txtCollectionNo_KeyDown(const QKeyEvent& key)
{
    const double number = Value(txtCollectionNo);
    if (key.key() == Qt::Key_Up && number > 1)
        txtCollectionNo.SetText(ShortestDecimal(number - 1));
    else if (key.key() == Qt::Key_Down)
        txtCollectionNo.SetText(ShortestDecimal(number + 1));
    else
        return false;
    txtCollectionNo.SelectAll();
    return true;
}

void frmMilkCollections::txtCollectionNo_LostFocus()
{
    if (IsSentBack())
        return;
    RefreshActualTime();
    const double number = Value(txtCollectionNo);
    if (number == 0) {
        ClearEntryFields();
        ShowNumber(NextCollectionNo);
        txtCollectionNo.SetFocus();
        return;
    }
    const Shift shift = TheShift();
    const Recordset row(gCn,
        Sql(u"SELECT * FROM MilkCollectionsTemp where cstr(CollectionDate)=", shift.Day(),
            u" and CollectionTime='", shift.time, u"' AND CollectionNo=", number));
    IsExistingRow = !row.Eof();
    if (IsExistingRow) {
        txtMemberNo.SetText(row[u"MemberNo"].Text());
        ShowRow(row);
    } else {
        ShowNumber(NextCollectionNo);
    }
}

// Member

void frmMilkCollections::txtMemberNo_GotFocus()
{
    ShowMemberKeys(true);
}

bool frmMilkCollections::txtMemberNo_KeyDown(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_F7:
        ScreenDirectory::Open(
            QStringLiteral("FrameMilkCollection"), Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana"));
        return true;
    case Qt::Key_F9:
        SearchMember();
        return true;
    case Qt::Key_F10:
        DeleteRow();
        return true;
    default:
        return false;
    }
}

void frmMilkCollections::txtMemberNo_LostFocus()
{
    ShowMemberKeys(false);
    const double number = Value(txtMemberNo);
    if (number == 0) {
        txtMemberNo.Clear();
        return;
    }
    const Recordset member(gCn, Sql(u"SELECT * FROM MembersMaster where MemberNo=", number));
    if (member.Eof()) {
        txtMemberNo.Clear();
    } else {
        ComboMemberName.SetText(member[u"MemberName"].Text());
        TakeAnimalOf(member);
    }
    if (txtAnimal.Enabled())
        txtAnimal.SetFocus();
    else
        txtLiters.SetFocus();
}

// A member of both kinds leaves the choice to the clerk; any other settles it.
void frmMilkCollections::TakeAnimalOf(const Recordset& member)
{
    const QString animal = member[u"Animal"].Text();
    const bool both = animal == u"daonhI";
    if (!both)
        txtAnimal.SetText(animal);
    txtAnimal.SetEnabled(both);
}

void frmMilkCollections::ComboMemberName_GotFocus()
{
    if (!txtMemberNo.IsEmpty())
        return;
    LoadMemberNames();
    SendKeys(QStringLiteral("%{Down}"));
}

// Without a number the focus is asked for here, so that the clerk sees which member the name has found; the
// next Enter goes on. Coming back with no number also reloads the list and drops it open.
void frmMilkCollections::ComboMemberName_LostFocus()
{
    const QString name = ComboMemberName.Text().trimmed();
    if (name.isEmpty()) {
        ShowNotice(u"maombarcao naaMva vyavaisqat Ta[-p kra");
        ComboMemberName.SetFocus();
        return;
    }
    if (txtMemberNo.IsEmpty())
        ComboMemberName.SetFocus();
    for (Recordset member(gCn, QStringLiteral("SELECT * FROM MembersMaster")); !member.Eof();
         member.MoveNext()) {
        if (member[u"MemberName"].Text().trimmed() != name)
            continue;
        txtMemberNo.SetText(member[u"MemberNo"].Text());
        TakeAnimalOf(member);
        txtAnimal.SetFocus(); // only if it is the clerk's choice: it is disabled otherwise
        return;
    }
    LoadMemberNames();
}

void frmMilkCollections::LoadMemberNames()
{
    QStringList names;
    for (Recordset member(gCn, QStringLiteral("SELECT MemberName FROM MembersMaster order by MemberName"));
         !member.Eof(); member.MoveNext())
        names.append(member[u"MemberName"].Text());
    ComboMemberName.SetItems(names);
}

void frmMilkCollections::txtAnimal_GotFocus()
{
    if (ComboMemberName.IsEmpty())
        ComboMemberName.SetEnabled(true);
    if (Value(txtMemberNo) == 0)
        SendBack(txtMemberNo);
}

void frmMilkCollections::txtAnimal_LostFocus()
{
    if (IsSentBack())
        return;
    if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus();
}

// Litres, fat, rate

void frmMilkCollections::txtLiters_LostFocus()
{
    if (ComboMemberName.IsEmpty()) {
        ComboMemberName.SetFocus();
        return;
    }
    if (txtAnimal.Text() != u"gaaya" && txtAnimal.Text() != u"mhOsa")
        return;
    const double liters = Value(txtLiters);
    txtLiters.SetText(Format(liters, LitersFormat));
    if (liters == 0)
        txtLiters.SetFocus();
}

void frmMilkCollections::txtFat_GotFocus()
{
    if (Setting(u"AutoFat") == u"naahI" && !IsExistingRow)
        OfferLastFat();
    if (txtFat.IsEmpty())
        txtFat.SetText(QStringLiteral("0"));
    txtFat.SelectAll();
}

// Without a fat tester the member's last fat of the same animal and half of the day is the likely one.
void frmMilkCollections::OfferLastFat()
{
    const Recordset last(gCn,
        Sql(u"select * from MilkCollections where CollectionDate<=", TheShift().Day(),
            u" and CollectionTime='", txtTime.Text(), u"' and Animal='", txtAnimal.Text(), u"' and MemberNo=",
            Value(txtMemberNo), u" and MemberName='", ComboMemberName.Text(),
            u"' order by CollectionDate desc,CollectionNo desc"));
    if (!last.Eof())
        txtFat.SetText(Format(last[u"Fat"].Number(), u"#####0.0"));
}

void frmMilkCollections::txtFat_LostFocus()
{
    const double fat = Value(txtFat);
    txtFat.SetText(Format(fat, FatFormat));
    if (fat == 0 || fat > HighestFat) {
        txtFat.SetFocus();
        return;
    }
    const FatRate found = LookupFatRate(maskDate.Date(), Value(txtFat), txtAnimal.Text());
    if (found.outcome == FatRate::Outcome::NoChart) {
        ClearEntryFields();
        maskDate.SetFocus();
        SendKeys(QStringLiteral("{TAB}{TAB}")); // over date and shift to the number again
        return;
    }
    if (found.outcome == FatRate::Outcome::Priced)
        txtRate.SetText(Format(found.rate, MoneyFormat));
    ShowAmount();
}

void frmMilkCollections::txtRate_LostFocus()
{
    if (Value(txtFat) != 0) {
        const double rate = Value(txtRate);
        txtRate.SetText(Format(rate, MoneyFormat));
        if (rate == 0 || rate > HighestRate)
            txtRate.SetFocus();
    }
    ShowAmount();
}

// The amount goes by what the fields show, so that the slip can be checked by hand.
void frmMilkCollections::ShowAmount()
{
    txtAmount.SetText(Format(Value(txtLiters) * Value(txtRate), MoneyFormat));
}

void frmMilkCollections::cmdGo_LostFocus()
{
    txtCollectionNo.SetFocus();
}

void frmMilkCollections::ShowMemberKeys(bool shown)
{
    for (Label* label : {&lblF9, &lblSearch, &lblF7, &lblMilk})
        label->SetVisible(shown);
    for (Label* label : {&lblF10, &lblDelete})
        label->SetVisible(shown && !ComboMemberName.IsEmpty());
}

// The line of fields

void frmMilkCollections::ClearEntryFields()
{
    for (Field* field : std::initializer_list<Field*>{
             &txtMemberNo, &ComboMemberName, &txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    IsExistingRow = false;
}

void frmMilkCollections::RefreshActualTime()
{
    lblActualCollectionTime.SetFigure(ActualTimeNow());
}

void frmMilkCollections::EnableEntry(bool enabled)
{
    for (Control* control : std::initializer_list<Control*>{&txtCollectionNo, &txtMemberNo, &ComboMemberName,
             &txtAnimal, &txtLiters, &txtFat, &txtRate, &cmdGo})
        control->SetEnabled(enabled);
}

// A field that must not be entered yet sends the focus back; that isn't a leaving to be validated.
void frmMilkCollections::SendBack(Control& to)
{
    FocusBounce = true;
    to.SetFocus();
}

bool frmMilkCollections::IsSentBack()
{
    return std::exchange(FocusBounce, false);
}

Shift frmMilkCollections::TheShift() const
{
    return {maskDate.Date(), txtTime.Text()};
}

Delivery frmMilkCollections::TheDelivery() const
{
    return {TheShift(), Value(txtCollectionNo), Value(txtMemberNo), ComboMemberName.Text(), txtAnimal.Text(),
        Value(txtLiters), Value(txtFat), Value(txtRate), Value(txtAmount),
        lblActualCollectionTime.Shown().Text()};
}

// Shows the number that the next new row takes.
void frmMilkCollections::ShowNumber(std::int16_t number)
{
    NextCollectionNo = number;
    txtCollectionNo.SetText(QString::number(number));
}

// A stored row's member by name, its animal and its figures.
void frmMilkCollections::ShowRow(const Recordset& row)
{
    ComboMemberName.SetText(row[u"MemberName"].Text());
    txtAnimal.SetText(row[u"Animal"].Text());
    txtLiters.SetText(Format(row[u"Liters"].Number(), LitersFormat));
    txtFat.SetText(Format(row[u"Fat"].Number(), FatFormat));
    txtRate.SetText(Format(row[u"Rate"].Number(), MoneyFormat));
    txtAmount.SetText(Format(row[u"Amount"].Number(), MoneyFormat));
}
