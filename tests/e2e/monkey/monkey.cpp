#include "monkey.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSlider>
#include <QTimer>
#include <QToolBar>

#include <algorithm>

namespace monkey {

namespace {

// Runs for as long as it lives; counts an action's handler as running.
struct Busy {
    int& depth;
    explicit Busy(int& d) : depth(d) { ++depth; }
    ~Busy() { --depth; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};

bool isPicture(const QWidget* w) {
    return QByteArray(w->metaObject()->className()).endsWith("PictureWidget");
}

QString label(const QWidget* w) {
    QString text;
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) text = b->text();
    if (text.isEmpty()) text = w->toolTip();
    return w->objectName() + (text.isEmpty() ? "" : " (" + text + ")");
}

// A menu whose title shows, enabled, in a menu or on the bar that does the same.
bool reachable(const QMenu* menu) {
    for (; menu; menu = qobject_cast<const QMenu*>(menu->parentWidget()))
        if (!menu->menuAction()->isVisible() || !menu->menuAction()->isEnabled()) return false;
    return true;
}

// A command the user can reach: shown and enabled, and so is what holds it.
bool reachable(const Command& c) {
    if (!c.target) return false;
    if (auto* a = qobject_cast<QAction*>(c.target)) {
        if (!a->isVisible() || !a->isEnabled()) return false;
        const auto holders = a->associatedObjects();
        return std::any_of(holders.begin(), holders.end(), [](QObject* o) {
            if (auto* menu = qobject_cast<QMenu*>(o)) return reachable(menu);
            auto* w = qobject_cast<QWidget*>(o);
            return w && w->isVisible() && w->isEnabled();
        });
    }
    auto* w = qobject_cast<QWidget*>(c.target);
    return w && w->isVisible() && w->isEnabled();
}

void sendMouse(QWidget* w, QEvent::Type type, QPoint at, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
    QMouseEvent event(type, QPointF(at), QPointF(w->mapToGlobal(at)), button, held, modifiers);
    QCoreApplication::sendEvent(w, &event);
}

void sendKey(QWidget* w, int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(w, &press);
    if (!w) return;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(w, &release);
}

} // namespace

Monkey::Monkey(Settings settings)
    : QObject(QCoreApplication::instance()), settings_(std::move(settings)), rng_(settings_.seed) {
    log_ = std::fopen(settings_.log.toLocal8Bit().constData(), "w");
    say(QString("monkey: seed %1, %2 actions").arg(settings_.seed).arg(settings_.actions));
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        say(phase_ == Phase::Closing ? "monkey: the program ended when asked"
                                     : "monkey: the program ended on its own");
    });
    schedule();
}

void Monkey::say(const QString& line) {
    if (!log_) return;
    std::fprintf(log_, "%s\n", line.toLocal8Bit().constData());
    std::fflush(log_); // a crash must not take the last line with it
}

void Monkey::schedule() {
    QTimer::singleShot(phase_ == Phase::Random ? 2 : 20, this, [this] { tick(); });
}

void Monkey::tick() {
    // Scheduled first: an action below may not return for a while (a dialog's own loop),
    // and the next tick has to answer that dialog.
    schedule();
    if (answerModal() || busy_ > 0) return;
    Busy busy(busy_);
    switch (phase_) {
    case Phase::Start:
        startUp();
        break;
    case Phase::Setup:
        setUp();
        break;
    case Phase::InTurn:
        runInTurn();
        break;
    case Phase::Random:
        runRandom();
        break;
    case Phase::Closing:
        // Still here after the window was asked to close.
        if (++waited_ > 500) {
            say("monkey: FAILED: the window would not close");
            QCoreApplication::exit(3);
        }
        break;
    case Phase::Done:
        break;
    }
}

// The start form's OK shows the main window.
void Monkey::startUp() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<QMainWindow*>(top);
        if (window && window->isVisible() && window->menuBar()->isVisible() &&
            !window->menuBar()->actions().isEmpty()) {
            main_ = window;
            phase_ = Phase::Setup;
            say("monkey: the main window is up: " + window->windowTitle());
            return;
        }
        if (!top->isVisible()) continue;
        for (auto* b : top->findChildren<QAbstractButton*>())
            if (b->text() == "OK" && b->isVisible()) {
                say("start form: OK");
                b->click();
                return;
            }
    }
    if (++waited_ > 1000) {
        say("monkey: FAILED: no main window");
        QCoreApplication::exit(3);
    }
}

