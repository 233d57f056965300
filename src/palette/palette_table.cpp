// The palette: reading a raw palette file into the table and its picture, and the
// match of any colour.
#include "editor/frm_main.h"
#include "palette/color_match.h"
#include "palette/palette_format.h"
#include "platform/vb_numeric.h"

#include <memory>

namespace tavrin {

void FrmMain::Get_Pal() {
    try {
        int64_t first = 1;
        Files.OpenForRead(1, Pal_Path.str());
        if (Pal_Answer == 6) {
            Pal_File_Len = static_cast<double>(Files.LOF(1));
            first = static_cast<int64_t>(Pal_File_Len.num()) - 767;
            Pal_Answer = "";
        }
        std::vector<uint8_t> bytes;
        const std::vector<Rgb> colors = readRawPalette(
            Files.GetWindow(1, first, first + 3 * kRawPaletteMostColors - 1, bytes), first);
        PaletteCell cell;
        for (std::size_t record = 0; record < colors.size(); ++record) {
            const Rgb c = colors[record];
            if (!takePaletteColor(cell, static_cast<int>(record), c.red, c.green, c.blue)) break;
        }
        Files.Close(1);
        paletteChanged();
    } catch (const vb::Error&) {
        paletteChanged(); // records may have been written before the failure
        host_.MsgBox("Path/File not found, or not a valid file.", platform::kStyleOk);
    }
}

bool FrmMain::takePaletteColor(PaletteCell& cell, int record, double red, double green,
                               double blue) {
    Picture2.Line(cell.x, cell.y, cell.x + 10, cell.y + 10, vb::RGB(red, green, blue),
                  platform::kFilledBoxKind);
    // Two records past the palette proper are kept; the one drawn after them is not.
    if (record > 257) return false;
    PalRecord& r = Pal_Table(record);
    r.Red = vb::CLng(red);
    r.Green = vb::CLng(green);
    r.Blue = vb::CLng(blue);
    r.Index = static_cast<int16_t>(record);
    r.Cell_X = cell.x;
    r.Cell_Y = cell.y;
    cell.x = static_cast<int16_t>(cell.x + 11);
    if (cell.x > 170) {
        cell.x = 0;
        cell.y = static_cast<int16_t>(cell.y + 11);
    }
    return true;
}

void FrmMain::paletteChanged() {
    if (matchCache_) matchCache_->clear();
}

void FrmMain::Temp_Color_Check() {
    if (!matchCache_) matchCache_ = std::make_shared<MatchCache>();
    const MatchResult r = matchCache_->match(Pal_Table, Check_Color, Near_Color);
    Check_Color = r.checkColor;
    if (r.indexSet) Color_Index = r.index;
    if (r.nearSet) Near_Color = r.nearColor;
    Near_Distance = r.nearDistance;
}

void FrmMain::RGB_Color() {
    Cur_R = vb::redOf(Cur_Color);
    Cur_G = vb::greenOf(Cur_Color);
    Cur_B = vb::blueOf(Cur_Color);
    Text1.Text = Cur_R.str();
    Text2.Text = Cur_G.str();
    Text3.Text = Cur_B.str();
}

} // namespace tavrin
