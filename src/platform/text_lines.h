#pragma once
// Text taken a line at a time, as Line Input takes a file opened for Input. A line ends at
// a carriage return, a line feed or the two together (files from every system use one of
// the three), and the end isn't part of the line. The end of the text shows as soon as its
// last line has been taken: a last line with no end of its own is a line all the same,
// and an end of line at the very end starts no empty line behind it.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace vb {

class TextLines {
public:
    TextLines() = default;
    explicit TextLines(std::span<const uint8_t> text) : text_(text) {}

    // EOF: nothing is left to take (an empty text at once).
    bool atEnd() const { return at_ >= text_.size(); }
    // Line Input: the next line, each byte a character; "Input past end of file" when
    // nothing is left.
    std::string LineInput();

private:
    std::span<const uint8_t> text_;
    std::size_t at_ = 0;
};

} // namespace vb
