// What the editor relies on from a picture box: Point, PSet, the three kinds of Line,
// the XOR pen, stretching, pictures as snapshots, and the canvas that keeps no pixels.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/vb_error.h"
#include "platform/vb_memory.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace {

using platform::PictureBox;

constexpr int32_t kRed = 0x0000FF;
constexpr int32_t kGreen = 0x00FF00;
constexpr int32_t kGrey = 0x808080;

// A form with one box of w x h pixels inside its border.
struct Box {
    Box(int w, int h, bool autoRedraw = true, int border = 0,
        platform::ScaleUnit unit = platform::ScaleUnit::Pixels)
        : box(&form, "Box", PictureBox::Design{unit, border, autoRedraw, kGrey}) {
        box.Width = (w + border) * 15;
        box.Height = (h + border) * 15;
    }
    platform::Form form{"frmTest"};
    PictureBox box;
};

// A w x h picture whose pixel (x, y) is x + 16 y.
platform::PictureHandle numbered(int w, int h) {
    auto r = std::make_shared<platform::Raster>(w, h, 0u);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            r->at(x, y) = static_cast<uint32_t>(x + 16 * y);
    return r;
}

TEST(PictureBox, PointIsMinusOneOutsideTheInnerAreaAndPSetThereChangesNothing) {
    Box b(6, 4, true, 4);
    PictureBox& p = b.box;
    EXPECT_EQ(p.ScaleWidth, 6);
    EXPECT_EQ(p.Point(0, 0), kGrey);
    EXPECT_EQ(p.Point(5, 3), kGrey);
    EXPECT_EQ(p.Point(6, 0), -1);
    EXPECT_EQ(p.Point(0, 4), -1);
    EXPECT_EQ(p.Point(-1, 2), -1);

    auto before = p.Image();
    p.PSet(6, 0, kRed);
    p.PSet(-1, -1, kRed);
    p.Line(-5, -5, -1, -1, kRed, platform::kLineKind);
    EXPECT_EQ(p.Image()->px, before->px);

    p.PSet(2, 1, kRed);
    EXPECT_EQ(p.Point(2, 1), kRed);
    p.PSet(3, 1, 0x2000000 | kGreen); // a palette-relative colour draws its low 24 bits
    EXPECT_EQ(p.Point(3, 1), kGreen);

    // A scale of extent 0 (a model whose skin is 0 wide sets one) holds no point at all,
    // whatever the box's size: a scan for the edge must end.
    p.ScaleWidth = 0;
    EXPECT_EQ(p.Point(1, 1), -1);
    EXPECT_EQ(p.Point(0, 0), -1);
    p.PSet(0, 0, kRed);
    EXPECT_EQ(p.Image()->at(0, 0), static_cast<uint32_t>(kGrey));
}

TEST(PictureBox, LineDrawsALineABoxOrAFilledBoxBothEndsIncluded) {
    struct Case {
        const char* name;
        int x1, y1, x2, y2, kind;
        bool (*drawn)(int x, int y);
    };
    const Case cases[] = {
        {"line", 1, 1, 4, 4, platform::kLineKind,
         [](int x, int y) { return x == y && x >= 1 && x <= 4; }},
        {"box, corners in any order", 5, 6, 1, 2, platform::kBoxKind,
         [](int x, int y) {
             return x >= 1 && x <= 5 && y >= 2 && y <= 6 && (x == 1 || x == 5 || y == 2 || y == 6);
         }},
        {"filled box", 3, 4, 2, 3, platform::kFilledBoxKind,
         [](int x, int y) { return x >= 2 && x <= 3 && y >= 3 && y <= 4; }},
    };
    for (const Case& c : cases) {
        Box b(8, 8);
        b.box.Line(c.x1, c.y1, c.x2, c.y2, kRed, c.kind);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                ASSERT_EQ(b.box.Point(x, y), c.drawn(x, y) ? kRed : kGrey)
                    << c.name << " " << x << "," << y;
    }
}

