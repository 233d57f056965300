// Real mouse events on a picture widget reach the box's handlers with the form's
// arguments: the button that changed (or, in a move, the buttons held), the shift
// state, and the position in the box's scale.
#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/qt/picture_widget.h"

#include <QTest>
#include <gtest/gtest.h>

#include <vector>

namespace {

struct Event {
    char kind;
    int button, shift;
    float x, y;
};

TEST(CanvasMouse, EventsReachTheHandlersWithTheFormsArguments) {
    platform::Form form("frmTest");
    platform::PictureBox box(&form, "Picture7", {platform::ScaleUnit::Pixels, 4, true, 0});
    box.Width = 200 * 15;
    box.Height = 100 * 15;
    std::vector<Event> seen;
    auto record = [&seen](char kind) {
        return [&seen, kind](int16_t b, int16_t s, float x, float y) { seen.push_back({kind, b, s, x, y}); };
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
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, QPoint(250, 50));
    QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, QPoint(2, 2));

    ASSERT_GE(seen.size(), 3u);
    EXPECT_EQ(seen.front().kind, 'd');
    EXPECT_EQ(seen.front().button, 1);
    EXPECT_EQ(seen.front().shift, 1);
    EXPECT_FLOAT_EQ(seen.front().x, 10);
    EXPECT_FLOAT_EQ(seen.front().y, 5);
    const Event& up = seen[seen.size() - 2];
    EXPECT_EQ(up.kind, 'u');
    EXPECT_EQ(up.shift, 6);
    EXPECT_FLOAT_EQ(up.x, 248);
    EXPECT_EQ(seen.back().kind, 'd');
    EXPECT_EQ(seen.back().button, 2);
    EXPECT_FLOAT_EQ(seen.back().x, 0);
}

} // namespace
