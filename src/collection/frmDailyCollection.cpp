#include "collection/frmDailyCollection.h"

#include "core/menu/Keys.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/FieldRoutines.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <QKeyEvent>

namespace {

constexpr QStringView IdleTitle = u"  raojacao saBaasadanausaar duQa saMklana";

std::vector<DataGrid::Column> ListColumns()
{
    return {
        {QStringLiteral("CollectionDate"), Shivaji(u"idnaaMk"), 130, {}, false, false},
        {QStringLiteral("CollectionTime"), Shivaji(u"vaoL"), 0},
        {QStringLiteral("CollectionNo"), Shivaji(u"saMklana k`M"), 120, {}, false, false},
        {QStringLiteral("Animal"), Shivaji(u"dUQa p`kar"), 110},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 110, QStringLiteral("####0.000"), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), 80, QStringLiteral("#####0.00"), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), 100, QStringLiteral("#####0.00"), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 130, QStringLiteral("#####0.00"), true},
    };
}

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
    , DataGrid1(this, "DataGrid1", ListColumns())
    , Modes(*this, IdleTitle, {cmdAdd, cmdModify, cmdDelete, cmdCancel, cmdExit})
{
    Modes.SetFields({&txtMemberNo, &cmbMemberName, &MasKCollectionDate, &cmbCollectionTime, &txtCollectionNo},
        {&txtAnimal, &txtLiters, &txtFat, &txtRate, &txtAmount});
    When(txtMemberNo.TextChanged, &frmDailyCollection::txtMemberNo_Change);
    for (Field* key : std::initializer_list<Field*>{&MasKCollectionDate, &cmbCollectionTime})
        When(key->TextChanged, &frmDailyCollection::ForgetRow);
    When(txtCollectionNo.TextChanged, &frmDailyCollection::txtCollectionNo_Change);
    When(txtAmount.TextChanged, &frmDailyCollection::txtAmount_Change);
    When(DataGrid1.Click, &frmDailyCollection::DataGrid1_Click);
    cmbCollectionTime.KeyDown = [this](const QKeyEvent& key) { return cmbCollectionTime_KeyDown(key); };
    cmbCollectionTime.SetGuide(Shivaji(u"  1 ¹ sakaL    2 ¹ saMQyaakaL"));
    cmbMemberName.SetGuide(Keys::Guide(QStringLiteral("NameCombo")));
    DataGrid1.SetGuide(Plain(u"Enter : ही नोंद    F5 : यादी बंद"));
    LayOut();
}

