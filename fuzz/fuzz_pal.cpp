// Any file read as a raw palette, from its first byte and as a skin's tail.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    tavrin::fuzz::run(tavrin::fuzz::kPal, data, size);
    return 0;
}
