#pragma once

#include <QString>

// Opens gCn with the state's password. If the books weren't closed properly, and once a week, every page is
// read first, and a line on the screen says so. Plain boxes tell what the opening found or repaired. Books
// that can't be used are a run-time error; if they are damaged, it names the newest backup.
void OpenBooks();

// Around the copying of the books: opens gCn anew, after closing it if it is open; and closes it, and the
// connection that the reports read through.
void ReopenBooks();
void CloseBooks();

// Makes the next OpenBooks read every page: the program that had the books last didn't end properly.
void CheckNextOpening();

// The path of the newest backup of the books; empty if there is none.
QString NewestBackup();
