// "&Import Palette" through the driver, with text palettes and ACT tables written by each
// test: what goes into the table and its picture, and what an import leaves alone.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tavrin::test {
namespace {

const std::string kNoPalette =
    "msgbox \"Path/File not found, or not a valid file.\" style=0 -> ok\n";

Bytes textPalette(const std::vector<std::string>& lines, const std::string& end = "\r\n") {
    std::string text = "JASC-PAL" + end + "0100" + end + "256" + end;
    for (const std::string& line : lines)
        text += line + end;
    return Bytes(text.begin(), text.end());
}

// What the driver prints, less its lines about dialogs.
std::string run(const std::string& script) {
    const DriverRun r = runDriver(script);
    EXPECT_EQ(r.status, 0) << r.err;
    std::string out;
    for (std::size_t at = 0, end; at < r.out.size(); at = end + 1) {
        end = r.out.find('\n', at);
        if (r.out.compare(at, 7, "dialog ") != 0) out += r.out.substr(at, end - at + 1);
    }
    return out;
}

std::string importText(const std::string& path) {
    return "answer open " + scriptQuote(path) + "\nclick PAL2\n";
}

std::string printRecords(int from, int to) {
    std::string script;
    for (int n = from; n <= to; ++n)
        script += "print Pal_Table " + std::to_string(n) + "\n";
    return script;
}

// A record as a reading fills it, at its own cell.
std::string record(int n, int red, int green, int blue) {
    return "Pal_Table(" + std::to_string(n) + ")=Red=" + std::to_string(red) +
           " Green=" + std::to_string(green) + " Blue=" + std::to_string(blue) +
           " Index=" + std::to_string(n) + " Cell_X=" + std::to_string(n % 16 * 11) +
           " Cell_Y=" + std::to_string(n / 16 * 11) + "\n";
}
std::string gameRecord(int n) {
    static const Bytes game = gamePalette();
    const auto k = static_cast<std::size_t>(3 * n);
    return record(n, game[k], game[k + 1], game[k + 2]);
}

TEST(PaletteImport, ColourLinesSplitAtBlanksWithinFiftyCharactersWhateverEndsTheLines) {
    const struct {
        std::string line;
        int red, green, blue;
    } cases[] = {
        {"255 0 0", 255, 0, 0},
        {"10  20 30", 10, 0, 20},                       // two blanks: an empty field
        {" 10 20 30", 0, 10, 20},                       // a leading blank: red is empty
        {"10\t20\t30", 10, 0, 0},                       // a tab is no separator
        {"", 0, 0, 0},                                  // an empty line takes a record
        {"1" + std::string(48, 'x') + " 5 6", 1, 0, 0}, // the blank at 50 ends the scan
        {"1" + std::string(47, 'x') + " 5 6", 1, 5, 0}, // the green scan stops at 50
        {"12.5 13.5 254.5", 12, 14, 254},               // rounded half to even
        {"7abc +3 .9e2", 7, 3, 1},                      // each field's leading number
        {"300 0 1000", 300, 0, 1000},                   // kept as read, drawn as 255, 0, 255
    };
    std::vector<std::string> lines;
    std::string expected;
    for (const auto& c : cases) {
        expected += record(static_cast<int>(lines.size()), c.red, c.green, c.blue);
        lines.push_back(c.line);
    }
    expected += "Picture2.Point(104,5)=" + std::to_string(packed(255, 0, 255)) + "\n";
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        TempDir dir;
        EXPECT_EQ(run(importText(dir.write("l.pal", textPalette(lines, end))) + printRecords(0, 9) +
                      "print Picture2.Point 104 5\n"),
                  expected)
            << int(end.back()) << int(end.front());
    }
}

// 256 lines, with or without an end to the last: records 0 to 255 and no more, so record 256
// keeps the copy of record 255 that the game's palette left there, and the match can land on it.
TEST(PaletteImport, TheReadingEndsExactlyWithTheFileAndRecord256KeepsWhatWasThere) {
    std::vector<std::string> greys;
    for (int k = 0; k < 256; ++k)
        greys.push_back(std::to_string(k) + " " + std::to_string(k) + " " + std::to_string(k));
    const Bytes game = gamePalette();
    for (const bool lastEnd : {true, false}) {
        TempDir dir;
        Bytes file = textPalette(greys);
        if (!lastEnd) file.resize(file.size() - 2);
        EXPECT_EQ(run(importText(dir.write("g.pal", file)) + printRecords(255, 256) +
                      "set Check_Color " + std::to_string(packed(game[765], game[766], game[767])) +
                      "\ncall Temp_Color_Check\nprint Color_Index\n"),
                  record(255, 255, 255, 255) + record(256, game[765], game[766], game[767]) +
                      "Color_Index=256\n");
    }
}

