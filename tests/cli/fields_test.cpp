// The field table against the editor: every field of the main form is reachable, and
// `set` then `print` gives back what was set, in each kind of field.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavrin::test {
namespace {

struct DeclaredField {
    std::string name;
    bool array;
};

std::string trim(const std::string& s) {
    std::size_t b = s.find_first_not_of(" \t\n"), e = s.find_last_not_of(" \t\n");
    return b == std::string::npos ? "" : s.substr(b, e - b + 1);
}

// The declarations of a stretch of a header, without comments, initialisers ("= 0",
// "{0, 900}") and line breaks, one per element.
std::vector<std::string> declarations(const std::string& text) {
    std::vector<std::string> out(1);
    int braces = 0;
    bool comment = false, initialiser = false;
    for (std::size_t k = 0; k < text.size(); ++k) {
        char c = text[k];
        if (comment) comment = c != '\n';
        else if (c == '/' && k + 1 < text.size() && text[k + 1] == '/') comment = true;
        else if (c == '{') ++braces;
        else if (c == '}') --braces;
        else if (braces > 0) continue;
        else if (c == ';') out.emplace_back(), initialiser = false;
        else if (c == ',') initialiser = false, out.back() += c;
        else if (c == '=') initialiser = true;
        else if (!initialiser) out.back() += c == '\n' ? ' ' : c;
    }
    return out;
}

// The data members declared between the field banners and the controls of frm_main.h.
std::vector<DeclaredField> declaredFields() {
    Bytes bytes = readFile(TAVRIN_SOURCE_DIR "/src/editor/frm_main.h");
    std::string text(bytes.begin(), bytes.end());
    std::size_t from = text.find("// ---------------- Skin and files");
    std::size_t to = text.find("// ================= Controls");
    std::vector<DeclaredField> out;
    for (std::string d : declarations(text.substr(from, to - from))) {
        d = trim(d);
        std::size_t typeEnd = d.find(' ', d.find('>') == std::string::npos ? 0 : d.find('>'));
        if (d.empty() || typeEnd == std::string::npos) continue;
        std::string type = d.substr(0, typeEnd);
        if (type == "vb::FileTable") continue; // files open by number: nothing to print
        std::stringstream names(d.substr(typeEnd));
        for (std::string name; std::getline(names, name, ',');)
            out.push_back({trim(name), type.rfind("vb::Array", 0) == 0});
    }
    return out;
}

TEST(DriverFields, EveryFieldOfTheMainFormCanBeInspected) {
    std::vector<DeclaredField> declared = declaredFields();
    ASSERT_GT(declared.size(), 80u);
    std::string script;
    for (const auto& f : declared) script += (f.array ? "bounds " : "print ") + f.name + "\n";
    DriverRun r = runDriver(script);
    EXPECT_EQ(r.status, 0) << r.err;
    std::stringstream lines(r.out);
    for (const auto& f : declared) {
        std::string line;
        std::getline(lines, line);
        EXPECT_EQ(line.substr(0, f.name.size() + 1), f.name + "=");
    }
}

TEST(DriverFields, SetThenPrintGivesBackEachKindOfValue) {
    DriverRun r = runDriver(
        // dynamic values
        "set Zoom_Factor 0.1\nprint Zoom_Factor\nset Zoom_Factor 70000\nprint Zoom_Factor\n"
        "set Zoom_Factor 1e3\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, "Zoom_Factor=0.1\nZoom_Factor=70000\n");

    r = runDriver("set Tool_Mode \"Draw\"\nprint Tool_Mode\nset Tool_Mode \"5\"\nprint Tool_Mode\n"
                  "set Tool_Mode True\nprint Tool_Mode\nset Tool_Mode Empty\nprint Tool_Mode\n"
                  "set Tool_Mode 0.30000000000000004\nprint Tool_Mode\n"
                  // 16-bit, 32-bit, text, boolean, and elements of arrays
                  "set Brush_Size -7\nprint Brush_Size\nset Near_Color 2147483647\nprint Near_Color\n"
                  "set File_Name \"C:\\\\skins\\\\a.pcx\"\nprint File_Name\n"
                  "set Fill_Rect True\nprint Fill_Rect\n"
                  "set Work_Buf 1 2 3 -9\nprint Work_Buf 1 2 3\nprint Work_Buf 1 2 4\n"
                  "set PCX_Header 128 255\nprint PCX_Header 128\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Tool_Mode=\"Draw\"\nTool_Mode=\"5\"\nTool_Mode=True\nTool_Mode=Empty\n"
                     "Tool_Mode=0.30000000000000004\n"
                     "Brush_Size=-7\nNear_Color=2147483647\nFile_Name=\"C:\\\\skins\\\\a.pcx\"\n"
                     "Fill_Rect=True\nWork_Buf(1,2,3)=-9\nWork_Buf(1,2,4)=0\nPCX_Header(128)=255\n");
}

TEST(DriverFields, ValuesOutsideAFieldsRangeAreRefused) {
    for (const char* line : {"set PCX_Header 1 256", "set Near_Color 2147483648",
                             "set Brush_Size -32769", "set Cur_Color 0x100000000"}) {
        DriverRun r = runDriver(std::string(line) + "\n");
        EXPECT_EQ(r.status, 2) << line;
    }
}

} // namespace
} // namespace tavrin::test
