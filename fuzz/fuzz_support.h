#pragma once
// What every whole-command fuzz target shares: one editor made once (it is big, and a run
// of the program keeps one for its whole life too), and the input put in a file held in
// memory, since the commands read files.
#include "fuzz_roads.h"

#include <cstddef>
#include <cstdint>

namespace tavrin::fuzz {

// Puts the input in the file, sends it down the target's road in the one editor and
// aborts, so that libFuzzer keeps the input, when replay() finds something wrong.
void run(const Target& target, const uint8_t* data, std::size_t size);

} // namespace tavrin::fuzz
