// Every input that fuzzing once found, in tests/data/regressions/<target>/, replayed down
// the road of the target that found it in an editor of its own, and judged as the fuzz
// target judges it: only the command's own messages, nothing escaping, and the editor
// still able to take a good file afterwards.
#include "fuzz/fuzz_roads.h"
#include "support/test_support.h"

#include <algorithm>
#include <filesystem>

namespace tavrin::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    if (fs::is_directory(folder))
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// An editor loaded as at start, with the game's palette beside it.
struct Editor {
    TempDir dir;
    platform::ScriptedHost host{dir.path().string()};
    FrmMain frm{host};
    Editor() {
        dir.write("Quake2.PAL", gamePalette());
        frm.Form_Load();
    }
    std::string replay(const fuzz::Target& target, const fs::path& file) {
        const Bytes bytes = readFile(file.string());
        return fuzz::replay(frm, host, target,
                            fuzz::Input{file.string(), bytes.data(), bytes.size()},
                            TAVRIN_TEST_DATA);
    }
};

TEST(FuzzRegressions, EveryFoundInputEndsInItsCommandsOwnBehaviour) {
    for (const fuzz::Target* target : fuzz::kTargets) {
        for (const fs::path& file :
             filesIn(fs::path(TAVRIN_TEST_DATA) / "regressions" / target->name)) {
            Editor editor;
            std::string fault;
            EXPECT_NO_THROW(fault = editor.replay(*target, file)) << file;
            EXPECT_EQ(fault, "") << file;
        }
    }
}

// A judge that refused its own good file would make every input a finding. The model the
// md2 targets start from is one the reader takes whole.
TEST(FuzzRegressions, EachTargetTakesItsGoodFile) {
    for (const fuzz::Target* target : fuzz::kTargets) {
        Editor editor;
        EXPECT_EQ(editor.replay(*target, fs::path(TAVRIN_TEST_DATA) / target->goodFile), "")
            << target->name;
        if (target != &fuzz::kMd2Frame) continue;
        for (auto [x, y] : {std::pair{2, 2}, {29, 2}, {15, 21}, {2, 21}, {29, 21}})
            EXPECT_EQ(editor.frm.Skin_Grid(y * 32 + x), 15);
    }
}

} // namespace
} // namespace tavrin::test
