// Any file read as a raw palette, from its first byte and as a skin's tail.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tavrin::fuzz;
    Editor& e = editor();
    writeInput(data, size);
    e.frm.Files.CloseAll();
    e.frm.Pal_Path = e.file;
    if (size > 0 && (data[0] & 1)) e.frm.Pal_Answer = 6;
    e.frm.Get_Pal();
    e.frm.Files.CloseAll();
    return 0;
}
