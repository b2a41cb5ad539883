#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/NameCombo.h"

#include <functional>

// Look-ups by number and by name. Spellings that read the same are the same name to the clerk; statements
// need the spelling that is stored.

// The member with this number, in any company; at the end if there is none.
Recordset MemberOfNumber(double number);

// Picks one among several rows of the same name.
using IsMeant = std::function<bool(const Recordset& row)>;

// Stands on the first row whose column has the name, ignoring blanks at the ends: one with the same spelling,
// or else one that reads the same. At the end if there is none, or if the name is empty.
Recordset RowOfName(
    const QString& query, QStringView column, const QString& name, const IsMeant& isMeant = {});

// The member of a name, in any company.
Recordset MemberOfName(const QString& name);

// The member in the field of a list of names. Of several with one name, the one whose row was picked.
Recordset MemberOfName(const NameCombo& list);

// The same, with a field for the number beside the list: as long as the name fits that number, it means that
// member and not another of the same name.
Recordset MemberOfName(const NameCombo& list, double number);

// Whether the name in the field fits the number.
bool IsNameOf(const NameCombo& list, double number);

// Shows the member of a record or of a delivery, with the spelling of that row, as if picked from the list.
void ShowMember(NameCombo& list, const Recordset& row);

// All spellings of a name in a column of a table: first the given one, then the others that read the same.
QStringList SpellingsOf(QStringView table, QStringView column, const QString& name);

// The names of all members with their numbers, in the order of the system's query.
std::vector<NameCombo::Entry> MemberNames();
