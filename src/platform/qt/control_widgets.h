#pragma once
// One widget for each kind of stock control, and how it follows its control.
#include "platform/controls.h"

class QWidget;

namespace platform::qt {

// A widget for the control, its clicks and edits wired to the control; nullptr for
// kinds that have no widget on the surface.
QWidget* makeControlWidget(Control& control, QWidget* parent);
// Brings the widget's content (caption, text, items, value) up to the control's: what the
// property `changed` holds, or all of it when changed is nullptr.
void updateControlWidget(Control& control, QWidget* widget, const PropBase* changed);

} // namespace platform::qt
