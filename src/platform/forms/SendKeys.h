#pragma once

#include <QString>

#include <vector>

// Types keys after the running event, into the control that has the focus by then. "+", "^" and "%" before a
// key are Shift, Ctrl and Alt; "{TAB}", "{ENTER}", "{ESC}", "{Home}", "{End}", "{Left}", "{Right}", "{Up}",
// "{Down}", "{PGUP}", "{PGDN}", "{BS}", "{DEL}" and "{F1}" to "{F12}" are keys; "{+}" is the character
// itself. Keys that are left when a screen closes go to the one below it, after its running event.
void SendKeys(const QString& keys);

// A key as SendKeys types it.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

// Parses a text in the form that SendKeys takes. An unknown name in braces fails an assertion.
std::vector<KeyStroke> ParseKeys(const QString& keys);
