// Leaving the fields of the daily collection.

#include "collection/frmDailyCollection.h"
#include "collection/Counter.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/text/Dates.h"
#include "rates/LookupFatRate.h"
#include "society/Names.h"
#include "society/Wanted.h"
#include "society/Words.h"

#include <QKeyEvent>

#include <cmath>
#include <utility>

using namespace Counter;

namespace {

// The counters keep a number in 16 bits, and so the one after it.
constexpr double HighestNumber = 32766;

// What is wanted in a field that keeps the focus, and the key that gives the row up.
Caption WithWayOut(QStringView wanted)
{
    return Plain(QString(wanted % QStringView(u"    Alt+R : रद्द")));
}

Caption LitersWanted()
{
    return WithWayOut(u"लिटर टाका : 0 पेक्षा जास्त");
}

Caption FatWanted()
{
    return WithWayOut(u"फॅट टाका : 0.1 ते 30.0");
}

// A field that must hold a number, whatever was typed.
void MendNumber(NumberField& field)
{
    if (!field.HoldsNumber())
        field.SetText(QStringLiteral("0"));
}

}

std::vector<Field*> frmDailyCollection::Fields()
{
    return {&txtMemberNo, &cmbMemberName, &MasKCollectionDate, &cmbCollectionTime, &txtCollectionNo,
        &txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount};
}

// Goes to what still has to be entered before the books can be written. A button can be pressed from any
// field, before the rules of the others were asked.
bool frmDailyCollection::HasMissing()
{
    const Missing missing = Unfinished();
    if (missing.field)
        missing.field->SetFocus(missing.wanted);
    return missing.field;
}

frmDailyCollection::Missing frmDailyCollection::Unfinished()
{
    if (!txtMemberNo.HoldsNumber())
        return {&txtMemberNo, WithWayOut(u"मेम्बर नंबर टाका")};
    if (Modes.IsNew() && cmbMemberName.IsEmpty())
        return {&cmbMemberName, WithWayOut(u"नाव टाका, किंवा ↓ ने यादीतून निवडा")};
    if (!MasKCollectionDate.HoldsDate())
        return {&MasKCollectionDate, Wanted::Date()};
    if (!IsShift(cmbCollectionTime.Text()))
        return {&cmbCollectionTime, Wanted::Shift()};
    if (Missing number = UnfinishedNumber(); number.field)
        return number;
    if (Modes.IsDelete())
        return {};
    if (txtAnimal.IsEmpty())
        return {&txtAnimal, Wanted::Animal()};
    if (Missing figure = Modes.IsNew() ? UnfinishedFigure() : Missing(); figure.field)
        return figure;
    if (Priced() == PricedFor)
        return {};
    return {&txtFat, Plain(u"नोंद बदलली : Enter ने दर व रक्कम पुन्हा काढा, मग सेव्ह")};
}

// A new row has a number of its own day and shift: leaving the shift shows it.
frmDailyCollection::Missing frmDailyCollection::UnfinishedNumber()
{
    if (Modes.IsNew() && DayAndShift() != NumberedFor)
        return {&cmbCollectionTime, Plain(u"दिनांक किंवा वेळ बदलली : Enter ने नवा क्रमांक, मग सेव्ह")};
    if (!txtCollectionNo.HoldsNumber())
        return {&txtCollectionNo, WithWayOut(u"संकलन क्रमांक टाका")};
    if (!Modes.IsNew())
        return IsRowShown ? Missing() : Missing{&txtCollectionNo, Plain(u"Enter ने नोंद पाहा, मग पुढे")};
    const double number = txtCollectionNo.Value();
    const bool isOfASeries = number >= 1 && number <= HighestNumber && number == std::trunc(number);
    if (isOfASeries || txtCollectionNo.Text() == ProposedNo)
        return {};
    return {&txtCollectionNo, WithWayOut(u"हा क्रमांक चालत नाही : 1 ते 32766")};
}

