// Any bytes as a bitmap, straight to the headless host's reader, with no editor and no
// file around it: a picture of the header's size with nothing but colours in it, or
// "Invalid picture" / "Out of memory", and the same answer each time.
#include "platform/bmp_format.h"
#include "platform/vb_error.h"

#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>

namespace {

// Bigger pictures cost each input a fill of many megabytes: their decoding is the same
// loop, and the tests take the refusal of huge ones.
constexpr int64_t kMostPixels = int64_t{1} << 22;

std::string checkBmp(std::span<const uint8_t> file) {
    platform::BmpHeader h;
    try {
        h = platform::readBmpHeader(file);
    } catch (const vb::Error& e) {
        return e.number() == vb::InvalidPicture ? ""
                                                : "the header raised " + std::to_string(e.number());
    }
    const int64_t rows = h.height < 0 ? -h.height : h.height;
    if (h.width > kMostPixels / rows) return "";
    for (int pass = 0; pass < 2; ++pass) {
        static platform::Raster first;
        platform::Raster r;
        try {
            r = platform::decodeBmp(file);
        } catch (const vb::Error& e) {
            if (e.number() != vb::InvalidPicture && e.number() != vb::OutOfMemory)
                return "decoding raised " + std::to_string(e.number());
            return "";
        }
        if (r.width != h.width || r.height != rows) return "the picture isn't the header's size";
        if (r.px.size() != static_cast<std::size_t>(r.width) * static_cast<std::size_t>(r.height))
            return "the pixels don't fill the picture";
        for (uint32_t c : r.px)
            if (c > 0xFFFFFF) return "a pixel isn't a colour";
        if (pass == 0)
            first = std::move(r);
        else if (r.px != first.px)
            return "two decodings differ";
    }
    return "";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::string fault = checkBmp({data, size});
    if (!fault.empty()) {
        std::fprintf(stderr, "fuzz_bmp: %s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
