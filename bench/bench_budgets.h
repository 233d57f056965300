#pragma once
// The budgets: each pairs a hot path with its baseline. atLeast: the baseline takes at
// least `budget` times as long as the path (a speed-up); otherwise the path takes at most
// `budget` times as long as the baseline.
#include <vector>

namespace tavrin::bench {

struct Budget {
    const char* name;
    const char* path;
    const char* baseline;
    double budget;
    bool atLeast;
};

const std::vector<Budget>& budgets();

} // namespace tavrin::bench
