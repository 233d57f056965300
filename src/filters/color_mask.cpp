// Colour replace: a click with the "Mask" tool lists every pixel of picture1 that has
// exactly the clicked colour and shows them in the preview of the mask panel; its two
// buttons then paint every listed pixel, in the colour they had or in the current one.
// The list holds positions, not a condition: pixels changed since are painted all the same.
#include "editor/frm_main.h"
#include "filters/work_buf_kernels.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <vector>

namespace tavrin {

namespace {

constexpr double kPanelLeast = 4095; // twips, across and down

bool fits16(int64_t v) { return v >= -32768 && v <= 32767; }

// Calls run(y, x, count) for each stretch of the records from..to - 1 that lie side by side
// in one row, in the list's order. A record the list doesn't hold is passed over.
template <class Run>
void forMaskRuns(const vb::Array<MaskRecord>& list, int64_t from, int64_t to, Run&& run) {
    if (!list.allocated()) return;
    const MaskRecord* records = list.data();
    const int64_t lower = list.LBound(), upper = list.UBound();
    int64_t i = std::max(from, lower);
    to = std::min(to, upper + 1);
    while (i < to) {
        const MaskRecord& first = records[i - lower];
        int64_t n = 1;
        while (i + n < to && records[i + n - lower].Mask_Y == first.Mask_Y &&
               records[i + n - lower].Mask_X == first.Mask_X + n)
            ++n;
        run(first.Mask_Y, first.Mask_X, n);
        i += n;
    }
}

} // namespace

void FrmMain::GetMask() {
    RGB_Color();
    Picture26.Cls();
    // Kept when its size stays the same: only the first Mask_Count records are ever read,
    // so clearing the rest at every click would be work for nothing.
    vb::resume([&] {
        const int32_t bound = vb::CLng(2 * Skin_Width.num() * Skin_Height.num());
        if (Mask_List.allocated() && Mask_List.LBound() == 0 && Mask_List.UBound() == bound) return;
        Mask_List.Erase();
        Mask_List.ReDim(0, bound);
    });
    // A click on a colour picture1 doesn't hold (a wire of the overlay) lists nothing.
    Mask_Count = 0;
    ProgressBar1.Value = 0;
    ProgressBar1.Min = 0;
    ProgressBar1.Max = Pixel_Height;
    Mask_Scan_X = 0;
    Mask_Scan_Y = 0;
    SSPanel6.Visible = true;
    SSPanel6.Caption = "Creating Masked Image...";
    SSPanel6.Refresh();
    Mask_Pos = 0;
    Mask_Row_Pixel = 0;

    const auto part = [](const Variant& v) {
        int16_t p = 0;
        vb::resume([&] { p = vb::CInt(v); });
        return p;
    };
    const int16_t red = part(Cur_R), green = part(Cur_G), blue = part(Cur_B);
    MaskRecord* records = Mask_List.allocated() ? Mask_List.data() : nullptr;
    const int64_t room = static_cast<int64_t>(Mask_List.size());
    std::vector<int32_t> row;
    // The pixels of a row, from column 0 up to the first position off the picture.
    const auto readRow = [&](int64_t y) {
        if (picture1.pixelScale()) {
            const int64_t w = y >= 0 && y < picture1.innerHeight() ? picture1.innerWidth() : 0;
            row.resize(static_cast<std::size_t>(w));
            getPictureRow(0, y, row.data(), w);
            return;
        }
        row.clear();
        for (int64_t x = 0;; ++x) {
            int32_t c = -1;
            vb::resume([&] { c = picture1.Point(static_cast<double>(x), static_cast<double>(y)); });
            if (c == -1) return;
            row.push_back(c);
        }
    };
    // Row by row until the row below the picture; each row ends at the first position
    // right of it. A pixel whose place doesn't fit the record's 16 bits isn't listed.
    const int32_t colour = Cur_Color;
    while (Mask_Row_Pixel != -1) {
        readRow(Mask_Scan_Y);
        // Held in locals for the row: the stores into the list would otherwise make the
        // compiler read the fields back at every pixel.
        const std::size_t listable =
            fits16(Mask_Scan_Y) ? std::min<std::size_t>(row.size(), 32768) : 0;
        const auto rowY = static_cast<int16_t>(Mask_Scan_Y);
        int64_t pos = Mask_Pos;
        for (std::size_t x = 0; x < listable; ++x) {
            if (row[x] != colour) continue;
            if (pos < room)
                records[pos] = MaskRecord{static_cast<int16_t>(x), rowY, red, green, blue};
            ++pos;
        }
        Mask_Pos = static_cast<int32_t>(pos);
        Mask_Count = Mask_Pos;
        Mask_Pixel = -1;
        // Past its maximum at the end, as the row below the picture counts too: the bar
        // stands full.
        ProgressBar1.Value = ProgressBar1.Value + 1;
        Mask_Scan_X = 0;
        Mask_Row_Pixel = row.empty() ? -1 : row.front();
        ++Mask_Scan_Y;
        Mask_Pixel = 0;
    }
    SSPanel6.Visible = false;
    SSPanel6.Refresh();
    Mask_Pos = 0;

    vb::resume([&] { Picture26.Width = picture1.Width; });
    vb::resume([&] { Picture26.Height = picture1.Height; });
    SSPanel7.Width = std::max(kPanelLeast, picture1.Width + 990);
    SSPanel7.Height = std::max(kPanelLeast, picture1.Height + 1400);
    SSPanel9.Width = SSPanel7.Width - 75;
    SSCommand9.Left = SSPanel9.Width - 300;
    // The buttons keep to the bottom of a panel grown for a large skin.
    SSCommand5.Top = SSPanel7.Height - 555;
    SSCommand6.Top = SSPanel7.Height - 555;

    drawMaskPreview();
    SSPanel7.Visible = true;
    SSPanel7.Refresh();
    Mask.Checked = true;
}

void FrmMain::drawMaskPreview() {
    std::vector<int32_t> colors;
    forMaskRuns(Mask_List, Mask_Pos, Mask_Count, [&](int64_t y, int64_t x, int64_t n) {
        colors.assign(static_cast<std::size_t>(n), Cur_Color);
        if (Picture26.pixelScale())
            Picture26.PSetRow(x, y, colors.data(), n);
        else
            for (int64_t i = 0; i < n; ++i)
                vb::resume([&] {
                    Picture26.PSet(static_cast<double>(x + i), static_cast<double>(y), Cur_Color);
                });
    });
    Mask_Pos = std::max(Mask_Pos, Mask_Count);
}

void FrmMain::applyMask(int32_t color) {
    Check_Color = color;
    Temp_Color_Check(); // whatever the colour mode
    int16_t index = 0;
    bool storable = false;
    vb::resume([&] {
        index = vb::CInt(Color_Index);
        storable = true;
    });
    const filters::GridCells grid = gridCells();
    std::vector<int32_t> colors;
    forMaskRuns(Mask_List, Mask_Pos, Mask_Count, [&](int64_t y, int64_t x, int64_t n) {
        colors.assign(static_cast<std::size_t>(n), Check_Color);
        setPictureRow(x, y, colors.data(), n);
        for (int64_t i = 0; storable && i < n; ++i)
            if (const int64_t c = grid.cell(x + i, y); c >= 0) grid.cells[c] = index;
    });
    Mask_Pos = std::max(Mask_Pos, Mask_Count);
    repaintCanvas();
}

// The colour the pixels had: all records of a list hold the same one.
void FrmMain::SSCommand5_Click() {
    Picture26.Refresh();
    Mask_Pos = 0;
    int32_t color = Check_Color;
    vb::resume([&] {
        const MaskRecord& r = Mask_List(0);
        color = vb::RGB(r.Mask_Red, r.Mask_Green, r.Mask_Blue);
    });
    applyMask(color);
}

void FrmMain::SSCommand6_Click() {
    Picture26.Refresh();
    Mask_Pos = 0;
    applyMask(Cur_Color);
}

// Shows the panel as it was left, whatever the View menu's mark says.
void FrmMain::Masked_Click() {
    SSPanel7.Visible = true;
    SSPanel7.Refresh();
    drawMaskPreview();
}

} // namespace tavrin