// Records 0 to 257 are kept. The cell of line 259 is drawn before the reading stops there, so
// a colour the drawing refuses shows its message on line 259, and none on line 260.
TEST(PaletteImport, TheReadingStopsBehindRecord257AfterDrawingTheNextCell) {
    for (const bool refusedFirst : {true, false}) {
        std::vector<std::string> lines(258, "9 9 9");
        lines.push_back(refusedFirst ? "-1 0 0" : "1 2 3");
        lines.push_back(refusedFirst ? "1 2 3" : "-1 0 0");
        TempDir dir;
        EXPECT_EQ(
            run(importText(dir.write("long.pal", textPalette(lines))) + printRecords(257, 258)),
            (refusedFirst ? kNoPalette : "") + record(257, 9, 9, 9) +
                "Pal_Table(258)=Red=0 Green=0 Blue=0 Index=0 Cell_X=0 Cell_Y=0\n");
    }
}

// Cancel changes nothing. A file short of its header, or a negative number (which the drawing
// refuses), shows the message and keeps the records read before; the next import still opens
// its file.
TEST(PaletteImport, CancelShortFilesAndNegativeNumbers) {
    const struct {
        std::string answer, message;
        int read; // records 0 .. read - 1 become 1, 2, 3
    } cases[] = {
        {"cancel", "", 0},
        {"", kNoPalette, 0},
        {"JASC-PAL\r\n0100\r\n", kNoPalette, 0},
        {"JASC-PAL\r\n0100\r\n256", "", 0}, // a header alone: nothing to read
        {"JASC-PAL\n0100\n256\n1 2 3\n1 2 3\n4 -5 6\n7 8 9\n", kNoPalette, 2},
    };
    for (const auto& c : cases) {
        TempDir dir;
        const std::string path =
            c.answer == "cancel"
                ? "cancel"
                : scriptQuote(dir.write("p.pal", Bytes(c.answer.begin(), c.answer.end())));
        const std::string kept =
            c.answer == "cancel"
                ? (std::filesystem::path(TAVRIN_SCRIPT_BIN).parent_path() / "Quake2.PAL").string()
                : dir.file("p.pal");
        std::string expected = c.message + "Pal_Path=\"" + kept + "\"\n";
        for (int n = 0; n < 3; ++n)
            expected += n < c.read ? record(n, 1, 2, 3) : gameRecord(n);
        const std::string script =
            "answer open " + path + "\nclick PAL2\nprint Pal_Path\n" + printRecords(0, 2) +
            importText(dir.write("good.pal", textPalette({"40 50 60"}))) + printRecords(0, 0);
        EXPECT_EQ(run(script), expected + record(0, 40, 50, 60)) << c.answer;
    }
}

// On a skin, with a colour picked: the grid and the picture keep their values, the marker and
// the picked colour stay, Undo takes back the stroke but not the table, the next stroke takes
// its index from the new table, and a save writes the old indices with it.
TEST(PaletteImport, AnImportChangesTheTableOnlyAndTheNextStrokeMatchesTheNewOne) {
    Bytes act = gamePalette(); // its green, record 208, moved to record 100
    for (std::size_t k = 0; k < 3; ++k) {
        act[300 + k] = act[624 + k];
        act[624 + k] = static_cast<uint8_t>(k + 1);
    }
    std::vector<std::string> lines;
    for (std::size_t k = 0; k < act.size(); k += 3)
        lines.push_back(std::to_string(act[k]) + " " + std::to_string(act[k + 1]) + " " +
                        std::to_string(act[k + 2]));
    for (const std::string command : {"ACT", "PAL2"}) {
        TempDir dir;
        const std::string file = dir.write("p", command == "ACT" ? act : textPalette(lines));
        auto state = [&](const std::string& when) {
            return "dump grid " + scriptQuote(dir.file("grid" + when)) +
                   "\ndump picture picture1 " + scriptQuote(dir.file("picture" + when)) +
                   "\nprint Pal_X\nprint Pal_Y\nprint Cur_Color\n";
        };
        const std::string out = run(
            kOpenTestSkin +
            "palette down 1 0 5 148\npalette up 1 0 5 148\nclick SSCommand4\n"
            "mouse down 1 0 20 20\nmouse up 1 0 20 20\n" +
            state("before") + "answer open " + scriptQuote(file) + "\nclick " + command + "\n" +
            state("after") +
            "click Undo\nprint Pal_Table 208\nmouse down 1 0 30 20\nmouse up 1 0 30 20\n"
            "print Skin_Grid 4020\nprint Skin_Grid 4030\nprint picture1.Point 30 20\nanswer save " +
            scriptQuote(dir.file("s.pcx")) + "\nclick SKas\n");
        const std::string unchanged =
            "dump grid 33601\ndump picture 198 161\nPal_X=5\nPal_Y=148\nCur_Color=65280\n";
        EXPECT_EQ(out, "msgbox \"Import Palette From Skin?\" style=4 -> no\n" + unchanged +
                           unchanged + record(208, 1, 2, 3) +
                           "Skin_Grid(4020)=6\nSkin_Grid(4030)=100\npicture1.Point(30,20)=65280\n");
        EXPECT_EQ(readFile(dir.file("gridbefore")), readFile(dir.file("gridafter")));
        EXPECT_EQ(readFile(dir.file("picturebefore")), readFile(dir.file("pictureafter")));
        const Bytes saved = readFile(dir.file("s.PCX"));
        EXPECT_EQ(Bytes(saved.end() - 768, saved.end()), act) << command;
    }
}

} // namespace
} // namespace tavrin::test
