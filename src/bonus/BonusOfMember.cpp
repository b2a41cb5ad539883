#include "bonus/BonusOfMember.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Pieces.h"
#include "platform/forms/Screen.h"
#include "society/Names.h"

#include <QGridLayout>

using namespace Pieces;

namespace {

constexpr QStringView AllRows = u"Select * From BonusPayments";

double Litres(const NumberField& field)
{
    return Val(Format(field.Value(), u"#####0.000"));
}

double Rupees(const NumberField& field)
{
    return Val(Format(field.Value(), u"#####0.00"));
}

}

BonusOfMember::BonusOfMember(Screen* screen, const NumberField& cowRate, const NumberField& buffRate)
    : m_screen(screen)
    , m_cowRate(cowRate)
    , m_buffRate(buffRate)
{
    for (Field* corrected : std::initializer_list<Field*>{
             &txtPreviousCowLiters, &txtPreviousBuffLiters, &txtAdvance, &txtPreviousThev}) {
        corrected->SetMaxLength(12);
        corrected->TextChanged = [this] { Recalculate(); };
    }
    for (Control* shown : std::initializer_list<Control*>{&txtCurrentCowLiters, &txtTotalcowLiters,
             &txtTotalCowBonus, &txtCurrentBuffLiters, &txtTotalBuffLiters, &txtTotalBuffBonus,
             &txtTotalBonus, &txtRemainingBonus})
        shown->SetEnabled(false);
    txtMemberNo.SetMaxLength(9);
    txtMemberNo.SetGuide(Plain(u"मेम्बर नंबर    F5 : दिनांक, मेम्बर व दर बदला"));
    cmbMemberName.SetGuide(Plain(u"↓ : नावाने शोधा"));
    txtPreviousCowLiters.SetGuide(Plain(u"मागील काळाचे गायीचे लिटर्स"));
    txtPreviousBuffLiters.SetGuide(Plain(u"मागील काळाचे म्हशीचे लिटर्स"));
    txtAdvance.SetGuide(Plain(u"बोनसमधून वजा करायची उचल"));
    txtPreviousThev.SetGuide(Plain(u"बोनसमध्ये मिळवायची मागील ठेव"));
}

std::vector<Control*> BonusOfMember::Controls()
{
    return {&txtMemberNo, &cmbMemberName, &txtPreviousCowLiters, &txtCurrentCowLiters, &txtTotalcowLiters,
        &txtTotalCowBonus, &txtPreviousBuffLiters, &txtCurrentBuffLiters, &txtTotalBuffLiters,
        &txtTotalBuffBonus, &txtTotalBonus, &txtAdvance, &txtPreviousThev, &txtRemainingBonus};
}

void BonusOfMember::BeginAnew()
{
    for (Control* control : Controls())
        static_cast<Field*>(control)->Clear();
    std::vector<NameCombo::Entry> names;
    for (Recordset row(gCn, AllRows); !row.Eof(); row.MoveNext())
        names.push_back({row[u"MemberName"].Text(), row[u"MemberNo"].Text()});
    cmbMemberName.SetNames(names);
}

// Calling a row up

void BonusOfMember::txtMemberNo_LostFocus()
{
    const bool isNone = txtMemberNo.Value() == 0;
    if (isNone && (m_screen->IsSteppingBack() || m_screen->GoingTo()))
        return; // without a member nothing is saved
    if (!ShowRowOfNumber())
        txtMemberNo.SetFocus(isNone ? Plain(u"मेम्बर नंबर टाका    Alt+I : रिपोर्ट    Esc : बाहेर")
                                    : Plain(u"या नंबरचा मेम्बर या बोनसमध्ये नाही    Esc : बाहेर"));
}

SqlText BonusOfMember::RowOfNumber() const
{
    return Sql(AllRows, u" Where MemberNo=", txtMemberNo.Value());
}

bool BonusOfMember::ShowRowOfNumber()
{
    const Recordset row(gCn, RowOfNumber());
    if (!row.Eof())
        Show(row);
    return !row.Eof();
}

void BonusOfMember::ShowNameOfNumber()
{
    const Recordset row(gCn, RowOfNumber());
    if (!row.Eof())
        cmbMemberName.SetEntry({row[u"MemberName"].Text(), row[u"MemberNo"].Text()});
}

// A name that is nobody's gives way to that of the number; what was corrected stays.
void BonusOfMember::cmbMemberName_LostFocus()
{
    const Recordset row = RowOfName(AllRows.toString(), u"MemberName", cmbMemberName.Text(),
        [this](const Recordset& one) { return cmbMemberName.MayMean(one[u"MemberNo"].Text()); });
    if (row.Eof())
        ShowNameOfNumber();
    else if (row[u"MemberNo"].Number() != txtMemberNo.Value())
        Show(row);
}

void BonusOfMember::Show(const Recordset& row)
{
    txtMemberNo.Show(row[u"MemberNo"].Number());
    cmbMemberName.SetEntry({row[u"MemberName"].Text(), row[u"MemberNo"].Text()});
    txtCurrentCowLiters.Show(row[u"CurrentCowLiters"].Number());
    txtCurrentBuffLiters.Show(row[u"CurrentBuffLiters"].Number());
    txtPreviousCowLiters.Show(row[u"PreviousCowLiters"].Number());
    txtPreviousBuffLiters.Show(row[u"PreviousBuffLiters"].Number());
    txtAdvance.Show(row[u"Advance"].Number());
    txtPreviousThev.Show(row[u"PreviousThev"].Number());
    Recalculate();
    if (Shown)
        Shown();
}

