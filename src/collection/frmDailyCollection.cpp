#include "collection/frmDailyCollection.h"

#include "core/menu/Keys.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "rates/LookupFatRate.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <QKeyEvent>

#include <functional>
#include <utility>

namespace {

constexpr QStringView IdleTitle = u"  raojacao saBaasadanausaar duQa saMklana";

// One action is one statement here.
void Write(const QString& statement)
{
    Transaction writing(gCn);
    gCn.Execute(statement);
    writing.Commit();
}

}

Keys::Places frmDailyCollection::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmDailyCollection"), Shivaji(u"dUQa saMklana 3"),
            {Next, Back, Leave, CalculatorKey(), TutorKey(), New, Modify, Delete, Save, Cancel, ExitButton,
                OneOfTwo, ListOfNames}},
        {QStringLiteral("frmDailyCollection.txtMemberNo"), Plain(u"दूध संकलन ३, नवीन नोंदीच्या मेम्बर नंबरात"),
            {{QStringLiteral("F5"), Plain(u"मेम्बरचे आतापर्यंतचे संकलन"), &frmDailyCollection::ShowOrHideList}}},
        {QStringLiteral("frmDailyCollection.DataGrid1"), Plain(u"दूध संकलन ३, मेम्बरच्या यादीत"),
            {{QStringLiteral("Enter"), Plain(u"ही नोंद"), &frmDailyCollection::DataGrid1_Click},
                {QStringLiteral("F5"), Plain(u"यादी बंद"), &frmDailyCollection::CloseList}}},
    };
}

frmDailyCollection::frmDailyCollection()
    : SocietyScreen(KeyPlaces(), Shivaji(IdleTitle))
    , Modes(*this, IdleTitle, {cmdAdd, cmdModify, cmdDelete, cmdCancel, cmdExit})
    , Rules(Row, Modes)
{
    Modes.SetFields({&txtMemberNo, &cmbMemberName, &MasKCollectionDate, &cmbCollectionTime, &txtCollectionNo},
        {&txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount});
    When(txtMemberNo.TextChanged, &frmDailyCollection::txtMemberNo_Change);
    MasKCollectionDate.TextChanged = std::bind_front(&DailyRules::RowIsChanged, &Rules);
    cmbCollectionTime.TextChanged = std::bind_front(&DailyRules::RowIsChanged, &Rules);
    When(txtCollectionNo.TextChanged, &frmDailyCollection::txtCollectionNo_Change);
    txtAmount.TextChanged = std::bind_front(&DailyRules::PriceIsGiven, &Rules);
    When(List.DataGrid1.Click, &frmDailyCollection::DataGrid1_Click);
    cmbCollectionTime.KeyDown = [this](const QKeyEvent& key) { return cmbCollectionTime_KeyDown(key); };
    cmbCollectionTime.AddOwnKey(KeyHints::OneOfTwo.key);
    cmbCollectionTime.SetGuide(ShiftField::UsualGuide());
    cmbMemberName.SetGuide(Keys::Guide(QStringLiteral("NameCombo")));
    LayOut();
}

void frmDailyCollection::Load()
{
    List.Load();
    FillCombo(cmbMemberName, u"MembersMaster", u"MemberName", u"ORDER BY MemberName");
    cmbCollectionTime.SetItems({Word::Morning.toString(), Word::Evening.toString()});
    ShowIdle();
}

void frmDailyCollection::Escape()
{
    ClearFields();
    Close();
}

// States

// A row that is to be changed is looked up first, and saved under its own animal only.
void frmDailyCollection::BeginState()
{
    txtMemberNo.SetGuide(Modes.IsNew() ? Plain(u"F5 : मेम्बरचे आतापर्यंतचे संकलन")
                                       : Plain(u"नोंद शोधा : मेम्बर, दिनांक, वेळ, संकलन क्रमांक"));
    txtCollectionNo.SetGuide(Modes.IsNew() ? Plain(u"1 ते 32766") : Plain(u"Enter : ही नोंद"));
    txtAnimal.SetGuide(
        Modes.IsModify() ? Plain(u"दूध प्रकार नोंदीचाच ठेवा : दुसरा सेव्ह होत नाही") : AnimalField::UsualGuide());
    cmdDelete.SetGuide(Modes.IsDelete() ? Plain(u"हा क्रमांक या वेळेच्या सर्व दिवसांतून खोडला जाईल") : Caption());
    txtMemberNo.SetFocus();
}

