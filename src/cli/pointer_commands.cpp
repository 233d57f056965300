// Mouse events, resizing and bar dragging: parsed here, handed to the editor in gestures.cpp.
#include "cli/commands.h"
#include "cli/gestures.h"
#include "cli/targets.h"

namespace tavrin::cli {

namespace {

MouseEvent readMouse(Args& a, std::initializer_list<const char*> actions) {
    std::string action = a.word("a mouse action", actions);
    MouseEvent e{};
    e.action = action == "down"   ? MouseAction::Down
               : action == "move" ? MouseAction::Move
                                  : MouseAction::Up;
    e.button = static_cast<int16_t>(a.integer("a button", INT16_MIN, INT16_MAX));
    e.shift = static_cast<int16_t>(a.integer("a shift state", INT16_MIN, INT16_MAX));
    e.x = a.number("x");
    e.y = a.number("y");
    a.end();
    return e;
}

} // namespace

void mouseCommand(Session& s, Args& a) { canvasMouse(s, readMouse(a, {"down", "move", "up"})); }

void paletteCommand(Session& s, Args& a) { paletteMouse(s, readMouse(a, {"down", "up"})); }

void resizeCommand(Session& s, Args& a) {
    double width = a.number("a width");
    double height = a.number("a height");
    a.end();
    resizeMain(s, width, height);
}

void gripCommand(Session& s, Args& a) {
    std::string bar = a.word("a grip");
    controlOf<platform::Control>(s, bar, "a control"); // the name must be one
    double x = a.number("x");
    double y = a.number("y");
    a.end();
    gripBar(s, bar, x, y);
}

void dropCommand(Session& s, Args& a) {
    std::string target = a.word("a drop target", {"form", "Picture7"});
    double x = a.number("x");
    double y = a.number("y");
    a.end();
    dropBar(s, target, x, y);
}

} // namespace tavrin::cli
