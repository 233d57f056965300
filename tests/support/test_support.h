#pragma once
// Shared pieces of the core tests: temporary folders and files, and an editor driven
// by a scripted host whose program folder is such a temporary folder.
#include "editor/frm_main.h"
#include "platform/scripted_host.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tavrin::test {

using Bytes = std::vector<uint8_t>;

// A folder of one test's own, removed with everything in it afterwards.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    // Writes the bytes to name in the folder; returns the full path.
    std::string write(const std::string& name, const Bytes& bytes) const;

private:
    std::filesystem::path path_;
};

Bytes readFile(const std::string& path);

// count bytes, byte k (0-based) being fn(k).
Bytes makeBytes(std::size_t count, const std::function<uint8_t(std::size_t)>& fn);

// The game's palette as the build ships it (768 bytes).
Bytes gamePalette();

constexpr int32_t packed(int r, int g, int b) { return r | (g << 8) | (b << 16); }

// Every property of every control of a form, as text: compare two of them to see that
// nothing on the window changed.
std::string controlSnapshot(const platform::Form& form);

// The editor as the form run time makes it, before Form_Load, with its program folder
// in a temporary folder.
class EditorTest : public ::testing::Test {
protected:
    TempDir dir;
    platform::ScriptedHost host{dir.path().string()};
    FrmMain frm{host};

    // Puts Quake2.PAL beside the program, as the build does.
    void installGamePalette() const;
    // Writes the bytes to a file and reads it with Get_Pal; returns the path.
    std::string loadPalette(const Bytes& bytes, const std::string& name = "test.pal");
};

} // namespace tavrin::test
