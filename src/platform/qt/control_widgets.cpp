#include "platform/qt/control_widgets.h"

#include "platform/picture_box.h"
#include "platform/qt/button_widget.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/mouse_state.h"
#include "platform/qt/picture_widget.h"
#include "platform/qt/text_box_widget.h"

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QProgressBar>
#include <QSlider>
#include <QVBoxLayout>

namespace platform::qt {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

// Title bars of the floating bars look like a window's caption.
bool isTitleBar(const std::string& name) {
    return name == "SSPanel8" || name == "SSPanel9" || name == "SSPanel10" || name == "SSPanel12" ||
           name == "SSPanel14" || name == "SSPanel17";
}

class PanelWidget : public QFrame {
public:
    PanelWidget(platform::Panel& panel, QWidget* parent)
        : QFrame(parent), panel_(panel), label_(new QLabel(this)) {
        setFrameStyle(QFrame::Panel | QFrame::Raised);
        setLineWidth(1);
        setAutoFillBackground(true);
        QPalette pal = palette();
        // Its own face, whatever back colour the form takes.
        pal.setColor(QPalette::Window, pal.color(QPalette::Window));
        const bool title = isTitleBar(panel.name());
        if (title) {
            pal.setColor(QPalette::Window, QColor(0, 0, 128));
            pal.setColor(QPalette::WindowText, Qt::white);
            QFont f = label_->font();
            f.setBold(true);
            label_->setFont(f);
        }
        setPalette(pal);
        label_->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* layout = new QVBoxLayout(this);
        // A title's caption keeps clear of the close button at its right end.
        layout->setContentsMargins(3, 0, title ? 20 : 3, 0);
        layout->addWidget(label_);
        layout->addStretch();
        label_->setObjectName("caption");
    }
    void setCaption(const std::string& caption) {
        label_->setText(qs(caption));
        label_->setVisible(!caption.empty());
        const bool leftAligned = !caption.empty() && caption.front() == ' ';
        label_->setAlignment((leftAligned ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
        if (auto* layout = static_cast<QVBoxLayout*>(this->layout())) {
            // A panel that is all caption centres it; a bigger one keeps it on top.
            layout->setStretch(1, height() > 30 ? 1 : 0);
        }
    }

protected:
    // A grip's press and release, in twips from the panel's corner.
    void mousePressEvent(QMouseEvent* event) override {
        send(panel_.MouseDown, buttonBits(event->button()), event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        send(panel_.MouseUp, buttonBits(event->button()), event);
    }

private:
    void send(const MouseHandler& handler, int16_t button, QMouseEvent* event) {
        if (!handler) { // not a grip: the panel under it may want the press
            event->ignore();
            return;
        }
        const auto x = static_cast<float>(event->position().x() * 15.0);
        const auto y = static_cast<float>(event->position().y() * 15.0);
        const int16_t shift = shiftState(event->modifiers());
        runEvent([&] { handler(button, shift, x, y); });
    }

    platform::Panel& panel_;
    QLabel* label_;
};

// A text box as the stock control drew it, a flat field in a sunken two-pixel border,
// whose KeyPress sees each typed character first, Enter as 13, and may swallow it by
// setting the code to 0. The style's own frame, rounded and shaded, costs as much to
// paint again as the text does, and the X and Y boxes get a new text at nearly every
// move of the mouse.
} // namespace

QWidget* makeControlWidget(Control& control, QWidget* parent) {
    QWidget* w = nullptr;
    switch (control.kind()) {
    case ControlKind::PictureBox:
        w = new PictureWidget(static_cast<PictureBox&>(control), parent);
        break;
    case ControlKind::Panel:
        w = new PanelWidget(static_cast<Panel&>(control), parent);
        break;
    case ControlKind::Button:
        w = new ButtonWidget(static_cast<CommandButton&>(control), parent);
        break;
    case ControlKind::Label:
        w = new QLabel(parent);
        break;
    case ControlKind::TextBox:
        w = new TextBoxWidget(static_cast<TextBox&>(control), parent);
        break;
    case ControlKind::ListBox:
        w = new QListWidget(parent);
        break;
    case ControlKind::Slider: {
        auto* s = new QSlider(Qt::Vertical, parent);
        auto& slider = static_cast<Slider&>(control);
        QObject::connect(s, &QSlider::valueChanged, s, [&slider](int v) {
            if (slider.Value == v) return;
            slider.Value = v;
            runEvent(slider.Change);
        });
        w = s;
        break;
    }
    case ControlKind::ProgressBar:
        w = new QProgressBar(parent);
        break;
    default:
        return nullptr;
    }
    w->setObjectName(qs(control.name()));
    return w;
}

void updateControlWidget(Control& control, QWidget* widget, const PropBase* changed) {
    const auto is = [changed](const PropBase& p) { return changed == nullptr || changed == &p; };
    switch (control.kind()) {
    case ControlKind::Panel:
        static_cast<PanelWidget*>(widget)->setCaption(static_cast<Panel&>(control).Caption);
        break;
    case ControlKind::Button: {
        static_cast<ButtonWidget*>(widget)->follow();
        break;
    }
    case ControlKind::Label: {
        auto& c = static_cast<Label&>(control);
        auto* l = static_cast<QLabel*>(widget);
        if (is(c.Caption)) l->setText(qs(c.Caption));
        if (is(c.FontSize) || is(c.FontBold)) {
            QFont f = l->font();
            f.setPointSizeF(c.FontSize);
            f.setBold(c.FontBold);
            l->setFont(f);
        }
        break;
    }
    case ControlKind::TextBox: {
        auto& c = static_cast<TextBox&>(control);
        if (is(c.Text)) static_cast<TextBoxWidget*>(widget)->showText(qs(c.Text));
        break;
    }
    case ControlKind::ListBox: {
        auto& c = static_cast<ListBox&>(control);
        auto* l = static_cast<QListWidget*>(widget);
        if (l->count() != static_cast<int>(c.items().size())) {
            l->clear();
            for (const std::string& item : c.items())
                l->addItem(qs(item));
        }
        break;
    }
    case ControlKind::Slider: {
        auto& c = static_cast<Slider&>(control);
        auto* s = static_cast<QSlider*>(widget);
        s->setRange(c.Min, c.Max);
        s->setValue(c.Value);
        break;
    }
    case ControlKind::ProgressBar: {
        auto& c = static_cast<ProgressBar&>(control);
        auto* p = static_cast<QProgressBar*>(widget);
        p->setRange(static_cast<int>(c.Min.get()), static_cast<int>(c.Max.get()));
        p->setValue(static_cast<int>(c.Value.get()));
        break;
    }
    default:
        break;
    }
}

} // namespace platform::qt
