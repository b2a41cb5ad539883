#pragma once

// Brings the system up: password, connection, state, and the opening screens. Returns when the last of
// them has closed. A failure on the way is a run-time error.
void AppMain();

// The first steps of AppMain, without a screen. Returns false where the menu's rights are missing: the
// message has been shown, and the process is to end.
bool LoadAppState();

// Fills gDbPassword from PWD.TXT.
void ReadPassword();
