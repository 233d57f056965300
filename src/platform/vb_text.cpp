#include "platform/vb_text.h"

#include "platform/vb_error.h"

namespace vb {

namespace {

bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The byte offset where character number `chars` (0-based) starts, or the text's size.
std::size_t offsetOf(const std::string& text, int64_t chars) {
    std::size_t at = 0;
    for (; chars > 0 && at < text.size(); --chars) {
        ++at;
        while (at < text.size() && continues(text[at]))
            ++at;
    }
    return at;
}

} // namespace

int64_t Len(const std::string& text) {
    int64_t n = 0;
    for (std::size_t k = 0; k < text.size(); ++k)
        if (k == 0 || !continues(text[k])) ++n;
    return n;
}

std::string Left(const std::string& text, int64_t count) {
    if (count < 0) raise(InvalidCall);
    return text.substr(0, offsetOf(text, count));
}

} // namespace vb
