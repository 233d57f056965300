#include "skinfiles/pcx_format.h"

#include "platform/byte_window.h"

#include <algorithm>

namespace tavrin {

PcxLayout parsePcx(std::span<const uint8_t> file) {
    const vb::ByteWindow w = vb::ByteWindow::whole(file);
    const auto length = static_cast<int64_t>(file.size());
    uint8_t low = 0, high = 0;
    int16_t ymaxField = 0;
    w.get(9, low);
    w.get(10, high);
    w.get(11, ymaxField);

    PcxLayout out;
    out.width = 256 * int64_t{high} + low + 1;
    out.ymax = static_cast<uint16_t>(ymaxField);
    // The palette's 768 bytes and the byte before them aren't data.
    const int64_t dataBytes = std::max<int64_t>(length - 769 - 129 + 1, 0);
    out.cells = RunCells{dataBytes > 0 ? file.data() + 128 : nullptr, dataBytes, length + 1000};
    out.header = file.first(static_cast<std::size_t>(std::min<int64_t>(length, 128)));
    return out;
}

} // namespace tavrin
