#include "platform/qt/picture_widget.h"

#include "platform/qt/dispatch.h"
#include "platform/qt/mouse_state.h"

#include <algorithm>

#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRegion>

namespace platform::qt {

PictureWidget::PictureWidget(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true); // moves come without a button too
}

void PictureWidget::sendMouse(const PictureBox::MouseHandler& handler, int button,
                              QMouseEvent* event) {
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
    if (!box_.damaged()) return;
    const PixelRegion damage = box_.takeDamage();
    if (damage.empty()) return;
    const int inset = box_.borderPixels() / 2;
    QRegion region;
    for (const PixelRect& d : damage)
        region += QRect(static_cast<int>(d.x0) + inset, static_cast<int>(d.y0) + inset,
                        static_cast<int>(d.x1 - d.x0), static_cast<int>(d.y1 - d.y0));
    update(region);
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
    // Each rectangle of the region on its own: a rubber band's sides, not the box they
    // enclose.
    for (const QRect& part : event->region())
        paintExposed(painter, part.intersected(inner), inset);
}

void PictureWidget::paintExposed(QPainter& painter, const QRect& exposed, int inset) {
    if (exposed.isEmpty()) return;
    // Rendered in the screen's own pixel layout and drawn 1:1, so that drawing is a plain
    // copy. Done in bands: a render of a whole huge canvas takes no huge buffer.
    constexpr int kBandPixels = 1 << 22;
    const int bandRows = std::clamp(kBandPixels / exposed.width(), 1, exposed.height());
    if (shown_.width() < exposed.width() || shown_.height() < bandRows)
        shown_ = QImage(std::max(shown_.width(), exposed.width()),
                        std::max(shown_.height(), bandRows), QImage::Format_RGB32);
    if (shown_.isNull()) return;
    for (int top = exposed.top(); top <= exposed.bottom(); top += bandRows) {
        const int rows = std::min(bandRows, exposed.bottom() + 1 - top);
        const PixelRect region{exposed.x() - inset, top - inset,
                               exposed.x() - inset + exposed.width(), top - inset + rows};
        box_.render(region, reinterpret_cast<uint32_t*>(shown_.bits()), shown_.bytesPerLine() / 4,
                    PixelOrder::Xrgb);
        painter.drawImage(QPoint(exposed.x(), top), shown_, QRect(0, 0, exposed.width(), rows));
    }
}

} // namespace platform::qt
