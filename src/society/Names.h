#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/NameCombo.h"

#include <functional>

// Looks up what the clerk knows by name. Two spellings that read the same are one name to him; the text that
// is stored is the one to put into statements.

// Which of the rows of a name is meant, where several have it.
using IsMeant = std::function<bool(const Recordset& row)>;

// The first row of a query that has the name in a column, blanks at its ends aside: one that is spelled so,
// or else one that reads the same. The rows have ended if there is none; a name of blanks is nobody's.
Recordset RowOfName(
    const QString& query, QStringView column, const QString& name, const IsMeant& isMeant = {});

// The member of a name, whatever the company.
Recordset MemberOfName(const QString& name);

// The member that stands in a list of names: of several of one name the one whose row was picked.
Recordset MemberOfName(const NameCombo& list);

// The same where a number stands beside the list: while the name is that of its member, no other of that name
// takes his place.
Recordset MemberOfName(const NameCombo& list, double number);
bool IsNameOf(const NameCombo& list, double number);

// Shows the member of a record, or of a delivery: his name as it is spelled there, for his number.
void ShowMember(NameCombo& list, const Recordset& row);

// The ways in which a column of a table spells a name: first as it is given, then the others that read the
// same.
QStringList SpellingsOf(QStringView table, QStringView column, const QString& name);

// The names of all members with their numbers, in the order of the books.
std::vector<NameCombo::Entry> MemberNames();