void frmDailyCollection::ShowIdle()
{
    Modes.Rest();
    cmdDelete.SetGuide({});
    List.Hide();
    ClearFields();
}

void frmDailyCollection::ClearFields()
{
    Row.Clear();
    IsPicked = false;
    Rules.Forget();
}

void frmDailyCollection::cmdCancel_Click()
{
    BackToIdle();
}

void frmDailyCollection::BackToIdle()
{
    ShowIdle();
    cmdAdd.SetFocus();
}

// Member

void frmDailyCollection::txtMemberNo_Change()
{
    Rules.RowIsChanged();
    List.Hide(); // it is another member's now
}

void frmDailyCollection::txtMemberNo_LostFocus()
{
    ShowMemberOfNumber();
}

void frmDailyCollection::ShowMemberOfNumber()
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
    ShowMemberOfNumber();
}

// Day

void frmDailyCollection::MasKCollectionDate_LostFocus()
{
    Rules.InsistOnDay();
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
    if (Rules.InsistOnShift() && Modes.IsNew() && Rules.InsistOnDay())
        ShowNextNumber();
}

// A number that is typed stands for the day and shift beside it as they are.
void frmDailyCollection::txtCollectionNo_Change()
{
    Rules.RowIsChanged();
    Rules.NumberIsGiven();
}

void frmDailyCollection::txtCollectionNo_LostFocus()
{
    const bool isPicked = std::exchange(IsPicked, false);
    const bool isSeen = Rules.IsRowShown();
    if ((Modes.IsNew() && !isPicked) || !Rules.InsistOnDay())
        return;
    if (const Recordset row = RowOfNumber(); !row.Eof()) {
        Row.Show(row);
        Rules.RowIsShown();
        if (!isSeen && (GoingTo() == &cmdModify || GoingTo() == &cmdDelete))
            txtCollectionNo.SetFocus(Plain(u"नोंद पाहा, मग पुन्हा दाबा")); // one look before it is written
        else if (Modes.IsDelete() && !IsSteppingBack())
            cmdDelete.SetFocus();
    } else if (!Modes.IsNew()) {
        ShowNotice(Shivaji(u"saMklana naM tpasaa."));
        BackToIdle();
    }
}

// Of two rows with one number on one day, that of the shift in its field.
Recordset frmDailyCollection::RowOfNumber() const
{
    const SqlText rows = Sql(u"SELECT * FROM MilkCollections WHERE CollectionNo=", txtCollectionNo.Value(),
        u" AND MemberNo=", txtMemberNo.Value(), u" AND CollectionDate=", Row.Day());
    for (Recordset row(gCn, rows); !row.Eof(); row.MoveNext())
        if (row[u"CollectionTime"].Text() == cmbCollectionTime.Text())
            return row;
    return {gCn, rows};
}

// Milk

void frmDailyCollection::txtAnimal_LostFocus()
{
    Rules.InsistOnAnimal();
}

// Litres that are no number are found on leaving the fat.
void frmDailyCollection::txtLiters_LostFocus()
{
    if (Rules.InsistOnAnimal() && txtLiters.Value() <= 0)
        Rules.InsistOnLiters();
}

