#pragma once
// Failures of the script itself, as opposed to errors of the editor it drives.
#include <stdexcept>
#include <string>

namespace tavrin::cli {

// A line that can't be parsed, or a name that is no control, field or procedure.
struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A command whose editor handler hasn't been written yet: stops the script like a
// ScriptError, so that a scenario never passes by doing nothing.
struct NotSupported : ScriptError {
    using ScriptError::ScriptError;
};

// The driver can't do its own part (write a dump): the script stops.
struct DriverFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace tavrin::cli
