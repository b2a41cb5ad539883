#pragma once

#include <QString>

// Opens gCn with the state's password. After an end without a close, and once a week, every page is read
// first, behind a line that says so. What the opening has met with or put right is told in plain boxes. Books
// that can't be used are a run-time error, which names the newest backup if they are damaged.
void OpenBooks();

// The next OpenBooks reads every page: the program that had the books last didn't come to its end.
void CheckNextOpening();

// The newest copy of the books in AppFolder's Backup; empty if there is none.
QString NewestBackup();
