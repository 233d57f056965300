// What the model preview takes from the editor and from files: the skin through the
// palette, the frames' groups, a model file read whole or refused, pictures of meshes no
// reader would make, and the damaged and real models read from their bytes.
#include "model/md2_files.h"
#include "model/md2_mesh.h"
#include "model/model_preview.h"
#include "model/preview_render.h"
#include "skinfiles/pcx_test_support.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <tuple>

namespace tavrin::test {
namespace {

TEST(PreviewSource, FramesGroupByNameWhileTheyFollowEachOther) {
    Md2Mesh mesh;
    for (const char* name : {"stand01", "stand02", "run1", "run2", "stand03", "", "pain"})
        mesh.frames.push_back(Md2Mesh::Frame{{}, {}, name, {}});
    const auto groups = frameGroups(mesh);
    const std::vector<std::tuple<std::string, std::size_t, std::size_t>> expected = {
        {"stand", 0, 2}, {"run", 2, 2}, {"stand", 4, 1}, {"", 5, 1}, {"pain", 6, 1}};
    ASSERT_EQ(groups.size(), expected.size());
    for (std::size_t k = 0; k < groups.size(); ++k)
        EXPECT_EQ(std::tie(groups[k].name, groups[k].first, groups[k].count), expected[k]);
}

struct SkinTextureTest : EditorTest {
    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
    }
    uint32_t colour(int index) {
        const PalRecord& r = frm.Pal_Table(index);
        return static_cast<uint32_t>(packed(r.Red, r.Green, r.Blue));
    }
};

// A PCX load keeps three rows more in the grid than the picture has: they are no part of
// the skin the model wears.
TEST_F(SkinTextureTest, TheSkinIsThePicturesCellsThroughThePalette) {
    EXPECT_EQ(editorSkinTexture(frm).px.size(), 0u); // no skin yet
    openSkin(host, frm, dir.write("s.pcx", encodePcx(3, 2, {1, 2, 3, 200, 15, 0}, gamePalette())));
    ASSERT_EQ(frm.Skin_Height.num(), 5);
    frm.Skin_Grid(4) = 300; // no colour of the palette
    frm.Skin_Grid(5) = -2;
    const SkinTexture skin = editorSkinTexture(frm);
    EXPECT_EQ(skin.width, 3);
    EXPECT_EQ(skin.height, 2);
    EXPECT_EQ(skin.px, (std::vector<uint32_t>{colour(1), colour(2), colour(3), colour(200), 0, 0}));
    frm.Skin_Width = "wide"; // not a number: nothing to show, and no error
    EXPECT_EQ(editorSkinTexture(frm).px.size(), 0u);
    frm.Skin_Width = 1e12; // wider than the grid
    EXPECT_EQ(editorSkinTexture(frm).px.size(), 0u);
}

TEST(PreviewSource, AModelFileIsReadWholeOrSaysWhyNot) {
    TempDir dir;
    const std::string card = dir.write("card.md2", previewCard().bytes());
    const std::string huge = dir.file("huge.md2");
    { std::ofstream(huge).put('x'); }
    // Sparse: nothing of it is written, and the reader must not take it in.
    std::filesystem::resize_file(huge, kPreviewMostModelBytes + 1);
    const struct {
        std::string path, problem;
    } cases[] = {
        {card, ""},
        {dir.file("missing.md2"), "The model's file can't be read."},
        {huge, "The file is too large to be a model."},
        {dir.path().string(), "The model's file can't be read."},
    };
    for (const auto& c : cases) {
        const auto model = readPreviewModel(c.path);
        EXPECT_EQ(model->path, c.path);
        EXPECT_EQ(model->read.problem, c.problem) << c.path;
    }
    EXPECT_EQ(previewProblem(readPreviewModel(card).get()), "");
    EXPECT_NE(previewProblem(nullptr), "");
}

std::size_t backgroundPixels(const std::vector<uint32_t>& px) {
    return static_cast<std::size_t>(std::count(px.begin(), px.end(), kPreviewBackground));
}

// Meshes and views that come from no reader: a corner past the vertices, a skin shorter
// than its size says, angles and zooms that aren't numbers. Each draws or leaves the
// background; none reads outside its arrays.
TEST(PreviewSource, MeshesAndViewsNoReaderMakesStayInsideTheirArrays) {
    const Md2Mesh card = readMd2Mesh(previewCard().bytes()).mesh;
    Md2Mesh badCorner = card;
    badCorner.triangles[1][2].vertex = 8;
    Md2Mesh badSt = card;
    badSt.triangles[0][0].st = 99;
    const SkinTexture skin{4, 4, std::vector<uint32_t>(16, 0x0000FF)};
    const SkinTexture shortSkin{4, 4, std::vector<uint32_t>(3, 0x0000FF)};
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    const struct {
        const Md2Mesh& mesh;
        const SkinTexture& skin;
        PreviewView view;
        bool drawn;
    } cases[] = {
        {card, skin, {}, true},
        {badCorner, skin, {}, false},
        {badSt, skin, {}, false},
        {card, shortSkin, {}, true},
        {card, skin, {nan, inf, nan, true}, true},
        {card, skin, {1e300, -1e300, 1e300, false}, true},
        {card, skin, {0, 0, -5, true}, false}, // the smallest zoom: under a pixel
    };
    for (const auto& c : cases) {
        const auto px = renderPreview(c.mesh, 0, c.skin, c.view, 32, 32);
        ASSERT_EQ(px.size(), 32u * 32u);
        EXPECT_EQ(backgroundPixels(px) < px.size(), c.drawn) << &c - cases;
    }
}

// The coordinates count pixels of the skin size the model names: a skin twice as large
// is stretched over the same faces.
TEST(PreviewSource, ASkinOfAnotherSizeIsStretchedOverTheCoordinates) {
    const Md2Mesh card = readMd2Mesh(previewCard().bytes()).mesh;
    SkinTexture big{8, 8, std::vector<uint32_t>(64, 0x808080)};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            big.px[static_cast<std::size_t>(8 * y + x)] = 0x0000FF; // the first 2 x 2: red
    const auto px = renderPreview(card, 0, big, PreviewView{0, 0, 1, false}, 64, 64);
    const uint32_t topLeft = px[24 * 64 + 24], bottomRight = px[40 * 64 + 40];
    EXPECT_GT(topLeft & 0xFF, 60u);
    EXPECT_EQ(topLeft >> 8 & 0xFFFF, 0u);
    EXPECT_EQ(bottomRight & 0xFF, bottomRight >> 8 & 0xFF); // grey
}

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

// A cut frame, a vertex past the frame, no frames and a short file are the driver's test,
// with their messages; here the faults it can't reach.
TEST(ModelPreview, ADamagedModelSaysWhyInsteadOfShowingPart) {
    Md2 m = previewCard();
    m.tris[0] = {0, 1, 9}; // a texture coordinate past the eight there are
    EXPECT_NE(readMd2Mesh(m.bytes()).problem, "");
    m = previewCard();
    m.numTris = 1 << 30; // a count no file could hold asks for nothing
    EXPECT_NE(readMd2Mesh(m.bytes()).problem, "");
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