TEST(PictureBox, TheXorPenTakesAwayWhatItDrewTheSecondTime) {
    Box b(12, 10);
    PictureBox& p = b.box;
    p.Line(0, 0, 11, 9, kRed, platform::kFilledBoxKind);
    p.PSet(4, 4, kGreen);
    auto before = p.Image();

    p.DrawMode = platform::kXorPen;
    const int kinds[] = {platform::kLineKind, platform::kBoxKind, platform::kFilledBoxKind};
    for (int kind : kinds) {
        // A one-pixel-high box and a thin one too: no pixel of the outline may be drawn twice.
        for (auto [x1, y1, x2, y2] : {std::array{1, 1, 9, 7}, std::array{2, 5, 8, 5},
                                      std::array{3, 2, 4, 8}, std::array{-3, 4, 20, 6}}) {
            p.Line(x1, y1, x2, y2, 0xFFFFFF, kind);
            EXPECT_NE(p.Image()->px, before->px) << kind;
            p.Line(x1, y1, x2, y2, 0xFFFFFF, kind);
            EXPECT_EQ(p.Image()->px, before->px) << kind << " " << x1 << "," << y1;
        }
    }
    p.DrawMode = platform::kCopyPen;
    p.PSet(4, 4, kRed);
    EXPECT_EQ(p.Point(4, 4), kRed);
}

TEST(PictureBox, PaintPictureStretchesTheWholeImageOverTheRectangle) {
    Box b(9, 6);
    PictureBox& p = b.box;
    p.PaintPicture(numbered(3, 2), 0, 0, 9, 6); // three times larger each way
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 9; ++x)
            EXPECT_EQ(p.Point(x, y), x / 3 + 16 * (y / 3)) << x << "," << y;

    p.Cls();
    p.PaintPicture(numbered(3, 2), 2, 1, 3, 2); // true size, offset
    EXPECT_EQ(p.Point(1, 1), kGrey);
    EXPECT_EQ(p.Point(2, 1), 0);
    EXPECT_EQ(p.Point(4, 2), 2 + 16);
    EXPECT_EQ(p.Point(5, 2), kGrey);

    EXPECT_THROW(p.PaintPicture(nullptr, 0, 0, 1, 1), vb::Error);
}

// A box that a picture fills shows the picture's own pixels until it is drawn on, and a
// resize keeps the box's drawing only where there is one: in every order the box shows
// what a box with pixels of its own would, and the picture it was given never changes.
// Cls clears the drawing, not the picture; taking the picture away clears the box, and so
// does a new back colour then.
TEST(PictureBox, APictureThatFillsTheBoxIsSharedYetNeverDrawnOn) {
    struct Case {
        const char* name;
        std::function<void(PictureBox&)> steps;
        std::vector<std::array<int32_t, 3>> shown; // x, y, what Point gives there
    };
    const auto px = [](int x, int y) { return x + 16 * y; }; // the numbered picture's pixel
    const std::vector<Case> cases = {
        {"drawn on", [](PictureBox& b) { b.PSet(1, 1, kRed); }, {{1, 1, kRed}, {2, 1, px(2, 1)}}},
        {"grown after drawing",
         [](PictureBox& b) {
             b.PSet(1, 1, kRed);
             b.Width = 6 * 15;
         },
         {{1, 1, kRed}, {3, 2, px(3, 2)}, {4, 0, kGrey}}},
        {"shrunk and grown, never drawn on",
         [](PictureBox& b) {
             b.Width = 2 * 15;
             b.Width = 4 * 15;
         },
         {{3, 2, px(3, 2)}}},
        {"drawn on, shrunk and grown",
         [](PictureBox& b) {
             b.PSet(0, 0, kRed);
             b.PSet(3, 0, kRed);
             b.Width = 2 * 15;
             b.Width = 4 * 15;
         },
         {{0, 0, kRed}, {3, 0, px(3, 0)}}},
        {"drawn on while smaller, grown until the picture fills it",
         [](PictureBox& b) {
             b.Height = 2 * 15;
             b.PSet(0, 1, kRed);
             b.Height = 3 * 15;
         },
         {{0, 1, kRed}, {1, 2, px(1, 2)}}},
        {"cleared after drawing",
         [](PictureBox& b) {
             b.PSet(2, 2, kRed);
             b.Cls();
         },
         {{2, 2, px(2, 2)}}},
        {"taken away after drawing",
         [](PictureBox& b) {
             b.PSet(2, 2, kRed);
             b.Picture = platform::PictureHandle{};
         },
         {{1, 1, kGrey}, {2, 2, kGrey}}},
        {"taken away, then a new back colour",
         [](PictureBox& b) {
             b.Picture = platform::PictureHandle{};
             b.BackColor = kGreen;
         },
         {{3, 2, kGreen}}},
    };
    for (const Case& c : cases) {
        Box b(4, 3);
        const platform::PictureHandle picture = numbered(4, 3);
        const auto before = picture->px;
        b.box.Picture = picture;
        c.steps(b.box);
        for (const auto& [x, y, want] : c.shown)
            EXPECT_EQ(b.box.Point(x, y), want) << c.name << " at " << x << ", " << y;
        EXPECT_EQ(picture->px, before) << c.name;
    }
}

