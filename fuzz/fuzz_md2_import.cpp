// Any file chosen as the model of the wireframe overlay: it must end as lines on the
// canvas or in silence, never in a crash or a hang, and the next model must still import.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    tavrin::fuzz::run(tavrin::fuzz::kMd2Import, data, size);
    return 0;
}
