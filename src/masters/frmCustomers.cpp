#include "masters/frmCustomers.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/forms/FigureTable.h"

#include <QGridLayout>

namespace {

constexpr MasterKind CustomersKind{
    .people = People::Customers,
    .title = u" ga`ahkacao maasTr",
    .numberWanted = u"ga`ahk naMbar vyavaisqat Ta[-p kra",
    .numberTaken = u"yaa ga`ahk naMbarcao roka^D- Agaaodrca Aaho",
    .numberUnknown = u"yaa ga`ahk naMbarcao roka^D- ]plabQa naahI",
    .nameWanted = u"ga`ahakacao naaMva vyavaisqat Ta[-p kra",
    .deleteQuestion = u"ga`akacaI sava- maaihtI KaoDlaI jaa[-la¸ roka^D- na@kI KaoDayacao ka Æ",
};

}

Keys::Places frmCustomers::KeyPlaces()
{
    return {{QStringLiteral("frmCustomers"), Shivaji(u"ga`ahkacao rijasTr"), MasterKeys()}};
}

frmCustomers::frmCustomers()
    : MasterScreen(KeyPlaces(), CustomersKind, {txtCustomerNo, ComboCustomerName, txtAnimal, Modes})
    , Modes(*this, CustomersKind.title, {cmdNew, cmdModify, cmdDelete, cmdCancel, cmdExit})
{
    Modes.SetFields({&txtCustomerNo, &ComboCustomerName},
        {&txtAnimal, &txtCustomerType, &txtCowOpeningLits, &txtBuffOpeningLits});
    SetRequired({&ComboCustomerName, &txtAnimal, &txtCustomerType});
    SetFigures({&txtCowOpeningLits}, {&txtBuffOpeningLits});
    for (Control* shown : {&txtCowClosingLits, &txtBuffClosingLits})
        shown->SetEnabled(false);
    When(ComboCustomerName.GotFocus, &frmCustomers::ComboCustomerName_GotFocus);
    SetGuides();
    LayOut();
}

// The record and its fields

// The customer who pays in cash stands first.
void frmCustomers::LoadLists()
{
    MasterScreen::LoadLists();
    ComboCustomerName.PutFirst(Word::Cash.toString());
}

void frmCustomers::LoadRecord(const Recordset& row)
{
    LoadedName = row[u"CustomerName"].Text();
    LoadedCowOpeningLits = row[u"CowOpeningLits"].Number();
    LoadedCowClosingLits = row[u"CowClosingLits"].Number();
    LoadedBuffOpeningLits = row[u"BuffOpeningLits"].Number();
    LoadedBuffClosingLits = row[u"BuffClosingLits"].Number();

    txtCustomerNo.Show(row[u"CustomerNo"].Number());
    ComboCustomerName.SetEntry({LoadedName, txtCustomerNo.Text()});
    txtAnimal.SetText(row[u"Animal"].Text());
    txtCustomerType.SetText(row[u"CustomerType"].Text());
    txtCowOpeningLits.Show(LoadedCowOpeningLits);
    txtCowClosingLits.Show(LoadedCowClosingLits);
    txtBuffOpeningLits.Show(LoadedBuffOpeningLits);
    txtBuffClosingLits.Show(LoadedBuffClosingLits);
}

void frmCustomers::ClearFields()
{
    LoadedName.clear();
    for (double* litres :
        {&LoadedCowOpeningLits, &LoadedCowClosingLits, &LoadedBuffOpeningLits, &LoadedBuffClosingLits})
        *litres = 0;
    for (Field* field :
        std::initializer_list<Field*>{&txtCustomerNo, &ComboCustomerName, &txtAnimal, &txtCustomerType})
        field->Clear();
    for (Field* litres : std::initializer_list<Field*>{
             &txtCowOpeningLits, &txtCowClosingLits, &txtBuffOpeningLits, &txtBuffClosingLits})
        litres->SetText(QStringLiteral("0"));
}

void frmCustomers::InsertRecord()
{
    gCn.Execute(Sql(u"Insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType "
                    u",CowOpeningLits,CowClosingLits,BuffOpeningLits ,BuffClosingLits)values(",
        Values(gAppState.gCompanyId, CustomerNo(), Trimmed(ComboCustomerName), Trimmed(txtAnimal),
            Trimmed(txtCustomerType), txtCowOpeningLits.Value(), txtCowClosingLits.Value(),
            txtBuffOpeningLits.Value(), txtBuffClosingLits.Value()),
        u")"));
}

