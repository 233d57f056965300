// Opening a PCX skin. Nothing in the file is validated; the sizes are believed, and
// decoding runs four rows past the declared height (zeros fill them: meant, as the
// saved file keeps those rows).
#include "editor/frm_main.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"
#include "skinfiles/pcx_format.h"

#include <memory>

namespace tavrin {

void FrmMain::pcxIm_Click() {
    try {
        StatusBar1.Panels(1).Text = "Select Image";
        prepareOpenCommand("*.PCX", "Load Quake 2 PCX Skin Image", "Quake 2 Skins");
        askFileToOpen();
        Skin_Path = File_Name;
        host_.DoEvents();
        MousePointer = 11;
        StatusBar1.Panels(1).Text = "Importing Image...";
        Erase_Array();
        Pal_Answer = host_.MsgBox("Import Palette From Skin?", platform::kStyleYesNo);
        if (Pal_Answer == platform::kMsgYes) {
            Pal_Path = File_Name;
            Get_Pal();
        }
        Get_PCX();
        showLoadedPictureStart();
        MousePointer = 0;
        showLoadedPictureEnd(450);
        SSPanel3.Caption = "Zoom";
        StatusBar1.Panels(1).Text = "Ready...";
    } catch (const vb::Error&) {
        host_.MsgBox("There was a problem loading the file. Check the filename and/or format.",
                     platform::kStyleOk);
        StatusBar1.Panels(1).Text = "Ready...";
    }
}

void FrmMain::Get_PCX() {
    try {
        Files.CloseAll();
        Files.OpenForRead(1, File_Name);
        const int64_t fileLength = Files.LOF(1);
        // The decoder's cells run to L + 1000; those no byte was read into hold 0.
        vb::checkAllocation(static_cast<std::size_t>(fileLength + 1001), 1);
        const std::vector<uint8_t> file =
            Files.GetBytes(1, 1, static_cast<std::size_t>(fileLength));
        const PcxLayout layout = parsePcx(file);
        const int64_t W = layout.width, Ymax = layout.ymax;

        picture1.Width = 15.0 * static_cast<double>(W) - 30;
        Skin_Width = static_cast<int>(W);
        Skin_Height = static_cast<int>(Ymax + 4);
        const int64_t gridUpper = (Ymax + 4) * W + 1000;
        Skin_Grid.ReDim(0, gridUpper);
        Undo_Grid.ReDim(0, gridUpper);
        // The heights are worked out in 16 bits: a tall enough header wraps them negative.
        picture1.Height = vb::wrap16(15 * (Ymax + 2));
        Picture4.Width = 15.0 * static_cast<double>(W);
        Picture4.Height = vb::wrap16(15 * (Ymax + 4));
        host_.DoEvents();

        const ValueColors values = valueColors(Pal_Table);
        const RunGrid grid{Skin_Grid.data(), static_cast<int64_t>(Skin_Grid.size()), W, Ymax + 4};
        const RunsDecoded decoded = decodeRuns(layout.cells, grid, values);

        // Picture4 (the skin less its border) shows each pixel in the colour its cell was
        // decoded in, as a PSet for each would have left it; it is made once the decoding
        // got through, since a failed one shows nothing. Made once, at its size: Picture4
        // and picture1, which are as large, both show that one raster until drawn on.
        const int shownW = Picture4.innerWidth(), shownH = Picture4.innerHeight();
        const bool covered = shownW <= W && shownH * W <= decoded.end;
        auto image = covered ? std::make_shared<platform::Raster>(shownW, shownH, 0)
                             : std::make_shared<platform::Raster>(*Picture4.Image());
        paintDecoded(grid, decoded, values, *image);
        Picture4.Picture = std::move(image);
        picture1.Picture = Picture4.Image();
        SSPanel6.Visible = false;
        for (std::size_t k = 0; k < layout.header.size(); ++k)
            PCX_Header(static_cast<int>(k + 1)) = layout.header[k];
        Files.Close(1);
    } catch (const vb::Error&) {
        // Silent, and the file stays open: the next command that closes all files closes it.
    }
}

} // namespace tavrin
