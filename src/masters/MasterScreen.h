#pragma once

#include "platform/forms/NameCombo.h"
#include "society/Fields.h"
#include "society/Names.h"
#include "society/RecordModes.h"
#include "society/SocietyScreen.h"

// What a register is called, in the books and in what the clerk is told, in the system's encoding.
struct MasterKind {
    PeopleTable people;
    QStringView title; // at rest
    QStringView numberWanted; // the number isn't one
    QStringView numberTaken;
    QStringView numberUnknown;
    QStringView nameWanted;
    QStringView deleteQuestion;
};

// A register of people, changed one record at a time: its modes, how a record is found by number and by name,
// and what the fields of all registers do when they are left. A screen adds its fields and what it writes.
class MasterScreen : public SocietyScreen {
protected:
    // What every register has; the screen declares it, each control at its place in the tab order.
    struct Parts {
        WholeField& number;
        NameCombo& name;
        ChoiceField& animal;
        RecordModes& modes;
    };

    MasterScreen(const Keys::Places& keys, const MasterKind& kind, const Parts& parts);

    static std::vector<KeyHint> MasterKeys();

    // The fields that a record can't be saved without, besides its number.
    void SetRequired(std::vector<Field*> required);

    // The fields for the figures of one kind of milk; those of the animal that is not kept are closed.
    void SetFigures(std::vector<Control*> cow, std::vector<Control*> buffalo);

    void Load() override;
    void Escape() override;

    // Reads the names into their list, for a screen that has more lists to add to.
    virtual void LoadLists();

    // Shows a record, and keeps what the screen has to know of it later.
    virtual void LoadRecord(const Recordset& row) = 0;
    virtual void ClearFields() = 0;

    // Brings what is only shown up to date, before a record is written.
    virtual void ComputeClosing() { }

    // What a save and a deletion write, each in one transaction. A change renames the person everywhere.
    virtual void InsertRecord() = 0;
    virtual void UpdateRecord() = 0;
    virtual void DeleteRecord() = 0;

    void cmdNew_Click();
    void cmdModify_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();

    void Number_LostFocus();
    void Name_LostFocus();
    void txtAnimal_LostFocus();

    // Keeps the focus in a field; the guide line adds which key gives up the record.
    void Hold(Field& field);

    // For the last field: goes to the button that saves.
    void ToSaveButton();

    // Lays out who somebody is beside the figures, with the guide line and the buttons below.
    void LayRegister(QLayout* identity, QLayout* figures, std::initializer_list<Control*> buttons);

    static QString Trimmed(const Field& field) { return field.Text().trimmed(); }

    // The closing litres move by as much as the opening ones, from what both were on record.
    static double ClosingLits(double closingOnRecord, double openingOnRecord, double opening);

private:
    const MasterKind& m_kind;
    WholeField& m_number;
    NameCombo& m_name;
    ChoiceField& m_animal;
    RecordModes& m_modes;
    std::vector<Field*> m_required;
    std::vector<Control*> m_cowFigures;
    std::vector<Control*> m_buffaloFigures;

    int NextNo() const;
    Recordset RowOf(double number) const;
    void ShowFound(const Recordset& row);
    void EnableFiguresOfAnimal();
    bool AreRequiredFieldsFilled();

    void ShowIdle();
    void ReturnToIdle();
    void SaveNew();
    void SaveModified();
    void DeleteFound();

    void Refuse(Field& field, QStringView message);
};
