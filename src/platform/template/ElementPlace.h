#pragma once

#include <QtGlobal>

// Where an element stands. At the edge of a page, and in blocks that stand side by side within others, there
// is no room for what goes on over pages; side by side nothing can begin one.
enum class ElementPlace : quint8 { Flow, Lane, PageEdge, InnerLane };
