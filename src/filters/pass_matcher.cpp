#include "filters/pass_matcher.h"

#include "platform/vb_numeric.h"

namespace tavrin::filters {

int32_t cellValue(double index) {
    const double r = vb::roundHalfEven(index);
    return r >= -32768 && r <= 32767 ? static_cast<int32_t>(r) : kNoCell;
}

namespace {
// Twice as many slots as pixels, within the bounds.
int tableBits(std::size_t pixels, int least, int most) {
    int bits = least;
    while (bits < most && (std::size_t{1} << bits) < 2 * pixels)
        ++bits;
    return bits;
}
} // namespace

PassMatcher::PassMatcher(MatchCache& cache, const vb::Array<PalRecord>& table,
                         const MatchFields& fields, std::size_t pixels)
    : cache_(cache), table_(table), f_(fields), value_(cellValue(fields.index)),
      bits_(tableBits(pixels, kLeastBits, kBits)), hot_(std::size_t{1} << bits_),
      whole_(std::size_t{1} << bits_) {}

void PassMatcher::settleNear() {
    if (!unsettled_) return;
    const MatchResult& r = whole_[slot(unsettledColor_)];
    if (r.nearSet) f_.nearColor = r.nearColor;
    f_.nearDistance = r.nearDistance;
    f_.index = r.index; // every kept answer sets the index
    unsettled_ = false;
}

// The answer for f_.check: from the table, else from the form's cache, kept in the
// tables when it depends on the colour alone.
void PassMatcher::miss() {
    const Hot h = hot_[slot(f_.check)];
    if (h.check != kEmpty && h.color == f_.check) {
        unsettled_ = true;
        unsettledColor_ = f_.check;
        f_.check = checks_[h.check];
        value_ = h.index;
        return;
    }
    settleNear(); // the match reads Near_Color
    try {
        const MatchResult r = cache_.match(table_, f_.check, f_.nearColor);
        if (r.indexSet && f_.check != -1) {
            auto [at, fresh] =
                checkIds_.emplace(r.checkColor, static_cast<uint16_t>(checks_.size()));
            if (fresh && checks_.size() < kEmpty) checks_.push_back(r.checkColor);
            if (!fresh || at->second < kEmpty) {
                hot_[slot(f_.check)] = Hot{f_.check, r.index, at->second};
                whole_[slot(f_.check)] = r;
            }
        }
        f_.check = r.checkColor;
        if (r.indexSet) {
            f_.index = r.index;
            value_ = r.index;
        }
        if (r.nearSet) f_.nearColor = r.nearColor;
        f_.nearDistance = r.nearDistance;
    } catch (const vb::Error&) {
        // The match failed: the fields stay as they were.
    }
}

// The answers found in the table touch locals only; the fields are settled when a miss
// or the end needs them. A pixel's colour is looked up from its own packed colour, not
// from what the pixel before left, so that the lookups of neighbours don't wait on each
// other; only a pixel that couldn't be packed takes Check_Color as the one before left it.
void PassMatcher::run(const int32_t* packed, std::size_t n, bool match, int32_t* colors,
                      int32_t* cells) {
    int32_t check = f_.check, value = value_, answered = unsettledColor_;
    bool unsettled = unsettled_;
    for (std::size_t i = 0; i < n; ++i) {
        const int32_t in = packed[i];
        if (match && in >= 0) {
            const Hot h = hot_[slot(in)];
            if (h.check != kEmpty && h.color == in) {
                unsettled = true;
                answered = in;
                colors[i] = check = checks_[h.check];
                cells[i] = value = h.index;
                continue;
            }
        }
        if (in >= 0) check = in;
        if (match) {
            f_.check = check;
            value_ = value;
            unsettled_ = unsettled;
            unsettledColor_ = answered;
            miss();
            check = f_.check;
            value = value_;
            unsettled = unsettled_;
            answered = unsettledColor_;
        }
        colors[i] = check;
        cells[i] = value;
    }
    f_.check = check;
    value_ = value;
    unsettled_ = unsettled;
    unsettledColor_ = answered;
}

MatchFields PassMatcher::fields() {
    settleNear();
    return f_;
}

} // namespace tavrin::filters
