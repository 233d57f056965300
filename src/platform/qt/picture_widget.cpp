#include "platform/qt/picture_widget.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>

namespace platform::qt {

PictureWidget::PictureWidget(PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
    setAttribute(Qt::WA_OpaquePaintEvent);
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
