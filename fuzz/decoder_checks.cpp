#include "fuzz/decoder_checks.h"

#include <algorithm>

namespace tavrin::fuzz {

namespace {
std::vector<DecoderTarget>& registry() {
    static std::vector<DecoderTarget> all;
    return all;
}
} // namespace

const std::vector<DecoderTarget>& decoderTargets() { return registry(); }

RegisterDecoder::RegisterDecoder(const char* name, DecoderCheck check) {
    registry().push_back({name, check});
}

vb::ByteWindow windowOf(std::span<const uint8_t> file, int64_t from, int64_t last) {
    const auto length = static_cast<int64_t>(file.size());
    const int64_t first = std::max<int64_t>(from, 1);
    last = std::min(last, length);
    std::span<const uint8_t> bytes;
    if (last >= first)
        bytes = file.subspan(static_cast<std::size_t>(first - 1),
                             static_cast<std::size_t>(last - first + 1));
    return vb::ByteWindow{first, length, bytes};
}

} // namespace tavrin::fuzz
