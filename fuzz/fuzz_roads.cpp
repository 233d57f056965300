#include "fuzz_roads.h"

#include "model/model_preview.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>

namespace tavrin::fuzz {

namespace {

const std::string kLoadProblem =
    "There was a problem loading the file. Check the filename and/or format.";
const std::string kNoPalette = "Path/File not found, or not a valid file.";
const std::string kPaletteQuestion = "Import Palette From Skin?";
const std::string kRecommend =
    "Tavrin Recommends that you now save this wireframe as a PCX file for optimal "
    "performance. Painting on the MD2 wireframe can be extremely slow.";

// Read once: the good file follows every input.
const std::vector<uint8_t>& fileBytes(const std::string& path) {
    static std::map<std::string, std::vector<uint8_t>> read;
    auto [it, fresh] = read.try_emplace(path);
    if (fresh) {
        std::ifstream in(path, std::ios::binary);
        it->second.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return it->second;
}

std::vector<std::string> shown(const platform::ScriptedHost& host) {
    std::vector<std::string> texts;
    for (const auto& m : host.messages())
        texts.push_back(m.text);
    return texts;
}

void openSkin(FrmMain& frm, platform::ScriptedHost& host, const Input& in) {
    host.answerOpen(in.path);
    host.answerMsgBox(in.size > 0 && (in.data[in.size - 1] & 1) ? platform::kMsgYes
                                                                : platform::kMsgNo);
    frm.pcxIm_Click();
}

// A failed reading leaves its file open until a command closes every file (reading a
// skin, a model or saving does); each reading here starts as after such a command.
void readPalette(FrmMain& frm, platform::ScriptedHost&, const Input& in) {
    frm.Files.CloseAll();
    frm.Pal_Path = in.path;
    if (in.size > 0 && (in.data[0] & 1)) frm.Pal_Answer = 6;
    frm.Get_Pal();
}

void newSkin(FrmMain& frm, platform::ScriptedHost& host, const Input& in) {
    host.answerOpen(in.path);
    frm.NewSkin_Click();
}

void importWireframe(FrmMain& frm, platform::ScriptedHost& host, const Input& in) {
    frm.UCW_Click();
    frm.Zoom_Factor =
        std::ldexp(1.0, in.size > 0 ? in.data[0] % 7 - 3 : 0); // the zoom tool's 1/8 to 8
    host.answerOpen(in.path);
    frm.wF_Click();
    // The model preview of what was read: its last frame, turned by the input's second byte.
    const auto model = frm.previewModel();
    if (model && model->read.problem.empty())
        renderPreview(model->read.mesh, model->read.mesh.frames.size() - 1, editorSkinTexture(frm),
                      PreviewView{in.size > 1 ? in.data[1] * 1.5 : 0, 20, 1, true}, 24, 24);
}

} // namespace

// odd-width-7x5.pcx ends in an even byte: its palette isn't taken.
const Target kPcx{"pcx",
                  openSkin,
                  {kPaletteQuestion, kLoadProblem, kNoPalette},
                  "odd-width-7x5.pcx",
                  [](const FrmMain& frm, const platform::ScriptedHost& host) {
                      return shown(host) == std::vector<std::string>{kPaletteQuestion} &&
                             frm.Skin_Width == 7;
                  }};

// Quake2.PAL starts with an even byte: read from the first. Its last colour is
// (159, 91, 83), which the extra pass of a 768-byte file repeats in record 256.
const Target kPal{"pal",
                  readPalette,
                  {kNoPalette},
                  "../../data/Quake2.PAL",
                  [](const FrmMain& frm, const platform::ScriptedHost& host) {
                      auto last = [&](int n) {
                          const PalRecord& r = frm.Pal_Table(n);
                          return r.Red == 159 && r.Green == 91 && r.Blue == 83;
                      };
                      return host.messages().empty() && last(255) && last(256);
                  }};

const Target kMd2Frame{"md2_frame",
                       newSkin,
                       {kLoadProblem, kRecommend},
                       "tetra-32x24.md2",
                       [](const FrmMain& frm, const platform::ScriptedHost& host) {
                           return shown(host) == std::vector<std::string>{kRecommend} &&
                                  frm.Skin_Width == 32 && frm.Skin_Height == 24;
                       }};

// The wireframe command shows nothing, even when its reading fails.
const Target kMd2Import{"md2_import",
                        importWireframe,
                        {},
                        "tetra-32x24.md2",
                        [](const FrmMain& frm, const platform::ScriptedHost& host) {
                            return host.messages().empty() && frm.wF.Checked &&
                                   frm.Tri_Table.UBound() == 10000 && frm.UV_Table(1).S == 29;
                        }};

std::string replay(FrmMain& frm, platform::ScriptedHost& host, const Target& target,
                   const Input& input, const std::string& dataFolder) {
    host = platform::ScriptedHost(host.AppPath());
    target.road(frm, host, input);
    for (const std::string& text : shown(host))
        if (std::find(target.messages.begin(), target.messages.end(), text) ==
            target.messages.end())
            return "showed \"" + text + "\"";

    const std::string good = dataFolder + "/" + target.goodFile;
    const std::vector<uint8_t>& bytes = fileBytes(good);
    host = platform::ScriptedHost(host.AppPath());
    target.road(frm, host, Input{good, bytes.data(), bytes.size()});
    if (!target.tookGoodFile(frm, host)) return "left the editor unable to take " + good;
    return "";
}

} // namespace tavrin::fuzz
