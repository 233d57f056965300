#pragma once
// Runs the real tavrin-script on a script and keeps what it printed and returned.
#include <string>

namespace tavrin::test {

struct DriverRun {
    std::string out;
    std::string err;
    int status = -1;
};

// options go before the script's path on the command line, shell-quoted by the caller;
// onStdin gives the script on standard input instead of by its path.
DriverRun runDriver(const std::string& script, const std::string& options = "",
                    bool onStdin = false);

// A word for sh, in single quotes.
std::string shellQuote(const std::string& s);
// A token for a script, in double quotes.
std::string scriptQuote(const std::string& s);

} // namespace tavrin::test
