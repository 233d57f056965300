#include "skinfiles/pcx_runs.h"

#include "platform/vb_numeric.h"

#include <algorithm>
#include <cstring>

namespace tavrin {

namespace {

// Most runs are short. The fast decoder writes a span of 16 cells for every run, more
// spans only for a longer one, without looking at where the run ends inside its last
// span: the cells past the run are written again by the runs after it, and whatever the
// last spans left behind the end is put back to 0. A run is at most 63 cells: 4 spans.
constexpr int64_t kSpan = 16, kMaxSpans = 4;

inline void fillSpan(int16_t* at, int16_t value) {
    int16_t pattern[8];
    std::fill_n(pattern, 8, value);
    std::memcpy(at, pattern, sizeof pattern);
    std::memcpy(at + 8, pattern, sizeof pattern);
}

} // namespace

ValueColors valueColors(const vb::Array<PalRecord>& table) {
    ValueColors values;
    for (std::size_t v = 0; v < 256; ++v) {
        const PalRecord& record = table(static_cast<int>(v));
        values.hasRecord[v] = record.Index == static_cast<int>(v);
        try {
            if (values.hasRecord[v])
                values.color[v] = static_cast<uint32_t>(vb::RGB(record.Red, record.Green, record.Blue));
        } catch (const vb::Error&) {
            values.unpackable[v] = true;
        }
    }
    return values;
}

RunsDecoded decodeRuns(const RunCells& file, const RunGrid& grid, const ValueColors& values) {
    const int64_t stop = (grid.lastRow + 1) * grid.width; // the first cell of the row after
    const int64_t lastP = file.lastCell - 129;
    int64_t p = 0, at = 0, dirty = 0; // file cell (0 is position 129), grid cell, overshoot
    int16_t index = 0;
    bool recorded = false;
    RunsDecoded out;
    // A value with a record sets the index; any other repeats the one before.
    auto clearOvershoot = [&] {
        const int64_t end = std::min(dirty, grid.count);
        if (end > at) std::fill(grid.cells + at, grid.cells + end, int16_t{0});
    };
    auto take = [&](uint8_t v) {
        if (!values.hasRecord[v]) return;
        if (values.unpackable[v]) vb::raise(vb::InvalidCall);
        if (!recorded) out.blackCells = at;
        recorded = true;
        index = v;
    };
    try {
        // Both bytes of a run among the data, and a whole span inside the grid.
        while (p + 1 < file.count && at + kSpan * kMaxSpans <= grid.count) {
            const uint8_t b = file.data[p];
            const int64_t isRun = b > 191;
            const int64_t n = 1 + (int64_t{b} - 193) * isRun; // no branch to mispredict
            take(file.data[p + isRun]);
            p += 1 + isRun;
            fillSpan(grid.cells + at, index);
            for (int64_t k = kSpan; k < n; k += kSpan) fillSpan(grid.cells + at + k, index);
            dirty = std::max(dirty, at + kSpan * kMaxSpans);
            at += n;
            if (at >= stop) break;
        }
        // The rest one run at a time, every cell and byte checked.
        auto cell = [&](int64_t q) -> uint8_t {
            if (q > lastP) vb::raise(vb::SubscriptOutOfRange);
            return q < file.count ? file.data[q] : 0;
        };
        while (at < stop) {
            int64_t n = 1;
            uint8_t v = cell(p);
            if (v > 191) {
                n = v - 192;
                v = cell(++p);
            }
            take(v);
            ++p;
            const int64_t fits = std::clamp<int64_t>(grid.count - at, 0, n);
            std::fill_n(grid.cells + at, fits, index);
            at += fits;
            if (fits < n) vb::raise(vb::SubscriptOutOfRange);
        }
    } catch (const vb::Error&) {
        clearOvershoot();
        throw;
    }
    clearOvershoot();
    out.end = at;
    if (!recorded) out.blackCells = at;
    return out;
}

void paintDecoded(const RunGrid& grid, const RunsDecoded& decoded, const ValueColors& values,
                  platform::Raster& image) {
    const int64_t w = std::min<int64_t>(image.width, grid.width);
    for (int64_t y = 0; y < image.height; ++y) {
        const int64_t rowCell = y * grid.width;
        const int64_t written = std::clamp<int64_t>(decoded.end - rowCell, 0, w);
        const int64_t black = std::clamp<int64_t>(decoded.blackCells - rowCell, 0, written);
        uint32_t* out = image.px.data() + y * image.width;
        const int16_t* in = grid.cells + rowCell;
        std::fill_n(out, black, 0u);
        for (int64_t x = black; x < written; ++x) out[x] = values.color[static_cast<uint8_t>(in[x])];
    }
}

} // namespace tavrin
