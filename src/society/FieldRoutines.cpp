#include "society/FieldRoutines.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/DateField.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/NameCombo.h"
#include "society/Names.h"

namespace {

// The column with the numbers that the clerk knows the names of a table by; empty if there is none.
QStringView NumberColumn(QStringView tableName)
{
    for (const PeopleTable& people : {People::Members, People::Customers})
        if (tableName == people.table)
            return people.number;
    return {};
}

}

void FillCombo(NameCombo& combo, QStringView tableName, QStringView fieldName, const SqlText& tail)
{
    const QStringView number = NumberColumn(tableName);
    std::vector<NameCombo::Entry> names;
    for (Recordset rows(gCn, Sql(u"select * from ", tableName, u" ", tail)); !rows.Eof(); rows.MoveNext())
        names.push_back({rows[fieldName].Text(), number.isEmpty() ? QString() : rows[number].Text()});
    combo.SetNames(names);
}

void CheckDateField(DateField& field, int& flag)
{
    flag = field.HoldsDate() ? 0 : 1;
    if (flag == 0)
        return;
    ClearDateField(field);
    field.SetFocus();
}

void ClearDateField(DateField& field)
{
    field.Clear();
}

void SelectFieldText()
{
    SendKeys(QStringLiteral("{Home}"));
    SendKeys(QStringLiteral("+{End}"));
    SendKeys(QStringLiteral("+{End}"));
}
