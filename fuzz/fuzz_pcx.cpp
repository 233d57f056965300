// Any file opened as a PCX skin, through the open command, with and without taking its
// palette: it must end as a picture, noise or a message, never in a crash or a hang,
// and the next skin must still open.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    tavrin::fuzz::run(tavrin::fuzz::kPcx, data, size);
    return 0;
}
