#pragma once

#include "platform/shell/FileSystem.h"

#include <QDateTime>
#include <QString>

// The machine's date and time.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime Now() const = 0;
};

// Starts a calculator beside the program.
class Calculator {
public:
    virtual ~Calculator() = default;

    // `program` is the path that the system names, such as AppFolder's calc.EXE. If that file isn't
    // there the desktop's own calculator is started. Returns false if there is none at all.
    virtual bool Start(const QString& program, bool maximised) = 0;
};

// The plain message box: one text, one button.
class MessageBox {
public:
    virtual ~MessageBox() = default;

    // Returns when the clerk has closed the box. An empty title is the program's name.
    virtual void Show(const QString& text, const QString& title = {}) = 0;
};

// The plain one-line prompt.
class InputBox {
public:
    virtual ~InputBox() = default;

    // Asks, with `proposed` in the line. Returns what the clerk has made of it, without blanks at the ends;
    // an empty text if he has left without an answer. An empty title is the program's name.
    virtual QString Ask(const QString& prompt, const QString& proposed = {}, const QString& title = {}) = 0;
};

// What the program asks of the machine around it. Whoever replaces a part (a test, the tour) owns it.
struct World {
    Clock* clock;
    Calculator* calculator;
    MessageBox* messageBox;
    InputBox* inputBox;
    FileSystem* fileSystem;

    // The world of this process; it begins as the real one.
    static World& Current();

    // The real one, made anew.
    static World Real();
};
