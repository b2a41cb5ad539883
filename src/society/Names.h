#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/NameCombo.h"

#include <functional>

// Look-ups by number and by name. Spellings that read the same are the same name to the clerk; statements
// need the spelling that is stored.

// A table of people, whom the clerk knows by number and by name, with the columns of both.
struct PeopleTable {
    QStringView table;
    QStringView number;
    QStringView name;
};

namespace People {

inline constexpr PeopleTable Members{u"MembersMaster", u"MemberNo", u"MemberName"};
inline constexpr PeopleTable Customers{u"CustomersMaster", u"CustomerNo", u"CustomerName"};

}

// The person with this number, in any company; at the end if there is none.
Recordset PersonOfNumber(const PeopleTable& people, double number);
Recordset MemberOfNumber(double number);

// Picks one among several rows of the same name.
using IsMeant = std::function<bool(const Recordset& row)>;

// Stands on the first row whose column has the name, ignoring blanks at the ends: one with the same spelling,
// or else one that reads the same. At the end if there is none, or if the name is empty.
Recordset RowOfName(
    const QString& query, QStringView column, const QString& name, const IsMeant& isMeant = {});

// The person in the field of a list of names, in any company. Of several with one name, the one whose row was
// picked.
Recordset PersonOfName(const PeopleTable& people, const NameCombo& list);

// The same, with a field for the number beside the list: as long as the name fits that number, it means that
// person and not another of the same name.
Recordset PersonOfName(const PeopleTable& people, const NameCombo& list, double number);

// The same for members; the first takes any name.
Recordset MemberOfName(const QString& name);
Recordset MemberOfName(const NameCombo& list);
Recordset MemberOfName(const NameCombo& list, double number);

// Whether the name in the field fits the number.
bool IsNameOf(const NameCombo& list, double number);

// Shows the member of a record or of a delivery, with the spelling of that row, as if picked from the list.
void ShowMember(NameCombo& list, const Recordset& row);

// All spellings of a name in a column of a table: first the given one, then the others that read the same.
QStringList SpellingsOf(QStringView table, QStringView column, const QString& name);

// The names of all members with their numbers, in the order of the system's query.
std::vector<NameCombo::Entry> MemberNames();
