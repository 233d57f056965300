// Saving. The file is made from the grid alone (never from what the screen shows), one
// token per pixel with no run packing, and meant: the palette follows the pixels with
// no marker byte before it.
#include "editor/frm_main.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"
#include "platform/vb_text.h"

#include <algorithm>

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace tavrin {

namespace {

// A value that isn't a byte can't be written: the byte-at-a-time writer skipped that
// write and left a hole, which reads back as zero.
uint8_t byteOrHole(int v) { return v >= 0 && v <= 255 ? static_cast<uint8_t>(v) : 0; }

bool escaped(int16_t v) { return v >= 192; }

// Writes one cell: its byte, after a count byte of 0xC1 when escaped. Both bytes are
// written and the second kept only when escaped: no branch to mispredict on pictures
// where escapes come anywhere. Needs one byte of room past the cell's last.
inline uint8_t* putCell(uint8_t* out, int16_t v) {
    const bool escape = escaped(v);
    out[0] = escape ? uint8_t{0xC1} : byteOrHole(v);
    out[1] = byteOrHole(v);
    return out + 1 + escape;
}

#if defined(__x86_64__) && defined(__GNUC__)
// Eight cells at a time: the bytes, and for each pattern of escapes among the eight a
// shuffle that puts 0xC1 before the escaped ones, and the bytes that makes. Needs 16
// bytes of room past the end.
struct EscapeShuffles {
    alignas(16) uint8_t pattern[256][16];
    uint8_t length[256];
    EscapeShuffles() {
        for (int mask = 0; mask < 256; ++mask) {
            int at = 0;
            for (int i = 0; i < 8; ++i) {
                if (mask & (1 << i)) pattern[mask][at++] = 8; // a lane holding 0xC1
                pattern[mask][at++] = static_cast<uint8_t>(i);
            }
            length[mask] = static_cast<uint8_t>(at);
            while (at < 16)
                pattern[mask][at++] = 0x80; // zero
        }
    }
};

__attribute__((target("ssse3"))) uint8_t* putCellsVector(uint8_t* out, const int16_t* in,
                                                         int64_t count) {
    static const EscapeShuffles shuffles;
    const __m128i low = _mm_set1_epi16(191), high = _mm_set1_epi16(255),
                  escape = _mm_set1_epi16(0xC1);
    int64_t k = 0;
    for (; k + 8 <= count; k += 8) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in + k));
        const __m128i hole =
            _mm_or_si128(_mm_cmpgt_epi16(v, high), _mm_cmplt_epi16(v, _mm_setzero_si128()));
        const __m128i bytes =
            _mm_packus_epi16(_mm_andnot_si128(hole, v), escape); // 8 bytes, 8 x 0xC1
        const int mask =
            _mm_movemask_epi8(_mm_packs_epi16(_mm_cmpgt_epi16(v, low), _mm_setzero_si128()));
        const __m128i shuffle =
            _mm_load_si128(reinterpret_cast<const __m128i*>(shuffles.pattern[mask]));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_shuffle_epi8(bytes, shuffle));
        out += shuffles.length[mask]; // a table: without the popcnt instruction a count is a call
    }
    for (; k < count; ++k)
        out = putCell(out, in[k]);
    return out;
}
#endif

uint8_t* putCells(uint8_t* out, const int16_t* in, int64_t count) {
#if defined(__x86_64__) && defined(__GNUC__)
    if (__builtin_cpu_supports("ssse3")) return putCellsVector(out, in, count);
#endif
    for (int64_t k = 0; k < count; ++k)
        out = putCell(out, in[k]);
    return out;
}

