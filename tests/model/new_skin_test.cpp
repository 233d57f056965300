// New skin from a model: the reader's rules, the header's size bytes, the grid of 0 and
// 15, the error path, and the real models.
#include "model/md2_files.h"
#include "skinfiles/pcx_test_support.h"

#include <algorithm>
#include <filesystem>

namespace tavrin::test {
namespace {

using NewSkin = ModelTest;

int countOf(FrmMain& frm, int16_t v) {
    return static_cast<int>(
        std::count(frm.Skin_Grid.data(), frm.Skin_Grid.data() + frm.Skin_Grid.size(), v));
}

TEST_F(NewSkin, BlackSkinWithTheMeshInWhiteAndAGridOf0And15) {
    const std::string path = write(Md2{
        .skinWidth = 20, .skinHeight = 12, .st = {{1, 1}, {10, 1}, {1, 8}}, .tris = {{0, 1, 2}}});
    newSkin(path);
    EXPECT_EQ(lastMessage().substr(0, 16), "Tavrin Recommend");
    EXPECT_EQ(frm.Skin_Width.str() + "x" + frm.Skin_Height.str(), "20x12");
    EXPECT_EQ(frm.Skin_Grid.UBound(), 20 * 12 + 1000);
    EXPECT_EQ(frm.picture1.Point(5, 1), 0xFFFFFF);
    for (auto [x, y] : {std::pair{1, 1}, {5, 1}, {10, 1}, {1, 8}, {1, 4}})
        EXPECT_EQ(frm.Skin_Grid(y * 20 + x), 15);
    EXPECT_EQ(countOf(frm, 15), 10 + 10 + 8 - 3); // three edges, shared corners once
    EXPECT_EQ(sizeBytes(), (std::vector<int>{19, 0, 11, 0}));
    // The model is dropped; the editor stands as after a PCX load.
    EXPECT_EQ(frm.Tri_Table.UBound(), 0);
    EXPECT_EQ(frm.Wire_Loaded, 0);
    EXPECT_EQ(frm.Model_Path.str(), path);
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Ready");
    EXPECT_EQ(frm.Picture7.Point(10, 1), 0xFFFFFF);
    // The scan leaves the colour of the last pixel it read, a line's here.
    newSkin(
        write(Md2{.skinWidth = 6, .skinHeight = 4, .st = {{0, 0}, {5, 3}}, .tris = {{0, 1, 1}}}));
    EXPECT_EQ(frm.Cur_Color, 0xFFFFFF);
}

TEST_F(NewSkin, ReaderTakesWhatTheFileSaysUpToItsTables) {
    newSkin(write(Md2{.skinWidth = 7, .skinHeight = 5})); // no triangle: black, still sized
    EXPECT_EQ(frm.picture1.innerHeight(), 5);
    EXPECT_EQ(countOf(frm, 0), 7 * 5 + 1001);
    // Corner indices that no record filled read (0, 0), up to the tables' last record.
    newSkin(write(Md2{.st = {{6, 6}}, .tris = {{0, 10000, 5}}}));
    for (int at : {0, 3 * 16 + 3, 6 * 16 + 6})
        EXPECT_EQ(frm.Skin_Grid(at), 15);
    newSkin(write(Md2{.numTris = 10001})); // missing records are zeros
    EXPECT_EQ(frm.Skin_Grid(0), 15);
    for (Md2 bad :
         {Md2{.numTris = 10002}, Md2{.numSt = 10002}, Md2{.st = {{1, 1}}, .tris = {{0, 0, 10001}}},
          Md2{.st = {{1, 1}}, .tris = {{0, -1, 0}}}, Md2{.skinWidth = -5}}) {
        newSkin(write(bad));
        EXPECT_EQ(lastMessage(), kLoadProblem);
        EXPECT_EQ(frm.Tri_Table.UBound(), 0);
        EXPECT_EQ(frm.Wire_Loaded, 1);
    }
    newSkin(write(Md2{.skinWidth = 5})); // the failures closed the file
    EXPECT_EQ(frm.Skin_Width, 5);
    // Records up to 10000 are in before the failure.
    Md2 many{.numSt = 10002};
    many.st.resize(10001);
    many.st[10000] = {3, 4};
    frm.File_Name = write(many);
    EXPECT_THROW(frm.Import_Frame(), vb::Error);
    EXPECT_EQ(frm.UV_Table(10000).T, 4);
    // A field the file is too short for keeps what the last model left there.
    frm.File_Name = dir.write("short.md2", Bytes{'I', 'D', 'P', '2', 8, 0, 0, 0, 0x2C, 1});
    frm.MD2_Num_St = frm.MD2_Num_Tris = 0;
    frm.MD2_Skin_Width = 77;
    EXPECT_NO_THROW(frm.Import_Frame());
    EXPECT_EQ(frm.MD2_Skin_Width, 77);
}

TEST_F(NewSkin, SizeBytesFollowTheTwoWidthRules) {
    for (auto [w, h, bytes] : {std::tuple{256, 10, std::vector{255, 0, 9, 0}},
                               {257, 300, {0, 1, 43, 1}},
                               {300, 2, {43, 1, 1, 0}},
                               {512, 1, {255, 1, 0, 0}}}) {
        newSkin(write(Md2{.skinWidth = w, .skinHeight = h}));
        EXPECT_EQ(sizeBytes(), bytes) << w;
    }
    // Wider than 512 fails after the picture is shown: the grid is made but never filled,
    // and the hourglass stays up.
    newSkin(
        write(Md2{.skinWidth = 513, .skinHeight = 4, .st = {{1, 1}, {9, 1}}, .tris = {{0, 1, 1}}}));
    EXPECT_EQ(lastMessage(), kLoadProblem);
    EXPECT_TRUE(frm.Picture7.Visible);
    EXPECT_EQ(frm.picture1.Point(5, 1), 0xFFFFFF);
    EXPECT_EQ(countOf(frm, 0), 513 * 4 + 1001);
    EXPECT_EQ(frm.PCX_Header(10), 2);
    EXPECT_EQ(frm.MousePointer.get(), 11);
    // Cancel from the tool bar: empty hidden boxes over the old grid.
    host.answerOpen(std::nullopt);
    frm.tbToolBar_ButtonClick("New");
    EXPECT_EQ(lastMessage(), kLoadProblem);
    EXPECT_FALSE(frm.Picture7.Visible);
    EXPECT_EQ(frm.picture1.Point(5, 1), 0);
}

// A model of no size (an empty file does it) leaves picture1 with a scale of extent 0;
// the next skin must still open instead of counting its columns for ever.
TEST_F(NewSkin, AModelOfNoSizeLeavesTheNextOpenWorking) {
    newSkin(dir.write("empty.md2", Bytes{}));
    EXPECT_EQ(frm.picture1.ScaleWidth, 0);
    openSkin(host, frm, dir.write("next.pcx", encodePcx(4, 3, Bytes(12, 9), gamePalette())));
    EXPECT_EQ(frm.Skin_Width, 4);
    EXPECT_EQ(frm.Skin_Grid(0), 9);
    EXPECT_EQ(frm.Pixel_Width, 1); // the first column read is already outside
}

TEST_F(NewSkin, RealModels) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(TAVRIN_REALDATA) / "md2";
    if (!fs::exists(root)) GTEST_SKIP() << "no real models at " << root;
    int made = 0, tooWide = 0, mostTriangles = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        std::string ext = entry.path().extension().string();
        if (ext != ".md2" && ext != ".MD2") continue;
        SCOPED_TRACE(entry.path().string());
        const Bytes f = readFile(entry.path().string());
        auto i16 = [&](std::size_t at) { return int16_t(f[at] | f[at + 1] << 8); };
        auto i32 = [&](std::size_t at) { return int32_t(uint16_t(i16(at)) | i16(at + 2) << 16); };
        const int w = i32(8), h = i32(12), tris = i32(32), ofsSt = i32(48), ofsTris = i32(52);
        newSkin(entry.path().string());
        if (w > 512) {
            EXPECT_EQ(lastMessage(), kLoadProblem);
            ++tooWide;
            continue;
        }
        ASSERT_EQ(frm.Skin_Width.str() + "x" + frm.Skin_Height.str(),
                  std::to_string(w) + "x" + std::to_string(h));
        EXPECT_EQ(countOf(frm, 0) + countOf(frm, 15), w * h + 1001);
        EXPECT_TRUE(std::all_of(frm.Skin_Grid.data() + w * h,
                                frm.Skin_Grid.data() + frm.Skin_Grid.size(),
                                [](int16_t v) { return v == 0; }));
        for (int t = 0; t < tris * 3; ++t) {
            const int st = ofsSt + 4 * i16(ofsTris + 12 * (t / 3) + 6 + 2 * (t % 3));
            const int s = i16(st), u = i16(st + 2);
            if (s >= 0 && s < w && u >= 0 && u < h) {
                ASSERT_EQ(frm.Skin_Grid(u * w + s), 15) << s << "," << u;
            }
        }
        ++made;
        mostTriangles = std::max(mostTriangles, tris);
    }
    EXPECT_GT(made, 40);
    EXPECT_GT(tooWide, 0);
    EXPECT_EQ(mostTriangles, 2078);
}

} // namespace
} // namespace tavrin::test
