#pragma once
// The runtime's error model. Checked operations throw vb::Error; a procedure either
// lets it end the procedure (caught at its boundary) or skips the one failing
// statement with vb::resume.
#include <cstddef>
#include <stdexcept>
#include <string>

namespace vb {

enum ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNameOrNumber = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    FileAlreadyOpen = 55,
    InputPastEnd = 62,
    BadRecordNumber = 63,
    PathFileAccess = 75,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
    CancelSelected = 32755, // the common dialog's Cancel
};

std::string description(int number);

class Error : public std::runtime_error {
public:
    explicit Error(int number) : std::runtime_error(description(number)), number_(number) {}
    // With the reason the system gave ("No space left on device") in place of the number's
    // own text: for the failures a user is told about.
    Error(int number, const std::string& reason) : std::runtime_error(reason), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};

[[noreturn]] inline void raise(int number) { throw Error(number); }

// Thrown by End: unwinds every procedure up to the event dispatcher. It is not an
// Error, so no error trap or resume catches it.
struct EndProgram {};

// Statement-level regime: the statement is skipped when it fails, the next one runs.
template <class F> void resume(F&& statement) {
    try {
        statement();
    } catch (const Error&) {
    }
}

} // namespace vb
