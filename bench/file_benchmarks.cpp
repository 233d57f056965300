// Reading and writing a 1024 x 1024 skin, and the palette match, against their baselines.
#include "bench_support.h"
#include "palette/color_match.h"

#include <benchmark/benchmark.h>

#include <algorithm>

#include <cstring>

namespace tavrin::bench {

namespace {

// The baseline of the file paths: one bulk copy of the picture's pixels.
void copyPicture(benchmark::State& state) {
    std::vector<uint32_t> from(1024 * 1024, 1), to(1024 * 1024);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(uint32_t));
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyPicture)->Name("Get_PCX/baseline");
BENCHMARK(copyPicture)->Name("ex_Click/baseline");

// Reopening: the editor has read the skin once, so the first read's fresh pages (the
// grids and pictures come new from the system) don't weigh on a short run.
void readSkin(benchmark::State& state) {
    Editor e;
    e.frm.File_Name = bigSkinPath();
    e.frm.Get_PCX();
    for (auto _ : state)
        e.frm.Get_PCX();
}
BENCHMARK(readSkin)->Name("Get_PCX/path")->Unit(benchmark::kMicrosecond);

void writeSkin(benchmark::State& state) {
    Editor e;
    e.openBigSkin();
    const std::string target = e.folder + "/saved.pcx";
    for (auto _ : state) {
        e.host.answerSave(target);
        e.frm.ex_Click();
    }
}
BENCHMARK(writeSkin)->Name("ex_Click/path")->Unit(benchmark::kMicrosecond);

const std::vector<int32_t>& colours() {
    static const std::vector<int32_t> c = skinColours();
    return c;
}

// The plain 256-record scan, as if nothing were remembered.
void scanMatch(benchmark::State& state) {
    Editor e;
    int32_t near = 0;
    for (auto _ : state)
        for (int32_t c : colours()) {
            MatchResult r = matchColor(e.frm.Pal_Table, c, near);
            near = r.nearColor;
            benchmark::DoNotOptimize(r);
        }
}
BENCHMARK(scanMatch)->Name("Temp_Color_Check/baseline")->Unit(benchmark::kMicrosecond);

void cachedMatch(benchmark::State& state) {
    Editor e;
    for (auto _ : state)
        for (int32_t c : colours()) {
            e.frm.Check_Color = c;
            e.frm.Temp_Color_Check();
            benchmark::DoNotOptimize(e.frm.Check_Color);
        }
}
BENCHMARK(cachedMatch)->Name("Temp_Color_Check/path")->Unit(benchmark::kMicrosecond);

// 65,532 distinct colours, spread over the whole cube: no answer can be remembered, so
// the first pass is all the match costs.
const std::vector<int32_t>& manyColours() {
    static const std::vector<int32_t> c = [] {
        std::vector<int32_t> out;
        for (int32_t k = 0; k < 65532; ++k)
            out.push_back((k * 2654435761u) & 0xFFFFFF);
        std::sort(out.begin(), out.end());
        out.erase(std::unique(out.begin(), out.end()), out.end());
        return out;
    }();
    return c;
}

void scanManyColours(benchmark::State& state) {
    Editor e;
    int32_t near = 0;
    for (auto _ : state)
        for (int32_t c : manyColours()) {
            MatchResult r = matchColor(e.frm.Pal_Table, c, near);
            near = r.nearColor;
            benchmark::DoNotOptimize(r);
        }
    state.counters["colours"] = static_cast<double>(manyColours().size());
}
BENCHMARK(scanManyColours)->Name("Temp_Color_Check_many/baseline")->Unit(benchmark::kMillisecond);

// Each pass starts with a palette just read, so nothing is remembered from the last.
void matchManyColours(benchmark::State& state) {
    Editor e;
    for (auto _ : state) {
        state.PauseTiming();
        e.frm.Get_Pal();
        state.ResumeTiming();
        for (int32_t c : manyColours()) {
            e.frm.Check_Color = c;
            e.frm.Temp_Color_Check();
            benchmark::DoNotOptimize(e.frm.Check_Color);
        }
    }
}
BENCHMARK(matchManyColours)->Name("Temp_Color_Check_many/path")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrin::bench
