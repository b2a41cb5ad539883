#include "bonus/BonusQuestions.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Painting.h"
#include "platform/forms/Pieces.h"
#include "platform/forms/Screen.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Pieces;

namespace {

constexpr int LongestNumber = 9;
constexpr QStringView LitresPattern = u"#####0.000";
constexpr QStringView MoneyPattern = u"#####0.00";

void InsistOnRealDate(DateField& date)
{
    if (date.HoldsDate())
        return;
    ShowPlain(QStringLiteral("Please enter valid Date  ") + date.Text());
    date.SetFocus(Wanted::Date());
}

}

BonusQuestions::BonusQuestions(Screen* screen, const Handler& go)
    : m_screen(screen)
    , cmdGo(screen, "cmdGo", Plain(u">>"), go)
    , m_panel(screen,
          {&maskFromDate, &maskToDate, &txtFromAcNo, &txtToAcNo, &cmbMilkType, &txtCowBonusRate,
              &txtBuffBonusRate, &chkAdvanceBalance, &cmdGo})
{
    for (DateField* date : {&maskFromDate, &maskToDate})
        date->KeepForMending();
    for (Field* number :
        std::initializer_list<Field*>{&txtFromAcNo, &txtToAcNo, &txtCowBonusRate, &txtBuffBonusRate})
        number->SetMaxLength(LongestNumber);
    cmbMilkType.SetWords({Word::Cow.toString(), Word::Buffalo.toString(), Word::Both.toString()});
    cmbMilkType.SetGuide(Shivaji(u"  1–gaaya  2–mhOsa  3–daonhI"));
    txtToAcNo.SetGuide(Plain(u"Enter : शेवटच्या मेम्बरपर्यंत"));
    for (Field* rate : {&txtCowBonusRate, &txtBuffBonusRate})
        rate->SetGuide(Plain(u"लिटरला रुपये; येथे टाकलेला दर सेटिंगमध्ये लगेच जातो"));
    chkAdvanceBalance.SetGuide(Plain(u"Space : या काळातील उचल वजा करा"));
    cmdGo.SetGuide(Plain(u"Enter : बोनस काढा"));
}

void BonusQuestions::Load()
{
    const Recordset rates(gCn, u"Select BuffBonusRate, CowBonusRate From Autosettings");
    if (!rates.Eof()) {
        txtCowBonusRate.Show(rates[u"CowBonusRate"].Number());
        txtBuffBonusRate.Show(rates[u"BuffBonusRate"].Number());
    }
    txtCowBonusRate.TextChanged = [this] { txtCowBonusRate_TextChanged(); };
    txtBuffBonusRate.TextChanged = [this] { txtBuffBonusRate_TextChanged(); };
}

void BonusQuestions::LetRatesBe()
{
    txtCowBonusRate.TextChanged = {};
    txtBuffBonusRate.TextChanged = {};
}

// The fields

void BonusQuestions::maskFromDate_LostFocus()
{
    InsistOnRealDate(maskFromDate);
}

void BonusQuestions::maskToDate_LostFocus()
{
    InsistOnRealDate(maskToDate);
}

void BonusQuestions::txtFromAcNo_LostFocus()
{
    if (txtFromAcNo.Value() == 0)
        txtFromAcNo.SetFocus(Plain(u"पहिला मेम्बर नंबर टाका    Esc : बाहेर"));
}

void BonusQuestions::txtToAcNo_LostFocus()
{
    if (txtToAcNo.Value() == 0)
        txtToAcNo.Show(Figure(QStringLiteral("Select max(MemberNo) as mno from MembersMaster")));
}

void BonusQuestions::txtCowBonusRate_TextChanged()
{
    Transaction keeping(gCn);
    gCn.Execute(Sql(u"Update AutoSettings set CowBonusRate=", txtCowBonusRate.Value()));
    keeping.Commit();
}

void BonusQuestions::txtBuffBonusRate_TextChanged()
{
    Transaction keeping(gCn);
    gCn.Execute(Sql(u"Update AutoSettings Set BuffBonusRate=", txtBuffBonusRate.Value()));
    keeping.Commit();
}

// What is asked for

Control* BonusQuestions::FirstEmpty()
{
    for (DateField* date : {&maskFromDate, &maskToDate})
        if (!date->HoldsDate())
            return date;
    for (NumberField* number : std::initializer_list<NumberField*>{&txtFromAcNo, &txtToAcNo})
        if (number->Value() == 0)
            return number;
    if (cmbMilkType.IsEmpty())
        return &cmbMilkType;
    for (NumberField* rate : std::initializer_list<NumberField*>{&txtCowBonusRate, &txtBuffBonusRate})
        if (rate->Value() == 0)
            return rate;
    return nullptr;
}

bool BonusQuestions::InsistOnAll()
{
    if (Control* empty = FirstEmpty()) {
        empty->SetFocus();
    } else if (maskToDate.Date() < maskFromDate.Date()) {
        ShowPlain(QStringLiteral("please enter valid date"));
        maskToDate.SetFocus(
            Plain(QStringLiteral("शेवटचा दिवस %1 च्या आधीचा नको    Esc : बाहेर").arg(maskFromDate.Text())));
    } else if (txtToAcNo.Value() < txtFromAcNo.Value()) {
        txtToAcNo.SetFocus(
            Plain(QStringLiteral("शेवटचा नंबर %1 पेक्षा लहान नको    Esc : बाहेर").arg(txtFromAcNo.Text())));
    } else {
        return true;
    }
    return false;
}

