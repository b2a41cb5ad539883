#pragma once

#include "platform/forms/Layout.h"

class Button;

// How the report screens look: what to print above, the two buttons below. They are all of one size.
namespace ReportLayout {

inline constexpr int DateWidth = 150;
inline constexpr int NameWidth = 420;

// Puts the guide line above what is asked for: the list of names drops down over what is below.
void AddGuide(Layout::Form& form, Label& guide);

// Puts a screen together; what it asks for stands in `form`.
void Finish(Screen& screen, QWidget* header, const Layout::Form& form, Button& cmdReport, Button& cmdExit);

}
