#pragma once
// What every fuzz target shares: one editor made once (it is big, and a run of the
// program keeps one for its whole life too), and the input written to a file, since
// the readers read files.
#include "editor/frm_main.h"
#include "platform/scripted_host.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tavrin::fuzz {

struct Editor {
    platform::ScriptedHost host;
    FrmMain frm;
    std::string file; // the path each input is written to
    Editor();
};

// The editor, loaded as at start: Form_Load with the game's palette.
Editor& editor();

// Writes the input to editor().file.
void writeInput(const uint8_t* data, std::size_t size);

} // namespace tavrin::fuzz
