// Get_Pal: a raw palette of any length into Pal_Table and the grid of Picture2.
#include "support/test_support.h"

namespace tavrin::test {
namespace {

// Bytes that repeat no colour in a few hundred records.
Bytes patterned(std::size_t count) {
    return makeBytes(count, [](std::size_t k) { return static_cast<uint8_t>(k * 37 + 11); });
}

using GetPal = EditorTest;

std::vector<int> fieldsOf(const PalRecord& r) {
    return {r.Red, r.Green, r.Blue, r.Index, r.Cell_X, r.Cell_Y};
}

// Every record as numbers, to see that a failed read changed nothing.
std::vector<int> table(const FrmMain& frm) {
    std::vector<int> out;
    for (int n = 0; n <= 900; ++n) {
        const std::vector<int> fields = fieldsOf(frm.Pal_Table(n));
        out.insert(out.end(), fields.begin(), fields.end());
    }
    return out;
}

// index -1: the record's own number.
void expectRecord(const FrmMain& frm, int n, int red, int green, int blue, int cellX, int cellY,
                  int index = -1) {
    EXPECT_EQ(fieldsOf(frm.Pal_Table(n)),
              (std::vector<int>{red, green, blue, index < 0 ? n : index, cellX, cellY}))
        << "record " << n << ": red, green, blue, index, cell x and y";
}

// Record n read from bytes 3n to 3n + 2 of the file.
void expectFromFile(const FrmMain& frm, const Bytes& b, int n) {
    auto k = static_cast<std::size_t>(3 * n);
    expectRecord(frm, n, b.at(k), b.at(k + 1), b.at(k + 2), n % 16 * 11, n / 16 * 11);
}

TEST_F(GetPal, A768ByteFileFillsTheTableAndPaintsACellForEachColour) {
    Bytes b = patterned(768);
    loadPalette(b);
    EXPECT_TRUE(host.messages().empty());
    for (int n = 0; n < 256; ++n)
        expectFromFile(frm, b, n);
    // The file ends on a whole colour, so one pass more copies the last one, below the grid.
    expectRecord(frm, 256, b[765], b[766], b[767], 0, 176);
    expectRecord(frm, 257, 0, 0, 0, 0, 0, 0); // never written
    ASSERT_EQ(frm.Picture2.innerWidth(), 176);
    for (int n = 0; n < 256; ++n) {
        const PalRecord& r = frm.Pal_Table(n);
        int32_t colour = packed(r.Red, r.Green, r.Blue);
        EXPECT_EQ(frm.Picture2.Point(r.Cell_X, r.Cell_Y), colour) << n;
        EXPECT_EQ(frm.Picture2.Point(r.Cell_X + 10, r.Cell_Y + 10), colour) << n;
    }
}

TEST_F(GetPal, BytesBehindTheLastWholeColourGoIntoTheNextRecordsAndShortFilesKeepTheRest) {
    Bytes act = patterned(772); // an ACT table with its four trailing bytes
    loadPalette(act, "table.act");
    for (int n = 0; n < 257; ++n)
        expectFromFile(frm, act, n);
    // One byte for record 257: a short read leaves green and blue as they were.
    expectRecord(frm, 257, act[771], act[769], act[770], 11, 176);

    Bytes shortFile = patterned(31);
    for (auto& byte : shortFile)
        byte = static_cast<uint8_t>(255 - byte);
    loadPalette(shortFile, "short.pal");
    EXPECT_TRUE(host.messages().empty());
    for (int n = 0; n < 10; ++n)
        expectFromFile(frm, shortFile, n);
    expectRecord(frm, 10, shortFile[30], shortFile[28], shortFile[29], 110, 0);
    for (int n = 11; n < 257; ++n)
        expectFromFile(frm, act, n); // not reached: as they were
    expectRecord(frm, 257, act[771], act[769], act[770], 11, 176);
    const PalRecord& kept = frm.Pal_Table(11);
    EXPECT_EQ(frm.Picture2.Point(121 + 5, 5), packed(kept.Red, kept.Green, kept.Blue));
}

TEST_F(GetPal, AnswerYesReadsTheLast768BytesOnceAndEmptiesTheAnswer) {
    frm.Pal_Table(258).Red = 99;
    const Bytes file = patterned(1000);
    frm.Pal_Answer = 6;
    loadPalette(file, "skin.pcx");
    EXPECT_TRUE(host.messages().empty());
    EXPECT_TRUE(frm.Pal_Answer.isText());
    EXPECT_EQ(frm.Pal_Answer, "");
    const Bytes tail(file.end() - 768, file.end());
    for (int n = 0; n < 256; ++n)
        expectFromFile(frm, tail, n);
    expectRecord(frm, 256, tail[765], tail[766], tail[767], 0, 176);

    frm.Get_Pal(); // the emptied answer: from the first byte this time
    for (int n = 0; n < 258; ++n)
        expectFromFile(frm, file, n);
    expectRecord(frm, 258, 99, 0, 0, 0, 0, 0); // no more than 258 colours are kept
}

TEST_F(GetPal, AMissingOrTooShortFileShowsOneMessageAndChangesNothing) {
    loadPalette(gamePalette());
    const std::vector<int> before = table(frm);
    const auto picture = frm.Picture2.Image();
    const std::string message = "Path/File not found, or not a valid file.";

    frm.Pal_Path = dir.file("Nothing.PAL");
    frm.Get_Pal();
    loadPalette({}, "empty.pal"); // nothing to read, nothing to say
    EXPECT_EQ(host.messages().size(), 1u);
    frm.Pal_Answer = 6;
    loadPalette(patterned(767), "small.pcx"); // its tail would start before the file
    ASSERT_EQ(host.messages().size(), 2u);
    for (const auto& m : host.messages())
        EXPECT_EQ(m.text + " " + std::to_string(m.style), message + " 0");
    EXPECT_EQ(table(frm), before);
    EXPECT_EQ(frm.Picture2.Image()->px, picture->px);
}

} // namespace
} // namespace tavrin::test
