#pragma once
// A stretch of a file held in memory, read as positioned Gets read the file itself: a
// value that runs past the file's end leaves its target as it was. The format readers
// decode from such windows, so that they are pure functions of the bytes: the commands
// fill a window from a file, the tests and fuzzers from a buffer.
#include "platform/vb_error.h"

#include <cstdint>
#include <span>

namespace vb {

struct ByteWindow {
    int64_t first = 1;      // file position of bytes[0]
    int64_t fileLength = 0; // the whole file's, which may reach past the window
    std::span<const uint8_t> bytes;

    // A whole file in memory.
    static ByteWindow whole(std::span<const uint8_t> file) {
        return {1, static_cast<int64_t>(file.size()), file};
    }

    // Get at a 1-based position, little-endian. False, with the target untouched, when
    // the value runs past the end of the file. A value inside the file but outside the
    // window is a reader's slip: "Subscript out of range".
    template <class T> bool get(int64_t position, T& target) const {
        if (position < 1) raise(BadRecordNumber);
        if (position + static_cast<int64_t>(sizeof(T)) - 1 > fileLength) return false;
        const int64_t at = position - first;
        if (at < 0 || at + static_cast<int64_t>(sizeof(T)) > static_cast<int64_t>(bytes.size()))
            raise(SubscriptOutOfRange);
        uint64_t acc = 0;
        for (std::size_t k = 0; k < sizeof(T); ++k)
            acc |= static_cast<uint64_t>(bytes[static_cast<std::size_t>(at) + k]) << (8 * k);
        target = static_cast<T>(acc);
        return true;
    }
};

} // namespace vb
