#include "model/model_preview.h"

#include "editor/frm_main.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <new>

namespace tavrin {

std::shared_ptr<const PreviewModel> readPreviewModel(const std::string& path) {
    auto model = std::make_shared<PreviewModel>();
    model->path = path;
    auto fail = [&model](const char* why) {
        model->read = Md2MeshRead{};
        model->read.problem = why;
        return model;
    };
    try {
        // A folder opens as a stream too, with a length of its own.
        std::error_code error;
        if (!std::filesystem::is_regular_file(path, error))
            return fail("The model's file can't be read.");
        std::ifstream in(path, std::ios::binary | std::ios::ate);
        if (!in) return fail("The model's file can't be read.");
        const std::streamoff size = in.tellg();
        if (size < 0) return fail("The model's file can't be read.");
        if (size > kPreviewMostModelBytes) return fail("The file is too large to be a model.");
        std::vector<uint8_t> bytes(static_cast<std::size_t>(size));
        in.seekg(0);
        in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
        if (in.gcount() != static_cast<std::streamsize>(size))
            return fail("The model's file can't be read.");
        model->read = readMd2Mesh(bytes);
    } catch (const std::bad_alloc&) {
        return fail("There is not enough memory to show the model.");
    }
    return model;
}

// The grid's whole rows within its bounds, Skin_Height of them at most.
SkinTexture editorSkinTexture(const FrmMain& frm) {
    SkinTexture skin;
    editorSkinTexture(frm, skin);
    return skin;
}

void editorSkinTexture(const FrmMain& frm, SkinTexture& skin) {
    skin.width = skin.height = 0;
    skin.px.clear();
    if (!frm.Skin_Grid.allocated()) return;
    double width = 0, height = 0;
    try {
        width = std::floor(frm.Skin_Width.num());
        height = std::floor(frm.Skin_Height.num());
    } catch (const vb::Error&) {
        return; // a width that isn't a number: no skin to show
    }
    const auto cells = static_cast<double>(frm.Skin_Grid.size());
    if (!(width >= 1 && width <= cells) || !(height >= 1)) return;
    // The rows the picture has, as the header that a save writes gives them: a PCX load
    // keeps three rows more in the grid than the picture shows.
    const double headerRows = frm.PCX_Header(11) + 256.0 * frm.PCX_Header(12) + 1;
    height = std::min({height, headerRows, std::floor(cells / width)});
    skin.width = static_cast<int>(width);
    skin.height = static_cast<int>(height);

    uint32_t colours[256];
    for (int p = 0; p < 256; ++p) {
        const PalRecord& r = frm.Pal_Table(p);
        auto channel = [](int32_t v) { return static_cast<uint32_t>(std::clamp(v, 0, 255)); };
        colours[p] = channel(r.Red) | channel(r.Green) << 8 | channel(r.Blue) << 16;
    }
    const std::size_t count = static_cast<std::size_t>(skin.width) * skin.height;
    skin.px.resize(count);
    const int16_t* grid = frm.Skin_Grid.data(); // count <= its size, checked above
    for (std::size_t k = 0; k < count; ++k) {
        const int16_t index = grid[k];
        // Only the palette's 256 colours reach a saved skin; any other index shows black.
        skin.px[k] = static_cast<uint16_t>(index) < 256 ? colours[index] : 0;
    }
}

std::vector<FrameGroup> frameGroups(const Md2Mesh& mesh) {
    std::vector<FrameGroup> groups;
    for (std::size_t k = 0; k < mesh.frames.size(); ++k) {
        std::string name = frameGroup(mesh.frames[k].name);
        if (!groups.empty() && groups.back().name == name)
            ++groups.back().count;
        else
            groups.push_back(FrameGroup{std::move(name), k, 1});
    }
    return groups;
}

std::string previewProblem(const PreviewModel* model) {
    if (!model)
        return "No model has been read: make a new skin from a model or import a wireframe.";
    if (!model->read.problem.empty()) return "This model can't be shown. " + model->read.problem;
    return "";
}

void FrmMain::keepPreviewModel() { previewModel_ = readPreviewModel(File_Name); }

void FrmMain::mPreview_Click() {
    if (showModelPreview) showModelPreview();
}

} // namespace tavrin
