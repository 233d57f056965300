// A right press on the canvas opens the popup menu Pop: through the editor's handler
// from a real mouse event, and as a Qt menu holding Pop's items.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"
#include "platform/scripted_host.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

TEST(Popup, RightPressOnTheCanvasOpensPop) {
    platform::ScriptedHost host;
    tavrin::FrmMain frm(host);
    std::vector<std::string> opened;
    host.onPopup = [&](platform::MenuItem& menu) { opened.push_back(menu.name()); };
    platform::qt::FormWindow window(frm);
    frm.Picture7.Move(0, 0, 3000, 3000);
    frm.Picture7.Visible = true;
    QWidget* canvas = window.widgetFor(&frm.Picture7);
    ASSERT_NE(canvas, nullptr);
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    QTest::mouseRelease(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_EQ(opened, std::vector<std::string>{"Pop"});
    // In the zoom tool the right button zooms out instead.
    frm.Tool_Mode = "Zoom";
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_EQ(opened.size(), 1u);
}

TEST(Popup, TheQtMenuHoldsPopsItems) {
    platform::qt::QtHost host;
    tavrin::FrmMain frm(host);
    host.ShowForm(frm);
    QStringList shown;
    QTimer::singleShot(0, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (QAction* a : menu->actions())
                if (!a->isSeparator()) shown << a->text();
            menu->close();
        }
    });
    host.PopupMenu(frm.Pop);
    EXPECT_EQ(shown, (QStringList{"Zoom", "Eye-Dropper", "Air-Brush", "Blur-Brush", "Tint-Brush",
                                  "Paintbrush", "Pencil", "Brush Size", "Diffuse", "Blur", "Emboss",
                                  "Tint", "Lighten", "Sharpen", "Wireframe"}));
    host.closeAll();
}

} // namespace
