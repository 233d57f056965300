// The line and the rectangles: the walk and the gradient's arithmetic on their own, then
// dragged on the canvas as the user does, with the rubber band between press and release.
#include "tools/canvas_fixture.h"
#include "tools/shape_geometry.h"

#include <utility>
#include <vector>

namespace tavrin::test {
namespace {

using Points = std::vector<std::pair<double, double>>;

TEST(ShapeGeometry, TheLineWalksTheLongerAxisAndStepsBeforeEachPoint) {
    struct Case {
        const char* name;
        double x1, y1, x2, y2;
        Points points;
    };
    const Case cases[] = {
        {"across", 0, 0, 4, 2, {{0, 0.5}, {1, 1}, {2, 1.5}, {3, 2}, {4, 2.5}}},
        {"across from the right end", 4, 2, 0, 0, {{0, 0.5}, {1, 1}, {2, 1.5}, {3, 2}, {4, 2.5}}},
        {"up to the right", 0, 2, 4, 0, {{0, 1.5}, {1, 1}, {2, 0.5}, {3, 0}, {4, -0.5}}},
        {"even slope walks down", 0, 0, 2, 2, {{1, 0}, {2, 1}, {3, 2}}},
        {"straight down", 3, 3, 3, 1, {{3, 1}, {3, 2}, {3, 3}}},
        {"one point", 2, 2, 2, 2, {{2, 2}}},
        {"from left of the clip", -3, 0, 3, 3, {{0, 2}, {1, 2.5}, {2, 3}, {3, 3.5}}},
    };
    for (const Case& c : cases) {
        Points got;
        walkLine(c.x1, c.y1, c.x2, c.y2, platform::PixelRect{0, 0, 10, 10},
                 [&](double x, double y) { got.emplace_back(x, y); });
        EXPECT_EQ(got, c.points) << c.name;
    }
}

TEST(ShapeGeometry, StripesAreASixteenthOfTheWidthAndEachChannelSawsOnItsOwn) {
    for (const auto& [left, right, width] :
         {std::tuple{0, 0, 1}, {0, 7, 1}, {0, 23, 1}, {0, 24, 2}, {0, 99, 6}, {-50, 49, 6}})
        EXPECT_EQ(gradientStripeWidth(left, right), width) << left << ".." << right;
    const int32_t start = packed(30, 40, 50);
    EXPECT_EQ(nextStripeColor(packed(250, 100, 0), start, 10), packed(30, 110, 10));
    EXPECT_EQ(nextStripeColor(packed(5, 100, 255), start, -10), packed(30, 90, 245));
    EXPECT_EQ(nextStripeColor(packed(255, 255, 255), start, 10), start);
}

class Shapes : public CanvasTest {
protected:
    void reopen() { openSkin(host, frm, dir.file("skin.pcx")); }
    void drag(Points path) {
        down(static_cast<float>(path.front().first), static_cast<float>(path.front().second));
        for (const auto& [x, y] : path)
            move(static_cast<float>(x), static_cast<float>(y));
        frm.Picture7_MouseUp(1, 0, 0, 0);
    }
    // The skin's pixels where `drawn` says so took index n, the others kept theirs, and
    // picture1 shows the grid's colours everywhere: no band is left.
    void expectShape(int n, const std::function<bool(int, int)>& drawn, const char* name) {
        for (int y = 0; y < kH; ++y)
            for (int x = 0; x < kW; ++x) {
                const int index = drawn(x, y) ? n : skinIndex(x, y);
                ASSERT_EQ(grid(x, y), index) << name << " " << x << "," << y;
                if (x < kPicW) {
                    ASSERT_EQ(frm.picture1.Point(x, y), colourOf(index)) << name;
                }
            }
    }
};

TEST_F(Shapes, RectanglesAnyWayRoundAndTheLine) {
    pick(200);
    struct Case {
        const char* name;
        void (FrmMain::*choose)();
        Points path;
        bool (*drawn)(int x, int y);
    };
    const Case cases[] = {
        {"outline",
         &FrmMain::SSCommand28_Click,
         {{10, 8}, {14, 9}, {16, 12}},
         [](int x, int y) {
             return x >= 10 && x <= 16 && y >= 8 && y <= 12 &&
                    (x == 10 || x == 16 || y == 8 || y == 12);
         }},
        {"outline dragged up and left",
         &FrmMain::mRect_Click,
         {{16, 12}, {16, 8}, {10, 8}},
         [](int x, int y) {
             return x >= 10 && x <= 16 && y >= 8 && y <= 12 &&
                    (x == 10 || x == 16 || y == 8 || y == 12);
         }},
        {"filled",
         &FrmMain::SSCommand29_Click,
         {{20, 5}, {22, 9}},
         [](int x, int y) { return x >= 20 && x <= 22 && y >= 5 && y <= 9; }},
        {"back at its start",
         &FrmMain::mFrect_Click,
         {{20, 5}, {25, 9}, {20, 5}},
         [](int x, int y) { return x == 20 && y == 5; }},
        {"line, one step past its end",
         &FrmMain::mLine_Click,
         {{5, 5}, {9, 7}},
         [](int x, int y) {
             return (x == 5 && y == 6) || (x == 6 && y == 6) || (x == 7 && y == 6) ||
                    (x == 8 && y == 7) || (x == 9 && y == 8);
         }},
    };
    for (const Case& c : cases) {
        reopen();
        (frm.*c.choose)();
        drag(c.path);
        expectShape(200, c.drawn, c.name);
        EXPECT_EQ(frm.Drag_Active, 0) << c.name;
        EXPECT_EQ(frm.Band_Old_X, -1) << c.name;
    }
    // A press and release without a move draws nothing.
    reopen();
    frm.SSCommand29_Click();
    down(12, 12);
    frm.Picture7_MouseUp(1, 0, 12, 12);
    expectShape(
        0, [](int, int) { return false; }, "click");
}

// While the button is held the band stands in picture1 alone, inverted; each move takes
// the old one away. Undo after the release gives back the picture and grid before it.
TEST_F(Shapes, TheBandLivesInThePictureUntilTheRelease) {
    frm.mRect_Click();
    down(6, 6);
    move(20, 20);
    move(12, 10);
    const int32_t inverted = colourOf(skinIndex(12, 8)) ^ 0xFFFFFF;
    EXPECT_EQ(frm.picture1.Point(12, 8), inverted);
    EXPECT_EQ(frm.Picture7.Point(12, 8), inverted);
    EXPECT_EQ(frm.picture1.Point(20, 15), colourOf(skinIndex(20, 15))); // the first band's
    EXPECT_EQ(grid(12, 8), skinIndex(12, 8));
    frm.Picture7_MouseUp(1, 0, 12, 10);
    frm.Undo_Click();
    expectShape(
        0, [](int, int) { return false; }, "undone");
}

// The stripes step from the current colour at every B columns, each snapped to the
// palette; all pixels of a column alike. The menu's "Rectangle Fill" keeps a gradient on,
// the button switches it off.
TEST_F(Shapes, GradientStripes) {
    pick(100);
    frm.Grf_Click();
    frm.mFrect_Click();
    drag({{4, 4}, {30, 6}}); // 27 columns: B = 2
    frm.Check_Color = colourOf(100);
    frm.Temp_Color_Check();
    for (int x = 4; x <= 30; ++x) {
        if (x > 4 && (x - 4) % 2 == 0) {
            const int32_t c = frm.Check_Color;
            frm.Check_Color = nextStripeColor(c, colourOf(100), 10);
            frm.Temp_Color_Check();
        }
        for (int y = 4; y <= 6; ++y)
            ASSERT_EQ(grid(x, y), frm.Color_Index) << x << "," << y;
    }
    EXPECT_NE(grid(4, 4), grid(30, 4));

    frm.SSCommand29_Click();
    drag({{4, 10}, {30, 12}});
    for (int x = 4; x <= 30; ++x)
        ASSERT_EQ(grid(x, 11), 100) << x;
}

} // namespace
} // namespace tavrin::test