// A view repaints what the box reports as damaged: a pixel set to what it already shows
// (the copy pen with its colour, the XOR pen with 0) reports nothing; any other does.
TEST(PictureBox, OnlyAPixelThatChangesIsDamaged) {
    struct Case {
        int pen;
        int32_t color;
        bool damaged;
    };
    for (const Case c :
         {Case{platform::kCopyPen, kGrey, false}, Case{platform::kCopyPen, kRed, true},
          Case{platform::kXorPen, 0, false}, Case{platform::kXorPen, kRed, true}}) {
        Box b(4, 4);
        b.box.DrawMode = c.pen;
        b.box.takeDamage();
        const platform::PictureHandle before = b.box.Image();
        b.box.PSet(1, 2, c.color);
        EXPECT_EQ(!b.box.takeDamage().empty(), c.damaged) << c.pen << " " << c.color;
        EXPECT_EQ(b.box.Point(1, 2), c.pen == platform::kXorPen ? kGrey ^ c.color : c.color);
        EXPECT_EQ(before->at(1, 2), static_cast<uint32_t>(kGrey)); // a snapshot stays as it was
    }
}

// A box's pixels count against the memory limit once, made or still to be made, however
// often it is cleared, resized or given a picture: a box of more than half the limit
// stays usable.
TEST(PictureBox, PixelsCountOnceWhetherMadeOrNot) {
    Box b(7200, 7200); // 207 MB, over half the limit
    const std::size_t counted = vb::liveBytes();
    const std::function<void()> steps[] = {
        [&] { b.box.Cls(); },
        [&] { b.box.Point(1, 1); },
        [&] { b.box.Picture = numbered(10, 10); },
        [&] { b.box.Picture = platform::PictureHandle{}; },
        [&] { b.box.PSet(1, 1, kRed); },
        [&] { b.box.BackColor = kGreen; },
    };
    for (int round = 0; round < 2; ++round)
        for (const auto& step : steps) {
            ASSERT_NO_THROW(step());
            EXPECT_LE(vb::liveBytes(), counted + 10 * 10 * 4); // and the picture it holds
            EXPECT_GE(vb::liveBytes(), counted);
        }
}

TEST(PictureBox, AHugeSizeIsRefusedWithoutAllocating) {
    Box b(4, 4);
    b.box.Width = 20000 * 15;
    EXPECT_THROW(b.box.Height = 20000 * 15, vb::Error); // 1.6 GB of pixels
    EXPECT_EQ(b.box.innerHeight(), 4);
    EXPECT_EQ(b.box.Point(19999, 3), kGrey);
}

// The canvas keeps what was painted, not pixels: its Point must answer exactly what a
// box with pixels would show after the same drawing.
TEST(PictureBox, ACanvasWithoutAutoRedrawAnswersPointFromWhatWasPainted) {
    Box canvas(40, 30, false), raster(40, 30, true);
    EXPECT_EQ(canvas.box.Point(5, 5), kGrey);
    for (Box* b : {&canvas, &raster}) {
        b->box.PaintPicture(numbered(7, 5), 0, 0, 40, 30);   // not a whole factor
        b->box.PaintPicture(numbered(3, 3), 30, 20, -9, -9); // mirrored
        const int lines[][4] = {{0, 0, 39, 29},    {39, 0, 0, 13}, {5, -10, 9, 60},
                                {-20, 25, 70, 27}, {12, 3, 12, 3}, {33, 29, 2, 1}};
        for (const auto& l : lines)
            b->box.Line(l[0], l[1], l[2], l[3], kRed, platform::kLineKind);
        b->box.Line(20, 2, 25, 6, kGreen, platform::kBoxKind);
        b->box.Line(26, 8, 28, 9, kGreen, platform::kFilledBoxKind);
        b->box.PSet(1, 28, kGreen);
    }
    platform::PictureHandle shown = canvas.box.Image();
    for (int y = -1; y <= 30; ++y)
        for (int x = -1; x <= 40; ++x) {
            ASSERT_EQ(canvas.box.Point(x, y), raster.box.Point(x, y)) << x << "," << y;
            if (x >= 0 && y >= 0 && x < 40 && y < 30) {
                ASSERT_EQ(shown->at(x, y), static_cast<uint32_t>(raster.box.Point(x, y)));
            }
        }

    canvas.box.Refresh(); // what was drawn on the canvas is gone
    EXPECT_EQ(canvas.box.Point(0, 0), kGrey);
    EXPECT_EQ(canvas.box.Point(1, 28), kGrey);
}

