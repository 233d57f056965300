#include "skinfiles/pcx_runs.h"

#include "platform/vb_numeric.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tavrin {

ValueColors valueColors(const vb::Array<PalRecord>& table) {
    ValueColors values;
    for (std::size_t v = 0; v < 256; ++v) {
        const PalRecord& record = table(static_cast<int>(v));
        values.hasRecord[v] = record.Index == static_cast<int>(v);
        try {
            if (values.hasRecord[v])
                values.color[v] =
                    static_cast<uint32_t>(vb::RGB(record.Red, record.Green, record.Blue));
        } catch (const vb::Error&) {
            values.unpackable[v] = true;
        }
    }
    return values;
}

namespace {

// Most runs are short. The fast decoder writes two spans of 16 cells for every run, two
// more only for a longer one, and a span of 16 pixels for the single pixels before it,
// more only for a longer stretch, without looking at where the run or the stretch ends:
// the cells past it are written again by what comes after, and whatever the last spans
// left behind the end is put back to 0. A run or a stretch is at most 64 cells: 4 spans.
constexpr int64_t kSpan = 16, kMaxSpans = 4;

inline void fillSpan(int16_t* at, int16_t value) {
    int16_t pattern[8];
    std::fill_n(pattern, 8, value);
    std::memcpy(at, pattern, sizeof pattern);
    std::memcpy(at + 8, pattern, sizeof pattern);
}

// Single pixels, each byte its own cell: the first span always, the rest as needed.
inline void widenPixels(const uint8_t* from, int16_t* to, int64_t count) {
    int64_t k = 0;
    do {
#if defined(__SSE2__)
        const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + k));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + k),
                         _mm_unpacklo_epi8(x, _mm_setzero_si128()));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + k + 8),
                         _mm_unpackhi_epi8(x, _mm_setzero_si128()));
#else
        for (int64_t j = 0; j < kSpan; ++j)
            to[k + j] = from[k + j];
#endif
        k += kSpan;
    } while (k < count);
}

// Where decoding stands: the file cell read next, the grid cell written next, and the
// end of what the spans may have written past it.
struct Cursor {
    int64_t p = 0, at = 0, dirty = 0;
    int16_t index = 0;
    bool recorded = false;
};

// Bytes above 191 (their top two bits set) of a 64-byte block, one bit each.
inline uint64_t markerBits(const uint8_t* block) {
    uint64_t bits = 0;
#if defined(__SSE2__)
    for (std::ptrdiff_t k = 0; k < 4; ++k) {
        const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + 16 * k));
        const auto top = static_cast<uint32_t>(_mm_movemask_epi8(x));
        const auto next = static_cast<uint32_t>(_mm_movemask_epi8(_mm_add_epi8(x, x)));
        bits |= uint64_t{top & next} << (16 * k);
    }
#else
    for (int i = 0; i < 64; ++i)
        bits |= uint64_t{block[i] > 191} << i;
#endif
    return bits;
}

// The bytes of a block that are the value of a run begun before them. A run's count byte
// and its value are both above 191 when the value is: in a row of such bytes the first
// is a count (the byte before the row ends a run or a pixel), and counts and values then
// alternate. So the counts are the bits at an even distance from their row's first. The
// first byte is a value when the last count of the block before stood at its end (carry).
inline uint64_t valueBits(uint64_t markers, uint64_t& carry) {
    constexpr uint64_t even = 0x5555555555555555u;
    const uint64_t m = markers & ~carry;
    const uint64_t firsts = m & ~(m << 1);
    const uint64_t evenRows = m & ~(m + (firsts & even)); // adding clears rows begun on even bits
    const uint64_t counts = (evenRows & even) | (m & ~evenRows & ~even);
    const uint64_t values = counts << 1 | carry;
    carry = counts >> 63;
    return values;
}

