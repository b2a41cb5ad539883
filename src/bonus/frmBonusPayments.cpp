#include "bonus/frmBonusPayments.h"

#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"

#include <QStackedLayout>

namespace {

constexpr QStringView ScreenTitle = u" baaonasa TUla"; // बोनस टूल

}

Keys::Places frmBonusPayments::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmBonusPayments"), Shivaji(u"baaonasa TUla"),
            {Next, Back, Leave, ListOfNames,
                {QStringLiteral("F5"), Plain(u"दिनांक, मेम्बर व दर"), &frmBonusPayments::ShowQuestions},
                PrintReport}},
        {QStringLiteral("frmBonusPayments.Frame1"), Plain(u"बोनस टूल, दिनांक व दर"), {Next, Back, Leave, Tick}},
        {QStringLiteral("frmBonusPayments.cmbMilkType"), Plain(u"बोनस टूल, दूध प्रकारात"),
            {OneOfThree, ChooseOption, {QStringLiteral("Alt+↓ Alt+↑"), Plain(u"यादी उघडा, बंद")}}},
    };
}

frmBonusPayments::frmBonusPayments()
    : SocietyScreen(KeyPlaces(), Shivaji(ScreenTitle))
    , DataGrid1(this, "DataGrid1", BonusColumns())
    , Frame2(this,
          {&Member.txtMemberNo, &Member.cmbMemberName, &Member.txtPreviousCowLiters,
              &Member.txtCurrentCowLiters, &Member.txtTotalcowLiters, &Member.txtTotalCowBonus,
              &Member.txtPreviousBuffLiters, &Member.txtCurrentBuffLiters, &Member.txtTotalBuffLiters,
              &Member.txtTotalBuffBonus, &Member.txtTotalBonus, &Member.txtAdvance, &Member.txtPreviousThev,
              &Member.txtRemainingBonus, &cmdNext, &cmdReport, &DataGrid1})
{
    When(cmdReport.LostFocus, &frmBonusPayments::cmdReport_LostFocus);
    When(Member.Shown, &frmBonusPayments::MarkMember);
    cmdNext.SetGuide(Plain(u"Enter : ठेवा, पुढचा मेम्बर"));
    DataGrid1.SetTabStop(false);
    LayOut();
    Frame2.SetVisible(false);
}

void frmBonusPayments::Load()
{
    BonusRun::Forget();
    DataGrid1.Bind(gCn, QStringLiteral("Select * From BonusPayments Where SerialNo=0"));
    Frame1.Load();
}

// The fields are emptied, and the rates of the settings stay.
void frmBonusPayments::Escape()
{
    Frame1.LetRatesBe();
    SocietyScreen::Escape();
}

// The run

void frmBonusPayments::cmdGo_Click()
{
    if (!Frame1.InsistOnAll())
        return;
    if (const BonusParameters asked = Frame1.Parameters(); LastRun != asked)
        Build(asked);
    ShowMembers();
}

void frmBonusPayments::Build(const BonusParameters& asked)
{
    Frame1.BeginRun();
    LastRun = asked;
    BonusRun::ByMember(asked, [this](const MemberBonus& bonus) { Frame1.ShowDone(bonus); });
    Frame1.EndRun();
    DataGrid1.Bind(gCn, QStringLiteral("Select * From BonusPayments"));
    Member.BeginAnew();
}

// The panels

void frmBonusPayments::ShowMembers()
{
    ShowPanel(true);
    Member.txtMemberNo.SetFocus();
}

// What was worked out stays, and is there again as long as nothing else is asked.
void frmBonusPayments::ShowQuestions()
{
    if (!Frame2.Visible())
        return;
    ShowPanel(false);
    Frame1.maskFromDate.SetFocus();
}

void frmBonusPayments::ShowPanel(bool members)
{
    Frame1.SetVisible(!members);
    Frame2.SetVisible(members);
    m_keys->setCurrentIndex(members ? 1 : 0);
}

// The members

void frmBonusPayments::SaveMember()
{
    Member.Save();
    DataGrid1.Refresh();
    MarkMember();
}

// The list stands at the member in hand.
void frmBonusPayments::MarkMember()
{
    constexpr int numberColumn = 1;
    DataGrid1.ReadAll();
    for (int row = 0; row < DataGrid1.Rows(); ++row)
        if (DataGrid1.Cell(row, numberColumn) == Member.txtMemberNo.Text())
            DataGrid1.SetCurrentRow(row);
}

void frmBonusPayments::cmdNext_Click()
{
    SaveMember();
    Member.txtMemberNo.SetFocus();
}

void frmBonusPayments::cmdReport_Click()
{
    SaveMember();
    BonusRun::Tidy();
    CrystalReport1.SetSubject(ReportSubject({}, LastRun->from, LastRun->to));
    CrystalReport1.Print();
}

// The form by account is built once something else is asked than what was built last.
void frmBonusPayments::cmdReport_LostFocus()
{
    if (!Frame1.AreGiven())
        return;
    const BonusParameters asked = Frame1.Parameters();
    if (LastRun == asked)
        return;
    LastRun = asked;
    BonusRun::ByAccount(asked);
}
