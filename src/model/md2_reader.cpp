// Reading a model for the editor: the command's part around the format's functions
// (model/md2_format.h). Only the header and the two lumps are fetched from the file.
#include "editor/frm_main.h"
#include "model/md2_format.h"
#include "model/model_preview.h"
#include "platform/vb_numeric.h"

#include <vector>

namespace tavrin {

void FrmMain::readModel(bool sizePicture1) {
    Tri_Table.ReDim(0, kMd2LastRecord);
    UV_Table.ReDim(0, kMd2LastRecord);
    Wire_Loaded = 1;
    Files.OpenForRead(1, File_Name);
    keepPreviewModel(); // never fails: a model it can't show says why in the preview
    // A failed reading closes its file, so that the next one can open it again.
    try {
        std::vector<uint8_t> headerBytes, stBytes, trisBytes;
        Md2Header h{MD2_Ident,    MD2_Skin_Width, MD2_Skin_Height, MD2_Num_St,
                    MD2_Num_Tris, MD2_Ofs_Skins,  MD2_Ofs_St,      MD2_Ofs_Tris};
        readMd2Header(Files.GetWindow(1, 1, kMd2HeaderBytes, headerBytes), h);
        MD2_Ident = h.ident;
        MD2_Skin_Width = h.skinWidth;
        MD2_Skin_Height = h.skinHeight;
        MD2_Num_St = h.numSt;
        MD2_Num_Tris = h.numTris;
        MD2_Ofs_Skins = h.ofsSkins;
        MD2_Ofs_St = h.ofsSt;
        MD2_Ofs_Tris = h.ofsTris;

        if (sizePicture1) { // twips: the box gets as many pixels as the skin
            picture1.Width = static_cast<double>(MD2_Skin_Width) * 15;
            picture1.Height = static_cast<double>(MD2_Skin_Height) * 15;
            picture1.ScaleWidth = MD2_Skin_Width;
            picture1.ScaleHeight = MD2_Skin_Height;
            picture1.Refresh();
        }

        const PositionRange st = md2StPositions(h), tris = md2TrisPositions(h);
        const vb::ByteWindow stLump = Files.GetWindow(1, st.first, st.last, stBytes);
        const vb::ByteWindow trisLump = Files.GetWindow(1, tris.first, tris.last, trisBytes);
        Files.CloseAll();
        readMd2St(stLump, h, UV_Table);
        readMd2Tris(trisLump, h, Tri_Table);
    } catch (const vb::Error&) {
        vb::resume([&] { Files.Close(1); });
        throw;
    }
}

// For a new skin: picture1 takes the skin's size and the mesh in white.
void FrmMain::Get_Frame() {
    readModel(true);
    drawModelLines(picture1, 1, 0xFFFFFF);
}

// For the overlay: the mesh on the canvas only, at the zoom in force.
void FrmMain::Import_Frame() {
    readModel(false);
    drawModelLines(Picture7, Zoom_Factor, vb::CLng(Wire_Color));
}

} // namespace tavrin
