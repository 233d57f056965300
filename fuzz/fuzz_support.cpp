#include "fuzz_support.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/mman.h>
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

// The input's file, in memory: the commands open it by name as any file, but writing
// each input costs no disk.
struct MemoryFile {
    int fd = ::memfd_create("tavrin-fuzz-input", MFD_CLOEXEC);
    std::string path = "/proc/self/fd/" + std::to_string(fd);

    void write(const uint8_t* data, std::size_t size) const {
        if (fd < 0 || ::ftruncate(fd, 0) != 0) std::abort();
        for (std::size_t done = 0; done < size;) {
            const ssize_t n = ::pwrite(fd, data + done, size - done, static_cast<off_t>(done));
            if (n <= 0) std::abort();
            done += static_cast<std::size_t>(n);
        }
    }
};

// The editor, loaded as at start: Form_Load with the game's palette.
struct Editor {
    platform::ScriptedHost host;
    FrmMain frm;
    MemoryFile file; // where each input lies
    Editor() : host(workFolder()), frm(host) { frm.Form_Load(); }
};

} // namespace

void run(const Target& target, const uint8_t* data, std::size_t size) {
    static Editor* e = new Editor(); // lives to the end of the process, as frmMain does
    e->file.write(data, size);
    // A file the last input's road left open would only make the next one differ from
    // a replay of it alone.
    e->frm.Files.CloseAll();
    const std::string fault =
        replay(e->frm, e->host, target, Input{e->file.path, data, size}, TAVRIN_TEST_DATA);
    if (!fault.empty()) {
        std::fprintf(stderr, "fuzz_%s: the input %s\n", target.name, fault.c_str());
        std::abort();
    }
}

} // namespace tavrin::fuzz
