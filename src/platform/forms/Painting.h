#pragma once

// Shows progress while a handler runs for long.
namespace Painting {

// Paints the windows while the running event goes on. Keys pressed meanwhile are kept and typed, in their
// order, after the running event; mouse presses and close boxes are ignored.
void LetIn();

// Whether LetIn is running, or keys that it kept are still to be typed. A test waits until neither is so.
bool IsUnderWay();

}
