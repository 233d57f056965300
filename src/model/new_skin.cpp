// A new skin from a model. The mesh is drawn into picture1 and the grid is read back from
// those pixels (lit or not), so the template is whatever the drawing produced; the model
// is then dropped and only its lines remain, as paint.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

void FrmMain::NewSkin_Click() {
    StatusBar1.Panels(1).Text = "Select Image";
    try {
        prepareOpenCommand("*.MD2", "New Skin From Base MD2 Wireframe.", "Quake 2 Model Files");
        askFileToOpen();
        Model_Path = File_Name;
        host_.DoEvents();
        StatusBar1.Panels(1).Text = "Importing Image...";
        Erase_Array();
        Get_Frame();
        showLoadedPictureStart();
        showLoadedPictureEnd(400, &FrmMain::Get_NewSkin);
        SSPanel3.Caption = "Zoom";
        StatusBar1.Panels(1).Text = "Ready";
        dropModelTables();
        Wire_Loaded = 0;
        markWireShown(false);
    } catch (const vb::Error&) {
        // No tidying up: the wire state, its marks, the grid and the hidden boxes stay
        // half made.
        dropModelTables();
        host_.MsgBox("There was a problem loading the file. Check the filename and/or format.",
                     platform::kStyleOk);
        StatusBar1.Panels(1).Text = "Ready";
    }
}

// The size and the grid come from picture1 as Get_Frame left it. A failure here leaves
// the hourglass up: the caller's error path doesn't take it down.
void FrmMain::Get_NewSkin() {
    MousePointer = 11;
    Skin_Height = Skin_Rows;
    Skin_Width = Skin_Cols;
    const int32_t upper = vb::CLng(Skin_Width.num() * Skin_Height.num() + 1000);
    Skin_Grid.ReDim(0, upper);
    Undo_Grid.ReDim(0, upper);

    // Xmax and Ymax only; bytes per line and the rest stay as the last header left them.
    const double W = Skin_Cols.num();
    const int H = Skin_Rows;
    if (Skin_Width.num() > 256) {
        PCX_Header(10) = vb::CByte(vb::Int((W - 1) / 256));
        // Right for 257 to 512 only; a wider skin fails here, after it is on the screen.
        PCX_Header(9) = vb::CByte((W - 1) - 256);
    } else {
        PCX_Header(9) = vb::CByte(W - 1);
        PCX_Header(10) = 0;
    }
    PCX_Header(11) = static_cast<uint8_t>((H - 1) & 0xFF);
    PCX_Header(12) = static_cast<uint8_t>(((H - 1) >> 8) & 0xFF);

    // Black stays 0, anything else is a line: 15, whatever colour the palette gives it.
    const double cols = Skin_Cols.num();
    if (picture1.ScaleWidth == picture1.innerWidth() &&
        picture1.ScaleHeight == picture1.innerHeight()) {
        // One unit a pixel, as Get_Frame leaves it: Point at whole units is the pixel
        // itself, and -1 beyond the picture, which leaves the entry. The image is read
        // in one go: a tall skin has millions of pixels.
        const platform::PictureHandle image = picture1.Image();
        // cols is the picture's width here, a whole number: a row's cells lie together.
        const int across = static_cast<int>(std::min<double>(std::floor(cols), image->width));
        const int down = std::min<int>(Skin_Rows, image->height);
        for (int y = 0; across > 0 && y < down; ++y) {
            static_cast<void>(Skin_Grid(y * cols + across - 1)); // checked, as each cell would be
            const uint32_t* from = &image->px[static_cast<std::size_t>(y) * image->width];
            std::transform(from, from + across, &Skin_Grid(y * cols),
                           [](uint32_t c) { return static_cast<int16_t>(c == 0 ? 0 : 15); });
        }
        if (Skin_Rows > 0 && cols >= 1)
            Cur_Color = picture1.Point(std::floor(cols) - 1, Skin_Rows - 1);
    } else {
        // Whole counters: cols may hold a fraction, and the loops run while x <= cols - 1.
        for (int y = 0; y <= Skin_Rows - 1; ++y) {
            for (int64_t x = 0; static_cast<double>(x) <= cols - 1; ++x) {
                Cur_Color = picture1.Point(x, y);
                if (Cur_Color == 0)
                    Skin_Grid(y * cols + x) = 0;
                else if (Cur_Color != -1)
                    Skin_Grid(y * cols + x) = 15;
            }
        }
    }
    MousePointer = 0;
    host_.MsgBox("Tavrin Recommends that you now save this wireframe as a PCX file for optimal "
                 "performance. Painting on the MD2 wireframe can be extremely slow.",
                 platform::kStyleOk);
}

} // namespace tavrin
