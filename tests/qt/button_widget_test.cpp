// The command buttons as the main window shows them: a drawn picture on every button of
// the tool bar, the filter bar and the file and font tool bar, and captions that fit
// small buttons in one type.
#include "editor/frm_main.h"
#include "platform/qt/button_widget.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_host.h"

#include <QAction>
#include <QFontMetrics>
#include <QToolBar>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using platform::qt::ButtonWidget;

struct Buttons : ::testing::Test {
    platform::ScriptedHost host{std::filesystem::path(TAVRIN_PALETTE_FILE).parent_path().string()};
    tavrin::FrmMain frm{host};
    std::unique_ptr<platform::qt::FormWindow> window;
    void SetUp() override {
        frm.Form_Load();
        window = std::make_unique<platform::qt::FormWindow>(frm);
        window->show();
    }
    ButtonWidget* button(const char* name) {
        return window->findChild<ButtonWidget*>(QString::fromLatin1(name));
    }
};

TEST_F(Buttons, EveryToolAndFilterButtonAndEveryKeyShowsAPicture) {
    for (const platform::Control* c : frm.controls()) {
        const bool bar = c->Container == &frm.SSPanel13 || c->Container == &frm.SSPanel15;
        auto* b = dynamic_cast<const platform::CommandButton*>(c);
        if (!b || !bar || !c->Visible || b->Caption.get() == "x") continue;
        SCOPED_TRACE(c->name());
        ButtonWidget* w = button(c->name().c_str());
        ASSERT_NE(w, nullptr);
        EXPECT_FALSE(w->icon().isNull());
        EXPECT_EQ(w->toolTip().toStdString(), b->ToolTipText.get());
    }
    auto* keys = window->findChild<QToolBar*>("tbToolBar");
    ASSERT_NE(keys, nullptr);
    int pictured = 0;
    for (QAction* a : keys->actions())
        if (!a->isSeparator()) pictured += a->icon().isNull() ? 0 : 1;
    EXPECT_EQ(pictured, 11);
    EXPECT_TRUE(platform::qt::pictureIcon("").isNull());
    EXPECT_TRUE(platform::qt::pictureIcon("no such picture").isNull());
}

// The brush kinds' buttons are a third of a tool button wide: their captions shrink
// until the widest fits, and all four take that type.
TEST_F(Buttons, SmallButtonsSideBySideShareATypeThatFitsTheirWidestCaption) {
    frm.SSCommand12.Click(); // opens the brush kinds
    for (const char* row : {"SSPanel2", "SSPanel15"}) {
        SCOPED_TRACE(row);
        QList<ButtonWidget*> buttons;
        for (auto* b : window->findChild<QWidget*>(row)->findChildren<ButtonWidget*>())
            if (!b->text().isEmpty() && b->text() != "x") buttons.append(b);
        ASSERT_GE(buttons.size(), 4);
        for (ButtonWidget* b : buttons) {
            SCOPED_TRACE(b->objectName().toStdString());
            EXPECT_EQ(b->font().pointSizeF(), buttons.front()->font().pointSizeF());
            EXPECT_LE(QFontMetrics(b->font()).horizontalAdvance(b->text()), b->width() - 4);
        }
    }
}

} // namespace
