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

// The 200 x 160 test skin, and the lines that open it keeping the palette in use.
inline const std::string kTestSkin = TAVRIN_TEST_DATA "/swirl-200x160.pcx";
inline const std::string kOpenTestSkin =
    "answer open " + scriptQuote(kTestSkin) + "\nanswer msgbox no\nclick pcxIm\n";

} // namespace tavrin::test
