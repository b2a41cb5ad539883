#pragma once

// Runs the whole program in the application object that exists already: makes sure that no second copy works
// on the books, says so if there is no Devanagari font, and runs AppMain. A run-time error is shown in a
// plain box. Returns the exit code of the process: 0, or 1 after a failure.
int RunProgram();

// From now on plain boxes and prompts are cards of the program's window.
void ShowBoxesInTheWindow();

// Tells the platform what lies in AppFolder: the data source VetrolanDSN is its Morvelta.mdb, and an
// administrator links the numbers of serial ports to devices there.
void RegisterPlaces();
