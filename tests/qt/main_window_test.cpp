// The main window as Qt builds it from the editor's controls: menus from the command
// table, panels at their places, widgets that follow the state.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_host.h"
#include "shell/frm_splash.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
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
    ASSERT_NE(undo, nullptr);
    EXPECT_EQ(undo->shortcut(), QKeySequence("Ctrl+Z"));
    QAction* line = findAction(window.get(), "&Line");
    ASSERT_NE(line, nullptr);
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
    EXPECT_EQ(window->findChild<QWidget*>("Text1")->property("text").toString(), "17");
}

TEST(SplashWindow, ShowsVersionAndEveryNote) {
    platform::ScriptedHost host;
    bool mainShown = false;
    tavrin::FrmSplash splash(host, [&] { mainShown = true; });
    splash.Form_Load();
    FormWindow window(splash);
    auto* list = window.findChild<QListWidget*>("List1");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), static_cast<int>(tavrin::releaseNotes().size()));
    EXPECT_EQ(window.findChild<QLabel*>("lblVersion")->text(), "Version 0.3.4");
    EXPECT_TRUE(window.menuBar()->isHidden());
}

} // namespace
