// Each function below is the one place its editor handler is called from. Until the
// handler exists it says so, rather than let a scenario pass by doing nothing.
#include "cli/gestures.h"

#include "cli/fire.h"
#include "cli/script_error.h"
#include "platform/vb_numeric.h"

namespace tavrin::cli {

namespace {

[[noreturn]] void notYet(const std::string& command, const std::string& handlers) {
    throw NotSupported(command + " is not supported yet: the editor has no " + handlers);
}

// The box's handlers get the position in its own scale, single precision, as the
// form's events give it. Until the editor hands the box any mouse handler, its
// gestures are not supported; after that a missing one does nothing, as for a user.
void boxMouse(const char* command, platform::PictureBox& box, const MouseEvent& e) {
    if (!box.MouseDown && !box.MouseMove && !box.MouseUp)
        notYet(command, box.name() + " mouse handlers");
    const platform::PictureBox::MouseHandler& handler =
        e.action == MouseAction::Down   ? box.MouseDown
        : e.action == MouseAction::Move ? box.MouseMove
                                        : box.MouseUp;
    int16_t button = e.button, shift = e.shift;
    auto x = static_cast<float>(box.scaleX(e.x));
    auto y = static_cast<float>(box.scaleY(e.y));
    fire(handler, button, shift, x, y);
}

} // namespace

void canvasMouse(Session& s, const MouseEvent& e) { boxMouse("mouse", s.mainForm().Picture7, e); }

void paletteMouse(Session& s, const MouseEvent& e) {
    boxMouse("palette", s.mainForm().Picture2, e);
}

// As the window reports a new size: whole pixels, taken as they are, then Resize.
void resizeMain(Session& s, double width, double height) {
    if (width < 0 || height < 0) throw ScriptError("a window size can't be negative");
    FrmMain& frm = s.mainForm();
    frm.Width.setFromView(vb::roundHalfEven(width / 15.0) * 15.0);
    frm.Height.setFromView(vb::roundHalfEven(height / 15.0) * 15.0);
    fire(frm.Resize);
}

void gripBar(Session&, const std::string&, double, double) {
    // To be: the grip's MouseDown (button 1, no shift, x, y), which keeps the offset and
    // begins the drag of its bar; then s.grip = the bar, for dropBar.
    notYet("grip", "drag handlers for the bars");
}

void dropBar(Session&, const std::string&, double, double) {
    // To be: a ScriptError without s.grip; else Form_DragDrop or Picture7_DragDrop
    // (source: the bar in s.grip, x, y), then s.grip.reset().
    notYet("drop", "drop handlers for the bars");
}

} // namespace tavrin::cli