// Correcting it

void BonusOfMember::txtPreviousCowLiters_LostFocus()
{
    txtPreviousCowLiters.Reformat();
}

void BonusOfMember::txtPreviousBuffLiters_LostFocus()
{
    txtPreviousBuffLiters.Reformat();
}

void BonusOfMember::txtAdvance_LostFocus()
{
    txtAdvance.Reformat();
}

void BonusOfMember::txtPreviousThev_LostFocus()
{
    txtPreviousThev.Reformat();
}

void BonusOfMember::Recalculate()
{
    txtTotalBuffLiters.Show(txtPreviousBuffLiters.Value() + txtCurrentBuffLiters.Value());
    txtTotalcowLiters.Show(txtPreviousCowLiters.Value() + txtCurrentCowLiters.Value());
    txtTotalCowBonus.Show(txtTotalcowLiters.Value() * m_cowRate.Value());
    txtTotalBuffBonus.Show(txtTotalBuffLiters.Value() * m_buffRate.Value());
    txtTotalBonus.Show(txtTotalCowBonus.Value() + txtTotalBuffBonus.Value());
    txtRemainingBonus.Show(txtTotalBonus.Value() - txtAdvance.Value() + txtPreviousThev.Value());
}

void BonusOfMember::Save()
{
    if (txtMemberNo.Value() == 0)
        return;
    Recalculate();
    Transaction saving(gCn);
    gCn.Execute(Sql(u"Update BonusPayments Set PreviousCowLiters=", Litres(txtPreviousCowLiters),
        u",PreviousBuffLiters=", Litres(txtPreviousBuffLiters), u",TotalCowLiters=",
        Litres(txtTotalcowLiters), u",TotalBuffLiters=", Litres(txtTotalBuffLiters), u",TotalCowBonus=",
        Rupees(txtTotalCowBonus), u",TotalBuffBonus=", Rupees(txtTotalBuffBonus), u",TotalBonus=",
        Rupees(txtTotalBonus), u",Advance=", Rupees(txtAdvance), u",RemainingBonus=",
        Rupees(txtRemainingBonus), u",PreviousThev=", Rupees(txtPreviousThev), u" Where MemberNo=",
        txtMemberNo.Value()));
    gCn.Execute(u"Delete * from BonusPayments Where SerialNo=0");
    saving.Commit();
}

// The window

// A row for each animal, from the litres to the bonus, and below what is left of it.
QLayout* BonusOfMember::LaidOut()
{
    constexpr int numberWidth = 110;
    constexpr int figureWidth = 150;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    for (const int ofFields : {1, 3, 5}) // each stays beside its name in a wide window
        grid->setColumnStretch(ofFields, 1);
    const auto put = [&](int row, int column, const Caption& caption, Field& field, bool isBold = false) {
        field.SetAccessibleName(caption);
        grid->addWidget(Heading(caption), row, column);
        grid->addWidget(Sized(field, figureWidth, NarrowField, Look::Size::Large, isBold), row, column + 1,
            Qt::AlignLeft);
    };
    txtMemberNo.SetAccessibleName(Shivaji(u"maombar naM."));
    cmbMemberName.SetAccessibleName(Shivaji(u"maombarcao naava"));
    grid->addWidget(Heading(Shivaji(u"maombar naM.")), 0, 0);
    grid->addWidget(Sized(txtMemberNo, numberWidth, NarrowField, Look::Size::Large), 0, 1, Qt::AlignLeft);
    grid->addWidget(Heading(Shivaji(u"maombarcao naava")), 0, 2);
    grid->addWidget(Sized(cmbMemberName, 0, NarrowField, Look::Size::Large), 0, 3, 1, 3);
    put(1, 0, Shivaji(u"maagaIla gaaya dUQa"), txtPreviousCowLiters);
    put(1, 2, Shivaji(u"maagaIla mhOsa dUQa"), txtPreviousBuffLiters);
    put(2, 0, Shivaji(u"caalaU gaaya dUQa"), txtCurrentCowLiters);
    put(2, 2, Shivaji(u"caalaU mhOsa dUQa"), txtCurrentBuffLiters);
    put(3, 0, Shivaji(u"ekUNa gaaya ilaTsa-"), txtTotalcowLiters);
    put(3, 2, Shivaji(u"ekUNa mhOsa ilaTsa-"), txtTotalBuffLiters);
    put(4, 0, Shivaji(u"ekUNa gaaya baaonasa"), txtTotalCowBonus);
    put(4, 2, Shivaji(u"ekUNa mhOsa baaonasa"), txtTotalBuffBonus);
    put(1, 4, Shivaji(u"ekUNa baaonasa"), txtTotalBonus, true);
    put(2, 4, Shivaji(u"vajaavaTÀ A^Dvhansa"), txtAdvance);
    put(3, 4, Shivaji(u"maagaIla zova"), txtPreviousThev);
    put(4, 4, Shivaji(u"iSallak baaonasa"), txtRemainingBonus, true);
    return grid;
}
