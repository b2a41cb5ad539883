#include "collection/DailyList.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Pieces.h"
#include "society/Fields.h"

#include <QFrame>
#include <QVBoxLayout>

using namespace Pieces;

namespace {

std::vector<DataGrid::Column> ListColumns()
{
    return {
        {QStringLiteral("CollectionDate"), Shivaji(u"idnaaMk"), 130, {}, false, false},
        {QStringLiteral("CollectionTime"), Shivaji(u"vaoL"), 0},
        {QStringLiteral("CollectionNo"), Shivaji(u"saMklana k`M"), 120, {}, false, false},
        {QStringLiteral("Animal"), Shivaji(u"dUQa p`kar"), 110},
        {QStringLiteral("Liters"), Shivaji(u"ilaTsa-"), 110, GridPattern::Litres.toString(), true},
        {QStringLiteral("Fat"), Shivaji(u"f^T"), 80, GridPattern::Figure.toString(), true},
        {QStringLiteral("Rate"), Shivaji(u"dr"), 100, GridPattern::Figure.toString(), true},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 130, GridPattern::Figure.toString(), true},
    };
}

}

DailyList::DailyList(Screen* screen)
    : DataGrid1(screen, "DataGrid1", ListColumns())
    , Frame1(screen, {&DataGrid1})
{
    DataGrid1.SetGuide(Plain(u"Enter : ही नोंद    F5 : यादी बंद"));
    DataGrid1.SetAccessibleName(Plain(u"मेम्बरचे आतापर्यंतचे संकलन"));
}

void DailyList::Load()
{
    DataGrid1.Unbind();
}

// Company 999 has never been used; its rows are cleaned away as the system has always done it.
void DailyList::Open(double memberNo)
{
    Transaction cleaning(gCn);
    gCn.Execute(QStringLiteral("DELETE * FROM MilkCollections WHERE CompanyId=999"));
    cleaning.Commit();
    DataGrid1.Bind(gCn, Sql(u"SELECT * FROM MilkCollections WHERE MemberNo=", memberNo));
    Frame1.SetVisible(true);
    if (DataGrid1.CurrentRow() >= 0)
        DataGrid1.SetFocus();
}

void DailyList::Hide()
{
    Frame1.SetVisible(false);
}

// The frame keeps its place while it is hidden, so that nothing moves when it comes.
QWidget* DailyList::LaidOut()
{
    QWidget* sheet = Sheet();
    sheet->setObjectName(QStringLiteral("Frame1"));
    Frame1.SetFrame(sheet);
    auto* inside = new QVBoxLayout(sheet);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(List(DataGrid1));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    sheet->setSizePolicy(policy);
    return sheet;
}
