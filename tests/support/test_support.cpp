#include "support/test_support.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tavrin::test {

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tavrin-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

std::string TempDir::write(const std::string& name, const Bytes& bytes) const {
    std::string full = file(name);
    std::ofstream out(full, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("can't write " + full);
    return full;
}

Bytes readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("can't read " + path);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

Bytes makeBytes(std::size_t count, const std::function<uint8_t(std::size_t)>& fn) {
    Bytes bytes(count);
    for (std::size_t k = 0; k < count; ++k)
        bytes[k] = fn(k);
    return bytes;
}

Bytes gamePalette() { return readFile(TAVRIN_PALETTE_FILE); }

std::string controlSnapshot(const platform::Form& form) {
    std::string out;
    auto add = [&out](const platform::Control& c) {
        for (const platform::PropBase* p : c.properties())
            out += c.name() + "." + p->name() + "=" + p->text() + "\n";
    };
    add(form);
    for (const platform::Control* c : form.controls())
        add(*c);
    return out;
}

void EditorTest::installGamePalette() const { dir.write("Quake2.PAL", gamePalette()); }

std::string EditorTest::loadPalette(const Bytes& bytes, const std::string& name) {
    std::string path = dir.write(name, bytes);
    frm.Pal_Path = path;
    frm.Get_Pal();
    return path;
}

} // namespace tavrin::test
