#pragma once

#include <QString>

#include <vector>

// Types keys after the running event, into whoever holds the focus then. "+", "^" and "%" before a key
// are Shift, Ctrl and Alt; "{TAB}", "{ENTER}", "{ESC}", "{Home}", "{End}", "{Left}", "{Right}", "{Up}",
// "{Down}", "{PGUP}", "{PGDN}", "{BS}", "{DEL}" and "{F1}" to "{F12}" are keys; "{+}" is the sign itself.
// Keys that a screen has left untyped when it closes go to the one below it, after its running event.
void SendKeys(const QString& keys);

// One key of such a text.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

// The keys of a text in the form that SendKeys takes. An unknown name in braces is an assertion.
std::vector<KeyStroke> ParseKeys(const QString& keys);
