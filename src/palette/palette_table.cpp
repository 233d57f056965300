// The palette: reading a raw palette file into the table and its picture, and the
// match of any colour.
#include "editor/frm_main.h"
#include "palette/color_match.h"
#include "palette/palette_format.h"
#include "platform/vb_numeric.h"

#include <cmath>
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
        int16_t x = 0, y = 0;
        for (std::size_t record = 0; record < colors.size(); ++record) {
            const Rgb c = colors[record];
            Picture2.Line(x, y, x + 10, y + 10, vb::RGB(c.red, c.green, c.blue),
                          platform::kFilledBoxKind);
            // Two records past the palette proper are kept; the one drawn after them is not.
            if (record > 257) break;
            PalRecord& r = Pal_Table(static_cast<int>(record));
            r.Red = c.red;
            r.Green = c.green;
            r.Blue = c.blue;
            r.Index = static_cast<int16_t>(record);
            r.Cell_X = x;
            r.Cell_Y = y;
            x = static_cast<int16_t>(x + 11);
            if (x > 170) {
                x = 0;
                y = static_cast<int16_t>(y + 11);
            }
        }
        Files.Close(1);
        paletteChanged();
    } catch (const vb::Error&) {
        paletteChanged(); // records may have been written before the failure
        host_.MsgBox("Path/File not found, or not a valid file.", platform::kStyleOk);
    }
}

void FrmMain::paletteChanged() {
    if (matchCache_) matchCache_->clear();
}

MatchResult matchColor(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor) {
    MatchResult out;
    out.nearColor = nearColor;
    const double red = vb::redOf(check);
    const double green = vb::greenOf(check);
    const double blue = vb::blueOf(check);
    for (int n = 1; n <= 256; ++n) {
        const PalRecord& r = table(n);
        const int32_t packed = vb::RGB(r.Red, r.Green, r.Blue);
        const double distance = std::abs(vb::redOf(packed) - red) +
                                std::abs(vb::greenOf(packed) - green) +
                                std::abs(vb::blueOf(packed) - blue);
        if (distance == 0) {
            out.checkColor = packed;
            out.indexSet = true;
            out.index = r.Index;
            return out;
        }
        if (distance < out.nearDistance) {
            out.nearSet = true;
            out.nearColor = packed;
            out.nearDistance = static_cast<int16_t>(distance);
            out.indexSet = true;
            out.index = r.Index;
        }
    }
    out.checkColor = out.nearColor;
    return out;
}

void FrmMain::Temp_Color_Check() {
    const int32_t input = Check_Color;
    if (!matchCache_) matchCache_ = std::make_shared<MatchCache>();
    const MatchResult* known = matchCache_->find(input);
    MatchResult fresh;
    if (!known) {
        fresh = matchColor(Pal_Table, input, Near_Color);
        matchCache_->store(input, fresh);
        known = &fresh;
    }
    Check_Color = known->checkColor;
    if (known->indexSet) Color_Index = known->index;
    if (known->nearSet) Near_Color = known->nearColor;
    Near_Distance = known->nearDistance;
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
