#pragma once

#include <QString>

// Asks for the password of a new database, so that it appears neither in the history of the shell nor in the
// list of processes.
namespace AskedPassword {

// At a terminal it is typed twice, without being shown; else it is the first line of standard input, which
// may be empty. It is a RunTimeError if the two differ or the typing is interrupted.
QString Read();

}

// Asks for a line that may be seen; without a terminal nobody is asked, and it is empty.
QString AskedLine(const QString& prompt);
