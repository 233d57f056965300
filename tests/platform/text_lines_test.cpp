// Line Input: where lines end, and that the end of the text shows exactly when its last line
// has been taken.
#include "platform/text_lines.h"
#include "platform/vb_error.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(TextLines, EachKindOfLineEndEndsOneLineAndTheEndShowsAfterTheLastLine) {
    using Lines = std::vector<std::string>;
    const std::pair<std::string, Lines> cases[] = {
        {"", {}},
        {"a\r\nb\r\n", {"a", "b"}},   // CR LF is one end
        {"a\nb\n", {"a", "b"}},       // LF alone
        {"a\rb\r", {"a", "b"}},       // CR alone
        {"a\r\nb", {"a", "b"}},       // a last line without an end
        {"a\n\rb", {"a", "", "b"}},   // LF then CR: two ends
        {"a\r\r\nb", {"a", "", "b"}}, // CR then CR LF
        {"\n\n", {"", ""}},
        {"1\t2 3\x1A\xFF", {"1\t2 3\x1A\xFF"}}, // any other byte is the line's
    };
    for (const auto& [text, expected] : cases) {
        vb::TextLines lines({reinterpret_cast<const uint8_t*>(text.data()), text.size()});
        Lines got;
        while (!lines.atEnd())
            got.push_back(lines.LineInput());
        EXPECT_EQ(got, expected) << '"' << text << '"';
        int error = 0;
        try {
            lines.LineInput();
        } catch (const vb::Error& e) {
            error = e.number();
        }
        EXPECT_EQ(error, vb::InputPastEnd);
    }
}

} // namespace
