#include "platform/qt/picture_widget.h"

#include "platform/qt/dispatch.h"

#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace platform::qt {

PictureWidget::PictureWidget(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true); // moves come without a button too
}

namespace {

int16_t shiftState(Qt::KeyboardModifiers m) {
    return static_cast<int16_t>((m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
                                (m & Qt::AltModifier ? 4 : 0));
}

// Qt's left, right and middle are 1, 2 and 4, as the form's events count them.
int16_t buttonBits(Qt::MouseButtons b) {
    return static_cast<int16_t>(b & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
}

} // namespace

void PictureWidget::sendMouse(const PictureBox::MouseHandler& handler, int button, QMouseEvent* event) {
    if (!handler) return;
    // Outside the widget while a button is held the positions keep coming, beyond the
    // edges, as the handlers expect.
    const int inset = box_.borderPixels() / 2;
    const QPointF at = event->position() - QPointF(inset, inset);
    const auto x = static_cast<float>(box_.scaleX(at.x()));
    const auto y = static_cast<float>(box_.scaleY(at.y()));
    const auto shift = shiftState(event->modifiers());
    runEvent([&] { handler(static_cast<int16_t>(button), shift, x, y); });
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
    sendMouse(box_.MouseDown, buttonBits(event->button()), event);
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
    sendMouse(box_.MouseMove, buttonBits(event->buttons()), event);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    sendMouse(box_.MouseUp, buttonBits(event->button()), event);
}

void PictureWidget::sync() {
    if (box_.contentVersion() != shownVersion_) update();
}

void PictureWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const int inset = box_.borderPixels() / 2;
    if (inset > 0) {
        // A sunken single border, as the stock picture box drew it.
        painter.fillRect(rect(), palette().color(QPalette::Window));
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawLine(0, 0, width() - 1, 0);
        painter.drawLine(0, 0, 0, height() - 1);
        painter.setPen(palette().color(QPalette::Light));
        painter.drawLine(0, height() - 1, width() - 1, height() - 1);
        painter.drawLine(width() - 1, 0, width() - 1, height() - 1);
    }
    const QRect inner(inset, inset, box_.innerWidth(), box_.innerHeight());
    const QRect exposed = event->rect().intersected(inner);
    if (!exposed.isEmpty()) {
        // 0x00BBGGRR in memory on a little-endian machine is R, G, B, X: RGBX8888.
        QImage image(exposed.size(), QImage::Format_RGBX8888);
        PixelRect region{exposed.x() - inset, exposed.y() - inset,
                         exposed.x() - inset + exposed.width(),
                         exposed.y() - inset + exposed.height()};
        box_.render(region, reinterpret_cast<uint32_t*>(image.bits()),
                    image.bytesPerLine() / 4);
        painter.drawImage(exposed.topLeft(), image);
    }
    shownVersion_ = box_.contentVersion();
}

} // namespace platform::qt
