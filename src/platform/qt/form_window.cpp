#include "platform/qt/form_window.h"

#include "platform/qt/button_widget.h"
#include "platform/qt/control_widgets.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/floating_panels.h"
#include "platform/qt/picture_widget.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

namespace platform::qt {

FormWindow::FormWindow(Form& form) : form_(form), surface_(new QWidget(this)) {
    setCentralWidget(surface_);
    surface_->setAutoFillBackground(true);
    buildControls();
    buildMenus();
    setWindowTitle(QString::fromStdString(form_.Caption.get()));
    watch(form_, [this] { setWindowTitle(QString::fromStdString(form_.Caption.get())); });
    followForm();
    new FloatingPanels(*this, surface_);
    registerWindow(this);
}

// A back colour of the form's own (not one of the system's) as it is and whenever it
// changes, the form's clicks on its free area, and a maximise while it is shown.
void FormWindow::followForm() {
    const auto showBackColor = [this] {
        const auto back = static_cast<uint32_t>(form_.BackColor.get());
        if ((back & 0x80000000u) != 0) return;
        QPalette pal = surface_->palette();
        pal.setColor(QPalette::Window,
                     QColor(back & 0xFF, (back >> 8) & 0xFF, (back >> 16) & 0xFF));
        surface_->setPalette(pal);
    };
    showBackColor();
    surface_->installEventFilter(this);
    observers_.add(form_, form_.observe([this, showBackColor](const PropBase* p) {
        if (p == &form_.BackColor) showBackColor();
        if (p != &form_.WindowState || !isVisible()) return;
        applyWindowState();
        // Read at once by whoever maximised it: the size the window takes, not a later one.
        form_.Width.setFromView(width() * 15.0);
        form_.Height.setFromView(height() * 15.0);
    }));
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == surface_ && event->type() == QEvent::MouseButtonRelease && form_.Click) {
        const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
        if (surface_->rect().contains(at) && !surface_->childAt(at)) runEvent(form_.Click);
    }
    return QMainWindow::eventFilter(watched, event);
}

Watchers::~Watchers() {
    for (auto& [control, id] : ids_)
        control->unobserve(id);
}

FormWindow::~FormWindow() { unregisterWindow(this); }

void FormWindow::watch(Watchers& watchers, Control& control, std::function<void()> update) {
    update();
    watchers.add(control,
                 control.observe([update = std::move(update)](const PropBase*) { update(); }));
}

void FormWindow::watch(Control& control, std::function<void()> update) {
    watch(observers_, control, std::move(update));
}

QWidget* FormWindow::widgetFor(const Control* control) const {
    auto it = widgets_.find(control);
    return it == widgets_.end() ? nullptr : it->second;
}

void FormWindow::buildControls() {
    // Every widget first, then each into its container: a panel may be made after the
    // controls that stand in it.
    for (Control* c : form_.controls()) {
        switch (c->kind()) {
        case ControlKind::MenuItem:
        case ControlKind::CommonDialog:
            continue;
        case ControlKind::Toolbar:
            buildToolbar(static_cast<Toolbar&>(*c));
            continue;
        case ControlKind::StatusBar:
            buildStatusBar(static_cast<StatusBar&>(*c));
            continue;
        default:
            break;
        }
        QWidget* w = makeControlWidget(*c, surface_);
        if (!w) continue;
        widgets_[c] = w;
        if (c->kind() == ControlKind::PictureBox)
            pictures_.push_back(static_cast<PictureWidget*>(w));
    }
    for (auto& [control, w] : widgets_) {
        if (control->Container)
            if (QWidget* parent = widgetFor(control->Container)) w->setParent(parent);
    }
    for (auto& [control, w] : widgets_) {
        Control* c = const_cast<Control*>(control);
        QWidget* widget = w;
        const auto place = [c, widget] {
            widget->setGeometry(c->Left.pixels(), c->Top.pixels(), c->Width.pixels(),
                                c->Height.pixels());
        };
        place();
        widget->setVisible(c->Visible);
        widget->setEnabled(c->Enabled);
        updateControlWidget(*c, widget, nullptr);
        // Only what changed goes to the widget: the X and Y boxes change at every move of
        // the mouse, their place and visibility never. A Refresh (nullptr) asks for the
        // content only; the widget shows the rest as it stands.
        observers_.add(*c, c->observe([c, widget, place](const PropBase* p) {
            if (p == &c->Left || p == &c->Top || p == &c->Width || p == &c->Height)
                place();
            else if (p == &c->Visible) {
                widget->setVisible(c->Visible);
                // A bar shown while the program runs comes up over those beside it: the
                // brush kinds open over the tool bar.
                if (c->Visible) widget->raise();
            } else if (p == &c->Enabled)
                widget->setEnabled(c->Enabled);
            else
                updateControlWidget(*c, widget, p);
        }));
    }
}

