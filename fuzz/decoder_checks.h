#pragma once
// Fuzz targets that give their bytes straight to a format's pure functions, with no
// editor and no file around them: thousands of inputs a second where a whole command
// manages a few hundred. Each check lives in fuzz/checks/<name>.cpp and registers itself
// under its target's name; fuzz/fuzz_decoder.cpp runs the one it is built with, and the
// regression test runs every one over the inputs fuzzing kept and the test files.
#include "platform/byte_window.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tavrin::fuzz {

// What went wrong with the input, or "" when the decoder did all it should.
using DecoderCheck = std::string (*)(std::span<const uint8_t> file);

struct DecoderTarget {
    const char* name; // fuzz_<name>, tests/data/regressions/<name>/
    DecoderCheck check;
};

const std::vector<DecoderTarget>& decoderTargets();

struct RegisterDecoder {
    RegisterDecoder(const char* name, DecoderCheck check);
};

// The window a reading command fetches for positions from to last of the file: the
// part of them that lies in it.
vb::ByteWindow windowOf(std::span<const uint8_t> file, int64_t from, int64_t last);

// The number of the error the call raised, 0 when it raised none. Anything else thrown
// goes on.
template <class F> int errorOf(F&& call) {
    try {
        call();
        return 0;
    } catch (const vb::Error& e) {
        return e.number();
    }
}

} // namespace tavrin::fuzz
