#include "reports/frmReportMilkPaymentsRegister.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "reports/MemberBalances.h"
#include "reports/PaymentRegister.h"
#include "society/PaymentPeriod.h"
#include "society/Wanted.h"

Keys::Places frmReportMilkPaymentsRegister::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportMilkPaymentsRegister"), Shivaji(u"dUQa pomaonT rijasTr"),
            {Next, Back, Leave, ChooseOption, PrintReport, ExitButton}},
    };
}

frmReportMilkPaymentsRegister::Mode frmReportMilkPaymentsRegister::ModeOf(QStringView word)
{
    for (const auto& [name, mode] : {std::pair<QStringView, Mode>(u"TR", Mode::TR), {u"UR", Mode::UR},
             {u"UD", Mode::UD}, {u"UchalBalanceStatement", Mode::UchalBalanceStatement},
             {u"ThevBalanceStatement", Mode::ThevBalanceStatement}})
        if (word == name)
            return mode;
    return Mode::PR;
}

// The menu gives the registers the same titles.
Caption frmReportMilkPaymentsRegister::TitleOf(Mode mode)
{
    switch (mode) {
    case Mode::PR:
        return Shivaji(u" dUQa pomaonT rijasTr irpaoT-");
    case Mode::TR:
        return Shivaji(u" zova rijasTr irpaoT-");
    case Mode::UR:
    case Mode::UD:
        return Shivaji(u" ]cala rijasTr irpaoT-");
    case Mode::UchalBalanceStatement:
        return Shivaji(u"]cala yaadI");
    case Mode::ThevBalanceStatement:
        break;
    }
    return Shivaji(u"zova yaadI");
}

// The page shape is chosen for the payment register only.
Keys::Places frmReportMilkPaymentsRegister::KeysOf(Mode mode)
{
    Keys::Places places = KeyPlaces();
    if (mode != Mode::PR)
        std::erase_if(
            places.front().keys, [](const KeyHint& hint) { return hint.key == KeyHints::ChooseOption.key; });
    return places;
}

frmReportMilkPaymentsRegister::frmReportMilkPaymentsRegister()
    : frmReportMilkPaymentsRegister(ModeOf(gAppState.gReportMode))
{
}

frmReportMilkPaymentsRegister::frmReportMilkPaymentsRegister(Mode mode)
    : SocietyScreen(KeysOf(mode), TitleOf(mode))
    , m_mode(mode)
{
    if (mode == Mode::UD)
        Members.AskForOne();
    for (OptionButton* option : {&OptionPT, &OptionLS})
        option->SetVisible(mode == Mode::PR);
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the dates
    LayOut();
}

void frmReportMilkPaymentsRegister::Load()
{
    OptionPT.Choose();
}

bool frmReportMilkPaymentsRegister::IsRegister() const
{
    return m_mode == Mode::PR || m_mode == Mode::TR || m_mode == Mode::UR;
}

bool frmReportMilkPaymentsRegister::IsBalance() const
{
    return m_mode == Mode::UchalBalanceStatement || m_mode == Mode::ThevBalanceStatement;
}

// A register is of one payment period, so its end is proposed.
void frmReportMilkPaymentsRegister::maskFromDate_LostFocus()
{
    if (!maskFromDate.InsistOnDate(Wanted::Date()) || !IsRegister())
        return;
    const QDate end = PaymentPeriod::EndOf(maskFromDate.Date(), gAppState.gPaymentDuration);
    if (end.isValid())
        maskToDate.SetDate(end);
}

void frmReportMilkPaymentsRegister::maskToDate_LostFocus()
{
    maskToDate.InsistOnDate(Wanted::Date());
}

bool frmReportMilkPaymentsRegister::StageRegister()
{
    const PaymentRegister::Kind kind = m_mode == Mode::PR ? PaymentRegister::Kind::Payments
        : m_mode == Mode::TR                              ? PaymentRegister::Kind::Deposits
                                                          : PaymentRegister::Kind::Advances;
    const PaymentRegister staged(
        kind, {maskFromDate.Date(), maskToDate.Date(), Members.From(), Members.To()});
    if (!staged.Any()) {
        ShowPlain(QStringLiteral("No Records"), QStringLiteral("Milk Payments"));
        return false;
    }
    staged.Stage(Staging);
    return true;
}

bool frmReportMilkPaymentsRegister::StageBalances()
{
    const MemberBalances::Wanted wanted{maskFromDate.Date(), maskToDate.Date(), Members.From(), Members.To()};
    if (m_mode == Mode::UD) {
        MemberBalances::StageStatement(wanted);
        return true;
    }
    const bool anyMember = m_mode == Mode::UchalBalanceStatement
        ? MemberBalances::StageAdvances(wanted, Staging)
        : MemberBalances::StageDeposits(wanted, Staging);
    if (!anyMember)
        ShowPlain(QStringLiteral("No members found!"));
    return anyMember;
}

bool frmReportMilkPaymentsRegister::Stage()
{
    return IsRegister() ? StageRegister() : StageBalances();
}

QStringView frmReportMilkPaymentsRegister::Template() const
{
    switch (m_mode) {
    case Mode::PR:
        return OptionLS.Chosen() ? u"MilkPaymentsRegisterLandscape.rpt" : u"MilkPaymentsRegisterPortrait.rpt";
    case Mode::TR:
        return u"ThevRegister.rpt";
    case Mode::UR:
        return u"UchalRegisterNew.rpt";
    case Mode::UD:
        return u"PersonalUchalReport.rpt";
    case Mode::UchalBalanceStatement:
        return u"UchalBalanceStatement.rpt";
    case Mode::ThevBalanceStatement:
        break;
    }
    return u"ThevBalanceStatement.rpt";
}

void frmReportMilkPaymentsRegister::cmdReport_Click()
{
    if (!maskFromDate.InsistOnDate(Wanted::Date()) || !maskToDate.InsistOnDate(Wanted::Date()))
        return;
    if (!Stage())
        return;
    CRMilkPaymentsRegister.SetTemplate(Template());
    CRMilkPaymentsRegister.SetSubject(ReportSubject({}, maskFromDate.Date(), maskToDate.Date()));
    CRMilkPaymentsRegister.Print();
    Staging.End();
}
