// The canvas through its Qt widget on the offscreen platform, at zoom 8 on the 1024 x 1024
// skin: painting a 1920 x 1080 exposed part of it, against a bulk copy of as many pixels;
// and the mouse moving over it in the whole window, with and without the pencil's
// stroke, against the same events sent to a bare widget that does nothing with them.
#include "bench_support.h"
#include "platform/qt/dispatch.h"
#include "platform/qt/form_window.h"
#include "platform/qt/picture_widget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include <cstring>

// How the window system hands Qt a mouse event, so that it takes the same road to the
// widget under the pointer as a user's: QtGui's entry for simulated input.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers mods, int timestamp);

namespace tavrin::bench {

namespace {

constexpr int kExposedW = 1920, kExposedH = 1080;

QApplication& application() {
    static int argc = 1;
    static char name[] = "tavrin-bench";
    static char* argv[] = {name, nullptr};
    // Never destroyed: at exit Qt's own globals are gone before it would be.
    static QApplication* app = [] {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QApplication(argc, argv);
    }();
    return *app;
}

// Counts the paints a widget gets, so that a run that painted nothing is an error.
struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
};

void paintRegion(benchmark::State& state) {
    application();
    Editor e;
    e.openBigSkin();
    e.zoomIn(3);
    platform::PictureBox& canvas = e.frm.Picture7;
    // A window of the exposed size with the canvas in it, moved so that the window
    // shows a part from its middle, as after panning.
    QWidget window;
    window.resize(kExposedW, kExposedH);
    platform::qt::PictureWidget widget(canvas, &window);
    widget.setGeometry(-2000, -3000, canvas.innerWidth(), canvas.innerHeight());
    PaintCounter counter;
    widget.installEventFilter(&counter);
    window.show();
    QApplication::processEvents();
    const QRect exposed(2000, 3000, kExposedW, kExposedH);
    const int before = counter.paints;
    for (auto _ : state)
        widget.repaint(exposed);
    if (counter.paints - before < static_cast<int>(state.iterations()))
        state.SkipWithError("no paint");
}
BENCHMARK(paintRegion)->Name("canvas_region/path")->Unit(benchmark::kMicrosecond);

void copyRegion(benchmark::State& state) {
    std::vector<uint32_t> from(kExposedW * kExposedH, 1), to(kExposedW * kExposedH);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(uint32_t));
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyRegion)->Name("canvas_region/baseline")->Unit(benchmark::kMicrosecond);

constexpr int kWindowW = 1920, kWindowH = 1200;

// Mouse events as the window system gives them, one at a time, each followed by the event
// loop's turn that delivers it and paints what it changed, as between two real moves.
class Pointer {
public:
    explicit Pointer(QWidget& window) : window_(window.windowHandle()) {}
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
        if (type == QEvent::MouseButtonPress) held_ |= button;
        if (type == QEvent::MouseButtonRelease) held_ &= ~Qt::MouseButtons(button);
        time_ += 8; // a mouse reports about every 8 ms
        qt_handleMouseEvent(window_, at, window_->mapToGlobal(at), held_,
                            type == QEvent::MouseMove ? Qt::NoButton : button, type, Qt::NoModifier,
                            time_);
        QCoreApplication::processEvents();
    }
    // The i-th position of a pointer wandering over a part of the window three pixels a
    // move, a new skin pixel every few moves at zoom 8.
    static QPoint at(int64_t i, QRect over) {
        const int64_t rows = over.height() / 5;
        const int64_t x = (i * 3) % over.width(), y = (i * 3 / over.width()) % rows * 5;
        return over.topLeft() + QPoint(static_cast<int>(x), static_cast<int>(y));
    }

private:
    QWindow* window_;
    Qt::MouseButtons held_;
    int time_ = 0;
};

// Where the pointer wanders: right of the "Actual Pixels" panel, which a 1024 x 1024 skin
// makes 1029 pixels wide, and left of the palette; the canvas fills it at zoom 8.
const QRect kWander(1100, 300, 560, 500);

// The pointer wandering over the window, each move timed; a stroke holds the left button
// from a press before the first move to a release after the last.
void wander(benchmark::State& state, QWidget& window, bool stroke) {
    Pointer pointer(window);
    if (stroke) pointer.send(QEvent::MouseButtonPress, Pointer::at(0, kWander), Qt::LeftButton);
    int64_t i = 0;
    for (auto _ : state)
        pointer.send(QEvent::MouseMove, Pointer::at(++i, kWander), Qt::NoButton);
    if (stroke) pointer.send(QEvent::MouseButtonRelease, Pointer::at(i, kWander), Qt::LeftButton);
}

// The editor's main window with the skin open at zoom 8; the pencil for a stroke.
struct MainWindow {
    Editor e;
    platform::qt::FormWindow window{e.frm};
    explicit MainWindow(bool pencil) {
        window.resize(kWindowW, kWindowH);
        window.show();
        QCoreApplication::processEvents();
        e.openBigSkin();
        e.zoomIn(3);
        if (pencil) e.choosePencil();
        platform::qt::syncViews();
        QCoreApplication::processEvents();
    }
    // Every point of the wander lands on the canvas, and at zoom 8.
    bool ready() const {
        const QWidget* canvas = window.widgetFor(&e.frm.Picture7);
        for (QPoint corner : {kWander.topLeft(), kWander.bottomRight()})
            if (window.childAt(corner) != canvas) return false;
        return e.frm.Zoom_Factor.num() == 8;
    }
};

void moveOverCanvas(benchmark::State& state, bool stroke) {
    application();
    MainWindow m(stroke);
    if (!m.ready()) state.SkipWithError("the canvas isn't under the pointer at zoom 8");
    wander(state, m.window, stroke);
    const FrmMain& f = m.e.frm;
    if (f.Text5.Text.get() != f.Cur_X.str()) state.SkipWithError("the X box didn't follow");
    if (stroke && f.picture1.Point(f.Cur_X, f.Cur_Y) != f.Paint_Color)
        state.SkipWithError("the pencil painted nothing");
}
void moveWithoutButton(benchmark::State& state) { moveOverCanvas(state, false); }
void moveWithPencil(benchmark::State& state) { moveOverCanvas(state, true); }
BENCHMARK(moveWithoutButton)->Name("mouse_move/path")->Unit(benchmark::kMicrosecond);
BENCHMARK(moveWithPencil)->Name("mouse_stroke/path")->Unit(benchmark::kMicrosecond);

// The same events to a window that is one bare widget, following the mouse as the canvas
// does and doing nothing with it.
void moveOverBareWidget(benchmark::State& state, bool stroke) {
    application();
    QWidget bare;
    bare.setMouseTracking(true);
    bare.resize(kWindowW, kWindowH);
    bare.show();
    QCoreApplication::processEvents();
    wander(state, bare, stroke);
}
void bareWithoutButton(benchmark::State& state) { moveOverBareWidget(state, false); }
void bareWithButton(benchmark::State& state) { moveOverBareWidget(state, true); }
BENCHMARK(bareWithoutButton)->Name("mouse_move/baseline")->Unit(benchmark::kMicrosecond);
BENCHMARK(bareWithButton)->Name("mouse_stroke/baseline")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tavrin::bench
