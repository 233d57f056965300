// "&Import Image": any picture the platform reads, shown in picture1 and on the canvas.
// It makes no skin of it: the grid, the header and the palette stay as they were, so a
// save after it writes the old grid. Its menu item is hidden and disabled; the headless
// driver still reaches it.
#include "editor/frm_main.h"

namespace tavrin {

void FrmMain::OpenSkin_Click() {
    try {
        prepareOpenCommand("*.BMP", "Load Skin Image", nullptr);
        Picture5.Visible = false;
        askFileToOpen();
        host_.DoEvents();
        Erase_Array();
        // picture1 keeps its size: a bigger picture is cut at the right and the bottom, a
        // smaller one leaves the rest of the box empty.
        picture1.Picture = platform::loadPicture(host_, File_Name);
        // As after a skin, less the "Actual Pixels" toggle, the busy pointer, the status
        // text and the tool's name.
        fitCanvasToPicture();
        showLoadedPictureEnd(400);
    } catch (const vb::Error&) {
        host_.MsgBox("There was a problem loading the file. Check the filename and/or format.",
                     platform::kStyleOk);
    }
}

} // namespace tavrin
