#pragma once
// Shows a PictureBox: paints only the exposed region, from the box's own description.
#include "platform/picture_box.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace platform::qt {

class PictureWidget : public QWidget {
    Q_OBJECT
public:
    PictureWidget(PictureBox& box, QWidget* parent);
    PictureBox& box() { return box_; }
    // Repaints the part of the box that changed since the last call.
    void sync();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void sendMouse(const PictureBox::MouseHandler& handler, int button, QMouseEvent* event);
    void paintExposed(QPainter& painter, const QRect& exposed, int inset);

    PictureBox& box_;
    QImage shown_; // kept between paints: a stroke repaints many times a second
};

} // namespace platform::qt
