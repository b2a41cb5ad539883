#pragma once

class QKeyEvent;

// What the keys that several screens have do on all of them.
namespace CommonKeys {

// F2: the calculator of AppFolder, in a maximised or a normal window. One that isn't there is told.
void Calculator(bool maximised = true);

// F12: the keyboard tutor.
void Tutor();

// The same, if it was that key; returns whether it was.
bool Calculator(const QKeyEvent& key);
bool Tutor(const QKeyEvent& key);

}
