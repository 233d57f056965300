// The form's events that carry arguments, which the command tables (clicks only) can't
// hold: the mouse on the canvas and on the palette, and the tint slider.
#include "editor/frm_main.h"

namespace tavrin {

FrmMain::EventWiring::EventWiring(FrmMain& frm) {
    frm.Picture7.MouseDown = [&frm](int16_t b, int16_t s, float x, float y) {
        frm.Picture7_MouseDown(b, s, x, y);
    };
    frm.Picture7.MouseMove = [&frm](int16_t b, int16_t s, float x, float y) {
        frm.Picture7_MouseMove(b, s, x, y);
    };
    frm.Picture7.MouseUp = [&frm](int16_t b, int16_t s, float x, float y) {
        frm.Picture7_MouseUp(b, s, x, y);
    };
    frm.Picture2.MouseDown = [&frm](int16_t b, int16_t s, float x, float y) {
        frm.Picture2_MouseDown(b, s, x, y);
    };
    frm.Picture2.MouseUp = [&frm](int16_t b, int16_t s, float x, float y) {
        frm.Picture2_MouseUp(b, s, x, y);
    };
    frm.Slider1.Max = 5;
    frm.Slider1.Value = 1;
    frm.Slider1.Change = [&frm] { frm.Slider1_Change(); };
    frm.makeTintSamples();
}

} // namespace tavrin
