#pragma once
// The nearest-palette-colour match as a function of the table and the colour, and the
// cache of its answers that the form keeps until the palette changes.
#include "editor/records.h"
#include "platform/vb_array.h"

#include <cstdint>
#include <vector>

namespace tavrin {

// What one match leaves behind. The fields it doesn't touch keep their values.
struct MatchResult {
    int32_t checkColor = 0; // the palette colour, or Near_Color as it was
    bool indexSet = false;  // false: no record came nearer than 780, Color_Index stays
    int16_t index = 0;
    bool nearSet = false; // false: Near_Color stays as it was
    int32_t nearColor = 0;
    int16_t nearDistance = 780;
};

// Records 1 to 256 by Manhattan distance, exact hit ends the scan, ties go to the lower
// record. nearColor is the Near_Color the caller holds before the call.
MatchResult matchColor(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor);

// Answers by input colour, direct-mapped. An answer that gives back Near_Color as it
// stood before the call (no record came near enough) depends on more than the colour
// and isn't kept.
class MatchCache {
public:
    struct Entry {
        bool used = false; // no colour marks an empty slot: -1 is an input like any other
        int32_t color = 0;
        MatchResult result;
    };
    static constexpr int kBits = 16;

    static std::size_t slot(int32_t color) {
        return (static_cast<uint32_t>(color) * 2654435761u) >> (32 - kBits);
    }
    const MatchResult* find(int32_t color) const {
        const Entry& e = entries[slot(color)];
        return e.used && e.color == color ? &e.result : nullptr;
    }
    void store(int32_t color, const MatchResult& r) {
        if (!r.indexSet || color == -1) return;
        entries[slot(color)] = Entry{true, color, r};
    }
    void clear() { std::fill(entries.begin(), entries.end(), Entry{}); }

private:
    std::vector<Entry> entries = std::vector<Entry>(std::size_t{1} << kBits);
};

} // namespace tavrin
