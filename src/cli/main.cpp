// tavrin-script: the editor without a window, driven by a script.
//   tavrin-script [--app-dir DIR] [--trace] [SCRIPT]
#include "cli/runner.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

namespace {

constexpr const char* kUsage = "usage: tavrin-script [--app-dir DIR] [--trace] [SCRIPT]\n";

// The program's folder defaults to the executable's, where the build puts Quake2.PAL.
std::string executableDir(const char* argv0) {
    std::error_code ec;
    std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) exe = std::filesystem::absolute(argv0, ec);
    std::string dir = exe.parent_path().string();
    return dir.empty() ? "." : dir;
}

} // namespace

int main(int argc, char** argv) {
    tavrin::cli::RunOptions options;
    std::optional<std::string> appDir, scriptPath;
    for (int k = 1; k < argc; ++k) {
        std::string arg = argv[k];
        if (arg == "--trace") {
            options.trace = true;
        } else if (arg == "--app-dir" && k + 1 < argc) {
            appDir = argv[++k];
        } else if (arg == "--help") {
            std::cout << kUsage;
            return 0;
        } else if (arg.rfind("--", 0) == 0 || scriptPath) {
            std::cerr << kUsage;
            return tavrin::cli::kExitBadScript;
        } else {
            scriptPath = arg;
        }
    }
    if (appDir && appDir->size() > 1 && appDir->back() == '/') appDir->pop_back();

    std::ifstream file;
    if (scriptPath) {
        file.open(*scriptPath);
        if (!file) {
            std::cerr << "tavrin-script: can't read " << *scriptPath << '\n';
            return tavrin::cli::kExitFailure;
        }
    }
    std::ios::sync_with_stdio(false);
    try {
        tavrin::cli::Session session(appDir ? *appDir : executableDir(argv[0]), std::cout);
        return tavrin::cli::runScript(
            session, scriptPath ? static_cast<std::istream&>(file) : std::cin, options, std::cerr);
    } catch (const std::exception& e) {
        std::cout.flush();
        std::cerr << "tavrin-script: internal error: " << e.what() << '\n';
        return tavrin::cli::kExitFailure;
    }
}
