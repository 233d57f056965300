// "&Import Palette" through the driver: text palettes and ACT tables written by each test,
// read into the table and its picture, and what an import leaves alone.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tavrin::test {
namespace {

const std::string kNoPalette =
    "msgbox \"Path/File not found, or not a valid file.\" style=0 -> ok\n";

// A text palette: the header, then the colour lines, each line ended by `end`.
Bytes textPalette(const std::vector<std::string>& colours, const std::string& end = "\r\n") {
    std::string text = "JASC-PAL" + end + "0100" + end + "256" + end;
    for (const std::string& line : colours)
        text += line + end;
    return Bytes(text.begin(), text.end());
}

std::vector<std::string> greys(int count, int first = 0) {
    std::vector<std::string> lines;
    for (int k = 0; k < count; ++k) {
        const std::string v = std::to_string((first + k) % 256);
        lines.push_back(v + " " + v + " " + v);
    }
    return lines;
}

// What `print Pal_Table n` shows of a record that a reading filled.
std::string record(int n, int red, int green, int blue) {
    return "Pal_Table(" + std::to_string(n) + ")=Red=" + std::to_string(red) +
           " Green=" + std::to_string(green) + " Blue=" + std::to_string(blue) +
           " Index=" + std::to_string(n) + " Cell_X=" + std::to_string(n % 16 * 11) +
           " Cell_Y=" + std::to_string(n / 16 * 11) + "\n";
}

std::string printRecords(int from, int to) {
    std::string script;
    for (int n = from; n <= to; ++n)
        script += "print Pal_Table " + std::to_string(n) + "\n";
    return script;
}

std::string importText(const std::string& path) {
    return "answer open " + scriptQuote(path) + "\nclick PAL2\n";
}

std::string dialogLine(const std::string& path) {
    return "dialog open \".PAL 256 Color Palette\" -> " + path + "\n";
}

TEST(PaletteImport, ColourLinesAreSplitAtBlanksWithinFiftyCharactersInAnyLineEnd) {
    const struct {
        std::string line;
        int red, green, blue;
    } cases[] = {
        {"255 0 0", 255, 0, 0},
        {"10  20 30", 10, 0, 20}, // two blanks: an empty field, the third number dropped
        {" 10 20 30", 0, 10, 20}, // a leading blank: red is empty
        {"10\t20\t30", 10, 0, 0}, // a tab is no separator
        {"", 0, 0, 0},            // an empty line uses up a record
        {"1" + std::string(48, 'x') + " 5 6", 1, 0, 0}, // the blank at 50 ends the scan
        {"1" + std::string(47, 'x') + " 5 6", 1, 5, 0}, // the green scan stops at 50
        {"12.5 13.5 254.5", 12, 14, 254},               // rounded half to even
        {"7abc +3 .9e2", 7, 3, 1},                      // each field's leading number
        {"300 0 1000", 300, 0, 1000},                   // kept as read
    };
    std::vector<std::string> lines;
    std::string expected;
    for (const auto& c : cases) {
        expected += record(static_cast<int>(lines.size()), c.red, c.green, c.blue);
        lines.push_back(c.line);
    }
    const int last = static_cast<int>(lines.size()) - 1;
    // The cell of "300 0 1000", drawn as 255, 0, 255.
    const int cellX = last % 16 * 11 + 5, cellY = last / 16 * 11 + 5;
    expected += "Picture2.Point(" + std::to_string(cellX) + "," + std::to_string(cellY) +
                ")=" + std::to_string(packed(255, 0, 255)) + "\n";

    for (const std::string end : {"\r\n", "\n", "\r"}) {
        TempDir dir;
        const std::string path = dir.write("lines.pal", textPalette(lines, end));
        DriverRun r = runDriver(importText(path) + printRecords(0, last) + "print Picture2.Point " +
                                std::to_string(cellX) + " " + std::to_string(cellY) + "\n");
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, dialogLine(path) + expected) << "line end "
                                                      << (end == "\r"   ? "CR"
                                                          : end == "\n" ? "LF"
                                                                        : "CR LF");
    }
}

