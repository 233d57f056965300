// The airbrush's mouse move at zoom 8 against the pencil's, both through the canvas's own
// mouse hook and the views' repaint; and the colour replace's list of a 1024 x 1024 skin
// of one colour against a plain scan of the same pixels.
#include "bench_support.h"

#include <benchmark/benchmark.h>

namespace tavrin::bench {

namespace {

// A skin at zoom 8 with a stroke begun by the tool; both views up to date.
struct Stroke {
    Editor e;
    View canvas{e.frm.Picture7}, actual{e.frm.picture1};
    explicit Stroke(bool air) {
        e.openBigSkin();
        e.zoomIn(3);
        if (air)
            e.frm.AirBrush_Click(); // at "9 Pixels", as at start
        else
            e.choosePencil();
        e.frm.Cur_R = 200;
        e.frm.Picture7.MouseDown(1, 0, 100, 100);
        shown();
    }
    void shown() {
        canvas.show();
        actual.show();
    }
    bool ready() const { return e.frm.Zoom_Factor.num() == 8 && e.frm.Brush_Size == 3; }
    // A new skin pixel each time, over the visible part of the canvas.
    static float at(int64_t i, int extent) {
        return static_cast<float>(12 + (i * 8) % (extent - 24));
    }
};

void strokeWith(benchmark::State& state, bool air) {
    Stroke s(air);
    if (!s.ready()) state.SkipWithError("not at zoom 8 with the wide brush");
    int64_t i = 0;
    for (auto _ : state) {
        s.e.frm.Picture7.MouseMove(1, 0, Stroke::at(i, 1920), Stroke::at(i / 3, 1080));
        s.shown();
        ++i;
    }
    const FrmMain& f = s.e.frm;
    if (f.picture1.Point(f.Cur_X, f.Cur_Y) != f.Paint_Color)
        state.SkipWithError("the tool painted nothing");
}
void airMove(benchmark::State& state) { strokeWith(state, true); }
void pencilMove(benchmark::State& state) { strokeWith(state, false); }
BENCHMARK(airMove)->Name("air_move/path")->Unit(benchmark::kMicrosecond);
BENCHMARK(pencilMove)->Name("air_move/baseline")->Unit(benchmark::kMicrosecond);

// The big skin with every pixel of picture1 in one colour.
struct OneColour {
    Editor e;
    static constexpr int32_t kColour = 0x336699;
    OneColour() {
        e.openBigSkin();
        const int64_t w = e.frm.picture1.innerWidth(), h = e.frm.picture1.innerHeight();
        const std::vector<int32_t> row(static_cast<std::size_t>(w), kColour);
        for (int64_t y = 0; y < h; ++y)
            e.frm.picture1.PSetRow(0, y, row.data(), w);
    }
};

void getMask(benchmark::State& state) {
    OneColour s;
    for (auto _ : state) {
        s.e.frm.Cur_Color = OneColour::kColour;
        s.e.frm.GetMask();
    }
    const FrmMain& f = s.e.frm;
    if (f.Mask_Count != f.picture1.innerWidth() * f.picture1.innerHeight())
        state.SkipWithError("the list misses pixels");
}
BENCHMARK(getMask)->Name("get_mask/path")->Unit(benchmark::kMillisecond);

// The same pixels read and compared, each match's place written down.
void scanPixels(benchmark::State& state) {
    OneColour s;
    const platform::PictureHandle picture = s.e.frm.picture1.Image();
    const auto& px = picture->px;
    std::vector<int32_t> places(px.size());
    for (auto _ : state) {
        std::size_t n = 0;
        for (std::size_t i = 0; i < px.size(); ++i)
            if (static_cast<int32_t>(px[i]) == OneColour::kColour)
                places[n++] = static_cast<int32_t>(i);
        benchmark::DoNotOptimize(places.data());
        benchmark::DoNotOptimize(n);
    }
}
BENCHMARK(scanPixels)->Name("get_mask/baseline")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrin::bench
