#pragma once
// The model preview's side of the editor: the last model New Skin or the wireframe import
// read, kept whole, the skin as it stands turned into colours, and the frames grouped by
// name. The window that shows it lives in the Qt layer; the headless driver renders it too.
#include "model/md2_mesh.h"
#include "model/preview_render.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tavrin {

class FrmMain;

// A model as the preview holds it: where it came from and what was made of it.
struct PreviewModel {
    std::string path;
    Md2MeshRead read; // read.problem says why it can't be shown
};

// The largest file taken as a model: well above a model at every limit of readMd2Mesh
// (frames of 8192 vertices, 1024 of them, are 33.6 MB).
inline constexpr std::int64_t kPreviewMostModelBytes = 48LL << 20;

// The file read whole and made into a mesh. Never throws: a file that can't be read, is
// too large or is damaged gives a model whose problem says so.
std::shared_ptr<const PreviewModel> readPreviewModel(const std::string& path);

// The skin as the editor holds it now: each cell of the grid through the palette, the
// grid's rows as wide as its stride. An index the palette doesn't hold shows black; no
// skin gives an empty texture.
SkinTexture editorSkinTexture(const FrmMain& frm);
// The same into a texture whose memory is taken again.
void editorSkinTexture(const FrmMain& frm, SkinTexture& into);

// Frames that share a group name and follow each other ("run1" to "run6").
struct FrameGroup {
    std::string name;
    std::size_t first = 0, count = 0;
};
std::vector<FrameGroup> frameGroups(const Md2Mesh& mesh);

// Why there is nothing to show, or empty when the model can be drawn.
std::string previewProblem(const PreviewModel* model);

} // namespace tavrin
