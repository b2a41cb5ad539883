#pragma once

// Lets a handler that works for long show how far it is.
namespace Painting {

// Paints what has changed in the windows while the running event goes on. Nothing that the clerk does
// meanwhile gets in: keys are kept in their order, and typed after the running event into whoever holds the
// focus then; presses of the mouse and of close boxes that come through are thrown away.
void LetIn();

// Whether it is going on, or keys that were kept are still to be typed: whoever types for a test has to wait.
bool IsUnderWay();

}
