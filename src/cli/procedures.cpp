// The procedure table: one line per procedure of the main form that takes no
// arguments. Event handlers with arguments get a line that supplies them. The editor's
// own helpers (repaintCanvas, paletteChanged, ...) are no procedures a user knows: not here.
#include "cli/procedures.h"

#include <vector>

namespace tavrin::cli {

namespace {

#define PROC(name) Procedure{#name, &FrmMain::name}

const std::vector<Procedure>& procedures() {
    static const std::vector<Procedure> table = {
        // editor/lifecycle.cpp
        PROC(Form_Load),
        // Cancel is the handler's own business here: nobody closes a window.
        Procedure{"Form_Unload", [](FrmMain& f) { int16_t cancel = 0; f.Form_Unload(cancel); }},
        PROC(Exit_Click),
        PROC(Erase_Array),
        // palette/palette_table.cpp
        PROC(Get_Pal),
        PROC(Temp_Color_Check),
        PROC(RGB_Color),
        PROC(PALE_Click),
        PROC(SSCommand8_Click),
        // editor/view.cpp
        PROC(ri_Click),
        PROC(frmCenter),
        PROC(Calc_Pixels),
        PROC(ActualPixels_Click),
        PROC(Form_Resize),
        PROC(Form_GotFocus),
        PROC(SSCommand21_Click),
        PROC(SSCommand22_Click),
        PROC(SSCommand23_Click),
        PROC(SSCommand24_Click),
        PROC(SSCommand25_Click),
        PROC(SSCommand26_Click),
        // skinfiles/pcx_header.cpp, pcx_reader.cpp, pcx_writer.cpp
        PROC(Get_Header),
        PROC(pcxIm_Click),
        PROC(Get_PCX),
        PROC(ex_Click),
        PROC(SKas_Click),
        // shell/panels.cpp
        PROC(ToolBar_Click),
        PROC(fil_Click),
        PROC(SSCommand27_Click),
        PROC(SSCommand42_Click),
        PROC(SSCommand11_Click),
        PROC(SSCommand9_Click),
        // model/md2_reader.cpp, wireframe.cpp, new_skin.cpp, attributes.cpp
        PROC(Get_Frame),
        PROC(Import_Frame),
        PROC(Draw_Frame),
        PROC(wF_Click),
        PROC(wiPop_Click),
        PROC(UCW_Click),
        PROC(wFc_Click),
        PROC(bcolor_Click),
        PROC(NewSkin_Click),
        PROC(Get_NewSkin),
        PROC(ia_Click),
        PROC(ma_Click),
        // editor/undo.cpp
        PROC(Undo_Click),
        // tools/paint_brushes.cpp
        PROC(p1_Click),
        PROC(p9_Click),
        // palette/color_pick.cpp, tint_value.cpp
        PROC(Get_Next_Color),
        PROC(Slider1_Change),
        PROC(tValue_Click),
        PROC(SSCommand39_Click),
        // shell/tool_select.cpp
        PROC(pEdit_Click),
        PROC(SSCommand4_Click),
        PROC(mZoom_Click),
        PROC(SSCommand19_Click),
        PROC(Eye_Click),
        PROC(SSCommand14_Click),
        PROC(Solid_Paint_Select),
        PROC(SSCommand12_Click),
        PROC(SSCommand30_Click),
        PROC(SSCommand31_Click),
        PROC(SSCommand32_Click),
    };
    return table;
}

} // namespace

const Procedure* findProcedure(const std::string& name) {
    for (const Procedure& p : procedures())
        if (name == p.name) return &p;
    return nullptr;
}

} // namespace tavrin::cli
