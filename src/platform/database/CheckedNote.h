#pragma once

#include <QDate>
#include <QString>

// The file beside the books that says on which day every page of them was read last.
namespace CheckedNote {

// Every page was read on this day, or written, and all was in order.
void Write(const QString& folder, QDate day);

// Damage was found: the pages are to be read at each opening until they are sound.
void WriteDue(const QString& folder);

// Whether the pages are to be read: a week after the last time, and whenever the note doesn't say when that
// was. A day to come is a clock that was put back.
bool IsDue(const QString& folder, QDate today);

}
