// Each widget follows each property of its control, whichever changes and in any order,
// though a change goes to the widget alone.
#include "platform/form.h"
#include "platform/qt/form_window.h"
#include "platform/qt/text_box_widget.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <functional>

namespace {

struct Controls {
    platform::Form form{"frmTest"};
    platform::Panel panel{&form, "SSPanel1"};
    platform::TextBox text{&form, "Text5"};
    platform::Label label{&form, "Label5"};
    Controls() {
        panel.Move(0, 0, 3000, 3000);
        text.Container = &panel;
        text.Move(150, 300, 600, 300);
        label.Move(150, 900, 600, 300);
        label.Caption = "Red";
    }
};

TEST(ControlWidgets, EveryPropertyReachesItsWidget) {
    struct Case {
        const char* name;
        std::function<void(Controls&)> change;
        std::function<bool(QLineEdit&, QLabel&)> shown;
    };
    const Case cases[] = {
        {"Left and Top", [](Controls& c) { c.text.Left = 450, c.text.Top = 600; },
         [](QLineEdit& e, QLabel&) { return e.pos() == QPoint(30, 40); }},
        {"Width and Height", [](Controls& c) { c.text.Width = 900, c.text.Height = 450; },
         [](QLineEdit& e, QLabel&) { return e.size() == QSize(60, 30); }},
        {"Visible", [](Controls& c) { c.text.Visible = false; },
         [](QLineEdit& e, QLabel&) { return e.isHidden(); }},
        {"Enabled", [](Controls& c) { c.text.Enabled = false; },
         [](QLineEdit& e, QLabel&) { return !e.isEnabled(); }},
        {"Text, then a Refresh",
         [](Controls& c) {
             c.text.Text = "517";
             c.text.Refresh();
         },
         [](QLineEdit& e, QLabel&) {
             return static_cast<platform::qt::TextBoxWidget&>(e).shownText() == "517" &&
                    e.isVisible();
         }},
        {"a Refresh after hiding", [](Controls& c) { c.text.Visible = false, c.text.Refresh(); },
         [](QLineEdit& e, QLabel&) { return e.isHidden() && e.pos() == QPoint(10, 20); }},
        {"Caption", [](Controls& c) { c.label.Caption = "Green"; },
         [](QLineEdit&, QLabel& l) { return l.text() == "Green" && !l.font().bold(); }},
        {"FontBold", [](Controls& c) { c.label.FontBold = true; },
         [](QLineEdit&, QLabel& l) { return l.text() == "Red" && l.font().bold(); }},
        {"FontSize", [](Controls& c) { c.label.FontSize = 12; },
         [](QLineEdit&, QLabel& l) { return l.font().pointSizeF() == 12; }},
    };
    for (const Case& c : cases) {
        Controls controls;
        platform::qt::FormWindow window(controls.form);
        window.show();
        auto* edit = static_cast<QLineEdit*>(window.widgetFor(&controls.text));
        auto* label = static_cast<QLabel*>(window.widgetFor(&controls.label));
        ASSERT_TRUE(edit && label);
        c.change(controls);
        EXPECT_TRUE(c.shown(*edit, *label)) << c.name;
    }
}

} // namespace

namespace {

// A text the program sets is painted by the box itself until the user edits it: it must
// look as the line edit draws it, and the line edit must take it at the focus.
TEST(ControlWidgets, APaintedTextLooksAsTheLineEditDrawsItAndIsEditedFromThere) {
    platform::Form form{"frmTest"};
    platform::TextBox box{&form, "Text1"};
    QWidget window;
    window.resize(200, 100);
    platform::qt::TextBoxWidget painted(box, &window), drawn(box, &window);
    for (auto* w : {&painted, &drawn})
        w->setGeometry(10, 10, 50, 21);
    window.show();
    for (const char* text : {"517", "0", "1023"}) {
        painted.showText(text);
        drawn.setText(text);
        EXPECT_EQ(painted.grab().toImage(), drawn.grab().toImage()) << text;
    }
    painted.showText("42");
    window.activateWindow();
    painted.setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(painted.hasFocus());
    EXPECT_EQ(painted.text(), "42");
    painted.showText("43");
    EXPECT_EQ(painted.text(), "43");
}

} // namespace