void FormWindow::fillMenu(QMenu* menu, MenuItem* parent, Watchers& watchers) {
    for (Control* c : form_.controls()) {
        if (c->kind() != ControlKind::MenuItem) continue;
        auto* item = static_cast<MenuItem*>(c);
        if (item->Parent != parent) continue;
        if (item->isSeparator()) {
            QAction* sep = menu->addSeparator();
            watch(watchers, *item, [item, sep] { sep->setVisible(item->Visible); });
            continue;
        }
        bool hasChildren = false;
        for (Control* d : form_.controls())
            if (d->kind() == ControlKind::MenuItem && static_cast<MenuItem*>(d)->Parent == item)
                hasChildren = true;
        QAction* action = nullptr;
        if (hasChildren) {
            QMenu* sub = menu->addMenu(QString::fromStdString(item->Caption.get()));
            fillMenu(sub, item, watchers);
            action = sub->menuAction();
        } else {
            action = menu->addAction(QString::fromStdString(item->Caption.get()));
            if (!item->Shortcut.empty())
                action->setShortcut(QKeySequence(QString::fromStdString(item->Shortcut)));
            QObject::connect(action, &QAction::triggered, this, [item, action] {
                // A popup's item may go with its menu while the handler waits in a dialog.
                const QPointer<QAction> still(action);
                runEvent(item->Click);
                if (!still) return;
                // The handler owns the check mark; undo any toggle Qt made on its own.
                action->setCheckable(item->Checked);
                action->setChecked(item->Checked);
            });
        }
        watch(watchers, *item, [item, action] {
            action->setText(QString::fromStdString(item->Caption.get()));
            action->setVisible(item->Visible);
            action->setEnabled(item->Enabled);
            action->setCheckable(item->Checked);
            action->setChecked(item->Checked);
        });
    }
}

namespace {

// Made anew for each showing: its check marks stop following the items when it goes.
class PopupMenu : public QMenu {
public:
    using QMenu::QMenu;
    Watchers watchers;
};

} // namespace

QMenu* FormWindow::menuFor(MenuItem& item) {
    auto* menu = new PopupMenu(this);
    fillMenu(menu, &item, menu->watchers);
    return menu;
}

void FormWindow::buildMenus() {
    bool any = false;
    for (Control* c : form_.controls()) {
        if (c->kind() != ControlKind::MenuItem) continue;
        auto* item = static_cast<MenuItem*>(c);
        if (item->Parent != nullptr || !item->Visible) continue; // the popup stays off the bar
        QMenu* menu = menuBar()->addMenu(QString::fromStdString(item->Caption.get()));
        fillMenu(menu, item, observers_);
        any = true;
    }
    menuBar()->setVisible(any);
}

void FormWindow::buildToolbar(Toolbar& bar) {
    auto* tb = addToolBar(QString::fromStdString(bar.name()));
    tb->setMovable(false);
    tb->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tb->setObjectName(QString::fromStdString(bar.name()));
    for (const Toolbar::Button& b : bar.Buttons) {
        if (b.Key.empty()) {
            tb->addSeparator();
            continue;
        }
        QAction* a = tb->addAction(pictureIcon(b.Image), QString::fromStdString(b.Key));
        a->setToolTip(QString::fromStdString(b.ToolTipText));
        a->setObjectName(QString::fromStdString(b.Key));
        const std::string key = b.Key;
        QObject::connect(a, &QAction::triggered, this, [&bar, key, a] {
            runEvent([&bar, key] {
                if (bar.ButtonClick) bar.ButtonClick(key);
            });
            if (const Toolbar::Button* now = bar.find(key)) {
                a->setCheckable(now->Value != 0);
                a->setChecked(now->Value != 0);
            }
        });
    }
    watch(bar, [tb, &bar] { tb->setVisible(bar.Visible); });
}

void FormWindow::buildStatusBar(StatusBar& bar) {
    auto* label = new QLabel(this);
    label->setObjectName("StatusBar1.Panel1");
    statusBar()->addWidget(label, 1);
    watch(bar, [label, &bar] { label->setText(QString::fromStdString(bar.Panels(1).Text.get())); });
}

void FormWindow::syncPictures() {
    for (PictureWidget* p : pictures_)
        p->sync();
}

void FormWindow::applyWindowState() {
    if (form_.WindowState == 2) {
        // Without a window manager a maximise request does nothing: take the screen.
        if (QScreen* screen = QGuiApplication::primaryScreen())
            setGeometry(screen->availableGeometry());
        showMaximized();
    } else {
        resize(form_.Width.pixels(), form_.Height.pixels());
        show();
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (onClose && !onClose())
        event->ignore();
    else
        event->accept();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    form_.Width.setFromView(width() * 15.0);
    form_.Height.setFromView(height() * 15.0);
    runEvent(form_.Resize);
}

void FormWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) runEvent(form_.GotFocus);
}

} // namespace platform::qt
