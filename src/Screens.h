#pragma once

// Enters every screen of the program in the screen directory, so that it can be opened by name.
void RegisterScreens();