// A new name reaches the sales of every company.
void frmCustomers::UpdateRecord()
{
    const SqlText name = Quoted(Trimmed(ComboCustomerName));
    gCn.Execute(Sql(u"update CustomersMaster set CustomerName=", name, u",Animal=",
        Quoted(Trimmed(txtAnimal)), u",CustomerType=", Quoted(Trimmed(txtCustomerType)), u",CowOpeningLits=",
        txtCowOpeningLits.Value(), u",CowClosingLits=", txtCowClosingLits.Value(), u",BuffOpeningLits= ",
        txtBuffOpeningLits.Value(), u",BuffClosingLits= ", txtBuffClosingLits.Value(), u" where CompanyId=",
        gAppState.gCompanyId, u" and CustomerNo=", CustomerNo()));
    gCn.Execute(
        Sql(u"update MilkSales set CustomerName=", name, u" where CustomerName=", Quoted(LoadedName)));
}

void frmCustomers::DeleteRecord()
{
    const int company = gAppState.gCompanyId;
    gCn.Execute(
        Sql(u"Delete * From CustomersMaster Where CompanyId=", company, u" And CustomerNo=", CustomerNo()));
    gCn.Execute(Sql(u"Delete * From MilkSales Where CompanyId=", company, u" And CustomerNo=", CustomerNo()));
}

// Entering and leaving the fields

void frmCustomers::ComboCustomerName_GotFocus()
{
    ComboCustomerName.SetTakesBeginnings(txtCustomerNo.IsEmpty());
    if (Modes.IsModify() || Modes.IsDelete())
        SendKeys(QStringLiteral("%{Down}"));
}

void frmCustomers::txtCustomerType_LostFocus()
{
    if (txtCustomerType.IsEmpty())
        txtCustomerType.SetText(Word::LocalSale.toString());
}

void frmCustomers::txtCowOpeningLits_LostFocus()
{
    const double opening = txtCowOpeningLits.Reformat();
    txtCowClosingLits.Show(ClosingLits(LoadedCowClosingLits, LoadedCowOpeningLits, opening));
    if (!txtBuffOpeningLits.Enabled())
        ToSaveButton();
}

void frmCustomers::txtBuffOpeningLits_LostFocus()
{
    const double opening = txtBuffOpeningLits.Reformat();
    txtBuffClosingLits.Show(ClosingLits(LoadedBuffClosingLits, LoadedBuffOpeningLits, opening));
    ToSaveButton();
}

// The window

void frmCustomers::LayOut()
{
    constexpr int numberWidth = 120;
    constexpr int wordWidth = 240;
    Layout::Form form;
    form.Row(Shivaji(u"ga`ahk naMbar"), txtCustomerNo, numberWidth);
    form.Row(Shivaji(u"ga`ahkacao naaMva"), ComboCustomerName);
    form.Row(Plain(u"जनावर"), txtAnimal, wordWidth);
    form.Row(Plain(u"विक्री प्रकार"), txtCustomerType, wordWidth);
    form.Grid()->setVerticalSpacing(Layout::Roomy);

    Layout::FigureTable table(Plain(u"आरंभीची"), Plain(u"अखेरची"));
    table.Line(Plain(u"गाय लिटर्स"), {txtCowOpeningLits}, {txtCowClosingLits});
    table.Line(Plain(u"म्हैस लिटर्स"), {txtBuffOpeningLits}, {txtBuffClosingLits});

    LayRegister(form.Grid(), table.Grid(), {&cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit});
}

void frmCustomers::SetGuides()
{
    txtCustomerNo.SetGuide(Shivaji(u"ga`ahk naMbar"));
    ComboCustomerName.SetGuide(Shivaji(u"ga`ahkacao naaMva"));
    txtAnimal.SetGuide(Shivaji(u"1 ¹ gaaya    2 ¹ mhOsa    3 ¹ daonhI"));
    txtCustomerType.SetGuide(Shivaji(u"1 ¹ sqaainak ivaËI    2 ¹ saMGa ivaËI"));
}
