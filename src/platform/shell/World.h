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

    // `program` is a path in AppFolder, such as that of calc.EXE. If there is no such file, the desktop's own
    // calculator is started. Returns false if there is none either.
    virtual bool Start(const QString& program, bool maximised) = 0;
};

// The plain message box: one text, one button.
class MessageBox {
public:
    virtual ~MessageBox() = default;

    // Returns when the clerk has closed the box. An empty title stands for the program's name.
    virtual void Show(const QString& text, const QString& title = {}) = 0;
};

// The plain one-line prompt.
class InputBox {
public:
    virtual ~InputBox() = default;

    // Asks, with `proposed` in the line. Returns the clerk's answer without blanks at its ends; an empty text
    // if the clerk leaves without one. An empty title stands for the program's name.
    virtual QString Ask(const QString& prompt, const QString& proposed = {}, const QString& title = {}) = 0;
};

// What the program needs of the machine around it. A test or the tour puts its own parts in; it keeps owning
// them.
struct World {
    Clock* clock;
    Calculator* calculator;
    MessageBox* messageBox;
    InputBox* inputBox;
    FileSystem* fileSystem;

    // The world of this process; the real one unless parts of it were replaced.
    static World& Current();

    // The real parts, to put back what was replaced.
    static World Real();
};
