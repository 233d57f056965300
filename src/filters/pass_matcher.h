#pragma once
// Temp_Color_Check over the pixels of a pass, as the filters call it once a pixel: the
// colour each pixel is drawn in and the index its cell takes, with the fields the match
// leaves behind handed from pixel to pixel and out at the end.
#include "palette/color_match.h"

#include <climits>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace tavrin::filters {

// What Temp_Color_Check reads and leaves.
struct MatchFields {
    int32_t check;     // Check_Color
    double index;      // Color_Index: NaN while it holds no number
    int32_t nearColor; // Near_Color
    int16_t nearDistance;
};

// A cell's value for Color_Index: a 16-bit number, or kNoCell when it isn't one.
inline constexpr int32_t kNoCell = INT32_MIN;
int32_t cellValue(double index);

class PassMatcher {
public:
    // pixels: about how many pixels the pass has; a brush's few dozen get small tables,
    // whose clearing would otherwise cost more than their matches.
    PassMatcher(MatchCache& cache, const vb::Array<PalRecord>& table, const MatchFields& fields,
                std::size_t pixels = std::size_t{1} << 20);

    // For each pixel: Check_Color takes packed[i] unless that is -1 (it couldn't be
    // packed), then, when `match`, the match runs; colors[i] is Check_Color and cells[i]
    // what Color_Index gives the cell.
    void run(const int32_t* packed, std::size_t n, bool match, int32_t* colors, int32_t* cells);
    // The fields as the last pixel left them.
    MatchFields fields();

private:
    // The match's answers by colour for the length of a pass, in front of the form's
    // cache: a filter's pixels take a few thousand colours, and the colour and index of
    // each answer stay in the processor's cache, where the form's table doesn't. Kept
    // as that cache keeps them: answers that depend on the colour alone.
    struct Hot { // eight bytes, so that the table fits the processor's nearest cache
        int32_t color = 0;
        int16_t index = 0;
        uint16_t check = kEmpty; // the answer's colour, as its place in checks_
    };
    static constexpr uint16_t kEmpty = 0xFFFF;
    std::size_t slot(int32_t color) const {
        return (static_cast<uint32_t>(color) * 2654435761u) >> (32 - bits_);
    }
    // The near fields of the last answer taken from the hot table, from its whole answer.
    void settleNear();
    void miss();

    static constexpr int kBits = 13, kLeastBits = 6;
    MatchCache& cache_;
    const vb::Array<PalRecord>& table_;
    MatchFields f_;
    int32_t value_; // cellValue(f_.index)
    int bits_;      // the tables hold 2^bits_ answers
    bool unsettled_ = false;
    int32_t unsettledColor_ = 0;
    std::vector<Hot> hot_;
    std::vector<int32_t> checks_; // the colours answers gave, each once
    std::unordered_map<int32_t, uint16_t> checkIds_;
    std::vector<MatchResult> whole_;
};

} // namespace tavrin::filters
