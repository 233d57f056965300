#pragma once
// Runs a script against a session, line by line, and gives the exit status.
#include "cli/session.h"

#include <istream>
#include <ostream>

namespace tavrin::cli {

inline constexpr int kExitOk = 0;        // ran to its end, or to the program's end
inline constexpr int kExitFailure = 1;   // the driver couldn't do its own part
inline constexpr int kExitBadScript = 2; // a line that doesn't parse, an unknown name
inline constexpr int kExitNoAnswer = 3;  // a dialog or Yes/No box with no queued answer

struct RunOptions {
    bool trace = false; // echo each command as "> LINE" before running it
};

// Starts the program in s, then runs each line of script; messages go to err.
int runScript(Session& s, std::istream& script, const RunOptions& options, std::ostream& err);

} // namespace tavrin::cli
