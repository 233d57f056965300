#include "cli/runner.h"

#include "cli/commands.h"
#include "cli/lexer.h"
#include "cli/script_error.h"
#include "platform/vb_error.h"

#include <functional>
#include <string>

namespace tavrin::cli {

namespace {

enum class Flow { Next, Ended };

// What the window's event loop does around a handler: an editor error that no
// procedure trapped is dropped and the next event runs; the end of the program ends
// the script.
Flow asEvent(Session& s, std::ostream& err, const std::string& where,
             const std::function<void()>& fn) {
    try {
        fn();
    } catch (const vb::EndProgram&) {
        s.out() << "end\n";
        return Flow::Ended;
    } catch (const vb::Error& e) {
        s.out().flush();
        err << where << ": editor error " << e.number() << " (" << e.what() << ") ignored\n";
    }
    return Flow::Next;
}

int fail(Session& s, std::ostream& err, const std::string& where, const std::string& message,
         int status) {
    s.out().flush();
    err << where << ": " << message << '\n';
    return status;
}

} // namespace

int runScript(Session& s, std::istream& script, const RunOptions& options, std::ostream& err) {
    std::string where = "start";
    try {
        if (asEvent(s, err, where, [&] { s.start(); }) == Flow::Ended) return kExitOk;
        std::string line;
        for (int number = 1; std::getline(script, line); ++number) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (isSilentLine(line)) continue;
            where = "line " + std::to_string(number);
            if (options.trace) s.out() << "> " << line << '\n';
            Args args(tokenize(line));
            std::string name = args.word("a command");
            CommandFn command = findCommand(name);
            if (!command) throw ScriptError("no command " + name);
            if (asEvent(s, err, where, [&] { command(s, args); }) == Flow::Ended) return kExitOk;
        }
    } catch (const ScriptError& e) {
        return fail(s, err, where, e.what(), kExitBadScript);
    } catch (const platform::ScriptedHost::MissingAnswer& e) {
        return fail(s, err, where, std::string("no answer queued for the ") + e.what(),
                    kExitNoAnswer);
    } catch (const DriverFailure& e) {
        return fail(s, err, where, e.what(), kExitFailure);
    }
    s.out().flush();
    return kExitOk;
}

} // namespace tavrin::cli