// 256 lines fill records 0 to 255 and no more: record 256 still holds what the game's
// palette left there, a copy of its last colour, and the match can still land on it.
TEST(PaletteImport, TheEndOfTheFileIsExactAndRecord256KeepsWhatTheRawReaderLeft) {
    const Bytes game = gamePalette();
    const int r255 = game[765], g255 = game[766], b255 = game[767];
    for (const std::string end : {"\r\n", ""}) { // with and without an end on the last line
        TempDir dir;
        Bytes file = textPalette(greys(256), "\r\n");
        if (end.empty()) file.resize(file.size() - 2);
        const std::string path = dir.write("grey.pal", file);
        DriverRun r = runDriver(importText(path) + printRecords(255, 257) + "set Check_Color " +
                                std::to_string(packed(r255, g255, b255)) +
                                "\ncall Temp_Color_Check\nprint Color_Index\n");
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, dialogLine(path) + record(255, 255, 255, 255) +
                             "Pal_Table(256)=Red=" + std::to_string(r255) +
                             " Green=" + std::to_string(g255) + " Blue=" + std::to_string(b255) +
                             " Index=256 Cell_X=0 Cell_Y=176\n"
                             "Pal_Table(257)=Red=0 Green=0 Blue=0 Index=0 Cell_X=0 Cell_Y=0\n"
                             "Color_Index=256\n");
    }
}

// Records 0 to 257 are kept; the cell of the next line is drawn before the reading stops,
// so a colour the drawing refuses there still shows its message, and one further on doesn't.
TEST(PaletteImport, TheReadingStopsAfterRecord257AndDrawsTheNextCellFirst) {
    const struct {
        std::string extra; // lines 259 and 260
        std::string message;
    } cases[] = {
        {"1 2 3\n-1 0 0", ""},
        {"-1 0 0\n1 2 3", kNoPalette},
    };
    for (const auto& c : cases) {
        TempDir dir;
        std::vector<std::string> lines = greys(258, 10);
        lines.push_back(c.extra);
        const std::string path = dir.write("long.pal", textPalette(lines, "\n"));
        DriverRun r = runDriver(importText(path) + printRecords(257, 258));
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, dialogLine(path) + c.message + record(257, 11, 11, 11) +
                             "Pal_Table(258)=Red=0 Green=0 Blue=0 Index=0 Cell_X=0 Cell_Y=0\n");
    }
}

// A file without its three header lines, or with a negative number (which the drawing
// refuses), ends in the message; the records read before the failure stay, the rest keep
// the game's palette, and the next import opens its file again.
TEST(PaletteImport, ShortFilesAndNegativeNumbersEndInTheMessageKeepingWhatCameBefore) {
    const Bytes game = gamePalette();
    auto gameRecord = [&](int n) {
        return record(n, game[3 * n], game[3 * n + 1], game[3 * n + 2]);
    };
    const struct {
        std::string text;
        std::string message;
        int readRecords; // records 0 .. readRecords - 1 are 1, 2, 3
    } cases[] = {
        {"", kNoPalette, 0},
        {"JASC-PAL\r\n0100\r\n", kNoPalette, 0},
        {"JASC-PAL\r\n0100\r\n256", "", 0}, // the header alone: nothing to read
        {"JASC-PAL\n0100\n256\n1 2 3\n1 2 3\n4 -5 6\n7 8 9\n", kNoPalette, 2},
    };
    for (const auto& c : cases) {
        TempDir dir;
        const std::string bad = dir.write("bad.pal", Bytes(c.text.begin(), c.text.end()));
        const std::string good = dir.write("good.pal", textPalette({"40 50 60"}));
        std::string expected = dialogLine(bad) + c.message;
        for (int n = 0; n < 3; ++n)
            expected += n < c.readRecords ? record(n, 1, 2, 3) : gameRecord(n);
        expected += dialogLine(good) + record(0, 40, 50, 60);
        DriverRun r =
            runDriver(importText(bad) + printRecords(0, 2) + importText(good) + printRecords(0, 0));
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, expected) << c.text;
    }
}

TEST(PaletteImport, CancelLeavesThePathAndTheTableAlone) {
    for (const std::string command : {"ACT", "PAL2"}) {
        DriverRun r =
            runDriver("print Pal_Path\n" + printRecords(7, 7) + "answer open cancel\nclick " +
                      command + "\nprint Pal_Path\n" + printRecords(7, 7));
        EXPECT_EQ(r.status, 0) << r.err;
        const std::string path =
            "Pal_Path=\"" +
            (std::filesystem::path(TAVRIN_SCRIPT_BIN).parent_path() / "Quake2.PAL").string() +
            "\"\n";
        const Bytes game = gamePalette();
        const std::string seven = record(7, game[21], game[22], game[23]);
        const std::string title =
            command == "ACT" ? "Load ACT Color Table Palette" : ".PAL 256 Color Palette";
        EXPECT_EQ(r.out, path + seven + "dialog open \"" + title + "\" -> cancel\n" + path + seven);
    }
}

