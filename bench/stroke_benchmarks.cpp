// A pencil stroke at zoom 8 on the 1024 x 1024 skin: the press with its undo snapshot
// and each mouse move, through the canvas's own mouse hooks, against their baselines.
#include "bench_support.h"

#include <benchmark/benchmark.h>

#include <cstring>

namespace tavrin::bench {

namespace {

using platform::PictureBox;
using platform::PixelRect;

void strokeMove(benchmark::State& state) {
    Stroke s;
    if (!s.atZoom8()) state.SkipWithError("not at zoom 8");
    int64_t i = 0;
    for (auto _ : state)
        s.move(i++);
    if (!s.painted()) state.SkipWithError("the pencil painted nothing");
}
BENCHMARK(strokeMove)->Name("stroke_move/path");

// The repaint a move must never do: the whole picture stretched over the whole canvas.
void stretchWholeCanvas(benchmark::State& state) {
    Stroke s;
    PictureBox& c = s.e.frm.Picture7;
    const PixelRect all{0, 0, c.innerWidth(), c.innerHeight()};
    std::vector<uint32_t> zoomed(static_cast<std::size_t>(c.innerWidth()) * c.innerHeight());
    for (auto _ : state) {
        c.render(all, zoomed.data(), c.innerWidth());
        benchmark::DoNotOptimize(zoomed.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(stretchWholeCanvas)->Name("stroke_move/baseline")->Unit(benchmark::kMillisecond);

void press(benchmark::State& state) {
    Stroke s;
    if (!s.atZoom8()) state.SkipWithError("not at zoom 8");
    int64_t i = 0;
    for (auto _ : state) {
        s.press(Stroke::at(i, 1920), Stroke::at(i / 5, 1080));
        ++i;
    }
}
BENCHMARK(press)->Name("press/path")->Unit(benchmark::kMicrosecond);

// The bytes a press must keep: the grid and the picture, each in one bulk copy.
void copyGridAndPicture(benchmark::State& state) {
    Stroke s;
    const auto& grid = s.e.frm.Skin_Grid;
    const auto cells = static_cast<std::size_t>(grid.UBound() - grid.LBound() + 1);
    std::vector<int16_t> gridCopy(cells);
    const platform::PictureHandle picture = s.e.frm.picture1.Image();
    std::vector<uint32_t> pictureCopy(picture->px.size());
    for (auto _ : state) {
        std::memcpy(gridCopy.data(), grid.data(), cells * sizeof(int16_t));
        std::memcpy(pictureCopy.data(), picture->px.data(), picture->px.size() * sizeof(uint32_t));
        benchmark::DoNotOptimize(gridCopy.data());
        benchmark::DoNotOptimize(pictureCopy.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyGridAndPicture)->Name("press/baseline")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tavrin::bench
