#include "rates/frmNewFatRates.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Painting.h"
#include "rates/ReRating.h"
#include "rates/WorkingChart.h"
#include "society/FieldRoutines.h"
#include "society/Wanted.h"

#include <QKeyEvent>

#include <initializer_list>
#include <utility>

namespace {

constexpr QStringView AtRest = u"&dr badla"; // दर बदला
constexpr QStringView WhileEditing = u"&saovh"; // सेव्ह
constexpr QStringView LeaveGrid = u"iga`DmaQaUna baahor pDNyaasaazI"; // ग्रिडमधून बाहेर पडण्यासाठी
constexpr QStringView ChartOfBoth = u"gaaya dUQa dr p~k"; // गाय दूध दर पत्रक

// The keys walk through the fats between these.
constexpr double FatStep = 0.1;
constexpr double LeastFat = 1.0;
constexpr double MostFat = 30.0;

constexpr int LongestNumber = 9;

// Buffalo stands before cow on this screen.
std::vector<DataGrid::Column> ChartColumns()
{
    constexpr int width = 100;
    return {
        {QStringLiteral("Fat"), Shivaji(u"    f^T    "), width, QStringLiteral("####0.0"), true},
        {QStringLiteral("BuffRate"), Shivaji(u"    mhOsa   "), width, QStringLiteral("#####0.00"), true},
        {QStringLiteral("CowRate"), Shivaji(u"    gaaya    "), width, QStringLiteral("#####0.00"), true},
    };
}

}

Keys::Places frmNewFatRates::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmNewFatRates"), Shivaji(u"f^T dr badla"),
            {Next, Back, Leave, CalculatorKey(), {QStringLiteral("Alt+D"), Shivaji(u"dr badla")}, Save,
                Cancel, {QStringLiteral("F5"), Shivaji(u"duQaacaa p`it f^T dr"), &frmNewFatRates::ShowFrame},
                ExitButton}},
        {QStringLiteral("frmNewFatRates.txtFat"), Plain(u"फॅट दर बदला, फॅटच्या जागी"),
            {{QStringLiteral("↑ ↓"), Plain(u"मागची, पुढची फॅट")}}},
    };
}

frmNewFatRates::frmNewFatRates()
    : SocietyScreen(KeyPlaces(), Shivaji(u" f^T dr badla"))
    , DataGridBuffRates(this, "DataGridBuffRates", ChartColumns())
{
    When(maskOldDate.TextChanged, &frmNewFatRates::maskOldDate_Change);
    When(DataGridBuffRates.GotFocus, &frmNewFatRates::DataGridBuffRates_GotFocus);
    When(DataGridBuffRates.LostFocus, &frmNewFatRates::DataGridBuffRates_LostFocus);
    DataGridBuffRates.SetTabStop(false); // it passes the clerk on, who could never go back through it
    txtFat.KeyDown = [this](const QKeyEvent& key) { return txtFat_KeyDown(key); };
    for (Field* field : std::initializer_list<Field*>{&txtFat, &txtBuffRate, &txtCowRate, &txtBuffIncrement,
             &txtCowIncrement, &txtBasicBuffRate, &txtBasicCowRate})
        field->SetMaxLength(LongestNumber);
    cmdCancel.SetCancels(true);
    maskDate.SetGuide(Plain(u"पुढे जाताच सध्याचे दरपत्रक पुन्हा येते : केलेले बदल जातात"));
    txtFat.SetGuide(Plain(u"↑ : मागची फॅट    ↓ : पुढची फॅट"));
    cmdGo.SetGuide(Plain(u"Enter : हे दर ठेवा आणि पुढची फॅट घ्या"));
    cmdFatdar.SetGuide(Plain(u"Enter : सर्व फॅटचे दर असे करा"));
    LayOut();
    FrameFatDarBadla.SetVisible(false);
    ShowWayOut(false);
    lblMessage.SetVisible(false);
}

void frmNewFatRates::Load()
{
    DataGridBuffRates.Bind(gCn, WorkingChart::Query.toString());
    ShowBases();
    Rest();
    maskDate.SetDate(gAppState.gAppDate);
}

// Esc closes the frame first.
void frmNewFatRates::Escape()
{
    if (!FrameFatDarBadla.Visible()) {
        SocietyScreen::Escape();
        return;
    }
    FrameFatDarBadla.SetVisible(false);
    txtFat.SetFocus();
}

// States

bool frmNewFatRates::IsEditing() const
{
    return cmdAdd.Reads(WhileEditing);
}

void frmNewFatRates::cmdAdd_Click()
{
    if (IsEditing())
        SaveChart();
    else
        BeginChange();
}

