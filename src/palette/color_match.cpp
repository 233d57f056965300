#include "palette/color_match.h"

#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tavrin {

MatchResult matchColor(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor) {
    MatchResult out;
    out.nearColor = nearColor;
    const double red = vb::redOf(check);
    const double green = vb::greenOf(check);
    const double blue = vb::blueOf(check);
    for (int n = 1; n <= 256; ++n) {
        const PalRecord& r = table(n);
        const int32_t packed = vb::RGB(r.Red, r.Green, r.Blue);
        const double distance = std::abs(vb::redOf(packed) - red) +
                                std::abs(vb::greenOf(packed) - green) +
                                std::abs(vb::blueOf(packed) - blue);
        if (distance == 0) {
            out.checkColor = packed;
            out.indexSet = true;
            out.index = r.Index;
            return out;
        }
        if (distance < out.nearDistance) {
            out.nearSet = true;
            out.nearColor = packed;
            out.nearDistance = static_cast<int16_t>(distance);
            out.indexSet = true;
            out.index = r.Index;
        }
    }
    out.checkColor = out.nearColor;
    return out;
}

namespace {

// The 256 distances, and the smallest of the first `count`.
struct Distances {
    alignas(16) std::array<int16_t, 256> d;
};

// The first record among the first `count` with the smallest distance; count > 0.
int firstNearest(const Distances& all, int count) {
    const int16_t least = *std::min_element(all.d.begin(), all.d.begin() + count);
    return static_cast<int>(std::find(all.d.begin(), all.d.begin() + count, least) - all.d.begin());
}

} // namespace

void MatchCache::build(const vb::Array<PalRecord>& table) {
    channels_.built = true;
    channels_.usable = false;
    for (int n = 1; n <= 256; ++n) {
        const PalRecord& r = table(n);
        int32_t packed = 0;
        try {
            packed = vb::RGB(r.Red, r.Green, r.Blue);
        } catch (const vb::Error&) {
            return;
        }
        const auto k = static_cast<std::size_t>(n - 1);
        channels_.packed[k] = packed;
        channels_.red[k] = static_cast<int16_t>(packed & 0xFF);
        channels_.green[k] = static_cast<int16_t>((packed >> 8) & 0xFF);
        channels_.blue[k] = static_cast<int16_t>((packed >> 16) & 0xFF);
        channels_.index[k] = r.Index;
    }
    channels_.usable = true;
}

// For a colour whose channels are bytes. Every distance is then at most 765, under the
// plain scan's start of 780, so record 1 always counts and the answer is the first
// nearest record; an exact hit ends the plain scan, which leaves as Near_Color the first
// nearest of the records before it.
MatchResult MatchCache::scan(int32_t check) const {
    const auto red = static_cast<int16_t>(check & 0xFF);
    const auto green = static_cast<int16_t>((check >> 8) & 0xFF);
    const auto blue = static_cast<int16_t>((check >> 16) & 0xFF);
    Distances all;
#if defined(__SSE2__)
    const __m128i r = _mm_set1_epi16(red), g = _mm_set1_epi16(green), b = _mm_set1_epi16(blue);
    auto absDiff = [](__m128i x, __m128i y) {
        return _mm_max_epi16(_mm_sub_epi16(x, y), _mm_sub_epi16(y, x));
    };
    for (std::size_t k = 0; k < 256; k += 8) {
        auto at = [k](const std::array<int16_t, 256>& a) {
            return _mm_load_si128(reinterpret_cast<const __m128i*>(a.data() + k));
        };
        const __m128i d = _mm_add_epi16(
            _mm_add_epi16(absDiff(at(channels_.red), r), absDiff(at(channels_.green), g)),
            absDiff(at(channels_.blue), b));
        _mm_store_si128(reinterpret_cast<__m128i*>(all.d.data() + k), d);
    }
#else
    for (std::size_t k = 0; k < 256; ++k)
        all.d[k] = static_cast<int16_t>(std::abs(channels_.red[k] - red) +
                                        std::abs(channels_.green[k] - green) +
                                        std::abs(channels_.blue[k] - blue));
#endif
    MatchResult out;
    out.indexSet = true;
    const int nearest = firstNearest(all, 256);
    const auto at = static_cast<std::size_t>(nearest);
    out.index = channels_.index[at];
    if (all.d[at] == 0) {
        out.checkColor = channels_.packed[at];
        if (nearest > 0) {
            const auto before = static_cast<std::size_t>(firstNearest(all, nearest));
            out.nearSet = true;
            out.nearColor = channels_.packed[before];
            out.nearDistance = all.d[before];
        }
        return out;
    }
    out.nearSet = true;
    out.nearColor = out.checkColor = channels_.packed[at];
    out.nearDistance = all.d[at];
    return out;
}

MatchResult MatchCache::match(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor) {
    Entry& e = entries_[slot(check)];
    if (e.used && e.color == check) return e.result;
    if (!channels_.built) build(table);
    const bool bytes = check >= 0 && check <= 0xFFFFFF;
    const MatchResult r =
        bytes && channels_.usable ? scan(check) : matchColor(table, check, nearColor);
    if (r.indexSet && check != -1) e = Entry{true, check, r};
    return r;
}

void MatchCache::clear() {
    std::fill(entries_.begin(), entries_.end(), Entry{});
    channels_.built = false;
}

} // namespace tavrin
