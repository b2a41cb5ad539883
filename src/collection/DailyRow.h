#pragma once

#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"

class Recordset;

// The row of the books that the fields of the daily collection make up.
struct DailyRow {
    WholeField& txtMemberNo;
    NameCombo& cmbMemberName;
    DateField& MasKCollectionDate;
    NameCombo& cmbCollectionTime;
    WholeField& txtCollectionNo;
    AnimalField& txtAnimal;
    LitresField& txtLiters;
    FatField& txtFat;
    RateField& txtRate;
    MoneyField& txtAmount;

    // Empties the fields, the figures to 0.
    void Clear();

    // Shows a row of the books, its figures as they are stored.
    void Show(const Recordset& row);

    // The day as a statement compares with it.
    QString Day() const;

    // What adds the row to the books, changes the figures of the one there, or deletes it.
    QString InsertStatement() const;
    QString UpdateStatement() const;
    QString DeleteStatement() const;

    // Sets a field to 0 if its text isn't a number.
    static void Mend(NumberField& figure);
};
