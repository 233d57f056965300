// The two colour modes: in 256 colours (Palette_Mode 1) the area filters snap their
// results to the palette, in high colour (0) they draw them as worked out. The way back
// is refused: in high colour the picture and the grid part ways.
#include "editor/frm_main.h"

namespace tavrin {

void FrmMain::CLhigh_Click() {
    Cl256.Checked = false;
    CLhigh.Checked = true;
    Palette_Mode = int16_t{0};
}

void FrmMain::Cl256_Click() {
    if (CLhigh.Checked) {
        host_.MsgBox("Can't go back to 256.", platform::kStyleOk);
        return;
    }
    host_.MsgBox("Note...you will now be unable to go BACK to 256 color.", platform::kStyleOk);
    CLhigh.Checked = false;
    Cl256.Checked = true;
    Palette_Mode = int16_t{1};
}

} // namespace tavrin