// An ACT table is read from its first byte as the game's palette is; its four trailing
// bytes land in records 256 and 257 (one byte for 257, whose green and blue stay as the
// pass before left them).
TEST(PaletteImport, AnActTableFillsTheTableAndItsTrailerRecords256And257) {
    TempDir dir;
    const Bytes act = makeBytes(772, [](std::size_t k) { return static_cast<uint8_t>(k * 7 + 3); });
    const std::string path = dir.write("table.act", act);
    DriverRun r = runDriver("answer open " + scriptQuote(path) + "\nclick ACT\n" +
                            printRecords(0, 0) + printRecords(255, 257) + "print Pal_Path\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "dialog open \"Load ACT Color Table Palette\" -> " + path + "\n" +
                         record(0, act[0], act[1], act[2]) +
                         record(255, act[765], act[766], act[767]) +
                         record(256, act[768], act[769], act[770]) +
                         record(257, act[771], act[769], act[770]) + "Pal_Path=\"" + path + "\"\n");
}

// An import before painting on: the skin keeps its indices and its pixels, the picked
// colour and its marker stay, Undo takes back the stroke but not the table, the next stroke takes
// the nearest colour of the new table, and a save writes the old indices with it.
TEST(PaletteImport, AnImportChangesOnlyTheTableAndTheNextStrokeMatchesTheNewOne) {
    const std::string skin = TAVRIN_TEST_DATA "/swirl-200x160.pcx";
    // The game's palette with its green (record 208, picked below) moved to record 100.
    Bytes act = gamePalette();
    for (int k = 0; k < 3; ++k) {
        act[300 + k] = act[624 + k];
        act[624 + k] = static_cast<uint8_t>(k + 1);
    }
    std::vector<std::string> lines;
    for (std::size_t k = 0; k < act.size(); k += 3)
        lines.push_back(std::to_string(act[k]) + " " + std::to_string(act[k + 1]) + " " +
                        std::to_string(act[k + 2]));
    const struct {
        std::string command, file;
        Bytes bytes;
    } cases[] = {{"ACT", "moved.act", act}, {"PAL2", "moved.pal", textPalette(lines)}};
    for (const auto& c : cases) {
        TempDir dir;
        const std::string path = dir.write(c.file, c.bytes);
        auto state = [&](const std::string& tag) {
            return "dump grid " + scriptQuote(dir.file("grid" + tag)) + "\ndump picture picture1 " +
                   scriptQuote(dir.file("picture" + tag)) +
                   "\nprint Pal_X\nprint Pal_Y\nprint Cur_Color\n";
        };
        DriverRun r = runDriver(
            "answer open " + scriptQuote(skin) +
            "\nanswer msgbox no\nclick pcxIm\n"
            "palette down 1 0 5 148\npalette up 1 0 5 148\nclick SSCommand4\n"
            "mouse down 1 0 20 20\nmouse up 1 0 20 20\n" +
            state("1") + "answer open " + scriptQuote(path) + "\nclick " + c.command + "\n" +
            state("2") +
            "click Undo\nprint Pal_Table 208\n"
            "mouse down 1 0 30 20\nmouse up 1 0 30 20\nprint Skin_Grid 4020\nprint Skin_Grid 4030\n"
            "print picture1.Point 30 20\nanswer save " +
            scriptQuote(dir.file("saved.pcx")) + "\nclick SKas\n");
        EXPECT_EQ(r.status, 0) << r.err;
        const std::string unchanged = "dump grid 33601\ndump picture 198 161\nPal_X=5\nPal_Y=148\n"
                                      "Cur_Color=65280\n";
        EXPECT_NE(r.out.find(unchanged + "dialog open"), std::string::npos) << r.out;
        EXPECT_NE(r.out.find(path + "\n" + unchanged + record(208, 1, 2, 3) +
                             "Skin_Grid(4020)=6\nSkin_Grid(4030)=100\n"
                             "picture1.Point(30,20)=65280\n"),
                  std::string::npos)
            << r.out;
        EXPECT_EQ(readFile(dir.file("grid1")), readFile(dir.file("grid2")));
        EXPECT_EQ(readFile(dir.file("picture1")), readFile(dir.file("picture2")));
        const Bytes saved = readFile(dir.file("saved.PCX"));
        ASSERT_GT(saved.size(), 768u);
        EXPECT_EQ(Bytes(saved.end() - 768, saved.end()), act) << c.command;
    }
}

} // namespace
} // namespace tavrin::test
