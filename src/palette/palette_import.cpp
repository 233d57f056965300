// Importing a palette from a file: an ACT colour table (raw bytes, the reader of the
// game's palette) or a text palette. An import changes the table and its picture only:
// the skin keeps its indices and its pixels, and there is no undo of it.
#include "editor/frm_main.h"
#include "palette/text_palette.h"
#include "platform/vb_numeric.h"

namespace tavrin {

void FrmMain::ACT_Click() {
    importPalette("*.ACT", "Load ACT Color Table Palette", "Color Tables", &FrmMain::Get_Pal);
}

void FrmMain::PAL2_Click() {
    importPalette("*.PAL", ".PAL 256 Color Palette", "Color Palette's", &FrmMain::Get_PSPal);
}

void FrmMain::importPalette(const char* pattern, const char* title, const char* kind,
                            void (FrmMain::*reader)()) {
    try {
        prepareFileDialog(pattern, title, kind);
        platform::showOpen(host_, CommonDialog1);
        Pal_Path = CommonDialog1.FileName.get();
        (this->*reader)();
    } catch (const vb::Error&) {
        // Cancel: the path and the table stay as they were.
    }
}

// The reading ends exactly at the file's end: unlike the raw reader it makes no extra
// pass, so record 256 keeps whatever the last raw palette left there.
void FrmMain::Get_PSPal() {
    try {
        Files.OpenForInput(1, Pal_Path.str());
        for (int k = 0; k < kTextPaletteHeaderLines; ++k)
            Files.LineInput(1);
        PaletteCell cell;
        for (int record = 0; !Files.EOF_(1); ++record) {
            const TextColor c = splitColorLine(Files.LineInput(1));
            if (!takePaletteColor(cell, record, c.red, c.green, c.blue)) break;
        }
        Files.Close(1);
        paletteChanged();
    } catch (const vb::Error&) {
        paletteChanged(); // records may have been written before the failure
        // The file goes with the failed reading, so the next import can open it again.
        vb::resume([&] { Files.Close(1); });
        host_.MsgBox("Path/File not found, or not a valid file.", platform::kStyleOk);
    }
}

} // namespace tavrin
