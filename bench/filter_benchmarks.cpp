// The area filters and the rubber band on the 1024 x 1024 skin at zoom 1, driven by the
// canvas's own mouse hooks as a user drags: Sharpen over a 1024 x 1024 box against a
// plain copy of its pixels' colours from the grid to the picture; the same filter over a box
// dragged 2,000 pixels past the skin against the box's part on the skin; a move of the band over a
// 1000 x 1000 box, with the views' repaints, against one repaint of the whole canvas.
#include "bench_support.h"

#include <benchmark/benchmark.h>

#include <cstring>

namespace tavrin::bench {

namespace {

using platform::PixelRect;

// picture1 is 1022 x 1025: a press there keeps clear of the canvas's edge test.
constexpr float kPressX = 1018, kPressY = 1020;

struct Skin {
    Editor e;
    View canvas{e.frm.Picture7}, actual{e.frm.picture1};
    Skin() {
        e.openBigSkin();
        show();
    }
    // Press at the bottom right, one move to (x, y), release: the filter runs over the box.
    void drag(float x, float y) {
        e.frm.Picture7.MouseDown(1, 0, kPressX, kPressY);
        e.frm.Picture7.MouseMove(1, 0, x, y);
        e.frm.Picture7.MouseUp(1, 0, x, y);
    }
    void show() {
        canvas.show();
        actual.show();
    }
};

// Each drag filters the skin as it was opened. Neither the undo between them nor the
// views' repaint of the whole skin afterwards (the canvas's own cost) is timed.
void sharpenTo(benchmark::State& state, float x, float y) {
    Skin s;
    s.e.frm.SSCommand40_Click();
    const int16_t before = s.e.frm.Skin_Grid(500 * 1024 + 500);
    for (auto _ : state) {
        s.drag(x, y);
        state.PauseTiming();
        s.show();
        s.e.frm.Undo_Click();
        s.show();
        state.ResumeTiming();
    }
    s.drag(x, y);
    if (s.e.frm.Skin_Grid(500 * 1024 + 500) == before && s.e.frm.Skin_Grid(1) == before)
        state.SkipWithError("nothing was sharpened");
}

// From the bottom right to 6 and 4 pixels past the top left: a box of 1024 x 1024.
void sharpen(benchmark::State& state) { sharpenTo(state, -6, -4); }
BENCHMARK(sharpen)->Name("sharpen/path")->Unit(benchmark::kMillisecond);

// The plain copy of the box's colours: each pixel's palette colour, looked up from its
// cell, into picture1's raster and its index back into the cell. The bytes a filter over
// the box must write, written the cheapest way.
void copyColours(benchmark::State& state) {
    Skin s;
    int16_t* cells = s.e.frm.Skin_Grid.data();
    std::vector<uint32_t> colours(256);
    for (int i = 0; i < 256; ++i) {
        const PalRecord& r = s.e.frm.Pal_Table(i);
        colours[static_cast<std::size_t>(i)] =
            static_cast<uint32_t>(r.Red | r.Green << 8 | r.Blue << 16);
    }
    platform::Raster picture(1024, 1024, 0);
    for (auto _ : state) {
        for (std::size_t i = 0; i < picture.px.size(); ++i) {
            const int16_t index = cells[i];
            picture.px[i] = colours[static_cast<uint8_t>(index)];
            cells[i] = index;
        }
        benchmark::DoNotOptimize(picture.px.data());
        benchmark::DoNotOptimize(cells);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyColours)->Name("sharpen/baseline")->Unit(benchmark::kMillisecond);

void sharpenFarPast(benchmark::State& state) { sharpenTo(state, -2000, -2000); }
BENCHMARK(sharpenFarPast)->Name("sharpen_far/path")->Unit(benchmark::kMillisecond);

void sharpenOnSkin(benchmark::State& state) { sharpenTo(state, 0, 0); }
BENCHMARK(sharpenOnSkin)->Name("sharpen_far/baseline")->Unit(benchmark::kMillisecond);

// The band from (8, 8) to a corner that moves a pixel at each event round (1000, 1000).
void bandMove(benchmark::State& state) {
    Skin s;
    s.e.frm.SSCommand28_Click();
    s.e.frm.Picture7.MouseDown(1, 0, 8, 8);
    int64_t i = 0;
    for (auto _ : state) {
        const auto at = static_cast<float>(1000 + i % 8);
        s.e.frm.Picture7.MouseMove(1, 0, at, at);
        s.canvas.show();
        s.actual.show();
        ++i;
    }
    if (s.e.frm.Drag_Active != 1 || s.e.frm.Band_Old_X.num() < 1000) state.SkipWithError("no band");
}
BENCHMARK(bandMove)->Name("band_move/path")->Unit(benchmark::kMicrosecond);

// What the two views repaint when the whole of them changed: the canvas and picture1.
void repaintWholeCanvas(benchmark::State& state) {
    Skin s;
    for (auto _ : state)
        for (const platform::PictureBox* box : {&s.e.frm.Picture7, &s.e.frm.picture1}) {
            const PixelRect all{0, 0, box->innerWidth(), box->innerHeight()};
            std::vector<uint32_t>& shown =
                box == &s.e.frm.Picture7 ? s.canvas.buffer : s.actual.buffer;
            shown.resize(static_cast<std::size_t>(all.x1 * all.y1));
            box->render(all, shown.data(), all.x1, platform::PixelOrder::Xrgb);
            benchmark::DoNotOptimize(shown.data());
            benchmark::ClobberMemory();
        }
}
BENCHMARK(repaintWholeCanvas)->Name("band_move/baseline")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tavrin::bench