QAction* Monkey::findAction(const QString& text) const {
    for (QAction* a : main_->findChildren<QAction*>())
        if (a->text() == text) return a;
    return nullptr;
}

// A skin and a model, through the menus: every command then has something to work on.
void Monkey::setUp() {
    for (const char* caption : {"&PCX File", "&Wire Frame"}) {
        QAction* a = findAction(caption);
        if (!a) {
            say(QString("monkey: FAILED: no command %1").arg(caption));
            QCoreApplication::exit(3);
            return;
        }
        say(QString("set up: %1").arg(caption));
        a->trigger();
    }
    answersRandom_ = true;
    discover();
    phase_ = Phase::InTurn;
}

// Every command the main window offers, in the order the pass in turn takes them: the
// menu bar's last, since its items show again what the others may have hidden.
void Monkey::discover() {
    std::vector<Command> menus;
    std::function<void(QMenu*, const QString&)> walk = [&](QMenu* menu, const QString& path) {
        for (QAction* a : menu->actions()) {
            if (a->isSeparator()) continue;
            const QString name = path + "/" + a->text();
            if (a->menu())
                walk(a->menu(), name);
            else
                menus.push_back({Command::Menu, a, "menu " + name.mid(1)});
        }
    };
    for (QAction* top : main_->menuBar()->actions())
        if (top->menu()) walk(top->menu(), "/" + top->text());
    for (QToolBar* bar : main_->findChildren<QToolBar*>())
        for (QAction* a : bar->actions())
            if (!a->isSeparator())
                commands_.push_back({Command::ToolKey, a, "tool bar " + a->text()});
    // The form's command buttons, whatever their kind; a tool bar's own buttons are its
    // keys, taken above.
    for (QAbstractButton* b : main_->findChildren<QAbstractButton*>())
        if (!qobject_cast<QToolBar*>(b->parentWidget()))
            commands_.push_back({Command::Button, b, "button " + label(b)});
    for (QLineEdit* e : main_->findChildren<QLineEdit*>())
        commands_.push_back({Command::TextBox, e, "text box " + e->objectName()});
    for (QSlider* s : main_->findChildren<QSlider*>())
        commands_.push_back({Command::Slider, s, "slider " + s->objectName()});
    for (QWidget* w : main_->findChildren<QWidget*>())
        if (isPicture(w)) commands_.push_back({Command::Picture, w, "picture " + w->objectName()});
    commands_.insert(commands_.end(), menus.begin(), menus.end());
    say(QString("monkey: found %1 commands").arg(commands_.size()));
}

QWidget* Monkey::canvas() const {
    auto* w = main_ ? main_->findChild<QWidget*>("Picture7") : nullptr;
    return w && w->isVisible() ? w : nullptr;
}

// Opens the canvas's popup with the right button. The tool in force may take the right
// button for itself (the zoom tool does): then another command runs, which may choose
// another tool, and the press is tried again.
void Monkey::openPopup() {
    for (int attempt = 0; attempt < 30; ++attempt) {
        const int shown = popupsShown_;
        if (QWidget* c = canvas()) stroke(c, true);
        if (popupsShown_ > shown) return;
        std::vector<Command*> others;
        for (Command& c : commands_)
            if ((c.kind == Command::Button || c.kind == Command::Menu) && reachable(c))
                others.push_back(&c);
        if (!others.empty())
            activate(*others[static_cast<std::size_t>(below(static_cast<int>(others.size())))],
                     true);
    }
    say("monkey: the popup never opened");
}

// Each command once, as far as the user can reach it, and those it couldn't reach once
// more (the others may have shown them since); then each popup item.
void Monkey::runInTurn() {
    const std::size_t n = commands_.size();
    if (next_ < 2 * n) {
        Command& c = commands_[next_++ % n];
        if (next_ > n && c.activated > 0) return;
        if (!activate(c, true)) say("  not reachable now: " + c.name);
        return;
    }
    const auto item = static_cast<int>(next_ - 2 * n);
    if (item == 0 || item < popupItems_.size()) {
        popupItem_ = item;
        say(QString("popup item %1").arg(item));
        openPopup();
        popupItem_ = -1;
        ++next_;
        return;
    }
    say("monkey: the pass in turn is done; the random order begins");
    phase_ = Phase::Random;
}

