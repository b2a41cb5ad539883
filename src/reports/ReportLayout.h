#pragma once

#include "Layout.h"

class Button;

// How the report screens look: what to print above, the two buttons below. They are all of one size.
namespace ReportLayout {

inline constexpr int DateWidth = 150;
inline constexpr int NameWidth = 420;

// Puts a screen together; what it asks for stands in `form`.
void Finish(Screen& screen, QWidget* header, const Layout::Form& form, Button& cmdReport, Button& cmdExit);

}
