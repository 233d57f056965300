// How the monkey answers what a command puts in front of it: message boxes, the file,
// colour, font and printer dialogs, any other dialog, and popup menus. Also where it
// enters the program: a function the application object calls as it is made.
#include "monkey.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>

namespace monkey {

namespace {

void sendKey(QWidget* w, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &press);
}

// The items of a menu and its submenus, as paths of captions.
QStringList leafPaths(QMenu* menu, const QString& above = {}) {
    QStringList paths;
    for (QAction* a : menu->actions()) {
        if (a->isSeparator()) continue;
        const QString path = above.isEmpty() ? a->text() : above + "/" + a->text();
        if (a->menu())
            paths << leafPaths(a->menu(), path);
        else
            paths << path;
    }
    return paths;
}

} // namespace

bool Monkey::answerModal() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        if (auto* menu = qobject_cast<QMenu*>(popup)) return answerPopup(menu);
        popup->close();
        return true;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return false;
    if (answerMessageBox(modal) || answerFileDialog(modal)) return true;
    const bool accept = !answersRandom_ || chance(80);
    if (auto* colors = qobject_cast<QColorDialog*>(modal)) {
        colors->setCurrentColor(QColor(below(256), below(256), below(256)));
        say(QString("  colour dialog: %1 %2")
                .arg(accept ? "OK" : "Cancel", colors->currentColor().name()));
        accept ? colors->accept() : colors->reject();
    } else if (auto* fonts = qobject_cast<QFontDialog*>(modal)) {
        QFont font = fonts->currentFont();
        font.setPointSize(6 + below(40));
        fonts->setCurrentFont(font);
        say(QString("  font dialog: %1 %2").arg(accept ? "OK" : "Cancel").arg(font.pointSize()));
        accept ? fonts->accept() : fonts->reject();
    } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
        // The printer dialog and any other: a print goes to a file in the working folder.
        say(QString("  dialog %1 \"%2\": %3")
                .arg(modal->metaObject()->className(), modal->windowTitle(),
                     accept ? "OK" : "Cancel"));
        accept ? dialog->accept() : dialog->reject();
    } else {
        say(QString("  closing %1").arg(modal->metaObject()->className()));
        modal->close();
    }
    return true;
}

bool Monkey::answerMessageBox(QWidget* w) {
    auto* box = qobject_cast<QMessageBox*>(w);
    if (!box) return false;
    const QList<QAbstractButton*> buttons = box->buttons();
    QAbstractButton* pick =
        buttons.isEmpty() ? nullptr : buttons[below(static_cast<int>(buttons.size()))];
    // The one answer that ends the program waits for the end of the run.
    if (box->text().contains("Exit Tavrin?"))
        pick = box->button(phase_ == Phase::Closing ? QMessageBox::Yes : QMessageBox::No);
    say("  message \"" + box->text().left(70).replace('\n', ' ') +
        "\": " + (pick ? pick->text() : QString("closed")));
    if (pick)
        pick->click();
    else
        box->close();
    return true;
}

QString Monkey::fileFor(const QStringList& filters) {
    const QString kinds = filters.join(' ').toLower();
    if (answersRandom_ && chance(10)) return settings_.files + "/junk.bin";
    if (kinds.contains("md2")) return settings_.files + "/model.md2";
    if (kinds.contains(".act")) return settings_.files + "/palette.act";
    if (kinds.contains(".pal")) return settings_.files + "/palette.pal";
    return settings_.files + "/skin.pcx";
}

bool Monkey::answerFileDialog(QWidget* w) {
    auto* dialog = qobject_cast<QFileDialog*>(w);
    if (!dialog) return false;
    if (answersRandom_ && chance(10)) {
        say("  file dialog \"" + dialog->windowTitle() + "\": Cancel");
        dialog->reject();
        return true;
    }
    // A few names for the saves, so that some replace a file that is there.
    const QString path = dialog->acceptMode() == QFileDialog::AcceptSave
                             ? QString("%1/saved-%2%3")
                                   .arg(settings_.files)
                                   .arg(saves_++ % 4)
                                   .arg(chance(50) ? ".pcx" : "")
                             : fileFor(dialog->nameFilters());
    say("  file dialog \"" + dialog->windowTitle() + "\": " + path);
    // Typed into the name box, as selectFile leaves a box that has the focus alone.
    if (auto* name = dialog->findChild<QLineEdit*>("fileNameEdit"))
        name->setText(path);
    else
        dialog->selectFile(path);
    static_cast<QDialog*>(dialog)->accept(); // QFileDialog's own is protected
    return true;
}

// A popup menu: the item the pass in turn wants, or any item, or Escape. An item with a
// submenu opens it, and the next tick answers the submenu.
bool Monkey::answerPopup(QMenu* menu) {
    static QPointer<QMenu> lastTop;
    static QStringList path; // the submenus opened in the popup in front
    if (!qobject_cast<QMenu*>(menu->parentWidget()) && menu != lastTop) {
        lastTop = menu;
        path.clear();
        ++popupsShown_;
        if (popupItems_.isEmpty()) popupItems_ = leafPaths(menu);
    }
    QAction* pick = nullptr;
    if (popupItem_ >= 0 && popupItem_ < popupItems_.size()) {
        const QString step = popupItems_[popupItem_].split('/').value(path.size());
        for (QAction* a : menu->actions())
            if (a->text() == step) pick = a;
    } else if (!chance(15)) {
        QList<QAction*> open;
        for (QAction* a : menu->actions())
            if (!a->isSeparator() && a->isVisible() && a->isEnabled()) open << a;
        if (!open.isEmpty()) pick = open[below(static_cast<int>(open.size()))];
    }
    if (!pick || !pick->isEnabled() || !pick->isVisible()) {
        say("  popup: Escape");
        sendKey(menu, Qt::Key_Escape);
        return true;
    }
    say("  popup: " + pick->text());
    if (pick->menu()) path << pick->text();
    menu->setActiveAction(pick);
    sendKey(menu, Qt::Key_Return);
    return true;
}

} // namespace monkey

// Made as the application object is made, before the program's first window: the
// monkey starts with the event loop. Nothing happens without the test's settings.
static void installMonkey() {
    const QString files = qEnvironmentVariable("TAVRIN_MONKEY_FILES");
    if (files.isEmpty()) return;
    monkey::Settings s;
    s.files = files;
    s.log = qEnvironmentVariable("TAVRIN_MONKEY_LOG", files + "/monkey.log");
    s.seed = static_cast<unsigned>(qEnvironmentVariableIntValue("TAVRIN_MONKEY_SEED"));
    if (const int n = qEnvironmentVariableIntValue("TAVRIN_MONKEY_ACTIONS"); n > 0) s.actions = n;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [s] { new monkey::Monkey(s); }, Qt::QueuedConnection);
}

Q_COREAPP_STARTUP_FUNCTION(installMonkey)