void Monkey::runRandom() {
    if (done_ >= settings_.actions) {
        close();
        return;
    }
    ++done_;
    const int roll = below(100);
    if (roll < 20) {
        QWidget* target = canvas();
        if (!target || chance(25)) {
            std::vector<QWidget*> pictures;
            for (Command& c : commands_)
                if (c.kind == Command::Picture && reachable(c))
                    pictures.push_back(qobject_cast<QWidget*>(c.target));
            if (pictures.empty()) return;
            target = pictures[static_cast<std::size_t>(below(static_cast<int>(pictures.size())))];
        }
        say(QString("#%1 strokes").arg(++actions_));
        stroke(target, chance(15));
        return;
    }
    // A command of a kind chosen by weight, one the user can reach.
    const Command::Kind kind = roll < 55   ? Command::Menu
                               : roll < 75 ? Command::Button
                               : roll < 85 ? Command::ToolKey
                               : roll < 93 ? Command::TextBox
                                           : Command::Slider;
    std::vector<Command*> open;
    for (Command& c : commands_)
        if (c.kind == kind && reachable(c)) open.push_back(&c);
    if (!open.empty())
        activate(*open[static_cast<std::size_t>(below(static_cast<int>(open.size())))], true);
}

bool Monkey::activate(Command& c, bool asUserCan) {
    if (asUserCan && !reachable(c)) return false;
    say(QString("#%1 %2").arg(++actions_).arg(c.name));
    ++c.activated;
    QPointer<QObject> target = c.target;
    switch (c.kind) {
    case Command::Menu:
    case Command::ToolKey:
        qobject_cast<QAction*>(target)->trigger();
        break;
    case Command::Button:
        qobject_cast<QAbstractButton*>(target)->click();
        break;
    case Command::TextBox:
        type(qobject_cast<QWidget*>(target));
        break;
    case Command::Slider: {
        auto* s = qobject_cast<QSlider*>(target);
        s->setValue(s->minimum() + below(s->maximum() - s->minimum() + 1));
        break;
    }
    case Command::Picture:
        stroke(qobject_cast<QWidget*>(target), chance(15));
        break;
    }
    return true;
}

// A press, a few moves (some past the edges, as a drag goes) and a release; a right
// press that opened a menu has its release taken by the menu.
void Monkey::stroke(QWidget* picture, bool right) {
    QPointer<QWidget> w = picture;
    auto point = [&] { return QPoint(below(w->width() + 20) - 10, below(w->height() + 20) - 10); };
    const Qt::MouseButton button = right ? Qt::RightButton : Qt::LeftButton;
    const Qt::KeyboardModifiers mods = chance(10) ? Qt::ShiftModifier : Qt::NoModifier;
    QPoint at(below(w->width()), below(w->height()));
    say(QString("  stroke %1 %2 from %3,%4")
            .arg(w->objectName(), right ? "right" : "left")
            .arg(at.x())
            .arg(at.y()));
    const int shown = popupsShown_;
    sendMouse(w, QEvent::MouseButtonPress, at, button, button, mods);
    if (popupsShown_ > shown || !w) return;
    const int moves = right ? 0 : below(12);
    for (int k = 0; k < moves && w; ++k) {
        at = chance(20) ? point() : at + QPoint(below(21) - 10, below(21) - 10);
        sendMouse(w, QEvent::MouseMove, at, Qt::NoButton, button, mods);
    }
    if (w) sendMouse(w, QEvent::MouseButtonRelease, at, button, Qt::NoButton, mods);
}

// Typing into a text box: digits mostly, now and then something no number is.
void Monkey::type(QWidget* edit) {
    static const char* const texts[] = {"0",  "1",     "15", "128", "255", "256",
                                        "-1", "99999", "",   "x",   "3.5", "2147483648"};
    const QString text = texts[below(static_cast<int>(std::size(texts)))];
    QPointer<QWidget> e = edit;
    say("  typing \"" + text + "\"");
    qobject_cast<QLineEdit*>(edit)->selectAll();
    sendKey(e, Qt::Key_Backspace);
    for (QChar ch : text)
        if (e) sendKey(e, ch.unicode(), QString(ch));
    if (e) sendKey(e, Qt::Key_Return);
}

// As the user closes the window; its question is answered Yes this time.
void Monkey::close() {
    int never = 0;
    for (const Command& c : commands_)
        if (c.activated == 0 && c.kind != Command::Picture) {
            say("  never reached: " + c.name);
            ++never;
        }
    say(QString("monkey: done: %1 commands found, %2 never reached, %3 popups answered")
            .arg(commands_.size())
            .arg(never)
            .arg(popupsShown_));
    phase_ = Phase::Closing;
    if (main_) main_->close();
}

} // namespace monkey