frmDailyCollection::Missing frmDailyCollection::UnfinishedFigure()
{
    if (!txtLiters.HoldsNumber() || txtLiters.Value() <= 0)
        return {&txtLiters, LitersWanted()};
    if (!txtFat.HoldsNumber() || txtFat.Value() <= 0 || txtFat.Value() > HighestFat)
        return {&txtFat, FatWanted()};
    if (!txtRate.HoldsNumber())
        return {&txtRate, WithWayOut(u"दर टाका")};
    return IsNumeric(txtAmount.Text()) ? Missing() : Missing{&txtAmount, WithWayOut(u"रक्कम टाका")};
}

// What the rate and the amount are made from. A rate that is typed makes the amount as soon as it is left.
QStringList frmDailyCollection::Priced() const
{
    return {MasKCollectionDate.Text(), txtAnimal.Text(), txtLiters.Text(), txtFat.Text()};
}

// Member

void frmDailyCollection::ShowOrHideList()
{
    if (IsListShown())
        ShowList(false);
    else if (Modes.IsNew())
        OpenList();
}

void frmDailyCollection::txtMemberNo_Change()
{
    ForgetRow();
    ShowList(false); // it is another member's now
}

// What is written is the row that was shown: with another member, day, shift or number it has to be shown
// first.
void frmDailyCollection::ForgetRow()
{
    IsRowShown = false;
}

void frmDailyCollection::txtMemberNo_LostFocus()
{
    if (!txtMemberNo.HoldsNumber()) {
        txtMemberNo.Clear();
        return;
    }
    const Recordset member(
        gCn, Sql(u"SELECT MemberName,Animal FROM MembersMaster WHERE  MemberNo=", txtMemberNo.Value()));
    if (member.Eof())
        cmbMemberName.Clear(); // a name stands there only beside its own number
    else
        TakeMember(member);
}

// A member of both kinds leaves the animal to the clerk.
void frmDailyCollection::TakeMember(const Recordset& member)
{
    cmbMemberName.SetEntry({member[u"MemberName"].Text(), ShortestDecimal(txtMemberNo.Value())});
    if (const QString animal = member[u"Animal"].Text(); animal != Word::Both)
        txtAnimal.SetText(animal);
}

// A member can be told by name as well; a name that is nobody's gives way to that of the number.
void frmDailyCollection::cmbMemberName_LostFocus()
{
    if (IsNameOf(cmbMemberName, txtMemberNo.Value()))
        return;
    if (const Recordset member = MemberOfName(cmbMemberName); !member.Eof()) {
        txtMemberNo.SetText(member[u"MemberNo"].Text());
        TakeMember(member);
        return;
    }
    cmbMemberName.Clear();
    txtMemberNo_LostFocus();
}

// Day

void frmDailyCollection::MasKCollectionDate_LostFocus()
{
    MasKCollectionDate.InsistOnDate(Wanted::Date());
}

QStringList frmDailyCollection::DayAndShift() const
{
    return {MasKCollectionDate.Text(), cmbCollectionTime.Text()};
}

QString frmDailyCollection::Day() const
{
    return SqlDay(MasKCollectionDate.Date());
}

// The figures that stand for the shifts at the counters do so here, too.
bool frmDailyCollection::cmbCollectionTime_KeyDown(const QKeyEvent& key)
{
    if (key.modifiers().testFlag(Qt::AltModifier) || (key.key() != Qt::Key_1 && key.key() != Qt::Key_2))
        return false;
    cmbCollectionTime.SetText(key.key() == Qt::Key_1 ? Word::Morning.toString() : Word::Evening.toString());
    cmbCollectionTime.SelectAll();
    return true;
}

void frmDailyCollection::cmbCollectionTime_LostFocus()
{
    if (!IsShift(cmbCollectionTime.Text()))
        cmbCollectionTime.SetFocus(Wanted::Shift());
    else if (Modes.IsNew() && MasKCollectionDate.InsistOnDate(Wanted::Date()))
        ShowNextNumber();
}

// A number that is typed stands for the day and shift beside it as they are.
void frmDailyCollection::txtCollectionNo_Change()
{
    ForgetRow();
    NumberedFor = DayAndShift();
}

