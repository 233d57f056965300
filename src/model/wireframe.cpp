// The mesh as an overlay. It is drawn on the canvas's display list only, so painting
// and saving never see it; the price is that any repaint loses it, which is why the
// mouse-up draws it again.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

namespace tavrin {

void FrmMain::drawModelLines(PictureBox& box, double zoom, int32_t color) {
    for (int64_t i = 0; i < int64_t{MD2_Num_Tris}; ++i) {
        const TriRecord& tri = Tri_Table(i);
        const UVRecord& a = UV_Table(tri.A);
        const UVRecord& b = UV_Table(tri.B);
        const UVRecord& c = UV_Table(tri.C);
        // Shared edges are drawn once for each triangle, in the file's order.
        box.Line(zoom * a.S, zoom * a.T, zoom * b.S, zoom * b.T, color, platform::kLineKind);
        box.Line(zoom * b.S, zoom * b.T, zoom * c.S, zoom * c.T, color, platform::kLineKind);
        box.Line(zoom * c.S, zoom * c.T, zoom * a.S, zoom * a.T, color, platform::kLineKind);
    }
}

// Lines of the canvas's own description, one pixel wide at any zoom: no zoomed raster is
// made, so a mouse-up over a large model stays cheap. Skin pixels times Zoom_Factor,
// whatever Scale_X, Scale_Y and the skin's size say.
void FrmMain::Draw_Frame() {
    try {
        // Tables cut down to record 0 are a dropped model, not a triangle at the origin.
        if (!Tri_Table.allocated() || Tri_Table.UBound() == 0) return;
        drawModelLines(Picture7, Zoom_Factor, vb::CLng(Wire_Color));
    } catch (const vb::Error&) {
        // The lines drawn before a bad corner index stay.
    }
}

// The menu item and its twin in the popup carry the same mark.
void FrmMain::markWireShown(bool shown) {
    wF.Checked = shown;
    wiPop.Checked = shown;
}

void FrmMain::dropModelTables() {
    Tri_Table.ReDim(0, 0);
    UV_Table.ReDim(0, 0);
}

// Import, hide, show; the first test that holds decides. A cancelled dialog or a failed
// import ends it without a word.
void FrmMain::wF_Click() {
    try {
        if (Wire_Loaded == 0) {
            StatusBar1.Panels(1).Text = "Select Image";
            prepareFileDialog("*.MD2", "Import Base MD2 Wireframe.", "Quake 2 Model Files");
            askFileToOpen();
            Model_Path = File_Name;
            host_.DoEvents();
            // Still says so after the import: nothing sets it back.
            StatusBar1.Panels(1).Text = "Importing Image...";
            Import_Frame();
            markWireShown(true);
            Wire_Shown = 1;
        } else if (Wire_Shown == 1) {
            markWireShown(false);
            Wire_Shown = 2;
            Picture7.Refresh();
            repaintCanvas();
            host_.DoEvents();
        } else if (Wire_Shown == 2) {
            markWireShown(true);
            Wire_Shown = 1;
            Draw_Frame();
        } else {
            // Only after an import that failed: this click resets, the next one asks.
            Wire_Loaded = 0;
        }
    } catch (const vb::Error&) {
    }
}

void FrmMain::wiPop_Click() { wF_Click(); }

// Wire_Shown stays as it was; the next import sets it.
void FrmMain::UCW_Click() {
    dropModelTables();
    Wire_Loaded = 0;
    markWireShown(false);
    repaintCanvas();
    host_.DoEvents();
}

namespace {

// Meant: the lines are drawn whether or not the overlay is on, so a hidden one shows
// until the next repaint while its menu mark stays off.
template <class Take> void pickColorThenDraw(FrmMain& frm, Take take) {
    try {
        platform::showColor(frm.host(), frm.CommonDialog1);
        take(frm.CommonDialog1.Color.get());
        frm.Draw_Frame();
    } catch (const vb::Error&) {
    }
}

} // namespace

void FrmMain::wFc_Click() {
    pickColorThenDraw(*this, [this](int color) { Wire_Color = color; });
}

// Only the window's background changes; skin and palette stay as they are.
void FrmMain::bcolor_Click() {
    pickColorThenDraw(*this, [this](int color) { BackColor = color; });
}

} // namespace tavrin
