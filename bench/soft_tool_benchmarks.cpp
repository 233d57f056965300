// The airbrush's mouse move at zoom 8, through the canvas's own mouse hook and the views'
// repaint, to set against the pencil's; and the colour replace's list of a 1024 x 1024 skin
// of one colour against a plain scan of the same pixels.
#include "bench_support.h"

#include <benchmark/benchmark.h>

namespace tavrin::bench {

namespace {

// The pencil's move is stroke_move/path.
void airMove(benchmark::State& state) {
    Stroke s([](Editor& e) { e.frm.AirBrush_Click(); }); // at "9 Pixels", as at start
    if (!s.atZoom8() || s.e.frm.Brush_Size != 3) state.SkipWithError("not at zoom 8, 9 Pixels");
    int64_t i = 0;
    for (auto _ : state)
        s.move(i++);
    if (!s.painted()) state.SkipWithError("the airbrush painted nothing");
}
BENCHMARK(airMove)->Name("air_move/path");

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