void frmDailyCollection::txtCollectionNo_LostFocus()
{
    const bool isPicked = std::exchange(IsPicked, false);
    const bool isSeen = IsRowShown;
    if ((Modes.IsNew() && !isPicked) || !MasKCollectionDate.InsistOnDate(Wanted::Date()))
        return;
    const Recordset row(gCn,
        Sql(u"SELECT * FROM MilkCollections WHERE CollectionNo=", txtCollectionNo.Value(), u" AND MemberNo=",
            txtMemberNo.Value(), u" AND CollectionDate=", Day()));
    if (!row.Eof()) {
        ShowRow(row);
        if (!isSeen && (GoingTo() == &cmdModify || GoingTo() == &cmdDelete))
            txtCollectionNo.SetFocus(Plain(u"नोंद पाहा, मग पुन्हा दाबा")); // one look before it is written
        else if (Modes.IsDelete() && !IsSteppingBack())
            cmdDelete.SetFocus();
    } else if (!Modes.IsNew()) {
        ShowNotice(Shivaji(u"saMklana naM tpasaa."));
        cmdCancel_Click();
    }
}

void frmDailyCollection::ShowRow(const Recordset& row)
{
    txtMemberNo.SetText(row[u"MemberNo"].Text());
    ShowMember(cmbMemberName, row);
    MasKCollectionDate.SetDate(row[u"CollectionDate"].Date());
    cmbCollectionTime.SetText(row[u"CollectionTime"].Text());
    txtCollectionNo.SetText(row[u"CollectionNo"].Text());
    txtAnimal.SetText(row[u"Animal"].Text());
    for (const auto& [field, column] : std::initializer_list<std::pair<NumberField*, QStringView>>{
             {&txtLiters, u"Liters"}, {&txtFat, u"Fat"}, {&txtRate, u"Rate"}, {&txtAmount, u"Amount"}}) {
        field->SetText(row[column].Text());
        MendNumber(*field);
    }
    NumberedFor = DayAndShift();
    PricedFor = Priced();
    IsRowShown = true;
}

// Milk

void frmDailyCollection::txtAnimal_LostFocus()
{
    if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus(Wanted::Animal());
}

void frmDailyCollection::txtLiters_LostFocus()
{
    if (txtAnimal.IsEmpty())
        txtAnimal.SetFocus(Wanted::Animal());
    else if (txtLiters.Value() <= 0)
        txtLiters.SetFocus(LitersWanted());
}

void frmDailyCollection::txtFat_LostFocus()
{
    for (NumberField* field : std::initializer_list<NumberField*>{&txtLiters, &txtFat}) {
        if (field->HoldsNumber() && field->Value() > 0)
            continue;
        field->SetText(QStringLiteral("0"));
        field->SetFocus(field == &txtFat ? FatWanted() : LitersWanted());
        return;
    }
    if (txtFat.Reformat() > HighestFat) {
        txtFat.SetFocus(FatWanted());
        return;
    }
    if (!MasKCollectionDate.InsistOnDate(Wanted::Date()))
        return;
    const FatRate found = LookupFatRate(MasKCollectionDate.Date(), txtFat.Value(), txtAnimal.Text());
    if (found.outcome == FatRate::Outcome::NoChart) {
        gAppState.gCallerTag = QStringLiteral("1");
        txtFat.SetFocus(WithWayOut(u"फॅट दराचा तक्ता नाही"));
        return;
    }
    if (found.outcome == FatRate::Outcome::Priced)
        txtRate.Show(found.rate);
    ShowAmount();
    if (!IsSteppingBack())
        cmdAdd.SetFocus(); // a new row is done; a change goes on to the rate
}

void frmDailyCollection::ShowAmount()
{
    txtAmount.Show(txtLiters.Value() * txtRate.Value());
    PricedFor = Priced();
}

void frmDailyCollection::txtRate_LostFocus()
{
    MendNumber(txtRate);
    ShowAmount();
    if (IsSteppingBack())
        return;
    for (Button* button : {&cmdAdd, &cmdModify, &cmdDelete})
        button->SetFocus(); // the one that is open
}

// An amount that is typed stands for the figures beside it as they are.
void frmDailyCollection::txtAmount_Change()
{
    PricedFor = Priced();
}

void frmDailyCollection::txtAmount_LostFocus()
{
    MendNumber(txtAmount);
}
