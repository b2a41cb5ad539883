#pragma once

#include "platform/forms/Layout.h"

// What F2 and F12 do on every screen that has them.
namespace CommonKeys {

// F2: starts the calculator of AppFolder, maximised or in a normal window. If there is none, the clerk is
// told.
void Calculator(bool maximised = true);

// The same with a program by its path on the society's machine.
void StartCalculator(const QString& program, bool maximised);

// F12: the keyboard tutor.
void Tutor();

// The two keys among those of a screen, whose functions call the above.
KeyHint CalculatorKey(const Handler& pressed);
KeyHint TutorKey(const Handler& pressed);

}
