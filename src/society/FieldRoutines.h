#pragma once

#include "platform/database/Sql.h"

class DateField;
class NameCombo;

// Fills a combo's list with a column of "select * from TABLE TAIL". The combo holds the names in the order of
// the query, and shows them in that of the alphabet, those of members and customers with their numbers.
void FillCombo(NameCombo& combo, QStringView tableName, QStringView fieldName, const SqlText& tail);

// Sets flag to 0 if the field holds a date; else to 1, empties the field and sends the focus back to it.
void CheckDateField(DateField& field, int& flag);

// Empties the mask.
void ClearDateField(DateField& field);

// Selects the whole text of whatever field holds the focus, after the running event.
void SelectFieldText();
