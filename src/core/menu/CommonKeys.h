#pragma once

class QKeyEvent;

// What F2 and F12 do on every screen that has them.
namespace CommonKeys {

// F2: starts the calculator of AppFolder, maximised or in a normal window. If there is none, the clerk is
// told.
void Calculator(bool maximised = true);

// F12: the keyboard tutor.
void Tutor();

// The same, but only if that key was pressed; returns whether it was.
bool Calculator(const QKeyEvent& key);
bool Tutor(const QKeyEvent& key);

}