void frmDailyCollection::Load()
{
    DataGrid1.Bind(gCn, QStringLiteral("SELECT * FROM MilkCollections WHERE CompanyId=0"));
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

void frmDailyCollection::BeginState()
{
    SetGuides();
    txtMemberNo.SetFocus();
}

// A row that is to be changed is looked up first, and saved under its own animal only.
void frmDailyCollection::SetGuides()
{
    txtMemberNo.SetGuide(Modes.IsNew() ? Plain(u"F5 : मेम्बरचे आतापर्यंतचे संकलन")
                                       : Plain(u"नोंद शोधा : मेम्बर, दिनांक, वेळ, संकलन क्रमांक"));
    txtCollectionNo.SetGuide(Modes.IsNew() ? Plain(u"1 ते 32766") : Plain(u"Enter : ही नोंद"));
    txtAnimal.SetGuide(
        Modes.IsModify() ? Plain(u"दूध प्रकार नोंदीचाच ठेवा : दुसरा सेव्ह होत नाही") : AnimalField::UsualGuide());
    cmdDelete.SetGuide(Modes.IsDelete() ? Plain(u"हा क्रमांक या वेळेच्या सर्व दिवसांतून खोडला जाईल") : Caption());
}

void frmDailyCollection::ShowIdle()
{
    Modes.Rest();
    cmdDelete.SetGuide({});
    ShowList(false);
    ClearFields();
}

void frmDailyCollection::ClearFields()
{
    for (Field* field : Fields())
        field->Clear();
    for (Field* figure : std::initializer_list<Field*>{&txtLiters, &txtFat, &txtRate, &txtAmount})
        figure->SetText(QStringLiteral("0"));
    IsPicked = false;
    ProposedNo.clear();
    NumberedFor.clear();
}

void frmDailyCollection::cmdCancel_Click()
{
    ShowIdle();
    cmdAdd.SetFocus();
}

// Adding

void frmDailyCollection::cmdAdd_Click()
{
    if (!Modes.IsNew()) {
        Modes.EnterNew();
        BeginState();
        return;
    }
    if (HasMissing())
        return;
    if (Finds(Sql(u"SELECT * FROM MilkCollections WHERE CompanyId=", gAppState.gCompanyId, u" AND MemberNo=",
            txtMemberNo.Text(), u" AND CollectionDate=", Day(), u" AND CollectionTime=",
            Quoted(cmbCollectionTime.Text()), u" AND Animal=", Quoted(txtAnimal.Text())))) {
        ShowPlain(QStringLiteral("Duplicate record not allowed"));
        return;
    }
    Write(InsertStatement());
    if (IsListShown())
        DataGrid1.Refresh();
    for (Field* field :
        std::initializer_list<Field*>{&txtCollectionNo, &txtLiters, &txtFat, &txtRate, &txtAmount})
        field->Clear();
    MasKCollectionDate.SetDate(MasKCollectionDate.Date().addDays(1));
    ShowNextNumber();
    txtLiters.SetFocus(); // the same member, shift and animal, a day later
}

QString frmDailyCollection::InsertStatement() const
{
    return Sql(
        u"INSERT INTO MilkCollections (CompanyId,MemberNo,MemberName,Animal,CollectionDate,CollectionTime,"
        u"CollectionNo,Liters,Fat,Rate,Amount) VALUES (",
        gAppState.gCompanyId, u",", txtMemberNo.Text(), u",", Quoted(cmbMemberName.Text()), u",",
        Quoted(txtAnimal.Text()), u",", Quoted(MasKCollectionDate.Text()), u",",
        Quoted(cmbCollectionTime.Text()), u",", txtCollectionNo.Text(), u",", txtLiters.Text(), u",",
        txtFat.Text(), u",", txtRate.Text(), u",", txtAmount.Text(), u")");
}

// The series of a day runs over both its shifts here.
void frmDailyCollection::ShowNextNumber()
{
    const Recordset highest(gCn,
        Sql(u"SELECT MAX(CollectionNo) as mMaxNo FROM MilkCollections WHERE CompanyId=", gAppState.gCompanyId,
            u" AND CollectionDate=", Day()));
    ProposedNo = ShortestDecimal(highest.Eof() ? 1.0 : highest[u"mMaxNo"].Number() + 1);
    txtCollectionNo.SetText(ProposedNo);
    NumberedFor = DayAndShift();
}

// Modifying

void frmDailyCollection::cmdModify_Click()
{
    if (!Modes.IsModify()) {
        Modes.EnterModify();
        BeginState();
        return;
    }
    if (HasMissing())
        return;
    Write(UpdateStatement());
    ShowIdle();
    cmdModify.SetFocus();
}

QString frmDailyCollection::UpdateStatement() const
{
    return Sql(u"UPDATE MilkCollections SET Liters=", txtLiters.Value(), u",Fat=", txtFat.Value(), u",Rate=",
        txtRate.Value(), u",Amount=", txtAmount.Value(), u" WHERE CollectionNo=", txtCollectionNo.Value(),
        u" AND CollectionDate=", Day(), u" AND MemberNo=", txtMemberNo.Value(), u" AND CollectionTime =",
        Quoted(cmbCollectionTime.Text()), u"AND Animal=", Quoted(txtAnimal.Text()));
}

// Deleting

void frmDailyCollection::cmdDelete_Click()
{
    if (!Modes.IsDelete()) {
        Modes.EnterDelete();
        BeginState();
        return;
    }
    if (HasMissing())
        return;
    Write(DeleteStatement());
    ShowIdle();
    cmdDelete.SetFocus();
}

// It takes the number of this member and shift on every day, not only on the one shown.
QString frmDailyCollection::DeleteStatement() const
{
    return Sql(u" DELETE * FROM MilkCollections WHERE CompanyId= ", gAppState.gCompanyId,
        u" AND CollectionNo= ", txtCollectionNo.Value(), u" AND MemberNo=", txtMemberNo.Value(),
        u" AND CollectionTime=", Quoted(cmbCollectionTime.Text()));
}

// The member's list

void frmDailyCollection::OpenList()
{
    Write(QStringLiteral("DELETE * FROM MilkCollections WHERE CompanyId=999"));
    DataGrid1.Bind(gCn, Sql(u"SELECT * FROM MilkCollections WHERE MemberNo=", txtMemberNo.Value()));
    ShowList(true);
    if (DataGrid1.CurrentRow() >= 0)
        DataGrid1.SetFocus();
}

void frmDailyCollection::ShowList(bool shown)
{
    DataGrid1.SetVisible(shown);
    Frame1->setVisible(shown);
}

void frmDailyCollection::CloseList()
{
    txtMemberNo.SetFocus();
    ShowList(false);
}

void frmDailyCollection::DataGrid1_Click()
{
    const int row = DataGrid1.CurrentRow();
    if (row < 0)
        return;
    MasKCollectionDate.SetDate(DataGrid1.Value(row, u"CollectionDate").Date());
    cmbCollectionTime.SetText(DataGrid1.Value(row, u"CollectionTime").Text());
    txtCollectionNo.SetText(DataGrid1.Value(row, u"CollectionNo").Text());
    NumberedFor = DayAndShift();
    IsPicked = true;
    txtCollectionNo.SetFocus();
    ShowList(false);
}
