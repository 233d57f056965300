#include "skinfiles/pcx_test_support.h"

#include <algorithm>
#include <map>

namespace tavrin::test {

Bytes pcxHeader(int width, int height, int bytesPerLine) {
    Bytes h(128, 0);
    auto put16 = [&](int at, int v) {
        h[static_cast<std::size_t>(at)] = static_cast<uint8_t>(v & 0xFF);
        h[static_cast<std::size_t>(at + 1)] = static_cast<uint8_t>((v >> 8) & 0xFF);
    };
    h[0] = 10, h[1] = 5, h[2] = 1, h[3] = 8;
    put16(8, width - 1), put16(10, height - 1);
    put16(12, 72), put16(14, 72);
    h[65] = 1;
    put16(66, bytesPerLine);
    put16(68, 1);
    return h;
}

Bytes encodePcx(int width, int height, const std::vector<uint8_t>& indices, const Bytes& palette) {
    Bytes out = pcxHeader(width, height, width);
    for (int y = 0; y < height; ++y) {
        const auto row = indices.begin() + y * width;
        for (int i = 0; i < width;) {
            int n = 1;
            while (i + n < width && row[i + n] == row[i] && n < 63)
                ++n;
            if (n > 1 || row[i] >= 192) out.push_back(static_cast<uint8_t>(192 + n));
            out.push_back(row[i]);
            i += n;
        }
    }
    out.push_back(0x0C);
    out.insert(out.end(), palette.begin(), palette.end());
    return out;
}

ExpectedLoad expectedLoad(const Bytes& file, const std::vector<int>& unrecorded) {
    ExpectedLoad e;
    const int64_t L = static_cast<int64_t>(file.size());
    auto at = [&](int64_t pos) -> int {
        return pos >= 1 && pos <= L ? file[static_cast<std::size_t>(pos - 1)] : 0;
    };
    e.width = 256 * at(10) + at(9) + 1;
    e.ymax = at(11) + 256 * at(12);
    if (e.width < 2 || e.width - 2 > 32767) return e; // picture1.Width refused
    const int64_t cells = (e.ymax + 4) * e.width + 1001;
    if (cells * 2 > (int64_t{256} << 20)) return e; // grid too big to make
    e.grid.assign(static_cast<std::size_t>(cells), 0);
    const int16_t heightTwips = static_cast<int16_t>(static_cast<uint16_t>(15 * (e.ymax + 2)));
    if (heightTwips < 0) return e; // picture1.Height refused
    std::map<int64_t, int> buffer;
    for (int64_t p = 129; p <= L - 769; ++p)
        buffer[p] = at(p);
    auto cell = [&](int64_t p) -> std::optional<int> {
        if (p < 0 || p > L + 1000) return std::nullopt;
        auto it = buffer.find(p);
        return it == buffer.end() ? 0 : it->second;
    };
    int64_t p = 129, x = 0, y = 0;
    int index = 0;
    for (;;) {
        auto b = cell(p);
        if (!b) return e;
        int n = 1, v = *b;
        if (v > 191) {
            n = v - 192;
            auto next = cell(++p);
            if (!next) return e;
            v = *next;
        }
        if (std::find(unrecorded.begin(), unrecorded.end(), v) == unrecorded.end()) index = v;
        for (int i = 0; i < n; ++i) {
            if (y * e.width + x >= cells) return e;
            e.grid[static_cast<std::size_t>(y * e.width + x)] = static_cast<int16_t>(index);
            if (++x > e.width - 1) x = 0, ++y;
        }
        if (y > e.ymax + 4) break;
        ++p;
    }
    e.completed = true;
    return e;
}

void openSkin(platform::ScriptedHost& host, FrmMain& frm, const std::string& path,
              bool takePalette) {
    host.answerOpen(path);
    host.answerMsgBox(takePalette ? platform::kMsgYes : platform::kMsgNo);
    frm.pcxIm_Click();
}

} // namespace tavrin::test
