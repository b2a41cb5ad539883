#pragma once

#include "core/menu/Keys.h"

// The places that stand first on the sheet: the menu, the small screens, and what works on every screen.
// Screens that answer keys themselves declare them with their functions; the others are declared here.
Keys::Places CoreKeys();
