#pragma once

#include <string>

class Screen;

// What a clerk behind the counter could not read on a screen as it stands: a line for each fault, empty if
// there is none. Looked at are the window's size, what is cut off, what lies over what, and the names that a
// screen reader says.
std::string UnreadableOn(const Screen& screen);
