#include "masters/MasterScreen.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/FieldRoutines.h"
#include "society/Queries.h"
#include "society/Wanted.h"

#include <QVBoxLayout>

#include <cmath>

MasterScreen::MasterScreen(const Keys::Places& keys, const MasterKind& kind, const Parts& parts)
    : SocietyScreen(keys, Shivaji(kind.title))
    , m_kind(kind)
    , m_number(parts.number)
    , m_name(parts.name)
    , m_animal(parts.animal)
    , m_modes(parts.modes)
{
}

std::vector<KeyHint> MasterScreen::MasterKeys()
{
    using namespace KeyHints;
    return {Next, Back, Leave, TutorKey(), New, Modify, Delete, Save, Cancel, ExitButton, OneOfThree,
        ListOfNames};
}

void MasterScreen::SetRequired(std::vector<Field*> required)
{
    m_required = std::move(required);
}

void MasterScreen::SetFigures(std::vector<Control*> cow, std::vector<Control*> buffalo)
{
    m_cowFigures = std::move(cow);
    m_buffaloFigures = std::move(buffalo);
}

void MasterScreen::Load()
{
    LoadLists();
    ShowIdle();
}

void MasterScreen::Escape()
{
    ClearFields();
    Close();
}

// The records

void MasterScreen::LoadLists()
{
    const PeopleTable& people = m_kind.people;
    FillCombo(m_name, people.table, people.name, Sql(u"order by ", people.name));
}

// One more than the highest number of all companies. Beyond 32767 it is an overflow error.
int MasterScreen::NextNo() const
{
    const PeopleTable& people = m_kind.people;
    const Recordset last(
        gCn, Sql(u"SELECT max(", people.number, u") as Max", people.number, u" FROM ", people.table));
    return ToInt16(last.Eof() ? 1 : last.At(0).Number() + 1);
}

// Stands on the row of a number, in any company; at the end if there is none.
Recordset MasterScreen::RowOf(double number) const
{
    Recordset row(gCn, Sql(u"SELECT * FROM ", m_kind.people.table));
    while (!row.Eof() && row[m_kind.people.number].Number() != number)
        row.MoveNext();
    return row;
}

bool MasterScreen::AreRequiredFieldsFilled()
{
    if (m_number.Value() == 0) {
        Hold(m_number);
        return false;
    }
    for (Field* field : m_required) {
        if (Trimmed(*field).isEmpty()) {
            Hold(*field);
            return false;
        }
    }
    return true;
}

// Modes

// At rest there is nothing to cancel, and without a record nothing to change or delete.
void MasterScreen::ShowIdle()
{
    m_modes.Rest();
    const RecordModes::Buttons& buttons = m_modes.All();
    buttons.cancel.SetEnabled(false);
    const bool hasRecords = Finds(Sql(u"SELECT * FROM ", m_kind.people.table));
    for (Button* button : {&buttons.modify, &buttons.remove})
        button->SetEnabled(hasRecords);
    ClearFields();
}

// The focus goes to the button of the mode that was open, so that Enter begins the next record.
void MasterScreen::ReturnToIdle()
{
    Button& mode = m_modes.Open();
    ShowIdle();
    LoadLists();
    (mode.CanTakeFocus() ? mode : m_modes.All().add).SetFocus();
}

void MasterScreen::cmdNew_Click()
{
    if (m_modes.IsNew()) {
        SaveNew();
        return;
    }
    const int next = NextNo();
    m_modes.EnterNew();
    ClearFields();
    m_number.Show(next);
    m_number.SetFocus();
}

void MasterScreen::SaveNew()
{
    if (!AreRequiredFieldsFilled())
        return;
    ComputeClosing();
    Transaction saving(gCn);
    InsertRecord();
    saving.Commit();
    ReturnToIdle();
}

void MasterScreen::cmdModify_Click()
{
    if (m_modes.IsModify()) {
        SaveModified();
        return;
    }
    m_modes.EnterModify();
    ClearFields();
    m_number.SetFocus();
}

