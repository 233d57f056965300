// Any file opened as a PCX skin, through the open command, with and without taking its
// palette: it must end as a picture, noise or a message, never in a crash or a hang.
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tavrin::fuzz;
    Editor& e = editor();
    writeInput(data, size);
    e.host.answerOpen(e.file);
    // The palette question from the file's last byte, so both roads are taken.
    e.host.answerMsgBox(size > 0 && (data[size - 1] & 1) ? platform::kMsgYes : platform::kMsgNo);
    e.frm.pcxIm_Click();
    e.frm.Files.CloseAll();
    return 0;
}
