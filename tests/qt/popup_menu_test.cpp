// The canvas's popup menu is made for each showing and deleted once it has closed and
// its item's handler has run: nothing of it may be touched after it, nor it before then.
#include "editor/frm_main.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

QAction* findAction(QWidget* root, const QString& text) {
    for (QAction* a : root->findChildren<QAction*>())
        if (a->text() == text) return a;
    return nullptr;
}

// Opens Pop and closes it as Escape does; the menu goes once it is closed.
void showAndClosePopup(platform::qt::QtHost& host, tavrin::FrmMain& frm) {
    QTimer::singleShot(0, [] {
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    });
    host.PopupMenu(frm.Pop);
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

// Wireframe asks for a model and serves the event queue: the popup closed before the
// handler ran, and goes while it runs; its item must not be touched when it returns.
TEST(QtPopup, AnItemWhoseHandlerOpensADialogOutlivesItsMenu) {
    platform::qt::QtHost host;
    tavrin::FrmMain frm(host);
    host.ShowForm(frm);
    QStringList dialogs;
    // Two timers: the dialog opens inside the popup's timer, which doesn't fire again there.
    QTimer popup, dialog;
    QObject::connect(&popup, &QTimer::timeout, [] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (QAction* a : menu->actions())
                if (a->text() == "Wireframe") menu->setActiveAction(a);
            QTest::keyClick(menu, Qt::Key_Return);
        }
    });
    // Any file will do: the handler serves the event queue once it has a name.
    QObject::connect(&dialog, &QTimer::timeout, [&] {
        if (auto* open = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialogs << open->windowTitle();
            if (auto* name = open->findChild<QLineEdit*>("fileNameEdit"))
                name->setText(TAVRIN_PALETTE_FILE);
            open->accept();
        }
    });
    popup.start(5);
    dialog.start(5);
    // From inside an event loop, as the canvas's press comes in the program.
    QEventLoop loop;
    QTimer::singleShot(0, [&] {
        host.PopupMenu(frm.Pop);
        loop.quit();
    });
    loop.exec();
    EXPECT_EQ(dialogs, QStringList{"Import Base MD2 Wireframe."});
    host.closeAll();
}

} // namespace