void MasterScreen::SaveModified()
{
    if (!AreRequiredFieldsFilled())
        return;
    if (Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ"))) {
        ComputeClosing();
        Transaction saving(gCn);
        UpdateRecord();
        saving.Commit();
    }
    ReturnToIdle();
}

void MasterScreen::cmdDelete_Click()
{
    if (m_modes.IsDelete()) {
        DeleteFound();
        return;
    }
    m_modes.EnterDelete();
    ClearFields();
    m_number.SetFocus();
}

void MasterScreen::DeleteFound()
{
    if (m_number.Value() == 0) {
        Hold(m_number);
        return;
    }
    if (Ask(Shivaji(m_kind.deleteQuestion), OnEnter::No)) {
        Transaction deleting(gCn);
        DeleteRecord();
        deleting.Commit();
    }
    ReturnToIdle();
}

void MasterScreen::cmdCancel_Click()
{
    ReturnToIdle();
}

// Leaving the fields

void MasterScreen::Refuse(Field& field, QStringView message)
{
    ShowNotice(Shivaji(message));
    Hold(field);
}

void MasterScreen::Hold(Field& field)
{
    field.SetFocus(Wanted::OrCancel(field.Guide()));
}

void MasterScreen::Number_LostFocus()
{
    if (m_modes.IsNew() && !m_number.HoldsNumber()) {
        Refuse(m_number, m_kind.numberWanted);
        return;
    }
    if (m_number.IsEmpty())
        return; // the name will tell who it is
    const Recordset row = RowOf(m_number.Value());
    if (m_modes.IsNew()) {
        if (!row.Eof())
            Refuse(m_number, m_kind.numberTaken);
    } else if (row.Eof()) {
        Refuse(m_number, m_kind.numberUnknown);
    } else {
        ShowFound(row);
    }
}

void MasterScreen::Name_LostFocus()
{
    if (Trimmed(m_name).isEmpty()) {
        Refuse(m_name, m_kind.nameWanted);
        return;
    }
    const double number = m_number.Value();
    const Recordset row =
        m_modes.IsNew() ? PersonOfName(m_kind.people, m_name) : PersonOfName(m_kind.people, m_name, number);
    if (row.Eof()) {
        if (!m_modes.IsNew() && m_number.IsEmpty())
            Hold(m_name);
    } else if (m_modes.IsNew()) {
        Refuse(m_name, u"yaa naavaacao roka^D- Agaaodrca Aaho");
    } else if (m_modes.IsDelete() || row[m_kind.people.number].Number() != number) {
        ShowFound(row);
    }
}

// For a change or a deletion; what is to be deleted has nothing to fill in.
void MasterScreen::ShowFound(const Recordset& row)
{
    LoadRecord(row);
    if (m_modes.IsModify())
        EnableFiguresOfAnimal();
    else if (!IsSteppingBack())
        m_modes.Open().SetFocus();
}

void MasterScreen::txtAnimal_LostFocus()
{
    if (m_animal.IsEmpty())
        Hold(m_animal);
    else
        EnableFiguresOfAnimal();
}

void MasterScreen::EnableFiguresOfAnimal()
{
    for (Control* figure : m_cowFigures)
        figure->SetEnabled(m_animal.Text() != Word::Buffalo);
    for (Control* figure : m_buffaloFigures)
        figure->SetEnabled(m_animal.Text() != Word::Cow);
}

void MasterScreen::ToSaveButton()
{
    if (!IsSteppingBack())
        m_modes.Open().SetFocus();
}

void MasterScreen::LayRegister(QLayout* identity, QLayout* figures, std::initializer_list<Control*> buttons)
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(34);
    columns->addLayout(identity, 1);
    columns->addLayout(figures);

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(columns);
    body->addStretch(1);
    body->addWidget(lblGuide.Widget());
    body->addLayout(Layout::ButtonRow(buttons));
    Stack(body);
}

double MasterScreen::ClosingLits(double closingOnRecord, double openingOnRecord, double opening)
{
    return std::abs(closingOnRecord) - openingOnRecord + opening;
}
