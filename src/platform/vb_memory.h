#pragma once
// What the editor's machine could hold. One allocation larger than kMaxAllocationBytes,
// or one that would take the grids and pictures alive at once past kMaxLiveBytes, raises
// "Out of memory", as the runtime did when the machine ran out: a hostile header then
// ends in the loader's message instead of gigabytes taken, one array at a time.
#include "platform/vb_error.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vb {

#ifndef TAVRIN_MAX_LIVE_MB
#define TAVRIN_MAX_LIVE_MB 384
#endif
// A fuzz build sets a smaller machine (TAVRIN_MAX_LIVE_MB): a hostile header is refused
// at a few megabytes instead of being given hundreds to fill, input after input.
inline constexpr std::size_t kMaxLiveBytes = std::size_t{TAVRIN_MAX_LIVE_MB} << 20;
inline constexpr std::size_t kMaxAllocationBytes = std::min(std::size_t{256} << 20, kMaxLiveBytes);

// Raises OutOfMemory when count elements of elementSize bytes pass either limit.
void checkAllocation(std::size_t count, std::size_t elementSize);

// The bytes held by every Reservation alive now.
std::size_t liveBytes();

// Counts a block of memory as alive for as long as it lives. A copy counts again, since
// the copy of an array is an array of its own.
class Reservation {
public:
    Reservation() = default;
    Reservation(std::size_t count, std::size_t elementSize); // checked first
    Reservation(const Reservation& other) : Reservation(other.bytes_, 1) {}
    Reservation(Reservation&& other) noexcept : bytes_(std::exchange(other.bytes_, 0)) {}
    Reservation& operator=(Reservation other) noexcept {
        std::swap(bytes_, other.bytes_);
        return *this;
    }
    ~Reservation();

    std::size_t bytes() const { return bytes_; }

private:
    std::size_t bytes_ = 0;
};

} // namespace vb
