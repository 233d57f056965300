// The canvas's popup menu is made for each showing and deleted when it closes; what it
// leaves behind must not be touched by the commands that run after it.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

QAction* findAction(QWidget* root, const QString& text) {
    for (QAction* a : root->findChildren<QAction*>())
        if (a->text() == text) return a;
    return nullptr;
}

// Opens Pop and closes it as Escape does, then lets Qt delete it.
void showAndClosePopup(platform::qt::QtHost& host, tavrin::FrmMain& frm) {
    QTimer::singleShot(0, [] {
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    });
    host.PopupMenu(frm.Pop);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Brush sizes from the bar: their handlers move the check marks the popup shows too.
TEST(QtPopup, CommandsAfterThePopupClosedLeaveItsDeletedItemsAlone) {
    platform::qt::QtHost host;
    tavrin::FrmMain frm(host);
    host.ShowForm(frm);
    QWidget* window = host.windowFor(frm);
    ASSERT_NE(window, nullptr);
    for (const char* caption : {"&1 Pixels", "&9 Pixels", "&1 Pixels"}) {
        SCOPED_TRACE(caption);
        // Shown several times: each showing made its own items.
        for (int k = 0; k < 3; ++k)
            showAndClosePopup(host, frm);
        QAction* action = findAction(window, caption);
        ASSERT_NE(action, nullptr);
        action->trigger();
        EXPECT_TRUE(action->isChecked());
    }
    // The popup still shows the marks the commands set.
    QStringList checked;
    QTimer::singleShot(0, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (QAction* a : menu->findChildren<QAction*>())
                if (a->isChecked()) checked << a->text();
            menu->close();
        }
    });
    host.PopupMenu(frm.Pop);
    EXPECT_EQ(checked, QStringList{"1 Pixels"});
    host.closeAll();
}

} // namespace
