// A PCX file's layout and runs, decoded into a grid of the size the open command makes
// and compared cell for cell with a plain decoder that takes one cell at a time: where
// it stops, the cells written before any value with a record, the error it ends in,
// and the picture painted from the grid.
#include "fuzz/decoder_checks.h"
#include "skinfiles/pcx_format.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace tavrin::fuzz {

namespace {

// Which values have a record and which colours can't be packed, from header byte 128,
// which the reader keeps but never reads: 0, as most files have it, gives the table
// every value is in, the decoder's fast road.
ValueColors valuesFor(std::span<const uint8_t> file) {
    ValueColors values;
    const uint8_t rule = file.size() > 127 ? file[127] : 0;
    for (int v = 0; v < 256; ++v) {
        values.color[v] = static_cast<uint32_t>(v * 0x010203);
        values.hasRecord[v] = !(rule & 1) || v % 8 != (rule >> 1) % 8;
    }
    if (rule & 0x10) values.unpackable[file.size() > 126 ? file[126] : 0] = true;
    return values;
}

struct Plain {
    int64_t end = 0, black = 0, reached = 0; // reached: the cell it would write next
    int error = 0;
};

Plain plainDecode(const RunCells& file, std::span<int16_t> grid, int64_t width, int64_t lastRow,
                  const ValueColors& values) {
    const int64_t stop = (lastRow + 1) * width;
    Plain r;
    int64_t p = 0;
    int16_t index = 0;
    bool recorded = false;
    auto read = [&](int64_t q, uint8_t& v) {
        if (q > file.lastCell - 129) return false;
        v = q < file.count ? file.data[q] : 0;
        return true;
    };
    while (r.reached < stop && r.error == 0) {
        uint8_t v = 0;
        int64_t n = 1;
        if (!read(p, v)) {
            r.error = vb::SubscriptOutOfRange;
            break;
        }
        if (v > 191) {
            n = v - 192;
            if (!read(++p, v)) {
                r.error = vb::SubscriptOutOfRange;
                break;
            }
        }
        if (values.hasRecord[v]) {
            if (values.unpackable[v]) {
                r.error = vb::InvalidCall;
                break;
            }
            if (!recorded) r.black = r.reached;
            recorded = true;
            index = v;
        }
        ++p;
        const int64_t fits = std::min(n, static_cast<int64_t>(grid.size()) - r.reached);
        std::fill_n(grid.begin() + r.reached, fits, index);
        r.reached += fits;
        if (fits < n) r.error = vb::SubscriptOutOfRange; // the run's first cell past the grid
    }
    r.end = r.reached;
    if (!recorded) r.black = r.end;
    return r;
}

std::string checkLayout(std::span<const uint8_t> file, const PcxLayout& layout) {
    const auto L = static_cast<int64_t>(file.size());
    auto at = [&](int64_t pos) -> int64_t { return pos <= L ? file[pos - 1] : 0; };
    // The width is read a byte at a time, Ymax as one field: whole or not at all.
    const int64_t width = at(9) + 256 * at(10) + 1;
    const int64_t ymax = L >= 12 ? at(11) + 256 * at(12) : 0;
    if (layout.width != width || layout.ymax != ymax) return "the size fields are misread";
    if (layout.cells.count != std::max<int64_t>(L - 897, 0) || layout.cells.lastCell != L + 1000 ||
        (layout.cells.count > 0 && layout.cells.data != file.data() + 128))
        return "the run data lies elsewhere";
    if (layout.header.size() != static_cast<std::size_t>(std::min<int64_t>(L, 128)) ||
        (L > 0 && layout.header.data() != file.data()))
        return "the kept header is not the first 128 bytes";
    return "";
}

struct FreeDeleter {
    void operator()(int16_t* p) const { std::free(p); }
};
using Cells = std::unique_ptr<int16_t[], FreeDeleter>;

// Zeroed cells that cost nothing until they are touched: a hostile header declares
// millions that the decoding never reaches.
Cells zeroedCells(int64_t count) {
    return Cells(static_cast<int16_t*>(std::calloc(static_cast<std::size_t>(count), 2)));
}

std::string checkPcxRuns(std::span<const uint8_t> file) {
    const PcxLayout layout = parsePcx(file);
    if (std::string fault = checkLayout(file, layout); !fault.empty()) return fault;

    // The open command's grid. Each file cell writes at most 63 cells, so a grid cut to
    // what the file can reach decodes exactly as the whole one would.
    const int64_t W = layout.width, lastRow = layout.ymax + 4;
    const int64_t reachable = 63 * (layout.cells.lastCell - 128) + 1;
    const int64_t count = std::min(lastRow * W + 1001, reachable);
    Cells cells = zeroedCells(count), plainCells = zeroedCells(count);
    if (!cells || !plainCells) return "";
    const ValueColors values = valuesFor(file);
    const RunGrid grid{cells.get(), count, W, lastRow};

    RunsDecoded decoded;
    const int error = errorOf([&] { decoded = decodeRuns(layout.cells, grid, values); });
    const Plain plain = plainDecode(
        layout.cells, {plainCells.get(), static_cast<std::size_t>(count)}, W, lastRow, values);
    if (error != plain.error)
        return "ended in error " + std::to_string(error) + " where a plain decoder ends in " +
               std::to_string(plain.error);
    // Past what the plain decoder reached, the fast one's spans may have written and must
    // have put the cells back; further on nothing was written at all.
    const int64_t compared = std::min(count, plain.reached + 256);
    if (!std::equal(cells.get(), cells.get() + compared, plainCells.get()))
        return "the grid differs from a plain decoder's";
    if (error != 0) return "";
    if (decoded.end != plain.end || decoded.blackCells != plain.black)
        return "stopped at cell " + std::to_string(decoded.end) + " with " +
               std::to_string(decoded.blackCells) + " black where a plain decoder says " +
               std::to_string(plain.end) + " and " + std::to_string(plain.black);

    // A corner of the picture: black, the colour of its cell's value, or left alone.
    constexpr uint32_t kUntouched = 0xFF00FF00u;
    platform::Raster image(static_cast<int>(std::min<int64_t>(W, 24)),
                           static_cast<int>(std::min<int64_t>(lastRow, 24)), kUntouched);
    paintDecoded(grid, decoded, values, image);
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x) {
            const int64_t cell = y * W + x;
            const uint32_t want = cell < plain.black ? 0u
                                  : cell < plain.end
                                      ? values.color[static_cast<uint8_t>(plainCells[cell])]
                                      : kUntouched;
            if (image.at(x, y) != want)
                return "pixel (" + std::to_string(x) + ", " + std::to_string(y) +
                       ") is painted wrong";
        }
    return "";
}

const RegisterDecoder registered("pcx_runs", checkPcxRuns);

} // namespace

} // namespace tavrin::fuzz
