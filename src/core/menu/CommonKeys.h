#pragma once

class QKeyEvent;

// The keys that several screens answer alike. Each returns true if it was its key and is answered.
namespace CommonKeys {

// F2: the calculator of AppFolder, in a maximised or a normal window.
bool Calculator(const QKeyEvent& key, bool maximised = true);

// F12: the keyboard tutor.
bool Tutor(const QKeyEvent& key);

}
