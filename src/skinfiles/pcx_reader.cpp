// Opening a PCX skin. The reader trusts the file: it takes the width and height from
// the header, decodes everything between the header and the palette tail, and goes on
// four rows past the declared height, which the zeros behind the data fill.
#include "editor/frm_main.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"

#include <array>
#include <memory>

namespace tavrin {

void FrmMain::pcxIm_Click() {
    try {
        StatusBar1.Panels(1).Text = "Select Image";
        prepareOpenCommand("*.PCX", "Load Quake 2 PCX Skin Image", "Quake 2 Skins");
        platform::showOpen(host_, CommonDialog1);
        File_Name = CommonDialog1.FileName;
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
        StatusBar1.Panels(1).Text = "Ready...";
    } catch (const vb::Error&) {
        host_.MsgBox("There was a problem loading the file. Check the filename and/or format.",
                     platform::kStyleOk);
        StatusBar1.Panels(1).Text = "Ready...";
    }
}

void FrmMain::Get_PCX() {
    std::vector<uint8_t> buffer; // cells 0 to L + 1000; cells no byte was read into hold 0
    try {
        Files.CloseAll();
        Files.OpenForRead(1, File_Name);
        const int64_t fileLength = Files.LOF(1);
        const int64_t lastCell = fileLength + 1000;
        vb::checkAllocation(static_cast<std::size_t>(lastCell + 1), 1);
        buffer.assign(static_cast<std::size_t>(lastCell + 1), 0);

        uint8_t low = 0, high = 0;
        int16_t ymaxField = 0;
        Files.Get(1, 9, low);
        Files.Get(1, 10, high);
        Files.Get(1, 11, ymaxField);
        const int64_t W = 256 * int64_t{high} + low + 1;
        const int64_t Ymax = static_cast<uint16_t>(ymaxField);

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

        // The data: positions 129 to L - 769, read in one go.
        if (fileLength - 769 >= 129) {
            std::vector<uint8_t> data =
                Files.GetBytes(1, 129, static_cast<std::size_t>(fileLength - 769 - 129 + 1));
            std::copy(data.begin(), data.end(), buffer.begin() + 129);
        }

        // Decoded straight into a copy of Picture4's image: the same pixels that a PSet
        // for each would give, where PSet would change them.
        platform::Raster image = *Picture4.Image();
        int16_t* grid = Skin_Grid.data();
        const int64_t gridCells = static_cast<int64_t>(Skin_Grid.size());
        auto cell = [&](int64_t p) {
            if (p < 0 || p > lastCell) vb::raise(vb::SubscriptOutOfRange);
            return buffer[static_cast<std::size_t>(p)];
        };
        // The table can't change while the file is decoded: each value's colour once. A
        // record whose colour can't be packed fails only when a pixel uses it.
        std::array<uint32_t, 256> colorOf{};
        std::array<bool, 256> hasRecord{}, unpackable{};
        for (std::size_t v = 0; v < 256; ++v) {
            const PalRecord& record = Pal_Table(static_cast<int>(v));
            hasRecord[v] = record.Index == static_cast<int>(v);
            try {
                if (hasRecord[v]) colorOf[v] = static_cast<uint32_t>(vb::RGB(record.Red, record.Green, record.Blue));
            } catch (const vb::Error&) {
                unpackable[v] = true;
            }
        }
        int64_t p = 129, x = 0, y = 0;
        uint32_t color = 0;
        int16_t index = 0;
        for (;;) {
            int n = 1;
            int v = cell(p);
            if (v > 191) { // a run; 192 is a run of none that still takes its value byte
                n = v - 192;
                ++p;
                v = cell(p);
            }
            // A value with no palette record of its own repeats the previous pixel.
            if (hasRecord[static_cast<std::size_t>(v)]) {
                if (unpackable[static_cast<std::size_t>(v)]) vb::raise(vb::InvalidCall);
                color = colorOf[static_cast<std::size_t>(v)];
                index = static_cast<int16_t>(v);
            }
            for (int i = 0; i < n; ++i) {
                if (x < image.width && y < image.height) image.at(static_cast<int>(x), static_cast<int>(y)) = color;
                const int64_t at = y * W + x;
                if (at < 0 || at >= gridCells) vb::raise(vb::SubscriptOutOfRange);
                grid[at] = index;
                if (++x > W - 1) {
                    x = 0;
                    ++y;
                }
            }
            if (y > Ymax + 4) break;
            ++p;
        }
        Picture4.Picture = std::make_shared<const platform::Raster>(std::move(image));
        picture1.Picture = Picture4.Image();
        SSPanel6.Visible = false;
        const int64_t headerBytes = std::min<int64_t>(fileLength, 128);
        std::vector<uint8_t> header = Files.GetBytes(1, 1, static_cast<std::size_t>(headerBytes));
        for (std::size_t k = 0; k < header.size(); ++k) PCX_Header(static_cast<int>(k + 1)) = header[k];
        Files.Close(1);
    } catch (const vb::Error&) {
        // Silent: file 1 stays open until the next command closes every file.
    }
}

} // namespace tavrin
