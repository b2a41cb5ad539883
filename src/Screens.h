#pragma once

// Tells the screen directory of every screen that the program has.
void RegisterScreens();
