#include "shell/command_tables.h"

namespace tavrin::shell {

namespace {
constexpr bool shown = true;
constexpr bool hidden = false;
} // namespace

// Positions inside a panel count from the panel's top left corner. The floating bars
// stand at their design places; Form_Resize moves some of them to the window's edge.
const std::vector<ControlRow>& controlTable() {
    using F = FrmMain;
    // clang-format off
    static const std::vector<ControlRow> table = {
        // name          container    left   top    width  height caption  tool tip  visible  click
        // ---- palette ----
        {"SSPanel1",     "",          8730,  510,   3075,  4065, "", "", shown, nullptr},
        {"SSPanel8",     "SSPanel1",  0,     0,     3075,  285,  " Palette", "", shown, nullptr},
        {"SSCommand8",   "SSPanel1",  2790,  30,    255,   225,  "x", "Close", shown, &F::SSCommand8_Click},
        {"Picture2",     "SSPanel1",  165,   375,   2700,  2700, "", "", shown, nullptr},
        {"Label5",       "SSPanel1",  165,   3105,  600,   195,  "Red", "", shown, nullptr},
        {"Label6",       "SSPanel1",  825,   3105,  600,   195,  "Green", "", shown, nullptr},
        {"Label7",       "SSPanel1",  1485,  3105,  600,   195,  "Blue", "", shown, nullptr},
        {"Text1",        "SSPanel1",  165,   3300,  600,   285,  "", "", shown, nullptr},
        {"Text2",        "SSPanel1",  825,   3300,  600,   285,  "", "", shown, nullptr},
        {"Text3",        "SSPanel1",  1485,  3300,  600,   285,  "", "", shown, nullptr},
        {"Picture3",     "SSPanel1",  1125,  1485,  720,   480,  "", "", shown, nullptr}, // behind Picture2
        {"Label9",       "SSPanel1",  645,   3705,  150,   195,  "X", "", shown, nullptr},
        {"Text5",        "SSPanel1",  810,   3660,  450,   285,  "0", "", shown, nullptr},
        {"Label8",       "SSPanel1",  1335,  3705,  150,   195,  "Y", "", shown, nullptr},
        {"Text4",        "SSPanel1",  1500,  3660,  450,   285,  "0", "", shown, nullptr},
        {"Label10",      "SSPanel1",  2025,  3705,  420,   195,  "Mask", "", shown, nullptr},
        {"Text6",        "SSPanel1",  2445,  3660,  420,   285,  "Off", "", shown, nullptr},
        {"Picture15",    "SSPanel1",  165,   3660,  405,   285,  "", "", shown, nullptr},
        // The colour mask flag, shown only while the right button is held on the palette.
        {"SSPanel4",     "",          7200,  510,   1455,  555,  "", "", hidden, nullptr},
        {"Picture24",    "SSPanel4",  60,    60,    435,   435,  "", "", shown, nullptr},
        {"Label2",       "SSPanel4",  555,   165,   855,   225,  "Mask Off", "", shown, nullptr},
        // ---- tool bar ----
        {"SSPanel13",    "",          9495,  4650,  2205,  2925, "", "", shown, nullptr},
        {"SSPanel14",    "SSPanel13", 0,     0,     2205,  285,  "Tool Bar", "", shown, nullptr},
        {"SSCommand27",  "SSPanel13", 1920,  30,    255,   225,  "x", "Close", shown, &F::SSCommand27_Click},
        {"SSCommand4",   "SSPanel13", 180,   390,   435,   405,  "", "Pencil (Pixel)", shown, &F::SSCommand4_Click},
        {"SSCommand12",  "SSPanel13", 630,   390,   435,   405,  "", "Paint-Brush ", shown, &F::SSCommand12_Click},
        {"SSCommand13",  "SSPanel13", 1080,  390,   435,   405,  "", "Air-Brush", shown, &F::SSCommand13_Click},
        {"SSCommand16",  "SSPanel13", 1530,  390,   435,   405,  "", "Blur", shown, &F::SSCommand16_Click},
        {"SSCommand15",  "SSPanel13", 180,   810,   435,   405,  "", "Mask/Color Replace", shown, &F::SSCommand15_Click},
        {"SSCommand14",  "SSPanel13", 630,   810,   435,   405,  "", "Eye-Dropper", shown, &F::SSCommand14_Click},
        {"SSCommand28",  "SSPanel13", 1080,  810,   435,   405,  "", "Rectangle", shown, &F::SSCommand28_Click},
        {"SSCommand29",  "SSPanel13", 1530,  810,   435,   405,  "", "Filled Rectangle", shown, &F::SSCommand29_Click},
        {"SSCommand19",  "SSPanel13", 180,   1230,  435,   405,  "", "Zoom", shown, &F::SSCommand19_Click},
        {"SSCommand21",  "SSPanel13", 630,   1230,  435,   405,  "", "Pan Some", shown, &F::SSCommand21_Click},
        {"SSCommand22",  "SSPanel13", 1080,  1230,  435,   405,  "", "Pan Alot", shown, &F::SSCommand22_Click},
        {"SSCommand18",  "SSPanel13", 1530,  1230,  435,   405,  "", "Line", shown, &F::SSCommand18_Click},
        {"SSCommand23",  "SSPanel13", 180,   1650,  435,   405,  "", "Left", shown, &F::SSCommand23_Click},
        {"SSCommand24",  "SSPanel13", 630,   1650,  435,   405,  "", "Right", shown, &F::SSCommand24_Click},
        {"SSCommand25",  "SSPanel13", 1080,  1650,  435,   405,  "", "Up", shown, &F::SSCommand25_Click},
        {"SSCommand26",  "SSPanel13", 1530,  1650,  435,   405,  "", "Down", shown, &F::SSCommand26_Click},
        {"SSCommand17",  "SSPanel13", 180,   2070,  435,   405,  "", "Smudge", shown, &F::SSCommand17_Click},
        {"SSCommand20",  "SSPanel13", 630,   2070,  435,   405,  "", "Text", shown, &F::SSCommand20_Click},
        {"SSCommand34",  "SSPanel13", 2400,  390,   435,   405,  "", "", hidden, nullptr},
        {"SSCommand35",  "SSPanel13", 2400,  810,   435,   405,  "", "", hidden, nullptr},
        {"SSPanel3",     "SSPanel13", 195,   2535,  1785,  285,  "Zoom", "", shown, nullptr},
        // The brush kinds panel: hidden until the paint brush asks for it.
        {"SSPanel2",     "",          9915,  5220,  780,   750,  "", "", hidden, nullptr},
        {"SSCommand30",  "SSPanel2",  15,    15,    375,   360,  "Solid", "", shown, &F::SSCommand30_Click},
        {"SSCommand31",  "SSPanel2",  390,   15,    375,   360,  "Dark", "", shown, &F::SSCommand31_Click},
        {"SSCommand32",  "SSPanel2",  15,    375,   375,   360,  "Light", "", shown, &F::SSCommand32_Click},
        {"SSCommand33",  "SSPanel2",  390,   375,   375,   360,  "Tint", "", shown, &F::SSCommand33_Click},
        // ---- filter bar ----
        {"SSPanel15",    "",          60,    7140,  5295,  825,  "", "", shown, nullptr},
        {"Picture14",    "SSPanel15", 45,    60,    135,   705,  "", "", shown, nullptr},
        {"SSCommand43",  "SSPanel15", 225,   75,    765,   675,  "Diffuse", "", shown, &F::SSCommand43_Click},
        {"SSCommand37",  "SSPanel15", 990,   75,    765,   675,  "Lighten", "", shown, &F::SSCommand37_Click},
        {"SSCommand40",  "SSPanel15", 1755,  75,    765,   675,  "Sharpen", "", shown, &F::SSCommand40_Click},
        {"SSCommand41",  "SSPanel15", 2520,  75,    765,   675,  "Blur", "", shown, &F::SSCommand41_Click},
        {"SSCommand36",  "SSPanel15", 3285,  75,    765,   675,  "Tint ", "", shown, &F::SSCommand36_Click},
        {"SSCommand38",  "SSPanel15", 4050,  75,    765,   675,  "Emboss", "", shown, &F::SSCommand38_Click},
        {"SSCommand42",  "SSPanel15", 4965,  60,    255,   225,  "x", "Close", shown, &F::SSCommand42_Click},
        // ---- actual pixels ----
        {"SSPanel11",    "",          240,   510,   4125,  2865, "", "", hidden, nullptr},
        {"SSPanel12",    "SSPanel11", 0,     0,     4050,  285,  " Actual Pixels", "", shown, nullptr},
        {"SSCommand11",  "SSPanel11", 3775,  30,    255,   225,  "x", "Close", shown, &F::SSCommand11_Click},
        {"picture1",     "SSPanel11", 45,    360,   4005,  2445, "", "", hidden, nullptr},
        // ---- colour replace and mask ----
        {"SSPanel7",     "",          1020,  4290,  4095,  4095, "", "", hidden, nullptr},
        {"SSPanel9",     "SSPanel7",  0,     0,     4095,  285,  "  Color Replace/ Pixel Color Mask", "", shown, nullptr},
        {"SSCommand9",   "SSPanel7",  3810,  30,    255,   225,  "x", "Close", shown, &F::SSCommand9_Click},
        {"SSCommand5",   "SSPanel7",  240,   3540,  1695,  405,  "&Apply Mask", "Apply Original Mask", shown, &F::SSCommand5_Click},
        {"SSCommand6",   "SSPanel7",  2160,  3540,  1695,  405,  "Apply New &Color", "Apply Mask With Current Color", shown, &F::SSCommand6_Click},
        {"SSPanel6",     "",          3000,  3600,  4500,  615,  "", "", hidden, nullptr},
        {"ProgressBar1", "SSPanel6",  120,   300,   4260,  225,  "", "", shown, nullptr},
        // ---- tint value ----
        {"SSPanel16",    "",          4920,  1140,  855,   1365, "", "", hidden, nullptr},
        {"SSPanel17",    "SSPanel16", 0,     0,     855,   285,  "Tint", "", shown, nullptr},
        {"SSCommand39",  "SSPanel16", 585,   30,    240,   225,  "x", "Close", shown, &F::SSCommand39_Click},
        {"Slider1",      "SSPanel16", 60,    360,   255,   960,  "", "", shown, nullptr},
        {"Picture13",    "SSPanel16", 375,   480,   420,   720,  "", "", shown, nullptr},
        {"Picture8",     "SSPanel16", 1000,  480,   420,   720,  "", "", shown, nullptr},
        {"Picture9",     "SSPanel16", 1500,  480,   420,   720,  "", "", shown, nullptr},
        {"Picture10",    "SSPanel16", 2000,  480,   420,   720,  "", "", shown, nullptr},
        {"Picture11",    "SSPanel16", 2500,  480,   420,   720,  "", "", shown, nullptr},
        {"Picture12",    "SSPanel16", 3000,  480,   420,   720,  "", "", shown, nullptr},
        // ---- text tool ----
        {"SSPanel5",     "",          5295,  4680,  4035,  3300, "", "", hidden, nullptr},
        {"SSPanel10",    "SSPanel5",  0,     0,     4035,  285,  " Text Tool", "", shown, nullptr},
        {"SSCommand10",  "SSPanel5",  3750,  30,    255,   225,  "x", "Close", shown, &F::SSCommand10_Click},
        {"Label1",       "SSPanel5",  120,   360,   3795,  225,  "Enter text string below followed by [ENTER]:", "", shown, nullptr},
        {"Text7",        "SSPanel5",  120,   600,   3795,  285,  "", "", shown, nullptr},
        {"Picture25",    "SSPanel5",  120,   960,   3495,  1485, "", "", shown, nullptr},
        {"Picture26",    "SSPanel7",  495,   375,   3105,  3105, "", "", shown, nullptr}, // the colour replace preview
        {"Picture16",    "SSPanel5",  120,   960,   3495,  1485, "", "", hidden, nullptr},
        {"SSCommand2",   "SSPanel5",  120,   2550,  1215,  405,  "&Flip Text", "", shown, &F::SSCommand2_Click},
        {"SSCommand3",   "SSPanel5",  1410,  2550,  1215,  405,  "&Apply", "", shown, &F::SSCommand3_Click},
        {"SSCommand1",   "SSPanel5",  2700,  2550,  1215,  405,  "&Close", "", shown, &F::SSCommand1_Click},
        // ---- straight on the window ----
        {"Picture7",     "",          0,     0,     4005,  2445, "", "", hidden, nullptr},
        {"Picture4",     "",          0,     0,     4005,  2445, "", "", hidden, nullptr},
        {"Picture5",     "",          0,     0,     4005,  2445, "", "", hidden, nullptr},
        {"Picture6",     "",          0,     0,     4005,  2445, "", "", hidden, nullptr},
        {"CommonDialog1", "",         0,     0,     0,     0,    "", "", hidden, nullptr},
        {"tbToolBar",    "",          0,     0,     0,     420,  "", "", shown, nullptr},
        {"StatusBar1",   "",          0,     0,     0,     330,  "", "", shown, nullptr},
    };
    // clang-format on
    return table;
}

} // namespace tavrin::shell
