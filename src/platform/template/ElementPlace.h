#pragma once

#include <QtGlobal>

// Where an element stands: in the flow of the pages, in one of several columns, in the header or footer of a
// page, or in columns inside of a column. The last two can't hold what runs over several pages, and only in
// the flow can a new page begin.
enum class ElementPlace : quint8 { Flow, Lane, PageEdge, InnerLane };