// A view keeps what it showed and repaints only what the box says changed. Strokes,
// snapshots held and dropped (as undo does) and repaints of the canvas from the skin's
// Image, at a whole and at an uneven factor, mirrored too, and unstretched: the view must always
// equal a whole render, that render what Point gives, and a snapshot keep what it was taken with.
TEST(PictureBox, AViewThatRepaintsOnlyTheDamageAlwaysShowsWhatTheBoxShows) {
    struct Geometry {
        int w, h;
        bool mirrored;
    };
    for (const Geometry g :
         {Geometry{48, 30, false}, Geometry{37, 29, true}, Geometry{16, 12, false}}) {
        Box skin(16, 12), canvas(g.w, g.h, false);
        PictureBox& c = canvas.box;
        auto repaint = [&] {
            if (g.mirrored)
                c.PaintPicture(skin.box.Image(), g.w, g.h, -g.w, -g.h);
            else
                c.PaintPicture(skin.box.Image(), 0, 0, g.w, g.h);
        };
        const platform::PixelRect all{0, 0, g.w, g.h};
        std::vector<uint32_t> shown(static_cast<std::size_t>(g.w * g.h)), whole(shown.size());
        std::vector<std::pair<platform::PictureHandle, decltype(platform::Raster::px)>> held;
        std::mt19937 rng(5);
        auto any = [&rng](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
        for (int step = 0; step < 800; ++step) {
            switch (any(8)) {
            case 0:
                held.emplace_back(skin.box.Image(), skin.box.Image()->px);
                break;
            case 1:
                if (!held.empty()) {
                    const auto it = held.begin() + any(static_cast<int>(held.size()));
                    ASSERT_EQ(it->first->px, it->second) << "step " << step;
                    held.erase(it);
                }
                break;
            case 2:
                skin.box.Line(any(16), any(12), any(16), any(12), any(1 << 24),
                              platform::kFilledBoxKind);
                break;
            case 7: // a rubber band: an outline or a slanting line in the XOR pen
                skin.box.DrawMode = platform::kXorPen;
                skin.box.Line(any(16), any(12), any(16), any(12), 0xFFFFFF,
                              any(2) ? platform::kBoxKind : platform::kLineKind);
                skin.box.DrawMode = platform::kCopyPen;
                break;
            case 3:
                c.Line(any(g.w), any(g.h), any(g.w), any(g.h), kGreen, platform::kLineKind);
                break;
            case 4: // undo: the picture as a snapshot kept it
                if (!held.empty())
                    skin.box.Picture =
                        held[static_cast<std::size_t>(any(static_cast<int>(held.size())))].first;
                break;
            default:
                skin.box.PSet(any(16), any(12), any(1 << 24));
                break;
            }
            for (int look = 0; look < 2; ++look) { // before and after the repaint
                if (look == 1) repaint();
                for (const platform::PixelRect& d : c.takeDamage())
                    c.render(d, &shown[static_cast<std::size_t>(d.y0 * g.w + d.x0)], g.w,
                             platform::PixelOrder::Xrgb);
                c.render(all, whole.data(), g.w, platform::PixelOrder::Xrgb);
                ASSERT_EQ(shown, whole) << "step " << step;
            }
        }
        for (int y = 0; y < g.h; ++y)
            for (int x = 0; x < g.w; ++x) {
                const auto p = static_cast<uint32_t>(c.Point(x, y));
                const uint32_t xrgb = 0xFF000000u | (p & 0xFF00u) | (p >> 16) | ((p & 0xFFu) << 16);
                ASSERT_EQ(whole[static_cast<std::size_t>(y * g.w + x)], xrgb) << x << "," << y;
            }
        for (const auto& [picture, taken] : held)
            EXPECT_EQ(picture->px, taken);
    }
}

// A repaint from a copy of the picture that one pixel has changed in changes the pixels
// that show that one, and says so of no others.
TEST(PictureBox, ARepaintAfterOnePixelDamagesExactlyItsStretchedBlock) {
    Box skin(7, 5), canvas(40, 30, false);
    canvas.box.PaintPicture(skin.box.Image(), 0, 0, 40, 30);
    canvas.box.takeDamage();
    skin.box.PSet(3, 2, kRed);
    canvas.box.PaintPicture(skin.box.Image(), 0, 0, 40, 30);
    const platform::PixelRegion d = canvas.box.takeDamage();
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool shows = platform::stretchSource(x, 40, 0, 7) == 3 &&
                               platform::stretchSource(y, 30, 0, 5) == 2;
            ASSERT_EQ(d.contains(x, y), shows) << x << "," << y;
        }
}

