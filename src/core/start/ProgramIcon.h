#pragma once

#include <QIcon>

// The icon of the program's window: a milk can with a drop, drawn for every size that a desktop shows.
QIcon ProgramIcon();
