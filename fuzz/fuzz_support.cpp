#include "fuzz_support.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace tavrin::fuzz {

namespace {
std::string workFolder() {
    auto dir = std::filesystem::temp_directory_path() / ("tavrin-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    std::filesystem::copy_file(TAVRIN_PALETTE_FILE, dir / "Quake2.PAL",
                               std::filesystem::copy_options::overwrite_existing);
    return dir.string();
}
} // namespace

Editor::Editor() : host(workFolder()), frm(host), file(host.AppPath() + "/input.bin") {
    frm.Form_Load();
}

Editor& editor() {
    static Editor* e = new Editor(); // lives to the end of the process, as frmMain does
    return *e;
}

void writeInput(const uint8_t* data, std::size_t size) {
    std::ofstream out(editor().file, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

} // namespace tavrin::fuzz
