#pragma once

#include "platform/forms/Layout.h"

class Button;

// How the report screens look: what to print above, the two buttons below.
namespace ReportLayout {

inline constexpr int DateWidth = 150;
inline constexpr int NameWidth = 420;

// The body of a screen; what it asks for stands in `form`.
QLayout* Body(const Layout::Form& form, Button& cmdReport, Button& cmdExit);

}
