#pragma once
// The budgets: each pairs a hot path with its baseline. atLeast: the baseline takes at
// least `budget` times as long as the path (a speed-up); otherwise the path takes at most
// `budget` times as long as the baseline. Both are timed alike: processor time, or wall
// time for what touches the file system, whose baseline then does the same bytes of work
// on the same disk.
#include <vector>

namespace tavrin::bench {

struct Budget {
    const char* name;
    const char* path;
    const char* baseline;
    double budget;
    bool atLeast;
    bool wall = false; // wall time rather than processor time: the path waits on the disk
};

const std::vector<Budget>& budgets();

} // namespace tavrin::bench
