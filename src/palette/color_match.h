#pragma once
// The nearest-palette-colour match as a function of the table and the colour, and the
// cache of its answers that the form keeps until the palette changes.
#include "editor/records.h"
#include "platform/vb_array.h"

#include <array>
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
// record. nearColor is the Near_Color the caller holds before the call. The plain scan,
// one record at a time: the reference the faster matcher below is held to.
MatchResult matchColor(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor);

// The same answers, fast: records 1 to 256 held as channels side by side, all 256
// distances worked out together, and answers remembered by input colour (direct-mapped).
// An answer that gives back Near_Color as it stood before the call (no record came near
// enough) depends on more than the colour and isn't kept.
class MatchCache {
public:
    MatchResult match(const vb::Array<PalRecord>& table, int32_t check, int32_t nearColor);
    // The palette changed: forget every answer and the records' channels.
    void clear();

private:
    // Records 1 to 256 side by side; unusable while some record's colour can't be packed
    // (the plain scan then raises where the record is reached).
    struct Channels {
        bool built = false, usable = false;
        alignas(16) std::array<int16_t, 256> red{}, green{}, blue{};
        std::array<int32_t, 256> packed{};
        std::array<int16_t, 256> index{};
    };
    struct Entry {
        bool used = false; // no colour marks an empty slot: -1 is an input like any other
        int32_t color = 0;
        MatchResult result;
    };
    static constexpr int kBits = 16;
    static std::size_t slot(int32_t color) {
        return (static_cast<uint32_t>(color) * 2654435761u) >> (32 - kBits);
    }
    void build(const vb::Array<PalRecord>& table);
    MatchResult scan(int32_t check) const;

    Channels channels_;
    std::vector<Entry> entries_ = std::vector<Entry>(std::size_t{1} << kBits);
};

} // namespace tavrin
