#pragma once
// Where pointer gestures, resizing and bar dragging reach the editor's handlers. The
// commands parse and check their arguments, then call one function here. The mouse
// and resize go through the handlers the editor sets on its controls, so they need no
// change here when a handler arrives; a gesture with no handler at all stops the
// script as not supported.
#include "cli/session.h"

#include <cstdint>
#include <string>

namespace tavrin::cli {

enum class MouseAction { Down, Move, Up };

struct MouseEvent {
    MouseAction action;
    int16_t button; // 1 left, 2 right
    int16_t shift;  // 1 Shift, 2 Ctrl, 4 Alt, summed
    double x, y;    // in the picture's own pixels
};

// Picture7, the canvas.
void canvasMouse(Session& s, const MouseEvent& e);
// Picture2, the palette.
void paletteMouse(Session& s, const MouseEvent& e);
// The main window resized to width x height twips.
void resizeMain(Session& s, double width, double height);
// Pressing the grip of a bar (a control of the main form) at x, y grip units.
void gripBar(Session& s, const std::string& grip, double x, double y);
// Dropping the gripped bar on target ("form" or "Picture7") at x, y target units.
void dropBar(Session& s, const std::string& target, double x, double y);

} // namespace tavrin::cli
