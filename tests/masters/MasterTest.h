#pragma once

#include "tests/support/SocietyTest.h"

// The hands of a clerk at a register, of members or of customers.

// The buttons of a register.
inline const QStringList Buttons = {"cmdNew", "cmdModify", "cmdDelete", "cmdCancel", "cmdExit"};

// Those of the controls that can be entered.
QStringList Open(const Clerk& clerk, const QStringList& controls);

// The title of the screen on top, as it is stored.
QString TitleOf(const Clerk& clerk);

// The keys that type a stored text; signs that stand for Shift, Ctrl and Alt are typed as themselves.
QString Typed(const QString& stored);

// Types `keys`, and Enter after each.
void TypeEach(Clerk& clerk, const QStringList& keys);

// Opens the mode of Modify and calls up a record by number; the focus is on the name.
void CallUp(Clerk& clerk, int number);

// Goes to a field with the mouse and selects what is in it.
void GoTo(Clerk& clerk, const QString& field);

// Answers a notice that is expected on top.
void GoOn(Clerk& clerk, const QString& expected);
