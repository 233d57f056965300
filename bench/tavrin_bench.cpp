// tavrin-bench: each hot path is measured beside a baseline in the same run, and the
// ratio of the two is what is judged, so the numbers hold on any machine.
//   tavrin-bench [--check MARGIN] [benchmark options]
// --check fails (exit 1) when a ratio misses its budget by more than MARGIN times.
#include "bench_budgets.h"
#include "bench_support.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace {

// Keeps the time per iteration of every benchmark by name: processor time (the program's
// own and the system's on its behalf, so that other work on the machine counts little)
// and wall time, for the paths that wait on the disk.
class Collector : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> cpu, wall;
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs)
            if (r.run_type == Run::RT_Iteration && !r.error_occurred) {
                const auto n = static_cast<double>(r.iterations);
                std::string name = r.benchmark_name();
                // A benchmark timed in wall time carries a suffix; the budgets don't.
                for (const char* suffix : {"/real_time", "/manual_time"})
                    if (const auto at = name.rfind(suffix); at != std::string::npos) name.erase(at);
                cpu[name] = r.cpu_accumulated_time / n;
                wall[name] = r.real_accumulated_time / n;
            }
        ConsoleReporter::ReportRuns(runs);
    }
};

} // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--first-open") == 0)
        return tavrin::bench::firstOpenChild(argv[2]);
    double margin = 0;
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) {
        if (std::strcmp(argv[i], "--check") == 0 && i + 1 < argc)
            margin = std::atof(argv[++i]);
        else
            args.push_back(argv[i]);
    }
    int count = static_cast<int>(args.size());
    benchmark::Initialize(&count, args.data());
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);

    bool ok = true;
    std::printf("\n%-40s %5s %12s %14s %s\n", "hot path", "time", "ratio", "budget", "");
    for (const tavrin::bench::Budget& b : tavrin::bench::budgets()) {
        const auto& seconds = b.wall ? collector.wall : collector.cpu;
        auto path = seconds.find(b.path), base = seconds.find(b.baseline);
        if (path == seconds.end() || base == seconds.end()) continue;
        const double ratio = b.atLeast ? base->second / path->second : path->second / base->second;
        const bool met = b.atLeast ? ratio >= b.budget : ratio <= b.budget;
        const bool failed =
            margin > 0 && (b.atLeast ? ratio * margin < b.budget : ratio > b.budget * margin);
        std::printf("%-40s %5s %12.4g %s %10.4g %s\n", b.name, b.wall ? "wall" : "cpu", ratio,
                    b.atLeast ? ">=" : "<=", b.budget,
                    met ? "met" : (failed ? "MISSED" : "missed (within margin)"));
        if (failed) ok = false;
    }
    benchmark::Shutdown();
    return ok ? 0 : 1;
}
