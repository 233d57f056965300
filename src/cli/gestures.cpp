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

// A press of the left button on the grip, as a user starts a drag; a control that is no
// grip has no handler for it, and nothing happens.
void gripBar(Session& s, const std::string& grip, double x, double y) {
    platform::Control* c = s.mainForm().find(grip);
    const platform::MouseHandler* down = nullptr;
    if (auto* panel = dynamic_cast<platform::Panel*>(c)) down = &panel->MouseDown;
    if (auto* box = dynamic_cast<platform::PictureBox*>(c)) down = &box->MouseDown;
    if (!down) return;
    int16_t button = 1, shift = 0;
    auto fx = static_cast<float>(x), fy = static_cast<float>(y);
    fire(*down, button, shift, fx, fy);
}

// The release over the target: the bar being dragged, if any, is dropped there.
void dropBar(Session& s, const std::string& target, double x, double y) {
    FrmMain& frm = s.mainForm();
    platform::Control& on = target == "form" ? static_cast<platform::Control&>(frm) : frm.Picture7;
    frm.dropOn(on, static_cast<float>(x), static_cast<float>(y));
}

} // namespace tavrin::cli
