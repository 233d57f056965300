#include "platform/text_lines.h"

#include "platform/vb_error.h"
#include "platform/vb_memory.h"

#include <algorithm>

namespace vb {

std::string TextLines::LineInput() {
    if (atEnd()) raise(InputPastEnd);
    const auto rest = text_.subspan(at_);
    const auto end =
        std::find_if(rest.begin(), rest.end(), [](uint8_t c) { return c == '\r' || c == '\n'; });
    const auto length = static_cast<std::size_t>(end - rest.begin());
    checkAllocation(length, 1);
    std::string line(rest.begin(), end);
    at_ += length;
    if (at_ < text_.size()) {
        const bool crlf = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
        at_ += crlf ? 2 : 1;
    }
    return line;
}

} // namespace vb
