#pragma once

#include "tools/clerk/Clerk.h"

#include <QString>

#include <functional>
#include <ostream>
#include <vector>

// A screen of the program in one of its states, reached on the books of FillBooks.
struct ScreenState {
    QString screen;
    QString keys; // that lead to the state from the screen as it opens
    std::function<void()> open;

    // How a failing test names it.
    friend void PrintTo(const ScreenState& state, std::ostream* out)
    {
        *out << state.screen.toStdString() << " after " << state.keys.toStdString();
    }
};

// Every screen of the program, in each of its states: with all fields filled, so that each may be left.
const std::vector<ScreenState>& EveryScreen();

// Opens the screen and leads to the state, where `script` plays on.
void PlayOn(Clerk& theClerk, const ScreenState& state, const std::function<void(Clerk&)>& script);