// A society without a chart has no newest day: the clerk gives one.
void frmNewFatRates::BeginChange()
{
    cmdAdd.SetCaption(Shivaji(WhileEditing));
    NewestDate = Recordset(gCn, u"Select max(FromDate) as mdate From FatDates")[u"mdate"].Date();
    maskOldDate.SetDate(NewestDate);
    maskDate.SetDate(NewestDate);
    EnableInputs(true);
    maskDate.SetFocus();
}

void frmNewFatRates::Rest()
{
    cmdAdd.SetCaption(Shivaji(AtRest));
    EnableInputs(false);
    DataGridBuffRates.SetEnabled(false);
    NewestDate = {};
    IsExisting = false;
    ExistingTable.clear();
    for (Field* field : std::initializer_list<Field*>{&maskOldDate, &maskDate, &txtFat, &txtBuffRate,
             &txtCowRate, &txtBuffIncrement, &txtCowIncrement})
        field->Clear();
}

void frmNewFatRates::EnableInputs(bool isEditing)
{
    for (Control* control : std::initializer_list<Control*>{&maskOldDate, &maskDate, &txtFat, &txtBuffRate,
             &txtCowRate, &txtBuffIncrement, &txtCowIncrement, &cmdGo, &Command1, &cmdCancel})
        control->SetEnabled(isEditing);
    cmdExit.SetEnabled(!isEditing);
}

// The rows under edit are dropped; the next change takes them from the newest chart again.
void frmNewFatRates::cmdCancel_Click()
{
    WorkingChart::Empty();
    ShowRows();
    Rest();
    cmdAdd.SetFocus();
}

// The day of the chart

// It is only to look at, whatever is typed.
void frmNewFatRates::maskOldDate_Change()
{
    maskOldDate.SetDate(NewestDate);
}

// Whoever passes the grid by has the chart as well: it isn't taken again over what was made of it.
void frmNewFatRates::maskDate_LostFocus()
{
    if (GoingTo() == &cmdCancel || !InsistOnDay())
        return;
    FindChartOfDay();
    DataGridBuffRates.SetEnabled(true);
    TakeNewestChart();
    if (IsSteppingBack() || GoingTo() == &txtBasicBuffRate)
        WasInGrid = true;
    else
        DataGridBuffRates.SetFocus();
}

// Older charts are never changed here.
bool frmNewFatRates::InsistOnDay()
{
    if (!maskDate.InsistOnDate(Wanted::Date())) {
        ClearDateField(maskDate);
        return false;
    }
    if (NewestDate.isValid() && maskDate.Date() < NewestDate) {
        maskDate.SetFocus(
            Plain(QStringLiteral("%1 किंवा त्यानंतरचा दिनांक टाका    Alt+R : रद्द").arg(maskOldDate.Text())));
        return false;
    }
    return true;
}

void frmNewFatRates::FindChartOfDay()
{
    const Recordset chart(gCn, Sql(u"select * from FatDates where FromDate=", SqlDay(maskDate.Date())));
    IsExisting = !chart.Eof();
    ExistingTable = IsExisting ? chart[u"FatFileName"].Text().trimmed() : QString();
}

// The work begins with the newest chart, whatever the new day is.
void frmNewFatRates::TakeNewestChart()
{
    if (!NewestDate.isValid())
        return;
    const Recordset newest(
        gCn, Sql(u"Select FatFileName  From Fatdates Where cstr(FromDate)=", Quoted(maskOldDate.Text())));
    if (newest.Eof())
        return;
    WorkingChart::Take(newest[u"FatFileName"].Text());
    ShowRows();
}

// The rows

// The grid is to look at only: it passes the clerk on to the fields of a row.
void frmNewFatRates::DataGridBuffRates_GotFocus()
{
    lblExit.SetCaption(Shivaji(ChartOfBoth));
    ShowWayOut(true);
    if (!std::exchange(WasInGrid, true) && IsExisting) {
        WorkingChart::Take(ExistingTable);
        ShowRows();
    }
    txtFat.SetFocus();
}

void frmNewFatRates::DataGridBuffRates_LostFocus()
{
    lblExit.SetCaption(Shivaji(LeaveGrid));
    ShowWayOut(false);
}

void frmNewFatRates::ShowWayOut(bool visible)
{
    lblExit.SetVisible(visible);
    lblEsc.SetVisible(visible);
}

// Up goes to the fat above in the list, which is the smaller one.
bool frmNewFatRates::txtFat_KeyDown(const QKeyEvent& key)
{
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    if (key.key() == Qt::Key_Up && txtFat.Value() >= LeastFat)
        StepFat(-FatStep);
    else if (key.key() == Qt::Key_Down && txtFat.Value() <= MostFat)
        StepFat(FatStep);
    return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
}

