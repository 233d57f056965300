#include "platform/qt/model_preview_window.h"

#include "editor/frm_main.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace platform::qt {

namespace {
constexpr int kFollowMs = 50;     // the most often a stroke in progress is drawn on the model
constexpr int kAnimationMs = 100; // the game steps a model's frames ten times a second
constexpr double kDegreesPerPixel = 0.5;
} // namespace

PreviewSurface::PreviewSurface(QWidget* parent) : QWidget(parent) {
    setObjectName("previewPicture");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 200);
    setCursor(Qt::OpenHandCursor);
}

void PreviewSurface::showPicture(QImage picture) {
    picture_ = std::move(picture);
    text_.clear();
    update();
}

void PreviewSurface::showText(const QString& text) {
    picture_ = QImage();
    text_ = text;
    update();
}

void PreviewSurface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto back = tavrin::kPreviewBackground;
    painter.fillRect(rect(), QColor(back & 0xFF, (back >> 8) & 0xFF, (back >> 16) & 0xFF));
    if (!picture_.isNull()) painter.drawImage(0, 0, picture_);
    if (!text_.isEmpty()) {
        painter.setPen(Qt::white);
        painter.drawText(rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                         text_);
    }
}

void PreviewSurface::mousePressEvent(QMouseEvent* event) { last_ = event->position().toPoint(); }

void PreviewSurface::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint at = event->position().toPoint(), moved = at - last_;
    last_ = at;
    if (onTurn && !moved.isNull())
        onTurn(moved.x() * kDegreesPerPixel, moved.y() * kDegreesPerPixel);
}

void PreviewSurface::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / 120.0;
    if (onZoom && steps != 0) onZoom(steps);
    event->accept();
}

void PreviewSurface::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (onResized) onResized();
}

ModelPreviewWindow::ModelPreviewWindow(tavrin::FrmMain& frm, QWidget* parent)
    : QWidget(parent, Qt::Window), frm_(frm) {
    setObjectName("modelPreview");
    setWindowTitle("Model Preview");
    resize(640, 600);
    buildControls();

    animation_.setInterval(kAnimationMs);
    connect(&animation_, &QTimer::timeout, this, [this] { step(); });
    throttle_.setSingleShot(true);
    throttle_.setInterval(kFollowMs);
    connect(&throttle_, &QTimer::timeout, this, [this] { followEditor(); });
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    connect(&soon_, &QTimer::timeout, this, [this] { followEditor(); });
    qApp->installEventFilter(this);
}

ModelPreviewWindow::~ModelPreviewWindow() { qApp->removeEventFilter(this); }

void ModelPreviewWindow::buildControls() {
    surface_ = new PreviewSurface(this);
    surface_->onTurn = [this](double yaw, double pitch) {
        view_.yaw = std::fmod(view_.yaw + yaw, 360.0);
        view_.pitch = std::clamp(view_.pitch + pitch, -89.0, 89.0);
        draw();
    };
    surface_->onZoom = [this](double steps) {
        view_.zoom = std::clamp(view_.zoom * std::pow(1.15, steps), 0.25, 8.0);
        draw();
    };
    surface_->onResized = [this] { draw(); };

    frames_ = new QSlider(Qt::Horizontal, this);
    frames_->setObjectName("frameSlider");
    connect(frames_, &QSlider::valueChanged, this, [this](int v) { setFrame(v); });
    frameName_ = new QLabel(this);
    frameName_->setMinimumWidth(90);
    play_ = new QPushButton("Play", this);
    play_->setObjectName("playButton");
    connect(play_, &QPushButton::clicked, this, [this] {
        if (animation_.isActive())
            animation_.stop();
        else if (model_ && model_->read.problem.empty())
            animation_.start();
        play_->setText(animation_.isActive() ? "Pause" : "Play");
    });
    lighting_ = new QComboBox(this);
    lighting_->setObjectName("lighting");
    lighting_->setMaximumWidth(140);
    lighting_->addItems({"Vertex normals", "Flat"});
    connect(lighting_, &QComboBox::currentIndexChanged, this, [this](int index) {
        view_.smooth = index == 0;
        draw();
    });
    groups_ = new QListWidget(this);
    groups_->setObjectName("frameGroups");
    groups_->setMaximumWidth(140);
    connect(groups_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!model_ || row < 0) return;
        const auto groups = tavrin::frameGroups(model_->read.mesh);
        if (static_cast<std::size_t>(row) >= groups.size()) return;
        groupFirst_ = groups[static_cast<std::size_t>(row)].first;
        groupCount_ = groups[static_cast<std::size_t>(row)].count;
        frames_->setValue(static_cast<int>(groupFirst_));
    });

    auto* controls = new QHBoxLayout;
    controls->addWidget(play_);
    controls->addWidget(frames_, 1);
    controls->addWidget(frameName_);
    auto* left = new QVBoxLayout;
    left->addWidget(surface_, 1);
    left->addLayout(controls);
    auto* right = new QVBoxLayout;
    right->addWidget(groups_, 1);
    right->addWidget(lighting_);
    auto* all = new QHBoxLayout(this);
    all->addLayout(left, 1);
    all->addLayout(right);
}

