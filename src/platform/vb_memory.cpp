#include "platform/vb_memory.h"

#include <algorithm>
#include <atomic>

namespace vb {

namespace {
std::atomic<std::size_t> live{0};
} // namespace

void checkAllocation(std::size_t count, std::size_t elementSize) {
    if (elementSize == 0) return;
    if (count > kMaxAllocationBytes / elementSize) raise(OutOfMemory);
    if (count * elementSize > kMaxLiveBytes - std::min(live.load(), kMaxLiveBytes))
        raise(OutOfMemory);
}

std::size_t liveBytes() { return live.load(); }

Reservation::Reservation(std::size_t count, std::size_t elementSize) {
    checkAllocation(count, elementSize);
    bytes_ = count * elementSize;
    live += bytes_;
}

Reservation::~Reservation() { live -= bytes_; }

} // namespace vb