void frmNewFatRates::StepFat(double step)
{
    txtFat.Show(txtFat.Value() + step);
    txtFat.SelectAll();
    const double fat = txtFat.Value();
    if (fat < LeastFat || fat > MostFat)
        return;
    const WorkingChart::Rates rates = WorkingChart::Of(fat);
    if (!rates.IsFound)
        return;
    txtBuffRate.SetText(Format(rates.Buffalo, u"#####0.00"));
    txtCowRate.SetText(Format(rates.Cow, u"#####0.00"));
    PointAtFat();
}

void frmNewFatRates::txtFat_LostFocus()
{
    const WorkingChart::Rates rates =
        txtFat.HoldsNumber() ? WorkingChart::Of(txtFat.Value()) : WorkingChart::Rates();
    if (!rates.IsFound) {
        txtFat.Show(0);
        return;
    }
    txtBuffRate.Show(rates.Buffalo);
    txtCowRate.Show(rates.Cow);
    PointAtFat();
}

void frmNewFatRates::txtBuffRate_LostFocus()
{
    txtBuffRate.Reformat();
}

void frmNewFatRates::txtCowRate_LostFocus()
{
    txtCowRate.Reformat();
}

// Keeps the rates of the fat and proposes those of the next one. A fat that the chart hasn't changes nothing.
void frmNewFatRates::cmdGo_Click()
{
    for (NumberField* increment : {&txtBuffIncrement, &txtCowIncrement})
        if (!increment->HoldsNumber())
            increment->Show(0);
    if (txtFat.Value() == 0) {
        txtFat.Show(0);
        txtFat.SetFocus();
        return;
    }
    WorkingChart::Put(txtFat.Value(), txtCowRate.Text(), txtBuffRate.Text());
    txtFat.Show(txtFat.Value() + FatStep);
    txtBuffRate.Show(txtBuffRate.Value() + txtBuffIncrement.Value());
    txtCowRate.Show(txtCowRate.Value() + txtCowIncrement.Value());
    ShowRows();
    txtBuffRate.SetFocus();
}

void frmNewFatRates::ShowRows()
{
    DataGridBuffRates.Refresh();
    PointAtFat();
}

// The row of the fat is the current one in the list.
void frmNewFatRates::PointAtFat()
{
    for (int row = 0; row < DataGridBuffRates.Rows(); ++row)
        if (DataGridBuffRates.Value(row, u"Fat").Number() == txtFat.Value())
            DataGridBuffRates.SetCurrentRow(row);
}

// Rates for each percent of fat

void frmNewFatRates::ShowFrame()
{
    FrameFatDarBadla.SetVisible(true);
    txtBasicBuffRate.SetFocus();
}

void frmNewFatRates::ShowBases()
{
    const Recordset bases(gCn, u"Select BasicCowRate,BasicBuffRate From Autosettings");
    txtBasicCowRate.Show(bases.Eof() ? 0 : bases[u"BasicCowRate"].Number());
    txtBasicBuffRate.Show(bases.Eof() ? 0 : bases[u"BasicBuffRate"].Number());
}

void frmNewFatRates::cmdFatdar_Click()
{
    cmdFatdar.SetEnabled(false);
    WorkingChart::MakeProportional(txtBasicCowRate.Value(), txtBasicBuffRate.Value());
    ShowRows();
    txtFat.SetFocus();
    cmdFatdar.SetEnabled(true);
    FrameFatDarBadla.SetVisible(false);
}

// Saving

void frmNewFatRates::SaveChart()
{
    const QDate from = maskDate.Date();
    if (IsExisting)
        WorkingChart::SaveOver(ExistingTable);
    else
        WorkingChart::SaveAsNew(maskDate.Text());
    OfferReRating(from);
    Rest();
}

// Deliveries that are paid for keep their rates: the payments have to be taken back first.
void frmNewFatRates::OfferReRating(const QDate& from)
{
    if (!ReRating::HasDeliveries(from))
        return;
    if (!Ask(Shivaji(u"dUQa saMklana roka^D-sa\\ navaIna f^T drap`maaNao badlaayacaI ka Æ"), OnEnter::No))
        return;
    if (ReRating::IsPaid(from))
        ShowNotice(Shivaji(u"f^T dr badlalyaanaMtrcaI pomaonT roka^D-sa\\ Agaaodr KaoDa"));
    else
        ReRate(from);
}

// The rates are those under edit, which may have more decimals than the chart that was saved.
void frmNewFatRates::ReRate(const QDate& from)
{
    lblMessage.SetVisible(true);
    ReRated.Begin(2 * ReRating::Fats());
    ReRating::Run(from, [this](double fat) {
        if (Painting::IsDue())
            lblMessage.SetFigure(QStringLiteral("फॅट %1").arg(Format(fat, u"####0.0")));
        ReRated.Step();
    });
    ReRated.End();
    lblMessage.SetVisible(false);
}

// Paper

void frmNewFatRates::Command1_Click()
{
    CrystalReport1.SetSubject(ReportSubject({}, maskDate.Date()));
    CrystalReport1.Print();
}
