// Line Input over a text and over a file opened for Input: where lines end, and that the
// end of the file shows exactly when the last line has been taken.
#include "platform/text_lines.h"
#include "platform/vb_error.h"
#include "platform/vb_files.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

std::vector<std::string> allLines(const std::string& text) {
    vb::TextLines lines(std::span(reinterpret_cast<const uint8_t*>(text.data()), text.size()));
    std::vector<std::string> out;
    while (!lines.atEnd())
        out.push_back(lines.LineInput());
    return out;
}

TEST(TextLines, EachKindOfLineEndEndsOneLineAndTheTextsEndShowsAfterItsLastLine) {
    using Lines = std::vector<std::string>;
    const struct {
        std::string text;
        Lines lines;
    } cases[] = {
        {"", {}},
        {"a\r\nb\r\n", {"a", "b"}},   // CR LF is one end
        {"a\nb\n", {"a", "b"}},       // LF alone
        {"a\rb\r", {"a", "b"}},       // CR alone
        {"a\r\nb", {"a", "b"}},       // a last line without an end
        {"a\n\rb", {"a", "", "b"}},   // LF then CR: two ends
        {"a\r\r\nb", {"a", "", "b"}}, // CR then CR LF
        {"\n", {""}},
        {"\n\n", {"", ""}},
        {"1\t2 3\x1A\xFF", {"1\t2 3\x1A\xFF"}}, // tabs and any other byte are the line's
    };
    for (const auto& c : cases)
        EXPECT_EQ(allLines(c.text), c.lines) << '"' << c.text << '"';
}

TEST(TextLines, AFileOpenedForInputGivesItsLinesAndThenInputPastEnd) {
    TempDir dir;
    vb::FileTable files;
    files.OpenForInput(1, dir.write("three.txt", {'x', '\r', '\n', 'y', '\n'}));
    EXPECT_FALSE(files.EOF_(1));
    EXPECT_EQ(files.LineInput(1), "x");
    EXPECT_FALSE(files.EOF_(1));
    EXPECT_EQ(files.LineInput(1), "y");
    EXPECT_TRUE(files.EOF_(1));
    int error = 0;
    try {
        files.LineInput(1);
    } catch (const vb::Error& e) {
        error = e.number();
    }
    EXPECT_EQ(error, vb::InputPastEnd);
    uint8_t b = 0; // a text file is not read by position
    EXPECT_THROW(files.Get(1, 1, b), vb::Error);
    files.Close(1);

    files.OpenForInput(1, dir.write("empty.txt", {}));
    EXPECT_TRUE(files.EOF_(1));
    EXPECT_THROW(files.OpenForInput(2, dir.file("missing.txt")), vb::Error);
    EXPECT_NO_THROW(files.OpenForInput(2, dir.write("again.txt", {'z'})));
}

} // namespace
} // namespace tavrin::test
