// The main window as Qt builds it from the editor's controls: menus from the command
// table, panels at their places, widgets that follow the state, the canvas's popup.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/text_box_widget.h"
#include "platform/scripted_host.h"
#include "shell/frm_splash.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using platform::qt::FormWindow;

std::string paletteFolder() {
    return std::filesystem::path(TAVRIN_PALETTE_FILE).parent_path().string();
}

QAction* findAction(QWidget* root, const QString& text) {
    for (QAction* a : root->findChildren<QAction*>())
        if (a->text() == text) return a;
    return nullptr;
}

struct MainWindow : ::testing::Test {
    platform::ScriptedHost host{paletteFolder()};
    tavrin::FrmMain frm{host};
    std::unique_ptr<FormWindow> window;
    void SetUp() override {
        frm.Form_Load();
        window = std::make_unique<FormWindow>(frm);
    }
};

TEST_F(MainWindow, MenuBarHoldsTheVisibleMenusWithShortcuts) {
    QStringList titles;
    for (QAction* a : window->menuBar()->actions())
        if (a->isVisible()) titles << a->text();
    EXPECT_EQ(titles, (QStringList{"&File", "&Edit", "&View", "&Tools", "&Filters", "&Brushes",
                                   "&Options", "&Help"}));
    QAction* undo = findAction(window.get(), "&Undo");
    QAction* line = findAction(window.get(), "&Line");
    ASSERT_TRUE(undo && line);
    EXPECT_EQ(undo->shortcut(), QKeySequence("Ctrl+Z"));
    EXPECT_FALSE(line->isVisible());
    EXPECT_TRUE(findAction(window.get(), "&Palette")->isChecked());
    EXPECT_EQ(window->windowTitle(), "Tavrin - 256 Color Pixel Editor - Version Beta - Build 033");
}

TEST_F(MainWindow, PaletteMenuItemHidesAndShowsThePanel) {
    window->show();
    QWidget* panel = window->widgetFor(&frm.SSPanel1);
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isVisible());
    // Showing the window resized it, and the palette keeps to its right edge.
    EXPECT_NEAR(frm.SSPanel1.Left, frm.Width - 3275, 15); // held at whole pixels
    EXPECT_EQ(panel->geometry(), QRect(frm.SSPanel1.Left.pixels(), 510 / 15, 3075 / 15, 4065 / 15));
    QAction* pale = findAction(window.get(), "&Palette");
    pale->trigger();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(pale->isChecked());
    pale->trigger();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(pale->isChecked());
}

TEST_F(MainWindow, StatusColourBoxesAndPaletteFollowTheState) {
    window->show();
    auto* status = window->statusBar()->findChild<QLabel*>("StatusBar1.Panel1");
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->text(), "Ready...");
    QWidget* picture2 = window->widgetFor(&frm.Picture2);
    QImage shown = picture2->grab().toImage();
    // Cell 1 of the palette, inside the 2-pixel border: the colour of record 1.
    const auto& r = frm.Pal_Table(1);
    QColor c = shown.pixelColor(2 + r.Cell_X + 5, 2 + r.Cell_Y + 5);
    EXPECT_EQ(c, QColor(r.Red, r.Green, r.Blue));
    frm.Text1.Text = "17";
    EXPECT_EQ(window->findChild<platform::qt::TextBoxWidget*>("Text1")->shownText(), "17");
}

// A real right press on the canvas reaches the editor's handler, which opens Pop.
TEST_F(MainWindow, RightPressOnTheCanvasOpensPop) {
    std::vector<std::string> opened;
    host.onPopup = [&](platform::MenuItem& menu) { opened.push_back(menu.name()); };
    frm.Picture7.Move(0, 0, 3000, 3000);
    frm.Picture7.Visible = true;
    QWidget* canvas = window->widgetFor(&frm.Picture7);
    ASSERT_NE(canvas, nullptr);
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    QTest::mouseRelease(canvas, Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_EQ(opened, std::vector<std::string>{"Pop"});
}

TEST(QtPopup, TheMenuHoldsPopsItems) {
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

TEST(SplashWindow, ShowsVersionAndEveryNote) {
    platform::ScriptedHost host;
    tavrin::FrmSplash splash(host, [] {});
    splash.Form_Load();
    FormWindow window(splash);
    auto* list = window.findChild<QListWidget*>("List1");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), static_cast<int>(tavrin::releaseNotes().size()));
    EXPECT_EQ(window.findChild<QLabel*>("lblVersion")->text(), "Version 0.3.4");
    EXPECT_TRUE(window.menuBar()->isHidden());
}

} // namespace
