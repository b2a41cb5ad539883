#pragma once

#include "collection/DailyRow.h"

#include <QStringList>

class RecordModes;

// What the fields of the daily collection have to hold before the books are written. A button that writes
// asks all the rules, since it can be pressed from any field; some of them are asked on leaving a field, too.
//
// Figures must not be written beside others than they were made for: a number is that of its day and shift, a
// price that of its day, animal, litres and fat, and a change is made to the row that was looked at. So the
// screen tells when it has shown one of these, and what has been keyed since then is found by the rules.
class DailyRules {
public:
    DailyRules(const DailyRow& row, const RecordModes& modes);

    // Whether a rule is kept. Unless it is, the focus goes to the field that has to be mended, and the guide
    // line says what is wanted there.
    bool InsistOnDay();
    bool InsistOnShift();
    bool InsistOnAnimal();
    bool InsistOnLiters();
    bool InsistOnFat();
    bool InsistOnAll();

    // Whether a field holds a number above 0.
    static bool HoldsMilk(const NumberField& field);

    // What is wanted in a field that keeps the focus, and the key that gives the row up.
    static Caption WithWayOut(QStringView wanted);

    // The fields show a row of the books, or no longer do.
    void RowIsShown();
    void RowIsChanged() { m_isRowShown = false; }
    bool IsRowShown() const { return m_isRowShown; }

    // The number stands for the day and the shift beside it as they are; it was proposed by the screen.
    void NumberIsGiven();
    void NumberIsProposed();

    // The amount stands for the figures beside it as they are.
    void PriceIsGiven();

    // The fields were emptied.
    void Forget();

private:
    QStringList DayAndShift() const;
    QStringList PricedBy() const;
    bool InsistOnNumber();
    bool InsistOnNewFigures();

    const DailyRow& m_row;
    const RecordModes& m_modes;

    bool m_isRowShown = false;
    QString m_proposedNo;
    QStringList m_numberedFor;
    QStringList m_pricedFor;
};
