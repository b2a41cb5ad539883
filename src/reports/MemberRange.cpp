#include "reports/MemberRange.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

namespace {

constexpr int NumberWidth = 110;

void ShowName(Label& label, const NumberField& number)
{
    const Recordset member(gCn,
        Sql(u"Select MemberName From MembersMaster Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=",
            number.Value()));
    label.SetText(member.Eof() ? QString() : member[u"MemberName"].Text());
}

}

MemberRange::MemberRange(Screen* screen) : m_screen(screen)
{
    txtToNo.GotFocus = [this] { txtToNo_GotFocus(); };
}

void MemberRange::AskForOne()
{
    IsOne = true;
    txtToNo.SetAccessibleName(Shivaji(u"pya-nt"));
    txtToNo.SetVisible(false);
    lblToMember.SetVisible(false);
}

double MemberRange::To() const
{
    return IsOne ? From() : txtToNo.Value();
}

void MemberRange::txtFromNo_LostFocus()
{
    ShowName(lblFromMember, txtFromNo);
}

// Proposes the last member.
void MemberRange::txtToNo_GotFocus()
{
    const Recordset last(gCn,
        Sql(u"SELECT max(MemberNo) as MaxMId FROM MembersMaster WHERE CompanyId=", gAppState.gCompanyId));
    txtToNo.SetText(last[u"MaxMId"].Text());
    txtToNo.SelectAll();
}

void MemberRange::txtToNo_LostFocus()
{
    ShowName(lblToMember, txtToNo);
}

void MemberRange::AddTo(Layout::Form& form)
{
    form.Row(IsOne ? Shivaji(u"maombar naMbar") : Shivaji(u"pasaUna"), txtFromNo, NumberWidth, lblFromMember);
    if (!IsOne)
        form.Row(Shivaji(u"pya-nt"), txtToNo, NumberWidth, lblToMember);
}
