#include "platform/qt/text_box_widget.h"

#include "platform/qt/dispatch.h"

#include <QKeyEvent>
#include <QPainter>

namespace platform::qt {

namespace {

// QLineEdit's own spacing between its contents rectangle and the text.
constexpr int kLineEditMargin = 2;
constexpr int kMostLayouts = 1024;

} // namespace

TextBoxWidget::TextBoxWidget(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {
    setFrame(false);
    setTextMargins(2, 2, 2, 2);
    // Opaque: a new text repaints the box alone, not the panel under it too.
    setAutoFillBackground(true);
    QObject::connect(this, &QLineEdit::textEdited, this,
                     [this](const QString& text) { box_.Text = text.toStdString(); });
}

void TextBoxWidget::showText(const QString& text) {
    if (hasFocus()) {
        painted_ = false;
        if (this->text() != text) setText(text);
        return;
    }
    if (shownText() == text) return;
    shown_ = text;
    painted_ = true;
    update();
}

void TextBoxWidget::focusInEvent(QFocusEvent* event) {
    if (painted_) {
        painted_ = false;
        setText(shown_);
    }
    QLineEdit::focusInEvent(event);
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QString typed = event->text();
    if (box_.KeyPress && (enter || (typed.size() == 1 && typed[0].unicode() < 256))) {
        auto code = static_cast<int16_t>(enter ? 13 : typed[0].unicode());
        runEvent([&] { box_.KeyPress(code); });
        if (code == 0) return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBoxWidget::paintEvent(QPaintEvent* event) {
    if (!painted_) QLineEdit::paintEvent(event);
    QPainter p(this);
    if (painted_) paintShownText(p);
    paintSunkenBorder(p);
}

// Where and how QLineEdit draws an unselected text, left aligned and centred upright.
void TextBoxWidget::paintShownText(QPainter& p) {
    p.fillRect(rect(), palette().base());
    const QMargins m = textMargins();
    const QRect r = rect().marginsRemoved(m);
    const int lineHeight = fontMetrics().height();
    const QPoint at(r.x() + kLineEditMargin, r.y() + (r.height() - lineHeight + 1) / 2);
    auto it = layouts_.find(shown_);
    if (it == layouts_.end()) {
        if (layouts_.size() >= kMostLayouts) layouts_.clear();
        QStaticText laidOut(shown_);
        laidOut.setTextFormat(Qt::PlainText);
        laidOut.prepare(QTransform(), font());
        it = layouts_.insert(shown_, laidOut);
    }
    p.setFont(font());
    p.setPen(palette().text().color());
    p.setClipRect(r);
    p.drawStaticText(at, *it);
    p.setClipping(false);
}

// The stock control's border as plain fills: drawn as lines, it would cost as much as the
// text.
void TextBoxWidget::paintSunkenBorder(QPainter& p) {
    const QPalette& c = palette();
    const int w = width(), h = height();
    p.fillRect(0, 0, w, 1, c.dark()); // outer edge: shadow above and left, light below
    p.fillRect(0, 0, 1, h, c.dark());
    p.fillRect(0, h - 1, w, 1, c.light());
    p.fillRect(w - 1, 0, 1, h, c.light());
    p.fillRect(1, 1, w - 2, 1, c.shadow()); // inner edge
    p.fillRect(1, 1, 1, h - 2, c.shadow());
    p.fillRect(1, h - 2, w - 2, 1, c.midlight());
    p.fillRect(w - 2, 1, 1, h - 2, c.midlight());
}

} // namespace platform::qt
