// Get_Header: the 128 bytes a save writes until a load brings a header of its own.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

using GetHeader = EditorTest;

TEST_F(GetHeader, TheDefaultHeaderByteForByte) {
    for (int k = 1; k <= 128; ++k)
        frm.PCX_Header(k) = 0xEE; // everything is written
    frm.Get_Header();

    Bytes expected = {0x0A, 5, 1, 8, 0, 0, 0, 0, 0x1B, 0x01, 0xC2, 0x00, 0x2C, 0x01, 0x2C, 0x01};
    // The 16-colour greys step by 12 once, 63 to 75.
    for (int grey : {0, 15, 31, 47, 63, 75, 91, 107, 123, 139, 155, 171, 187, 203, 219, 235})
        expected.insert(expected.end(), 3, static_cast<uint8_t>(grey));
    expected.insert(expected.end(), {0, 1, 0x1C, 0x01, 1, 0});
    expected.resize(128, 0);

    Bytes header;
    for (int k = 1; k <= 128; ++k)
        header.push_back(frm.PCX_Header(k));
    EXPECT_EQ(header, expected);
    EXPECT_EQ(frm.PCX_Header(0), 0); // index k is byte k - 1: index 0 is never used
    EXPECT_THROW(frm.PCX_Header(129), vb::Error);
}

} // namespace
} // namespace tavrin::test
