#pragma once

// Runs the whole program in the application that stands: makes sure that no second copy works on the books,
// says so if no Devanagari font is there, and runs AppMain. A run-time error is shown in a plain box.
// Returns the exit code of the process: 0, or 1 after a failure.
int RunProgram();

// Tells the connection where the books lie: the data source VetrolanDSN is Morvelta.mdb of AppFolder.
void RegisterDataSource();
