// The canvas widget shows exactly what the box answers with Point, after a change
// repaints only the part that changed, and hands real mouse events to the box's handlers.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/qt/picture_widget.h"

#include <QApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using platform::PictureBox;

// A w x h picture of distinct colours.
platform::PictureHandle colours(int w, int h) {
    auto r = std::make_shared<platform::Raster>(w, h, 0u);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            r->at(x, y) = static_cast<uint32_t>(x * 0x010305 + y * 0x070B01) & 0xFFFFFFu;
    return r;
}

QRgb asShown(int32_t packed) {
    const auto c = static_cast<uint32_t>(packed);
    return qRgb(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                static_cast<int>((c >> 16) & 0xFF));
}

// A 40 x 30 skin shown at zoom 8 on a 320 x 240 canvas, painted once, and the paint
// events that reach the widget after that.
struct ZoomedSkin : QObject {
    platform::Form form{"frmTest"};
    PictureBox skin{&form, "picture1", {platform::ScaleUnit::Pixels, 0, true, 0}};
    PictureBox canvas{&form, "Picture7", {platform::ScaleUnit::Pixels, 0, false, 0}};
    std::unique_ptr<platform::qt::PictureWidget> widget;
    std::vector<QRegion> painted; // one a paint event

    ZoomedSkin() {
        skin.Width = 40 * 15;
        skin.Height = 30 * 15;
        canvas.Width = 320 * 15;
        canvas.Height = 240 * 15;
        widget = std::make_unique<platform::qt::PictureWidget>(canvas, nullptr);
        widget->resize(320, 240);
        widget->show();
        repaint();
        widget->installEventFilter(this);
    }
    void repaint() {
        canvas.PaintPicture(skin.Image(), 0, 0, 320, 240);
        widget->sync();
        QApplication::processEvents();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted.push_back(static_cast<QPaintEvent*>(event)->region());
        return false;
    }
};

// Larger than one band of the paint, so that the bands meet somewhere inside.
TEST(PictureWidget, ShowsEveryPixelAsPointGivesIt) {
    platform::Form form("frmTest");
    PictureBox box(&form, "Picture7", {platform::ScaleUnit::Pixels, 0, false, 0x808080});
    box.Width = 2100 * 15;
    box.Height = 2050 * 15;
    box.PaintPicture(colours(300, 205), 0, 0, 2100, 2050);
    box.Line(5, 2000, 2090, 40, 0x00FF00, platform::kLineKind);
    platform::qt::PictureWidget widget(box, nullptr);
    widget.resize(2100, 2050);
    const QImage shown = widget.grab().toImage();
    ASSERT_EQ(shown.size(), QSize(2100, 2050));
    for (int y = 0; y < 2050; ++y)
        for (int x = 0; x < 2100; ++x)
            ASSERT_EQ(shown.pixel(x, y) | 0xFF000000u, asShown(box.Point(x, y))) << x << "," << y;
}

TEST(PictureWidget, AStrokeRepaintsOnlyTheBlockOfThePixelItChanged) {
    ZoomedSkin z;
    z.skin.PSet(10, 20, 0xFF);
    z.repaint();
    ASSERT_EQ(z.painted.size(), 1u);
    EXPECT_EQ(z.painted[0].boundingRect(), QRect(80, 160, 8, 8));
}

// A rubber band's outline, drawn in XOR on the skin, reaches the widget as the four sides
// it changed, not the box they enclose.
TEST(PictureWidget, ABandRepaintsItsSidesNotItsBox) {
    ZoomedSkin z;
    z.skin.DrawMode = platform::kXorPen;
    z.skin.Line(2, 2, 37, 27, 0xFFFFFF, platform::kBoxKind);
    z.repaint();
    int64_t area = 0;
    for (const QRegion& region : z.painted)
        for (const QRect& r : region)
            area += int64_t{r.width()} * r.height();
    // The sides: 2 x 36 + 2 x 24 pixels of the skin, 64 canvas pixels each.
    EXPECT_GT(area, 0);
    EXPECT_LE(area, (2 * 36 + 2 * 24) * 64);
}

// With the form's arguments: the button that changed (or, in a move, the buttons held),
// the shift state, and the position in the box's scale.
TEST(PictureWidget, MouseEventsReachTheHandlersWithTheFormsArguments) {
    platform::Form form("frmTest");
    PictureBox box(&form, "Picture7", {platform::ScaleUnit::Pixels, 4, true, 0});
    box.Width = 200 * 15;
    box.Height = 100 * 15;
    std::vector<std::string> seen; // "kind button shift x y"
    auto record = [&seen](char kind) {
        return [&seen, kind](int16_t b, int16_t s, float x, float y) {
            std::ostringstream line;
            line << kind << ' ' << b << ' ' << s << ' ' << x << ' ' << y;
            seen.push_back(line.str());
        };
    };
    box.MouseDown = record('d');
    box.MouseMove = record('m');
    box.MouseUp = record('u');
    platform::qt::PictureWidget widget(box, nullptr);
    widget.resize(200, 100);
    widget.show();

    // The border takes two pixels each side: widget (12, 7) is the box's (10, 5).
    QTest::mousePress(&widget, Qt::LeftButton, Qt::ShiftModifier, QPoint(12, 7));
    QTest::mouseMove(&widget, QPoint(250, 50)); // beyond the right edge
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier,
                        QPoint(250, 50));
    QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, QPoint(2, 2));

    ASSERT_GE(seen.size(), 3u);
    EXPECT_EQ(seen.front(), "d 1 1 10 5");
    EXPECT_EQ(seen[seen.size() - 2], "u 1 6 248 48");
    EXPECT_EQ(seen.back(), "d 2 0 0 0");
}

} // namespace
