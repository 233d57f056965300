// Painting a 1920 x 1080 exposed part of the canvas at zoom 8 on the 1024 x 1024 skin,
// through the canvas's Qt widget on the offscreen platform, against a bulk copy of as
// many pixels.
#include "bench_support.h"
#include "platform/qt/picture_widget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>

#include <cstring>

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

} // namespace
} // namespace tavrin::bench
