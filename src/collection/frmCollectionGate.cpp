#include "collection/frmCollectionGate.h"

#include "core/menu/Keys.h"
#include "core/menu/ScreenDirectory.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/Shivaji01.h"

Keys::Places frmCollectionGate::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmCollectionGate"), Shivaji(u"dUQa saMklana 2"),
            {Next, Back, Leave, CalculatorKey(), MembersKey(), AdvanceKey(), TutorKey(),
                {QStringLiteral("Alt+B"), Shivaji(u"baahor")}}},
        {QStringLiteral("frmCollectionGate.fields"), Plain(u"दूध संकलन २, वेळ, नाव, दूध व शोधात"),
            {OneOfTwo, ListOfNames, Tick}},
        {QStringLiteral("frmCollectionGate.maskDate"), Plain(u"दूध संकलन २, दिनांकात"),
            {{QStringLiteral("Shift+Tab"), Plain(u"शोध, क्रम, वजन काटा, फॅट मशीन, प्रिंटर")}}},
        {QStringLiteral("frmCollectionGate.txtCollectionNo"), Plain(u"दूध संकलन २, संकलन क्रमांकात"),
            NumberKeys()},
        {QStringLiteral("frmCollectionGate.txtMemberNo"), Plain(u"दूध संकलन २, मेम्बर नंबरात"),
            {SearchKey(), DeleteKey()}},
    };
}

frmCollectionGate::frmCollectionGate() : CounterScreen(CounterKinds::Gate, KeyPlaces())
{
    When(cmdGo.GotFocus, &frmCollectionGate::cmdGo_GotFocus);
    for (const auto& [button, column] : OrderButtons())
        button->Click = [this, button = button, column = column] { ToggleOrder(*button, column); };
    for (const auto& [field, column] : std::initializer_list<std::pair<NumberField*, QStringView>>{
             {&Line.txtLiters, u"Liters"}, {&Line.txtFat, u"Fat"}, {&Line.txtRate, u"Rate"}})
        field->TextChanged = [this, field = field, column = column] { SearchNumber(*field, column); };
    When(Line.txtMemberNo.TextChanged, &frmCollectionGate::txtMemberNo_Change);
    When(Line.txtAnimal.TextChanged, &frmCollectionGate::txtAnimal_Change);
    When(Line.ComboMemberName.TextChanged, &frmCollectionGate::ComboMemberName_Change);

    chkSerachMode.SetGuide(Keys::Guide(QStringLiteral("CheckBox")));
    Command1.SetCancels(true); // the gate is left whatever stands in its fields

    lblAcYear.SetVisible(false); // there is one line in its band
    LayOut(ListAndTotals(), KeyStrip(Name()));
}

void frmCollectionGate::Load()
{
    lblCompanyTitle.SetText(gAppState.gCompanyName);
    CounterScreen::Load();
}

// It is white until it has been left for the first time.
void frmCollectionGate::cmdGo_GotFocus()
{
    cmdGo.SetColours(QColor(Look::FocusColour), QColor(0xFF, 0xFF, 0xC0));
}

// The order of the list

std::array<std::pair<Button*, QStringView>, 4> frmCollectionGate::OrderButtons()
{
    return {{{&cmdLtrOrder, u"Liters"}, {&cmdFatOrder, u"Fat"}, {&cmdRateOrder, u"Rate"},
        {&cmdAmtOrder, u"Amount"}}};
}

void frmCollectionGate::ToggleOrder(Button& button, QStringView column)
{
    const bool descending = button.Shown() == Ascending();
    DataGridInwards.Bind(
        gCn, Sql(u"SELECT * FROM MilkCollectionsTemp ORDER BY ", column, descending ? u" DESC" : u" ASC"));
    const QString name = button.Widget()->accessibleName(); // that of its column, not the arrow's
    button.SetCaption(descending ? Descending() : Ascending());
    button.SetAccessibleName(Plain(name));
}

// The search: the field changed last decides what the list shows.

void frmCollectionGate::txtMemberNo_Change()
{
    Line.LightMemberKeys();
    SearchNumber(Line.txtMemberNo, u"MemberNo");
}

void frmCollectionGate::txtAnimal_Change()
{
    Search(Sql(u" WHERE Animal=", Quoted(Line.txtAnimal.Text().trimmed())));
}

void frmCollectionGate::ComboMemberName_Change()
{
    const QString name = Line.ComboMemberName.Text().trimmed();
    Search(Sql(u" WHERE left(MemberName,", name.size(), u")=", Quoted(name), OrReadsLike(name)));
}

// The deliveries of members whose name begins with what is read, in another spelling.
QString frmCollectionGate::OrReadsLike(const QString& beginning) const
{
    QString condition;
    if (!chkSerachMode.Checked())
        return condition;
    const QString reading = Shivaji01::Reading(beginning);
    for (Recordset row(gCn, QStringLiteral("SELECT * FROM MilkCollectionsTemp")); !row.Eof();
         row.MoveNext()) {
        const QString name = row[u"MemberName"].Text();
        if (!name.startsWith(beginning) && Shivaji01::Reading(name).startsWith(reading))
            condition += Sql(u" or CollectionNo=", row[u"CollectionNo"].Number());
    }
    return condition;
}

// A field that was just emptied shows the whole shift.
void frmCollectionGate::SearchNumber(const NumberField& field, QStringView column)
{
    Search(field.HoldsNumber() ? Sql(u" WHERE ", column, u"=", field.Value()) : SqlText());
}

void frmCollectionGate::Search(const SqlText& condition)
{
    if (chkSerachMode.Checked())
        DataGridInwards.Bind(
            gCn, Sql(u"SELECT * FROM MilkCollectionsTemp", condition, u" ORDER BY CollectionNo DESC"));
}

// Its own buttons

void frmCollectionGate::Command1_Click()
{
    Close();
}

void frmCollectionGate::Command3_Click()
{
    ScreenDirectory::Open(QStringLiteral("frmAbsenseMemberCollection"));
}
