// The model preview drawing anew, as the window does at a stroke's mouse-up: the largest
// real model drawn at 512 x 512, wearing the skin that came with it, a frame after another. Its
// budget is the canvas's repaint of a 1920 x 1080 view at zoom 8 (canvas_benchmarks.cpp).
#include "bench_support.h"
#include "model/model_preview.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace tavrin::bench {

namespace {

// The real model with the most triangles that can be shown, or nullptr without the files.
std::shared_ptr<const PreviewModel> largestRealModel() {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(TAVRIN_REALDATA) / "md2";
    std::shared_ptr<const PreviewModel> best;
    std::error_code error;
    if (!fs::exists(root, error)) return best;
    for (const auto& entry : fs::recursive_directory_iterator(root, error)) {
        const std::string ext = entry.path().extension().string();
        if (ext != ".md2" && ext != ".MD2") continue;
        auto model = readPreviewModel(entry.path().string());
        if (model->read.problem.empty() &&
            (!best || model->read.mesh.triangles.size() > best->read.mesh.triangles.size()))
            best = model;
    }
    return best;
}

void renderLargestModel(benchmark::State& state) {
    const auto model = largestRealModel();
    if (!model) {
        state.SkipWithError("no real models");
        return;
    }
    // The skin beside the model, opened as the user opens it; the big skin without one.
    Editor e;
    std::string skin = bigSkinPath();
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(model->path).parent_path(), error))
        if (entry.path().extension() == ".pcx" || entry.path().extension() == ".PCX")
            skin = entry.path().string();
    e.host.answerOpen(skin);
    e.host.answerMsgBox(platform::kMsgNo);
    e.frm.pcxIm_Click();
    const PreviewView view{30, 15, 1, true}; // as the window first shows it
    std::size_t frame = 0;
    // The picture's buffers kept from one picture to the next, as the window keeps them.
    // The skin's colours are made once: the window makes them when it looks whether the
    // skin changed, drawing or not.
    const SkinTexture texture = editorSkinTexture(e.frm);
    PreviewBuffers buffers;
    for (auto _ : state) {
        renderPreview(model->read.mesh, frame, texture, view, 512, 512, buffers);
        benchmark::DoNotOptimize(buffers.px.data());
        frame = (frame + 1) % model->read.mesh.frames.size();
    }
    state.SetLabel(std::filesystem::path(model->path).parent_path().filename().string() + ", " +
                   std::to_string(model->read.mesh.triangles.size()) + " triangles, skin " +
                   std::filesystem::path(skin).filename().string());
}
BENCHMARK(renderLargestModel)->Name("preview/path")->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace tavrin::bench
