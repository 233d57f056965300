#pragma once
// Texts measured in characters, as the runtime's Len, Left and Mid measured them, over
// the UTF-8 the editor holds its texts in: a character is a byte that isn't a
// continuation byte together with the continuation bytes after it. Any byte string can be
// measured and cut: a stray continuation byte belongs to the character before it.
#include <cstdint>
#include <string>

namespace vb {

int64_t Len(const std::string& text);
// The first count characters; Invalid procedure call when count is negative.
std::string Left(const std::string& text, int64_t count);

} // namespace vb
