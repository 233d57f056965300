// The entry of every decoder-level fuzz target: the check registered under the name the
// target is built with (TAVRIN_FUZZ_TARGET), aborting so that libFuzzer keeps an input
// the check finds fault with.
#include "fuzz/decoder_checks.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

tavrin::fuzz::DecoderCheck findCheck() {
    for (const auto& target : tavrin::fuzz::decoderTargets())
        if (std::strcmp(target.name, TAVRIN_FUZZ_TARGET) == 0) return target.check;
    std::fprintf(stderr, "fuzz_%s: no check of that name\n", TAVRIN_FUZZ_TARGET);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    static const tavrin::fuzz::DecoderCheck check = findCheck();
    const std::string fault = check({data, size});
    if (!fault.empty()) {
        std::fprintf(stderr, "fuzz_%s: %s\n", TAVRIN_FUZZ_TARGET, fault.c_str());
        std::abort();
    }
    return 0;
}
