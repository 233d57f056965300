// Start and end of a run.
#include "editor/frm_main.h"

namespace tavrin {

// Start-up never stops half way: every step is guarded on its own.
void FrmMain::Form_Load() {
    vb::resume([&] { StatusBar1.Panels(1).Text = "Ready..."; });
    vb::resume([&] { WindowState = 2; });
    vb::resume([&] { Pal_Path = host_.AppPath() + "/Quake2.PAL"; });
    vb::resume([&] {
        Band_Old_X = -1;
        Band_Old_Y = -1;
    });
    vb::resume([&] {
        Brush_Size = 3;
        Brush_Radius = 2;
        Pan_Step = 500;
    });
    vb::resume([&] {
        Scale_X = 1;
        Scale_Y = 1;
        Image_Missing = 1;
    });
    vb::resume([&] {
        Mask_Color = 0.1;
        Zoom_Factor = 1;
    });
    vb::resume([&] { Cur_Color = Picture3.BackColor; });
    vb::resume([&] {
        Palette_Mode = 1;
        Tint_Value = 5;
        Wire_Color = 15;
    });
    vb::resume([&] { RGB_Color(); });
    vb::resume([&] {
        Picture7.Width = picture1.Width;
        Picture7.Height = picture1.Height;
    });
    vb::resume([&] { Get_Pal(); });
    vb::resume([&] { Get_Header(); });
    vb::resume([&] { host_.DoEvents(); });
}

// The same question however the run ends; there is no record of unsaved changes.
void FrmMain::Form_Unload(int16_t& Cancel) {
    if (host_.MsgBox("Exit Tavrin?", platform::kStyleYesNo) == platform::kMsgYes)
        platform::endProgram(host_);
    Cancel = 1;
}

void FrmMain::Exit_Click() {
    if (host_.MsgBox("Exit Tavrin?", platform::kStyleYesNo) == platform::kMsgYes)
        platform::endProgram(host_);
}

void FrmMain::Erase_Array() {
    Tri_Table.Erase();
    UV_Table.Erase();
}

} // namespace tavrin
