#pragma once

#include <chrono>

// Shows progress while a handler runs for long.
namespace Painting {

// Paints the windows while the running event goes on. Keys pressed meanwhile are kept and typed, in their
// order, after the running event; mouse presses and close boxes are ignored.
void LetIn();

// Whether the windows should be painted again: at least twenty times a second.
bool IsDue();

// LetIn if a painting is due, for a loop that comes by more often than the eye can follow.
void KeepUp();

// If a painting is due, paints the screen on top as it is, and lets nothing else happen: no key, no timer, no
// event. So it may be called in the midst of a statement of the books.
void RepaintInTime();

// How long after a painting the next is due; a test that looks at each of them sets 0.
std::chrono::milliseconds& Interval();

// Whether LetIn is running, or keys that it kept are still to be typed. A test waits until neither is so.
bool IsUnderWay();

}
