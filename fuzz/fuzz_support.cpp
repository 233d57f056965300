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

// The editor, loaded as at start: Form_Load with the game's palette.
struct Editor {
    platform::ScriptedHost host;
    FrmMain frm;
    std::string file; // the path each input is written to
    Editor() : host(workFolder()), frm(host), file(host.AppPath() + "/input.bin") {
        frm.Form_Load();
    }
};

} // namespace

void run(const Target& target, const uint8_t* data, std::size_t size) {
    static Editor* e = new Editor(); // lives to the end of the process, as frmMain does
    {
        std::ofstream out(e->file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    // A file the last input's road left open would only make the next one differ from
    // a replay of it alone.
    e->frm.Files.CloseAll();
    const std::string fault =
        replay(e->frm, e->host, target, Input{e->file, data, size}, TAVRIN_TEST_DATA);
    if (!fault.empty()) {
        std::fprintf(stderr, "fuzz_%s: the input %s\n", target.name, fault.c_str());
        std::abort();
    }
}

} // namespace tavrin::fuzz
