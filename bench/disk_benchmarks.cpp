// The paths a user waits for on the disk, in wall time against baselines doing the same
// bytes of work on the same disk in the same run: opening a skin in a fresh editor and
// again, and saving one.
#include "bench_support.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace tavrin::bench {

namespace {

void openSkin(Editor& e, const std::string& path) {
    e.host.answerOpen(path);
    e.host.answerMsgBox(platform::kMsgNo);
    e.frm.pcxIm_Click();
}

// A first open of a session: the child this runs opens the skin in a program just
// started, whose every grid and picture comes in pages fresh from the system, and tells
// the wall and processor time of the open alone; starting the program isn't timed.
void firstOpen(benchmark::State& state, const std::string& path) {
    const std::string command =
        std::filesystem::read_symlink("/proc/self/exe").string() + " --first-open '" + path + "'";
    double cpu = 0;
    for (auto _ : state) {
        FILE* child = ::popen(command.c_str(), "r");
        long long wallNs = -1, cpuNs = -1;
        if (child) {
            if (std::fscanf(child, "%lld %lld", &wallNs, &cpuNs) != 2) wallNs = -1;
            ::pclose(child);
        }
        if (wallNs < 0) {
            state.SkipWithError("the child didn't open the skin");
            break;
        }
        state.SetIterationTime(static_cast<double>(wallNs) * 1e-9);
        cpu += static_cast<double>(cpuNs) * 1e-6;
    }
    state.counters["cpu_ms"] =
        benchmark::Counter(cpu, benchmark::Counter::kAvgIterations); // per open
}
void firstOpenTall(benchmark::State& state) { firstOpen(state, tallSkinPath()); }
void firstOpenWide(benchmark::State& state) { firstOpen(state, bigSkinPath()); }
BENCHMARK(firstOpenTall)->Name("first_open/path")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(firstOpenWide)
    ->Name("first_open_failing/path")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

void reopen(benchmark::State& state, const std::string& path) {
    Editor e;
    openSkin(e, path);
    for (auto _ : state)
        openSkin(e, path);
}
void reopenTall(benchmark::State& state) { reopen(state, tallSkinPath()); }
void reopenWide(benchmark::State& state) { reopen(state, bigSkinPath()); }
BENCHMARK(reopenTall)->Name("reopen/path")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(reopenWide)->Name("reopen_failing/path")->Unit(benchmark::kMillisecond)->UseRealTime();

// What an open must at least create: 2 bytes a pixel of grid and 4 of picture, copied
// into pages fresh from the system.
void copyIntoFreshPages(benchmark::State& state) {
    const std::size_t bytes = std::size_t{440} * 1024 * 6;
    std::vector<uint8_t> from(bytes, 7);
    for (auto _ : state) {
        void* to =
            ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (to == MAP_FAILED) state.SkipWithError("no memory");
        std::memcpy(to, from.data(), bytes);
        benchmark::DoNotOptimize(to);
        benchmark::ClobberMemory();
        ::munmap(to, bytes);
    }
}
BENCHMARK(copyIntoFreshPages)
    ->Name("first_open/baseline")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Every 8-bit skin among the real files, opened in turn in one editor: the figure to set
// beside another decoder's time for the same files.
void openRealSkins(benchmark::State& state) {
    std::vector<std::string> skins;
    std::error_code ec;
    for (auto it = std::filesystem::recursive_directory_iterator(TAVRIN_REALDATA, ec);
         !ec && it != std::filesystem::recursive_directory_iterator(); it.increment(ec)) {
        std::string ext = it->path().extension().string();
        for (char& c : ext)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (ext != ".pcx" || !it->is_regular_file()) continue;
        uint8_t header[66] = {};
        std::ifstream(it->path(), std::ios::binary).read(reinterpret_cast<char*>(header), 66);
        if (header[3] == 8 && header[65] == 1) skins.push_back(it->path().string());
    }
    if (skins.empty()) state.SkipWithError("no real skins");
    Editor e;
    for (auto _ : state)
        for (const std::string& skin : skins)
            openSkin(e, skin);
    state.counters["skins"] = static_cast<double>(skins.size());
}
BENCHMARK(openRealSkins)->Name("real_skins_open")->Unit(benchmark::kMillisecond)->UseRealTime();

// The skin's file in one read.
void readWhole(benchmark::State& state) {
    const std::string& path = tallSkinPath();
    std::vector<uint8_t> buffer(static_cast<std::size_t>(std::filesystem::file_size(path)));
    for (auto _ : state) {
        const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        const ssize_t n = ::read(fd, buffer.data(), buffer.size());
        ::close(fd);
        if (n != static_cast<ssize_t>(buffer.size())) state.SkipWithError("short read");
        benchmark::DoNotOptimize(buffer.data());
    }
}
BENCHMARK(readWhole)->Name("reopen/baseline")->Unit(benchmark::kMillisecond)->UseRealTime();

// A save of the 1024 x 1024 skin over the file the last one wrote.
void save(benchmark::State& state) {
    Editor e;
    e.openBigSkin();
    const std::string target = e.folder + "/saved.pcx";
    for (auto _ : state) {
        e.host.answerSave(target);
        e.frm.ex_Click();
    }
    if (e.frm.StatusBar1.Panels(1).Text.get() != "Ready...") state.SkipWithError("the save failed");
}
BENCHMARK(save)->Name("save/path")->Unit(benchmark::kMillisecond)->UseRealTime();

// The same bytes written to a new file with one write, the old one removed first.
void writeNewFile(benchmark::State& state) {
    Editor e;
    e.openBigSkin();
    e.host.answerSave(e.folder + "/saved.pcx");
    e.frm.ex_Click();
    const std::string saved = e.folder + "/saved.PCX", target = e.folder + "/plain.PCX";
    std::vector<uint8_t> bytes(static_cast<std::size_t>(std::filesystem::file_size(saved)));
    {
        const int fd = ::open(saved.c_str(), O_RDONLY | O_CLOEXEC);
        if (::read(fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            state.SkipWithError("short read");
        ::close(fd);
    }
    for (auto _ : state) {
        ::unlink(target.c_str());
        const int fd = ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        ::close(fd);
        if (n != static_cast<ssize_t>(bytes.size())) state.SkipWithError("short write");
    }
}
BENCHMARK(writeNewFile)->Name("save/baseline")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int firstOpenChild(const char* path) {
    Editor e;
    const auto cpuNow = [] {
        timespec t{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
        return static_cast<long long>(t.tv_sec) * 1000000000 + t.tv_nsec;
    };
    const long long cpu0 = cpuNow();
    const auto wall0 = std::chrono::steady_clock::now();
    openSkin(e, path);
    const auto wall = std::chrono::steady_clock::now() - wall0;
    const long long cpu = cpuNow() - cpu0;
    std::printf(
        "%lld %lld\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(wall).count()),
        cpu);
    return 0;
}

} // namespace tavrin::bench
