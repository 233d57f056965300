// The overlay on the canvas: where the lines fall at each zoom, what wipes them, the
// four states of Wire Frame, unloading, the colour commands and the attribute messages.
#include "model/md2_files.h"

namespace tavrin::test {
namespace {

constexpr int32_t kRed = packed(255, 0, 0);

struct Wireframe : ModelTest {
    std::string model;
    void SetUp() override {
        ModelTest::SetUp();
        newSkin(write(Md2{.skinWidth = 64, .skinHeight = 48}, "base.md2")); // all black
        // One triangle whose top edge runs along row 4 from column 4 to column 40.
        model = write(Md2{.st = {{4, 4}, {40, 4}, {4, 30}}, .tris = {{0, 1, 2}}});
        host.answerColor(kRed);
        frm.wFc_Click();
    }
    bool edgeShown(double z) { // the top edge at zoom z, and nothing beside it
        bool all =
            frm.Picture7.Point(20 * z, 10 * z) == 0 && frm.Picture7.Point(4 * z, 30 * z) == kRed;
        for (int x = 4; x <= 40; ++x)
            all = all && frm.Picture7.Point(x * z, 4 * z) == kRed;
        return all;
    }
    bool edgeGone() { return frm.Picture7.Point(20 * frm.Zoom_Factor, 4 * frm.Zoom_Factor) == 0; }
    void importModel() {
        host.answerOpen(model);
        frm.wF_Click();
    }
};

TEST_F(Wireframe, LinesFollowTheZoomAndRepaintsWipeThem) {
    importModel();
    for (double z : {1.0, 0.5, 2.0}) {
        SCOPED_TRACE(z);
        frm.Zoom_Factor = z; // the view as the zoom tool leaves it
        frm.Picture7.Width = frm.picture1.Width * z;
        frm.Picture7.Height = frm.picture1.Height * z;
        frm.ri_Click();
        EXPECT_TRUE(edgeGone());
        frm.Draw_Frame();
        EXPECT_TRUE(edgeShown(z));
    }
    EXPECT_EQ(frm.picture1.Point(20, 4), 0); // never in the picture or the grid
    EXPECT_EQ(frm.Skin_Grid(4 * 64 + 20), 0);
    // The attribute messages repaint the canvas afterwards.
    frm.ma_Click();
    EXPECT_EQ(lastMessage(), "Model Attributes: \r" + model + "\r\rNumber of Triangles: 1");
    EXPECT_TRUE(edgeGone());
    frm.ia_Click();
    EXPECT_EQ(lastMessage(), "Image Attributes: \r\r\rSkin Width: 64\rSkin Height: 48");
}

TEST_F(Wireframe, WireFrameWalksItsFourStates) {
    host.answerOpen(std::nullopt); // cancel: only the status line changes
    frm.wF_Click();
    EXPECT_EQ(frm.Wire_Loaded, 0);
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Select Image");
    importModel();
    EXPECT_TRUE(frm.wF.Checked && frm.wiPop.Checked);
    EXPECT_EQ(frm.Wire_Shown, 1);
    EXPECT_EQ(frm.StatusBar1.Panels(1).Text.get(), "Importing Image...");
    EXPECT_TRUE(edgeShown(1));
    frm.wiPop_Click();
    EXPECT_FALSE(frm.wF.Checked || frm.wiPop.Checked);
    EXPECT_EQ(frm.Wire_Shown, 2);
    EXPECT_TRUE(edgeGone());
    // The colour commands draw even while hidden, and a cancel draws nothing.
    host.answerColor(std::nullopt);
    frm.wFc_Click();
    EXPECT_TRUE(edgeGone());
    host.answerColor(0x123456);
    frm.bcolor_Click();
    EXPECT_EQ(frm.BackColor.get(), 0x123456);
    EXPECT_TRUE(edgeShown(1));
    EXPECT_FALSE(frm.wF.Checked);
    frm.ri_Click();
    frm.wF_Click(); // shown again
    EXPECT_TRUE(frm.wF.Checked);
    EXPECT_TRUE(edgeShown(1));
    // Unloaded: the lines go for good; the next click asks for a model again.
    frm.UCW_Click();
    EXPECT_EQ(frm.Wire_Loaded, 0);
    EXPECT_FALSE(frm.wF.Checked);
    EXPECT_TRUE(edgeGone());
    frm.Draw_Frame();
    EXPECT_EQ(frm.Picture7.Point(0, 0), 0);
    importModel();
    EXPECT_TRUE(edgeShown(1));
}

TEST_F(Wireframe, FailedImportResetsOnTheNextClickAndAsksOnTheOneAfter) {
    host.answerOpen(write(Md2{.numTris = 10002}, "bad.md2"));
    frm.wF_Click();
    EXPECT_EQ(host.messages().size(), 1u); // only the new skin's recommendation
    EXPECT_EQ(frm.Wire_Loaded, 1);
    frm.wF_Click(); // no dialog: none is answered
    EXPECT_EQ(frm.Wire_Loaded, 0);
    importModel();
    EXPECT_TRUE(edgeShown(1));
}

} // namespace
} // namespace tavrin::test
