#include "vouchers/frmSelectInwards.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/forms/ColumnBar.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "vouchers/VoucherKind.h"

#include <QVBoxLayout>

namespace {

// What is listed in a mode.
struct ListKind {
    QStringView title;
    QStringView heading; // of the numbers
    QStringView amountPattern;
    QString query; // empty for the documents of a stock, which the books don't have
};

SqlText OfCompany()
{
    return Sql(u"SELECT * FROM TransactionsMaster WHERE CompanyId=", gAppState.gCompanyId);
}

QString VouchersOf(const VoucherKind& kind)
{
    return Sql(OfCompany(), u" and TranType=", Quoted(kind.type), u" and trim(BillNo) = ",
        Quoted(kind.billNo), u" order by TranDate,TranId");
}

ListKind KindOf(QStringView reportMode)
{
    constexpr QStringView number = u" vha]car naMbar";
    if (reportMode == AdvanceVoucher.reportMode)
        return {u"  ]cala naaoMd", number, u"#########0.00", VouchersOf(AdvanceVoucher)};
    if (reportMode == ReceiptVoucher.reportMode)
        return {u"  jamaa naaoMd", number, u"#########0.00", VouchersOf(ReceiptVoucher)};
    if (reportMode == u"T" || reportMode == u"TQ")
        return {u"  vyavahar tpSaIla", u" vha]car naMbar  r@kma", u"##########0.00",
            Sql(OfCompany(), u" order by TranDate,TranId")};
    return {u"  vyavahar tpSaIla", number, u"#########0.00", {}};
}

std::vector<DataGrid::Column> VoucherColumns()
{
    const ListKind kind = KindOf(gAppState.gReportMode);
    return {
        {QStringLiteral("TranId"), Plain(u"नंबर"), 160, {}, false, false},
        {QStringLiteral("TranDate"), Shivaji(u"idnaaMk"), 180},
        {QStringLiteral("Amount"), Shivaji(u"r@kma"), 220, kind.amountPattern.toString(), true},
    };
}

// What was typed into the mask, up to the first place that is still empty.
QString TypedInto(const DateField& mask)
{
    return mask.IsEmptyMask() ? QString() : mask.Text().section(u'_', 0, 0);
}

// A box with its caption, to stand above a column.
QWidget* Part(QLayout* box)
{
    auto* part = new QWidget;
    box->setContentsMargins(0, 0, 0, 0);
    part->setLayout(box);
    return part;
}

}

Keys::Places frmSelectInwards::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmSelectInwards"), Plain(u"व्हाऊचर शोधणे"), {Next, Back, Leave, ExitButton}},
        {QStringLiteral("frmSelectInwards.ListViewInwards"), Plain(u"व्हाऊचर शोधणे : यादी"),
            {ChooseOption,
                {QStringLiteral("Enter"), Plain(u"हे व्हाऊचर घ्या"), &frmSelectInwards::PickVoucher}}},
    };
}

frmSelectInwards::frmSelectInwards()
    : SocietyScreen(KeyPlaces(), Shivaji(KindOf(gAppState.gReportMode).title), {.title = "lblFormTitle"})
    , ListViewInwards(this, "ListViewInwards", VoucherColumns())
{
    lblInwardNo.SetCaption(Shivaji(KindOf(gAppState.gReportMode).heading));
    for (Field* box : std::initializer_list<Field*>{&txtNo, &MaskDate, &txtAmount})
        When(box->TextChanged, &frmSelectInwards::Search);
    ListViewInwards.DoubleClick = [] { SendKeys(QStringLiteral("{ENTER}")); };
    ListViewInwards.SetSearched();
    ListViewInwards.SetGuide(KeyGuide(ListViewInwards));
    LayOut();
}

// The list is filled when the screen has been painted.
void frmSelectInwards::Load()
{
    After(0, [this] { Timer1_Timer(); });
}

void frmSelectInwards::Timer1_Timer()
{
    if (const QString query = KindOf(gAppState.gReportMode).query; !query.isEmpty())
        ListViewInwards.Bind(gCn, query);
    if (ListViewInwards.CurrentRow() < 0) {
        gAppState.gReportMode = QStringLiteral("N");
        SendKeys(QStringLiteral("%{B}"));
        return;
    }
    ListViewInwards.SetFocus();
}

// The first row that begins with what the boxes hold.
void frmSelectInwards::Search()
{
    const QStringList typed{txtNo.Text(), TypedInto(MaskDate), txtAmount.Text()}; // by column
    for (int row = 0; row < ListViewInwards.Rows(); ++row) {
        if (BeginsWith(row, typed)) {
            ListViewInwards.SetCurrentRow(row);
            return;
        }
    }
}

bool frmSelectInwards::BeginsWith(int row, const QStringList& typed) const
{
    for (int column = 0; column < typed.size(); ++column)
        if (!typed[column].isEmpty() && !ListViewInwards.Cell(row, column).startsWith(typed[column]))
            return false;
    return true;
}

void frmSelectInwards::PickVoucher()
{
    const int row = ListViewInwards.CurrentRow();
    if (row < 0)
        return;
    gAppState.gSelectedVoucherNo = ToInt32(ListViewInwards.Value(row, u"TranId").Number());
    gAppState.gSelectedVoucherDate = ListViewInwards.Value(row, u"TranDate").Date();
    Close();
}

void frmSelectInwards::LayOut()
{
    using namespace Pieces;
    txtNo.SetAccessibleName(lblInwardNo.Shown());
    SetInk(*lblInwardNo.Widget());
    auto* number = new QVBoxLayout;
    number->setSpacing(0);
    number->addWidget(lblInwardNo.Widget());
    number->addWidget(Sized(txtNo, 0, LineField, Look::Size::Normal));

    auto* boxes = new ColumnBar(ListViewInwards);
    boxes->Put(*Part(number), 0, 0);
    boxes->Put(*Part(Under(Shivaji(u"idnaaMk"), MaskDate, 0, Look::Size::Normal, LineField)), 1, 1);
    boxes->Put(*Part(Under(Shivaji(u"r@kma"), txtAmount, 0, Look::Size::Normal, LineField)), 2, 2);

    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(boxes);
    body->addWidget(List(ListViewInwards, 34, Look::Size::Large), 1);
    ListViewInwards.SetAccessibleName(Plain(u"व्हाऊचरची यादी"));
    body->addWidget(lblGuide.Widget());
    body->addLayout(Layout::ButtonRow({&cmdExit}));
    Stack(body);
}
