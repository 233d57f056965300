#include "platform/qt/floating_panels.h"

#include "platform/picture_box.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/form_window.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

namespace platform::qt {

namespace {

// The outline a drag moves with the pointer: a dotted grey frame that lets the mouse
// through to whatever lies under it.
class DragOutline : public QWidget {
public:
    explicit DragOutline(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setPen(QPen(QColor(64, 64, 64), 2, Qt::DotLine));
        p.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

} // namespace

FloatingPanels::FloatingPanels(FormWindow& window, QWidget* surface)
    : QObject(&window), window_(window), form_(window.form()), surface_(surface),
      outline_(new DragOutline(surface)) {
    for (Control* c : form_.controls()) {
        QWidget* w = window_.widgetFor(c);
        if (!w) continue;
        controls_[w] = c;
        w->raise();
        if (c->Container || c->kind() != ControlKind::Panel) continue;
        const int id = c->observe([c, w, shown = bool(c->Visible)](const PropBase* p) mutable {
            if (p != &c->Visible) return;
            if (c->Visible && !shown) w->raise();
            shown = c->Visible;
        });
        observers_.emplace_back(c, id);
    }
    form_.DragShown = [this](Control& source, int action) { dragShown(source, action); };
    qApp->installEventFilter(this);
}

FloatingPanels::~FloatingPanels() {
    form_.DragShown = nullptr;
    for (auto& [control, id] : observers_)
        control->unobserve(id);
}

void FloatingPanels::dragShown(Control& source, int action) {
    QWidget* w = window_.widgetFor(&source);
    if (action == 1 && w) {
        dragged_ = &source;
        const QRect at(w->mapTo(surface_, QPoint(0, 0)), w->size());
        grab_ = surface_->mapFromGlobal(lastPress_) - at.topLeft();
        outline_->setGeometry(at);
        outline_->show();
        outline_->raise();
    } else if (action == 2 && dragged_) {
        drop(QCursor::pos());
    } else {
        dragged_ = nullptr;
        outline_->hide();
    }
}

bool FloatingPanels::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (!watched->isWidgetType() ||
        (type != QEvent::MouseButtonPress && type != QEvent::MouseMove &&
         type != QEvent::MouseButtonRelease))
        return false;
    const QPoint global = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (type == QEvent::MouseButtonPress)
        lastPress_ = global;
    else if (dragged_ && type == QEvent::MouseMove)
        outline_->move(surface_->mapFromGlobal(global) - grab_);
    else if (dragged_ && type == QEvent::MouseButtonRelease)
        drop(global); // before the grip's own release, which then finds no drag to end
    return false;
}

void FloatingPanels::drop(QPoint global) {
    Control* source = std::exchange(dragged_, nullptr);
    outline_->hide();
    const QPoint onSurface = surface_->mapFromGlobal(global);
    if (!source || !surface_->rect().contains(onSurface)) { // off the form: no drop
        if (source) source->Drag(0);
        return;
    }
    QPoint local;
    Control& target = controlAt(onSurface, local);
    float x = static_cast<float>(local.x() * 15.0), y = static_cast<float>(local.y() * 15.0);
    if (auto* box = dynamic_cast<PictureBox*>(&target)) {
        const int inset = box->borderPixels() / 2;
        x = static_cast<float>(box->scaleX(local.x() - inset));
        y = static_cast<float>(box->scaleY(local.y() - inset));
    }
    runEvent([&] { form_.dropOn(target, x, y); });
    // A bar put down over another lies on top of it, as a window does.
    if (QWidget* w = window_.widgetFor(source)) w->raise();
}

Control& FloatingPanels::controlAt(QPoint onSurface, QPoint& local) const {
    for (QWidget* w = surface_->childAt(onSurface); w && w != surface_; w = w->parentWidget()) {
        auto it = controls_.find(w);
        if (it == controls_.end()) continue; // a part of a control's widget
        local = w->mapFrom(surface_, onSurface);
        return *it->second;
    }
    local = onSurface;
    return form_;
}

} // namespace platform::qt
