#pragma once

#include "platform/database/Sql.h"

class DateField;
class NameCombo;

// Fills a combo's list with a column of "select * from TABLE TAIL". The list shows the names in alphabetical
// order, members and customers with their numbers; Items() keeps the order of the query.
void FillCombo(NameCombo& combo, QStringView tableName, QStringView fieldName, const SqlText& tail);

// Sets flag to 0 if the field holds a date. Otherwise sets it to 1, empties the field and puts the focus
// back.
void CheckDateField(DateField& field, int& flag);

// Empties the mask.
void ClearDateField(DateField& field);

// Selects the whole text of whatever field holds the focus, after the running event.
void SelectFieldText();