void frmDailyCollection::txtFat_LostFocus()
{
    if (!Rules.InsistOnLiters()) {
        txtLiters.SetText(QStringLiteral("0"));
        return;
    }
    const bool isFat = Rules.InsistOnFat(); // as it was typed: 30.04 is too much
    if (DailyRules::HoldsMilk(txtFat))
        txtFat.Reformat();
    else
        txtFat.SetText(QStringLiteral("0"));
    if (!isFat || !Rules.InsistOnDay())
        return;
    const FatRate found = LookupFatRate(MasKCollectionDate.Date(), txtFat.Value(), txtAnimal.Text());
    if (found.outcome == FatRate::Outcome::NoChart) {
        gAppState.gCallerTag = QStringLiteral("1");
        txtFat.SetFocus(DailyRules::WithWayOut(u"फॅट दराचा तक्ता नाही"));
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
    Rules.PriceIsGiven();
}

void frmDailyCollection::txtRate_LostFocus()
{
    DailyRow::Mend(txtRate);
    ShowAmount();
    if (IsSteppingBack())
        return;
    for (Button* button : {&cmdAdd, &cmdModify, &cmdDelete})
        button->SetFocus(); // the one that is open
}

void frmDailyCollection::txtAmount_LostFocus()
{
    DailyRow::Mend(txtAmount);
}

// Adding

void frmDailyCollection::cmdAdd_Click()
{
    if (!Modes.IsNew()) {
        Modes.EnterNew();
        BeginState();
        return;
    }
    if (!Rules.InsistOnAll())
        return;
    if (Finds(Sql(u"SELECT * FROM MilkCollections WHERE CompanyId=", gAppState.gCompanyId, u" AND MemberNo=",
            txtMemberNo.Text(), u" AND CollectionDate=", Row.Day(), u" AND CollectionTime=",
            Quoted(cmbCollectionTime.Text()), u" AND Animal=", Quoted(txtAnimal.Text())))) {
        ShowPlain(QStringLiteral("Duplicate record not allowed"));
        return;
    }
    Write(Row.InsertStatement());
    if (List.IsShown())
        List.DataGrid1.Refresh();
    for (Field* field :
        std::initializer_list<Field*>{&txtCollectionNo, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    MasKCollectionDate.SetDate(MasKCollectionDate.Date().addDays(1));
    ShowNextNumber();
    txtLiters.SetFocus(); // the same member, shift and animal, a day later
}

// The series of a day runs over both its shifts here.
void frmDailyCollection::ShowNextNumber()
{
    const Recordset highest(gCn,
        Sql(u"SELECT MAX(CollectionNo) as mMaxNo FROM MilkCollections WHERE CompanyId=", gAppState.gCompanyId,
            u" AND CollectionDate=", Row.Day()));
    txtCollectionNo.Show(highest.Eof() ? 1.0 : highest[u"mMaxNo"].Number() + 1);
    Rules.NumberIsProposed();
}

// Modifying

void frmDailyCollection::cmdModify_Click()
{
    if (!Modes.IsModify()) {
        Modes.EnterModify();
        BeginState();
    } else if (Rules.InsistOnAll()) {
        WriteAndRest(Row.UpdateStatement(), cmdModify);
    }
}

// It rests on the button that was pressed.
void frmDailyCollection::WriteAndRest(const QString& statement, Button& button)
{
    Write(statement);
    ShowIdle();
    button.SetFocus();
}

// Deleting

void frmDailyCollection::cmdDelete_Click()
{
    if (!Modes.IsDelete()) {
        Modes.EnterDelete();
        BeginState();
    } else if (Rules.InsistOnAll()) {
        WriteAndRest(Row.DeleteStatement(), cmdDelete);
    }
}

// The member's list

void frmDailyCollection::ShowOrHideList()
{
    if (List.IsShown())
        List.Hide();
    else if (Modes.IsNew())
        List.Open(txtMemberNo.Value());
}

void frmDailyCollection::CloseList()
{
    txtMemberNo.SetFocus();
    List.Hide();
}

void frmDailyCollection::DataGrid1_Click()
{
    const DataGrid& rows = List.DataGrid1;
    const int row = rows.CurrentRow();
    if (row < 0)
        return;
    MasKCollectionDate.SetDate(rows.Value(row, u"CollectionDate").Date());
    cmbCollectionTime.SetText(rows.Value(row, u"CollectionTime").Text());
    txtCollectionNo.SetText(rows.Value(row, u"CollectionNo").Text());
    Rules.NumberIsGiven();
    IsPicked = true;
    txtCollectionNo.SetFocus();
    List.Hide();
}