// The runs of the file 64 bytes at a time, while a whole block and the bytes its spans
// may read past it are data, for the usual palette: every value has its record and a
// colour that can be packed, so each cell takes its own byte. The run counts of a block
// come from its bits, so no run waits on the one before it to know where it starts, and
// the single pixels between two runs are written as one stretch. Stops early where a run
// might need checking (too near the grid's end) or the decoding is done. The index is
// left as it was: what comes after sets it before it is used.
void decodeBlocks(const RunCells& file, const RunGrid& grid, int64_t stop, Cursor& c) {
    // Kept in locals: the grid's cells could alias anything held by reference.
    int16_t* const cells = grid.cells;
    const int64_t last = grid.count - 2 * kSpan * kMaxSpans; // room for a stretch and a run
    int64_t at = c.at, dirty = c.dirty, p = -1;
    uint64_t carry = 0;
    int64_t start = 0;
    for (; p < 0 && start + 64 + 2 * kSpan <= file.count; start += 64) {
        const uint8_t* block = file.data + start;
        const uint64_t markers = markerBits(block);
        int64_t q = static_cast<int64_t>(carry); // the first byte after the last run
        uint64_t counts = ~valueBits(markers, carry) & markers;
        // Each run with the single pixels before it, then the pixels after the last run.
        for (;;) {
            const bool tail = counts == 0;
            const int64_t i = tail ? 64 : std::countr_zero(counts);
            const int64_t pixels = std::max<int64_t>(i - q, 0);
            if (at > last) {
                p = start + q;
                break;
            }
            widenPixels(block + q, cells + at, pixels);
            dirty = at + kSpan * kMaxSpans;
            if (at + pixels >= stop) { // a pixel ends it
                p = start + q + (stop - at);
                at = stop;
                break;
            }
            at += pixels;
            if (tail) break;
            const int64_t n = block[i] - 192;
            const int16_t value = block[i + 1];
            fillSpan(cells + at, value);
            fillSpan(cells + at + kSpan, value);
            if (n > 2 * kSpan) {
                fillSpan(cells + at + 2 * kSpan, value);
                fillSpan(cells + at + 3 * kSpan, value);
            }
            dirty = at + kSpan * kMaxSpans;
            at += n;
            q = i + 2;
            if (at >= stop) {
                p = start + q;
                break;
            }
            counts &= counts - 1;
        }
    }
    c.p = p >= 0 ? p : start + static_cast<int64_t>(carry);
    c.at = at;
    c.dirty = dirty;
}

} // namespace

RunsDecoded decodeRuns(const RunCells& file, const RunGrid& grid, const ValueColors& values) {
    const int64_t stop = (grid.lastRow + 1) * grid.width; // the first cell of the row after
    const int64_t lastP = file.lastCell - 129;
    Cursor c; // file cell 0 is position 129
    RunsDecoded out;
    // What the spans wrote past the last run is put back to 0.
    auto clearOvershoot = [&] {
        const int64_t end = std::min(c.dirty, grid.count);
        if (end > c.at) std::fill(grid.cells + c.at, grid.cells + end, int16_t{0});
    };
    try {
        auto all = [](const std::array<bool, 256>& a, bool want) {
            return std::all_of(a.begin(), a.end(), [want](bool x) { return x == want; });
        };
        if (all(values.hasRecord, true) && all(values.unpackable, false)) {
            decodeBlocks(file, grid, stop, c);
            if (c.p > 0) { // the first run recorded its value, in the first cell
                c.recorded = true;
                out.blackCells = 0;
            }
        }
        // The rest one run at a time, every cell and byte checked. A value with a record
        // sets the index; any other repeats the one before.
        auto cell = [&](int64_t q) -> uint8_t {
            if (q > lastP) vb::raise(vb::SubscriptOutOfRange);
            return q < file.count ? file.data[q] : 0;
        };
        while (c.at < stop) {
            int64_t n = 1;
            uint8_t v = cell(c.p);
            if (v > 191) {
                n = v - 192;
                v = cell(++c.p);
            }
            if (values.hasRecord[v]) {
                if (values.unpackable[v]) vb::raise(vb::InvalidCall);
                if (!c.recorded) out.blackCells = c.at;
                c.recorded = true;
                c.index = v;
            }
            ++c.p;
            const int64_t fits = std::clamp<int64_t>(grid.count - c.at, 0, n);
            std::fill_n(grid.cells + c.at, fits, c.index);
            c.at += fits;
            if (fits < n) vb::raise(vb::SubscriptOutOfRange);
        }
    } catch (const vb::Error&) {
        clearOvershoot();
        throw;
    }
    clearOvershoot();
    out.end = c.at;
    if (!c.recorded) out.blackCells = c.at;
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
        for (int64_t x = black; x < written; ++x)
            out[x] = values.color[static_cast<uint8_t>(in[x])];
    }
}

} // namespace tavrin
