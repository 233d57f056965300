#pragma once
// A form's page drawn with a painter, one unit a screen pixel: what printing a form puts
// on paper.
#include "platform/form_page.h"

class QPainter;

namespace platform::qt {

// The back colour (white paper for a system colour), each picture's pixels unsmoothed,
// each caption in the type its control shows it in.
void paintPage(QPainter& painter, const Page& page);

} // namespace platform::qt