// A band dragged over a large picture and shown on a zoomed canvas damages its sides and
// what the pieces of a slanting line cross, in the picture and on the canvas: every pixel
// it changed and only a small part of the box.
TEST(PictureBox, ARubberBandDamagesItsOutlineNotItsBox) {
    Box skin(200, 150), canvas(400, 300, false);
    const auto repaint = [&] { canvas.box.PaintPicture(skin.box.Image(), 0, 0, 400, 300); };
    repaint();
    skin.box.DrawMode = platform::kXorPen;
    for (const int kind : {platform::kBoxKind, platform::kLineKind}) {
        skin.box.takeDamage();
        canvas.box.takeDamage();
        const platform::PictureHandle before = skin.box.Image();
        skin.box.Line(10, 20, 190, 140, 0xFFFFFF, kind);
        repaint();
        const platform::PixelRegion d = skin.box.takeDamage(), shown = canvas.box.takeDamage();
        const platform::PictureHandle after = skin.box.Image();
        for (int y = 0; y < 150; ++y)
            for (int x = 0; x < 200; ++x)
                if (before->at(x, y) != after->at(x, y)) {
                    ASSERT_TRUE(d.contains(x, y)) << kind << ": " << x << "," << y;
                    ASSERT_TRUE(shown.contains(2 * x + 1, 2 * y + 1)) << kind;
                }
        EXPECT_LT(d.area(), 181 * 121 / 3) << kind;
        EXPECT_LT(shown.area(), 4 * 181 * 121 / 3) << kind;
    }
}

// Whatever is added, the region holds it, in at most kMostRects rectangles; rectangles
// that line up are joined, so an outline stays four sides.
TEST(PixelRegion, HoldsEveryRectangleAddedInFewRectangles) {
    platform::PixelRegion outline;
    for (const platform::PixelRect r : {platform::PixelRect{0, 0, 50, 1},
                                        {0, 40, 50, 41},
                                        {0, 0, 1, 41},
                                        {49, 0, 50, 41},
                                        {20, 0, 60, 1},
                                        {0, 0, 50, 1},
                                        {3, 3, 3, 9}})
        outline.add(r);
    EXPECT_EQ(outline.size(), 4u); // the second top row joins the first; the rest add nothing
    EXPECT_EQ(outline.area(), 60 + 50 + 41 + 41);

    std::mt19937 rng(11);
    platform::PixelRegion scattered;
    std::vector<platform::PixelRect> added;
    for (int i = 0; i < 300; ++i) {
        const auto any = [&rng](unsigned n) { return static_cast<int64_t>(rng() % n); };
        const int64_t x = any(500), y = any(500);
        added.push_back({x, y, x + 1 + any(4), y + 1 + any(4)});
        scattered.add(added.back());
        ASSERT_LE(scattered.size(), platform::PixelRegion::kMostRects);
    }
    for (const platform::PixelRect& r : added)
        for (int64_t y = r.y0; y < r.y1; ++y)
            for (int64_t x = r.x0; x < r.x1; ++x)
                ASSERT_TRUE(scattered.contains(x, y)) << x << "," << y;
}

} // namespace
