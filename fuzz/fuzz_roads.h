#pragma once
// The road by which each fuzz target's input reaches its reader: the command a user
// would give, with the dialogs answered. The fuzz targets and the test that replays the
// inputs fuzzing found share these, so a replayed input takes the road that found it
// and is judged by the same rules.
#include "editor/frm_main.h"
#include "platform/scripted_host.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::fuzz {

struct Input {
    std::string path; // where the bytes lie
    const uint8_t* data;
    std::size_t size;
};

struct Target {
    const char* name; // fuzz_<name>, tests/data/regressions/<name>/
    void (*road)(FrmMain&, platform::ScriptedHost&, const Input&);
    std::vector<std::string> messages; // what the command may show with a bad file
    const char* goodFile;              // in tests/data: a file the command takes whole
    bool (*tookGoodFile)(const FrmMain&, const platform::ScriptedHost&);
};

// "&PCX File", the palette taken from the skin when the last byte is odd.
extern const Target kPcx;
// The raw palette reader, from the first byte, or the file's tail when the first byte is
// odd, as opening a skin with its palette does.
extern const Target kPal;
// "&New Skin" from the file as a model.
extern const Target kMd2Frame;
// "&Unload Current Wireframe", then "&Wire Frame" with the file as the model, at a zoom
// chosen by the first byte (part of the ident, which the reader never tests).
extern const Target kMd2Import;

inline const Target* const kTargets[] = {&kPcx, &kPal, &kMd2Frame, &kMd2Import};

// Sends the input down the target's road and then the good file after it, each with a
// host that has nothing queued or recorded. Returns what went wrong: a message the
// command doesn't show for a bad file, or an editor the input left unable to take the
// good file. Empty when nothing did.
std::string replay(FrmMain& frm, platform::ScriptedHost& host, const Target& target,
                   const Input& input, const std::string& dataFolder);

} // namespace tavrin::fuzz