// The first `count` cells of the grid, a byte each; a value of 192 or more is written as a
// run of one, its count byte first. A cell past the grid can't be read: the value before
// it stands.
void appendPixels(std::vector<uint8_t>& file, const vb::Array<int16_t>& grid, int64_t count) {
    const int64_t cells = grid.allocated() ? std::min(count, static_cast<int64_t>(grid.size())) : 0;
    const int16_t* in = grid.data();
    const int16_t last = cells > 0 ? in[cells - 1] : 0;
    // Room for the most the cells can take, every one escaped, and the writers' overrun;
    // cut back to what was written. Cheaper than a pass that counts the escapes first.
    constexpr int64_t kRoom = 16;
    const std::size_t at = file.size();
    const auto most = static_cast<std::size_t>(2 * count + kRoom);
    file.reserve(at + most + std::size_t{768}); // the palette follows
    file.resize(at + most);
    uint8_t* out = putCells(file.data() + at, in, cells);
    for (int64_t k = cells; k < count; ++k)
        out = putCell(out, last);
    file.resize(static_cast<std::size_t>(out - file.data()));
}

} // namespace

void FrmMain::SKas_Click() {
    Save_As_Flag = -1;
    ex_Click();
}

void FrmMain::ex_Click() {
    Picture7.Visible = false;
    CommonDialog1.KindText = "Quake 2 Skins";
    CommonDialog1.DialogTitle = "Save Skin PCX ";
    if (Save_As_Flag == -1) {
        CommonDialog1.DialogTitle = "Save Skin PCX as Filename:";
        CommonDialog1.FileName = "";
        Save_As_Flag = 0;
    }
    try {
        platform::showSave(host_, CommonDialog1);
    } catch (const vb::Error&) {
        Picture7.Visible = true;
        StatusBar1.Panels(1).Text = "Ready...";
        return;
    }
    const std::string chosen = CommonDialog1.FileName;
    MousePointer = 11;

    // Each step below is guarded on its own and a failure skips it. A failure to write
    // the file is the one this editor reports: the old file is kept whole (the new one
    // replaces it only once written) and the status line says why the save failed.
    std::string failure;
    auto fileStep = [&failure](auto&& step) {
        try {
            step();
        } catch (const vb::Error& e) {
            if (failure.empty()) failure = e.what();
        }
    };
    std::string target;
    vb::resume([&] {
        Files.CloseAll();
        // The last four characters go, whatever they are.
        target = vb::Left(chosen, vb::Len(chosen) - 4) + ".PCX";
    });
    vb::resume([&] { StatusBar1.Panels(1).Text = "Exporting Image...."; });
    vb::resume([&] { host_.DoEvents(); });
    bool opened = false;
    fileStep([&] {
        Files.OpenForWrite(2, target);
        opened = true;
    });

    // Built in memory, byte for byte as the one-byte-at-a-time writer puts them.
    std::vector<uint8_t> file;
    for (int k = 1; k <= 128; ++k)
        file.push_back(PCX_Header(k));
    vb::resume([&] {
        const double width = Skin_Width.num(), height = Skin_Height.num();
        const int64_t w = width > 0 ? static_cast<int64_t>(vb::roundHalfEven(width)) : 0;
        const int64_t h = height > 0 ? static_cast<int64_t>(vb::roundHalfEven(height)) : 0;
        // A grid that a failed load never made can't ask for gigabytes of zeros.
        vb::checkAllocation(static_cast<std::size_t>(w * h), 2);
        appendPixels(file, Skin_Grid, w * h);
    });
    for (int k = 0; k <= 255; ++k) {
        const PalRecord& r = Pal_Table(k);
        file.push_back(static_cast<uint8_t>(r.Red & 0xFF));
        file.push_back(static_cast<uint8_t>(r.Green & 0xFF));
        file.push_back(static_cast<uint8_t>(r.Blue & 0xFF));
    }
    if (opened) fileStep([&] { Files.Put(2, 1, std::move(file)); });
    fileStep([&] { Files.CloseAll(); });
    MousePointer = 0;
    Picture7.Visible = true;
    StatusBar1.Panels(1).Text = failure.empty() ? "Ready..." : "Save failed: " + failure;
}

} // namespace tavrin
