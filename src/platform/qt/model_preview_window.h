#pragma once
// "Model Preview": the last model the editor read, wearing the skin as it stands, drawn by
// the core's software rasterizer. Drag to turn it, the wheel to zoom; a frame slider,
// play and pause, the frames' groups, flat or smooth light. It follows the painting
// without slowing the canvas: it looks at the skin at each mouse-up or key release and,
// while a button is held, at most every 50 ms; it draws anew only when the skin, the
// model or the view changed.
#include "model/model_preview.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSlider;

namespace tavrin {
class FrmMain;
}

namespace platform::qt {

// The picture: shows what the window drew, or why there is nothing to show, and turns
// drags and the wheel into changes of the view.
class PreviewSurface : public QWidget {
    Q_OBJECT
public:
    explicit PreviewSurface(QWidget* parent);
    void showPicture(QImage picture);
    void showText(const QString& text);
    // Told of every turn (degrees) and zoom step the user makes.
    std::function<void(double yaw, double pitch)> onTurn;
    std::function<void(double steps)> onZoom; // notches of a wheel; a touchpad gives parts
    // Told when the picture must be drawn anew at the surface's size.
    std::function<void()> onResized;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QImage picture_;
    QString text_;
    QPoint last_;
};

class ModelPreviewWindow : public QWidget {
    Q_OBJECT
public:
    explicit ModelPreviewWindow(tavrin::FrmMain& frm, QWidget* parent = nullptr);
    ~ModelPreviewWindow() override;

    // Shows the window, brought up to date with the editor.
    void open();

protected:
    // Watches the whole program's input: a stroke on the canvas ends in a release.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildControls();
    // Takes the editor's model when it is another one than shown.
    void takeModel();
    // Looks at the skin and the model; draws anew when either changed.
    void followEditor();
    void setFrame(int frame);
    void step(); // the animation's next frame, within the chosen group
    void draw();

    tavrin::FrmMain& frm_;
    PreviewSurface* surface_ = nullptr;
    QSlider* frames_ = nullptr;
    QLabel* frameName_ = nullptr;
    QPushButton* play_ = nullptr;
    QListWidget* groups_ = nullptr;
    QComboBox* lighting_ = nullptr;
    QTimer animation_, throttle_, soon_;

    std::shared_ptr<const tavrin::PreviewModel> model_;
    tavrin::SkinTexture skin_, looked_; // the skin drawn, and the one last looked at
    tavrin::PreviewBuffers buffers_;
    tavrin::PreviewView view_;
    std::size_t frame_ = 0;
    std::size_t groupFirst_ = 0, groupCount_ = 0; // the frames play loops over
};

} // namespace platform::qt
