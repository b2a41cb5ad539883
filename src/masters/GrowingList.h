#pragma once

#include "platform/forms/NameCombo.h"

// The list of names behind a field that the clerk adds to by typing a new one, such as the cities of the
// selected company.
class GrowingList {
public:
    // `question`, in the system's encoding, asks whether a new name is to be added.
    GrowingList(NameCombo& field, QStringView table, QStringView column, QStringView question);

    // Reads the names into the field.
    void Load();

    // Asks about a new name, and adds it on a yes. Returns false on a no. An empty name passes, and so does
    // one that is in the list in another spelling.
    bool TakeIn();

private:
    NameCombo& m_field;
    QStringView m_table;
    QStringView m_column;
    QStringView m_question;
};
