#include "collection/frmAbsenseMemberCollection.h"

#include "collection/Counter.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Counter;
using namespace Pieces;

namespace {

constexpr int ListRow = 38;

constexpr QStringView MembersQuery = u"SELECT MemberNo,MemberName FROM ShortMemberList";

std::vector<DataGrid::Column> MemberColumns()
{
    return {
        {QStringLiteral("MemberNo"), Shivaji(u"maombar naM."), 150, {}, false, false},
        {QStringLiteral("MemberName"), Shivaji(u"maombarcao naava"), 0},
    };
}

// The deliveries of a shift.
SqlText Deliverers(const Shift& shift)
{
    return Sql(u"SELECT MemberNo,MemberName FROM MilkCollections WHERE CollectionDate=", shift.Day(),
        u" AND CollectionTime=", Quoted(shift.time));
}

}

Keys::Places frmAbsenseMemberCollection::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmAbsenseMemberCollection"), Shivaji(u"dUQa saMklana nasaNaaro saBaasad"),
            {Next, Back, Leave, CalculatorKey(), TutorKey(), OneOfTwo}},
    };
}

frmAbsenseMemberCollection::frmAbsenseMemberCollection()
    : SocietyScreen(KeyPlaces(), Shivaji(u"dUQa saMklana nasaNaaro saBaasad"), {.guide = "lblFooter"})
    , DataGridMembers(this, "DataGridMembers", MemberColumns())
{
    MaskDate.KeepForMending();
    Command1.SetGuide(Plain(u"Enter : यादी"));
    LayOut();
}

void frmAbsenseMemberCollection::Load()
{
    DataGridMembers.Bind(gCn, MembersQuery.toString());
    Transaction emptying(gCn);
    gCn.Execute(QStringLiteral("Delete * From ShortMemberList"));
    gCn.Execute(QStringLiteral("Delete * From ShortMemberList"));
    emptying.Commit();
    DataGridMembers.Refresh();
}

void frmAbsenseMemberCollection::MaskDate_LostFocus()
{
    MaskDate.InsistOnDate(Wanted::Date());
}

void frmAbsenseMemberCollection::txtTime_LostFocus()
{
    InsistOnShift(MaskDate, txtTime);
}

void frmAbsenseMemberCollection::Command1_Click()
{
    if (!InsistOnShift(MaskDate, txtTime))
        return;
    ListAbsent(ShiftOf(MaskDate, txtTime));
    DataGridMembers.Bind(gCn, MembersQuery.toString());
    lblGuide.SetCaption(
        DataGridMembers.CurrentRow() < 0 ? Plain(u"कालच्या या वेळेतील कोणीही गैरहजर नाही") : Command1.Guide());
}

// One line for each delivery of the day before: who brought two kinds of milk is listed twice.
void frmAbsenseMemberCollection::ListAbsent(const Shift& today)
{
    Transaction listing(gCn);
    gCn.Execute(QStringLiteral("Delete * From ShortMemberList"));
    const Shift yesterday{today.date.addDays(-1), today.time};
    for (Recordset row(gCn, Deliverers(yesterday)); !row.Eof(); row.MoveNext()) {
        const double memberNo = row[u"MemberNo"].Number();
        if (Finds(Sql(Deliverers(today), u" AND MemberNo=", memberNo)))
            continue;
        gCn.Execute(Sql(u"INSERT INTO ShortMemberList(CompanyId,MemberNo,MemberName) VALUES(",
            Values(gAppState.gCompanyId, memberNo, row[u"MemberName"].Text()), u")"));
    }
    gCn.Execute(QStringLiteral("Delete * From ShortMemberList Where CompanyId=0"));
    listing.Commit();
}

void frmAbsenseMemberCollection::LayOut()
{
    QWidget* question = Sheet();
    QHBoxLayout* row = FieldRows::DateAndShift(MaskDate, txtTime, 200);
    question->setLayout(row);
    row->setContentsMargins(16, 6, 16, 10);
    Command1.SetAccessibleName(Label28.Shown());
    row->addWidget(Sized(Command1, 90, LineField, Look::Size::Large, true), 0, Qt::AlignBottom);
    row->addStretch(1);

    Label28.Widget()->setFont(Look::Font(Look::Size::Large, true));
    DataGridMembers.SetAccessibleName(Label28.Shown());
    auto* body = new QVBoxLayout;
    body->setSpacing(6);
    body->addWidget(question);
    body->addWidget(lblGuide.Widget());
    body->addWidget(Label28.Widget());
    body->addWidget(List(DataGridMembers, ListRow, Look::Size::Large), 1);
    Stack(body, {20, 10, 20, 12});
}
