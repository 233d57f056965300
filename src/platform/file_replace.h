#pragma once
// Writing a file whole so that a failure never costs the file that stood there: the new
// bytes go into a fresh file beside the target, which takes the target's place only once
// every byte is written. The old file is never read, and nothing but a regular file
// (or a name that doesn't exist yet) is ever opened, so a pipe or a device can't block
// or flood the writer.
#include <cstdint>
#include <span>
#include <string>

namespace vb {

// Raises PathFileAccess, with the reason as its text ("Permission denied", "Not a
// regular file", ...), when path can't be replaced: no name, a folder that isn't there or
// can't be written, a target that isn't a regular file or that the user can't write (a
// file with no write permission at all counts as read-only, for root too).
void checkReplaceable(const std::string& path);

// Checks as above, then writes bytes to a new file in the target's folder (with the
// target's permissions and owner when there was one) and gives it the target's name,
// the old file stepping aside until then. On any failure the new file is removed, the
// target is left as it was, and PathFileAccess is raised with the system's reason ("No
// space left on device").
void replaceFile(const std::string& path, std::span<const uint8_t> bytes);

} // namespace vb