void ModelPreviewWindow::open() {
    show();
    raise();
    activateWindow();
    followEditor();
    draw(); // the model or the reason there is none, even when nothing changed
}

void ModelPreviewWindow::hideEvent(QHideEvent* event) {
    animation_.stop();
    play_->setText("Play");
    QWidget::hideEvent(event);
}

bool ModelPreviewWindow::eventFilter(QObject* watched, QEvent* event) {
    // Only what may have changed the skin counts, and only while the window is shown:
    // nothing is drawn here, so the canvas's own work is not held up.
    if (isVisible()) {
        switch (event->type()) {
        case QEvent::MouseButtonRelease:
        case QEvent::KeyRelease:
            soon_.start();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
            if (static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton &&
                !throttle_.isActive())
                throttle_.start();
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ModelPreviewWindow::takeModel() {
    const auto now = frm_.previewModel();
    if (now == model_) return;
    model_ = now;
    animation_.stop();
    play_->setText("Play");
    const QSignalBlocker blockSlider(frames_), blockGroups(groups_);
    groups_->clear();
    frame_ = groupFirst_ = groupCount_ = 0;
    const bool shown = model_ && model_->read.problem.empty();
    const std::size_t count = shown ? model_->read.mesh.frames.size() : 0;
    frames_->setRange(0, std::max<int>(0, static_cast<int>(count) - 1));
    frames_->setValue(0);
    groupCount_ = count;
    if (shown)
        for (const tavrin::FrameGroup& g : tavrin::frameGroups(model_->read.mesh))
            groups_->addItem(QString::fromStdString(g.name.empty() ? "(unnamed)" : g.name));
    for (QWidget* w : {static_cast<QWidget*>(frames_), static_cast<QWidget*>(play_),
                       static_cast<QWidget*>(groups_), static_cast<QWidget*>(lighting_)})
        w->setEnabled(shown);
    setWindowTitle(model_ ? "Model Preview - " +
                                QFileInfo(QString::fromStdString(model_->path)).fileName()
                          : "Model Preview");
    setFrame(0);
}

void ModelPreviewWindow::followEditor() {
    if (!isVisible()) return;
    const auto before = model_;
    takeModel();
    tavrin::editorSkinTexture(frm_, looked_);
    const bool same =
        looked_.width == skin_.width && looked_.height == skin_.height && looked_.px == skin_.px;
    if (same && before == model_) return;
    std::swap(skin_, looked_);
    draw();
}

void ModelPreviewWindow::setFrame(int frame) {
    frame_ = static_cast<std::size_t>(std::max(frame, 0));
    QString name;
    if (model_ && frame_ < model_->read.mesh.frames.size())
        name = QString::fromStdString(model_->read.mesh.frames[frame_].name);
    frameName_->setText(QString("%1 %2").arg(frame_).arg(name));
    draw();
}

void ModelPreviewWindow::step() {
    if (groupCount_ == 0) return;
    const std::size_t next =
        frame_ + 1 >= groupFirst_ + groupCount_ || frame_ < groupFirst_ ? groupFirst_ : frame_ + 1;
    frames_->setValue(static_cast<int>(next));
}

void ModelPreviewWindow::draw() {
    if (!isVisible()) return;
    const std::string problem = tavrin::previewProblem(model_.get());
    if (!problem.empty()) {
        surface_->showText(QString::fromStdString(problem));
        return;
    }
    const int w = surface_->width(), h = surface_->height();
    if (w <= 0 || h <= 0) return;
    tavrin::renderPreview(model_->read.mesh, frame_, skin_, view_, w, h, buffers_);
    const std::vector<uint32_t>& px = buffers_.px;
    QImage picture(w, h, QImage::Format_RGB32);
    if (picture.isNull()) return;
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<uint32_t*>(picture.scanLine(y));
        const uint32_t* from =
            px.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(w);
        // 0x00BBGGRR to Qt's 0xFFRRGGBB
        std::transform(from, from + w, row, [](uint32_t c) {
            return 0xFF000000u | (c & 0xFF) << 16 | (c & 0xFF00) | (c >> 16 & 0xFF);
        });
    }
    surface_->showPicture(std::move(picture));
}

} // namespace platform::qt
