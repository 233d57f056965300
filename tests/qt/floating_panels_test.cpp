// The floating panels in the real widgets: a bar dragged by its grip with the mouse, its
// outline on the way, the drops that place it and the one that doesn't; a panel that a
// command shows is never behind another.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_host.h"

#include <QTest>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using platform::qt::FormWindow;

struct FloatingPanels : ::testing::Test {
    platform::ScriptedHost host{std::filesystem::path(TAVRIN_PALETTE_FILE).parent_path().string()};
    tavrin::FrmMain frm{host};
    std::unique_ptr<FormWindow> window;
    QWidget* surface = nullptr;

    void SetUp() override {
        frm.Form_Load();
        window = std::make_unique<FormWindow>(frm);
        window->resize(1000, 760);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        surface = window->centralWidget();
    }
    QWidget* widget(const platform::Control& c) const { return window->widgetFor(&c); }
    // The control widget that a click at the middle of c's widget reaches.
    QWidget* onTopAtMiddleOf(const platform::Control& c) const {
        QWidget* w = widget(c);
        QWidget* hit = surface->childAt(w->mapTo(surface, w->rect().center()));
        while (hit && hit->parentWidget() != w->parentWidget())
            hit = hit->parentWidget();
        return hit;
    }
    // Presses the grip at `at` (its pixels), moves to `to` (pixels of the surface) and
    // lets go there; returns the outline that showed on the way.
    QRect drag(platform::Control& grip, QPoint at, QPoint to) {
        QTest::mousePress(widget(grip), Qt::LeftButton, {}, at);
        QTest::mouseMove(surface, to - QPoint(20, 20));
        QTest::mouseMove(surface, to);
        QRect outline;
        for (QWidget* child : surface->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (child->isVisible() && child->objectName().isEmpty()) outline = child->geometry();
        QTest::mouseRelease(surface, Qt::LeftButton, {}, to);
        return outline;
    }
};

TEST_F(FloatingPanels, ABarGoesWhereItsGripIsDroppedOnTheFormOrTheCanvas) {
    frm.Picture7.Move(3000, 1500, 3000, 2250);
    frm.Picture7.Visible = true;
    struct Case {
        platform::Control& grip;
        platform::Control& bar;
        QPoint at, to;
        bool onCanvas;
    };
    for (Case c : {Case{frm.SSPanel14, frm.SSPanel13, {30, 8}, {400, 300}, false},
                   Case{frm.SSPanel8, frm.SSPanel1, {100, 10}, {350, 150}, true},
                   Case{frm.Picture14, frm.SSPanel15, {4, 20}, {300, 500}, false}}) {
        SCOPED_TRACE(c.grip.name());
        // The outline keeps the point grabbed under the pointer.
        const QPoint grab = c.at + widget(c.grip)->pos();
        EXPECT_EQ(drag(c.grip, c.at, c.to), QRect(c.to - grab, widget(c.bar)->size()));
        // The grip's offset in twips, Picture14's in pixels as its events count them.
        const double unit = &c.grip == &frm.Picture14 ? 1 : 15;
        EXPECT_EQ(frm.Drag_Offset_X, c.at.x() * unit);
        // Pixels on the canvas are counted from its corner, and on the form from the
        // surface's: either way the same place.
        EXPECT_NEAR(c.bar.Left, c.to.x() * 15 - c.at.x() * unit, 15);
        EXPECT_NEAR(c.bar.Top, c.to.y() * 15 - c.at.y() * unit, 15);
        EXPECT_EQ(widget(c.bar)->pos(), QPoint(c.bar.Left.pixels(), c.bar.Top.pixels()));
        EXPECT_EQ(frm.dragSource(), nullptr);
    }
}

TEST_F(FloatingPanels, ADropOnAnotherControlLeavesTheBarWhereItWas) {
    const QRect palette = widget(frm.Picture2)->geometry();
    const QPoint over = widget(frm.SSPanel1)->mapTo(surface, palette.center());
    drag(frm.SSPanel14, {30, 8}, over);
    EXPECT_EQ(frm.SSPanel13.Top, 4650);
    EXPECT_EQ(frm.dragSource(), nullptr);
}

TEST_F(FloatingPanels, APanelACommandShowsComesToTheFront) {
    // The brush kinds open over the tool bar, whose panel was made after theirs.
    frm.SSCommand12.Click();
    EXPECT_EQ(onTopAtMiddleOf(frm.SSPanel2), widget(frm.SSPanel2));
    // The palette dropped over the tint value, shown after it, lies on top, as a window
    // put down would.
    frm.SSPanel16.Move(9000, 6000, 855, 1365);
    frm.tValue.Click();
    frm.SSPanel1.Move(1200, 5700, 3075, 4065);
    drag(frm.SSPanel8, {60, 8}, {580, 390});
    EXPECT_EQ(frm.SSPanel1.Left, 7800);
    EXPECT_EQ(onTopAtMiddleOf(frm.SSPanel16), widget(frm.SSPanel1));
}

} // namespace
