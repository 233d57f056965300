// Dragging the floating bars by their grips. The press keeps where in the grip it went
// down and begins the platform's drag of the bar that holds the grip; the drop on the
// form or on the canvas puts the bar's corner that far from the pointer. A drop on any
// other control does nothing: the bar stays where it was.
#include "editor/frm_main.h"

namespace tavrin {

namespace {

// The offset stays in the grip's own units, so Picture14's is in pixels while the drop
// takes it as twips: that bar lands a little off the outline. Meant.
void beginBarDrag(FrmMain& frm, platform::Control& grip, float X, float Y) {
    frm.Drag_Offset_X = X;
    frm.Drag_Offset_Y = Y;
    grip.Container->Drag(1);
}

} // namespace

void FrmMain::wireBarDrag() {
    // These four end the drag at their own release; for the other two the platform's end
    // of the drag at the release serves.
    for (platform::Panel* grip : {&SSPanel14, &SSPanel12, &SSPanel8, &SSPanel9}) {
        grip->MouseDown = [this, grip](int16_t, int16_t, float X, float Y) {
            beginBarDrag(*this, *grip, X, Y);
        };
        grip->MouseUp = [grip](int16_t, int16_t, float, float) { grip->Container->Drag(2); };
    }
    SSPanel17.MouseDown = [this](int16_t, int16_t, float X, float Y) {
        beginBarDrag(*this, SSPanel17, X, Y);
    };
    Picture14.MouseDown = [this](int16_t, int16_t, float X, float Y) {
        beginBarDrag(*this, Picture14, X, Y);
    };
    DragDrop = [this](platform::Control& source, float X, float Y) { Form_DragDrop(source, X, Y); };
    Picture7.DragDrop = [this](platform::Control& source, float X, float Y) {
        Picture7_DragDrop(source, X, Y);
    };
}

void FrmMain::Form_DragDrop(platform::Control& Source, float X, float Y) {
    Source.Top = Y - Drag_Offset_Y;
    Source.Left = X - Drag_Offset_X;
    repaintCanvas();
    host_.DoEvents();
}

// The canvas gives its own pixels: 15 twips each, from its corner.
void FrmMain::Picture7_DragDrop(platform::Control& Source, float X, float Y) {
    Source.Top = Picture7.Top + Y * 15.0 - Drag_Offset_Y;
    Source.Left = Picture7.Left + X * 15.0 - Drag_Offset_X;
}

} // namespace tavrin
