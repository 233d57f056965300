#include "cli/driver_run.h"

#include "support/test_support.h"

#include <cstdio>
#include <stdexcept>
#include <sys/wait.h>

namespace tavrin::test {

DriverRun runDriver(const std::string& script, const std::string& options, bool onStdin) {
    TempDir dir;
    std::string scriptPath = dir.write("script.txt", Bytes(script.begin(), script.end()));
    std::string errPath = dir.file("stderr.txt");
    std::string command = shellQuote(TAVRIN_SCRIPT_BIN) + " " + options + (onStdin ? " < " : " ") +
                          shellQuote(scriptPath) + " 2> " + shellQuote(errPath);
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) throw std::runtime_error("can't run " + command);
    DriverRun r;
    char buf[4096];
    for (std::size_t n; (n = fread(buf, 1, sizeof buf, pipe)) > 0;)
        r.out.append(buf, n);
    int raw = pclose(pipe);
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    Bytes err = readFile(errPath);
    r.err.assign(err.begin(), err.end());
    return r;
}

std::string shellQuote(const std::string& s) {
    std::string out = "'";
    for (char c : s)
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

std::string scriptQuote(const std::string& s) {
    std::string out = "\"";
    for (char c : s)
        out += (c == '"' || c == '\\') ? std::string("\\") + c : std::string(1, c);
    return out + "\"";
}

} // namespace tavrin::test