BonusParameters BonusQuestions::Parameters() const
{
    return {maskFromDate.Date(), maskToDate.Date(), txtFromAcNo.Value(), txtToAcNo.Value(),
        cmbMilkType.Text(), txtCowBonusRate.Value(), txtBuffBonusRate.Value(), chkAdvanceBalance.Checked()};
}

// The run

void BonusQuestions::BeginRun()
{
    for (Label* label : {&lblMemberNo, &lblMemberName, &lblCowliters, &lblBuffLiters, &lblCowBonus,
             &lblBuffBonus, &lblTotalBonus})
        label->SetFigure({});
    ProgressBar1.Begin(static_cast<int>(txtToAcNo.Value() - txtFromAcNo.Value()) + 1);
}

// Only what is going to be seen is written: the member at hand when the window is painted, and the last one.
void BonusQuestions::ShowDone(const MemberBonus& bonus)
{
    m_last = bonus;
    if (Painting::IsDue())
        ShowLast();
    ProgressBar1.Step();
}

void BonusQuestions::EndRun()
{
    ShowLast();
    ProgressBar1.End();
}

void BonusQuestions::ShowLast()
{
    if (!m_last)
        return;
    const MemberBonus bonus = *std::exchange(m_last, {});
    lblMemberNo.SetFigure(ShortestDecimal(bonus.memberNo));
    lblMemberName.SetText(bonus.memberName);
    lblCowliters.SetFigure(Format(bonus.cowLiters, LitresPattern));
    lblBuffLiters.SetFigure(Format(bonus.buffLiters, LitresPattern));
    lblCowBonus.SetFigure(Format(bonus.cowBonus, MoneyPattern));
    lblBuffBonus.SetFigure(Format(bonus.buffBonus, MoneyPattern));
    lblTotalBonus.SetFigure(Format(bonus.Total(), MoneyPattern));
}

// The window

QWidget* BonusQuestions::LaidOut()
{
    auto* columns = new QHBoxLayout;
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(80);
    columns->addLayout(Fields());
    columns->addLayout(InHand(), 1);
    auto* stack = new QVBoxLayout;
    stack->setContentsMargins(24, 16, 40, 0);
    stack->addLayout(columns);
    stack->addStretch(1);
    return m_panel.LaidOut(stack);
}

QLayout* BonusQuestions::Fields()
{
    constexpr int numberWidth = 150;
    Layout::Form form;
    form.Row(Plain(u"दिनांक पासून"), maskFromDate, Layout::DateWidth);
    form.Row(Plain(u"दिनांक पर्यंत"), maskToDate, Layout::DateWidth);
    form.Row(Plain(u"मेम्बर नं. पासून"), txtFromAcNo, numberWidth);
    form.Row(Plain(u"मेम्बर नं. पर्यंत"), txtToAcNo, numberWidth);
    form.Row(Plain(u"दूध प्रकार"), cmbMilkType, numberWidth);
    form.Row(Plain(u"गाय बोनस दर"), txtCowBonusRate, numberWidth);
    form.Row(Plain(u"म्हैस बोनस दर"), txtBuffBonusRate, numberWidth);
    form.Grid()->setVerticalSpacing(Layout::Roomy);
    cmdGo.SetAccessibleName(Plain(u"बोनस काढा"));
    auto* fields = new QVBoxLayout;
    fields->setSpacing(14);
    fields->addLayout(form.Grid());
    auto* last = new QHBoxLayout;
    last->addWidget(chkAdvanceBalance.Widget(), 1);
    last->addWidget(Sized(cmdGo, numberWidth, LineField, Look::Size::Large, true));
    fields->addLayout(last);
    return fields;
}

// The member in hand, and how far the run is.
QLayout* BonusQuestions::InHand()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    int row = 0;
    const auto put = [&](const Caption& caption, const Label& label) {
        grid->addWidget(Heading(caption), row, 0);
        grid->addWidget(Figure(label, Look::Size::Large), row++, 1);
    };
    put(Shivaji(u"maombar naMbar"), lblMemberNo);
    put(Shivaji(u"maombarcao naava"), lblMemberName);
    put(Plain(u"गाय लिटर्स"), lblCowliters);
    put(Plain(u"म्हैस लिटर्स"), lblBuffLiters);
    put(Plain(u"गाय बोनस"), lblCowBonus);
    put(Plain(u"म्हैस बोनस"), lblBuffBonus);
    put(Shivaji(u"ekUNa baaonasa"), lblTotalBonus);
    grid->setColumnStretch(1, 1);
    auto* stack = new QVBoxLayout;
    stack->setSpacing(14);
    stack->addWidget(ProgressBar1.Widget());
    stack->addLayout(grid);
    stack->addStretch(1);
    return stack;
}
