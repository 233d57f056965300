// `dump grid` and `dump picture`: the skin's indices and a picture's pixels as files.
#include "cli/commands.h"
#include "cli/ppm_file.h"
#include "cli/script_error.h"
#include "cli/targets.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::cli {

namespace {

// Skin_Grid from its lower to its upper bound, little-endian 16-bit; nothing when unallocated.
void dumpGrid(Session& s, Args& a) {
    std::string path = a.text("a path");
    a.end();
    const auto& grid = s.mainForm().Skin_Grid;
    std::string bytes;
    bytes.reserve(grid.size() * 2);
    for (std::size_t k = 0; k < grid.size(); ++k) {
        auto v = static_cast<uint16_t>(grid.data()[k]);
        bytes += static_cast<char>(v & 0xFF);
        bytes += static_cast<char>(v >> 8);
    }
    writeFile(path, bytes);
    s.out() << "dump grid " << grid.size() << '\n';
}

// The inner image as binary PPM.
void dumpPicture(Session& s, Args& a) {
    std::string name = a.word("a picture box");
    std::string path = a.text("a path");
    a.end();
    auto& box = controlOf<platform::PictureBox>(s, name, "a picture box");
    const int w = box.innerWidth(), h = box.innerHeight();
    std::vector<uint32_t> px(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
    if (!px.empty()) box.render(platform::PixelRect{0, 0, w, h}, px.data(), w);
    writePpm(path, w, h, px);
    s.out() << "dump picture " << w << ' ' << h << '\n';
}

} // namespace

void dumpCommand(Session& s, Args& a) {
    std::string what = a.word("what to dump", {"grid", "picture"});
    if (what == "grid")
        dumpGrid(s, a);
    else
        dumpPicture(s, a);
}

} // namespace tavrin::cli
