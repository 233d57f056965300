// Any file chosen as the model of a new skin: it must end as a skin or the loader's
// message, never in a crash, a hang or a huge allocation, and the next model must still
// make a skin.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    tavrin::fuzz::run(tavrin::fuzz::kMd2Frame, data, size);
    return 0;
}
