// The model preview's two pure halves: the whole model read from its bytes, with the
// reasons a damaged one can't be shown, and the picture drawn of it.
#include "model/md2_files.h"
#include "model/md2_mesh.h"
#include "model/preview_render.h"

namespace tavrin::test {
namespace {

SkinTexture cardSkin() { return SkinTexture{4, 4, std::vector<uint32_t>(16, 0x808080)}; }

// Which texel each face shows, and the back after a half turn, is the driver's test
// (cli/model_preview_test.cpp), through the editor's skin; here what no skin decides.
TEST(ModelPreview, AnEdgeOnCardOrAFrameThereIsntDrawsLittleOrNothing) {
    const Md2MeshRead read = readMd2Mesh(previewCard().bytes());
    ASSERT_EQ(read.problem, "");
    ASSERT_EQ(read.mesh.frames.size(), 2u);
    EXPECT_EQ(read.mesh.frames[1].name, "run1");
    const int size = 64;
    // Seen from above, the card is an edge: little but background.
    const auto above =
        renderPreview(read.mesh, 0, cardSkin(), PreviewView{0, 90, 1, true}, size, size);
    EXPECT_GT(std::count(above.begin(), above.end(), kPreviewBackground), size * size * 9 / 10);
    // No such frame: background only.
    const auto none = renderPreview(read.mesh, 5, cardSkin(), PreviewView{}, size, size);
    EXPECT_EQ(std::count(none.begin(), none.end(), kPreviewBackground), size * size);
}

TEST(ModelPreview, ADamagedModelSaysWhyInsteadOfShowingPart) {
    auto problem = [](const Md2& m, std::size_t cut = 0) {
        Bytes b = m.bytes();
        b.resize(b.size() - cut);
        return readMd2Mesh(b).problem;
    };
    Md2 m = previewCard();
    EXPECT_NE(problem(m, 1), ""); // the last frame cut short
    m.xyz[3] = {5, 7, 8};         // a vertex past the eight there are
    EXPECT_NE(problem(m), "");
    m = previewCard();
    m.tris[0] = {0, 1, 9};
    EXPECT_NE(problem(m), "");
    m = previewCard();
    m.numTris = 1 << 30; // a count no file could hold asks for nothing
    EXPECT_NE(problem(m), "");
    EXPECT_NE(readMd2Mesh(Bytes(40, 0)).problem, "");
    // What the editor reads of such a model is not the preview's business: the wireframe
    // model of the other tests (no frames) is refused here alone.
    Md2 wire;
    wire.st = {{1, 1}};
    wire.tris = {{0, 0, 0}};
    EXPECT_NE(problem(wire), "");
}

TEST(ModelPreview, RealModelsReadWholeOrSayWhy) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(TAVRIN_REALDATA) / "md2";
    if (!fs::exists(root)) GTEST_SKIP() << "no real models at " << root;
    int shown = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string ext = entry.path().extension().string();
        if (ext != ".md2" && ext != ".MD2") continue;
        const Md2MeshRead read = readMd2Mesh(readFile(entry.path().string()));
        if (!read.problem.empty()) continue;
        ++shown;
        const auto px = renderPreview(read.mesh, read.mesh.frames.size() - 1, SkinTexture{},
                                      PreviewView{30, 20, 1, true}, 48, 48);
        EXPECT_LT(std::count(px.begin(), px.end(), kPreviewBackground), 48 * 48) << entry.path();
    }
    EXPECT_GT(shown, 40);
}

} // namespace
} // namespace tavrin::test
