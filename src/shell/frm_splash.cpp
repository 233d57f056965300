#include "shell/frm_splash.h"

namespace tavrin {

FrmSplash::FrmSplash(platform::Host& host, std::function<void()> showMain)
    : Form("frmSplash"), host_(host), showMain_(std::move(showMain)) {
    Caption = "Tavrin";
    Width = 4740;
    Height = 5280;
    lblProductName.Move(90, 75, 3660, 765);
    lblPlatform.Move(255, 825, 3675, 360);
    lblVersion.Move(270, 1170, 3645, 285);
    List1.Move(90, 1545, 4410, 2595);
    SSCommand1.Move(345, 4365, 1815, 405);
    SSCommand2.Move(2280, 4380, 1815, 405);
    lblProductName.Caption = "Tavrin";
    lblProductName.FontSize = 24;
    lblProductName.FontBold = true;
    lblPlatform.Caption = "Windows 95/NT";
    SSCommand1.Caption = "OK";
    SSCommand2.Caption = "I Quit";
    SSCommand1.Click = [this] { SSCommand1_Click(); };
    SSCommand2.Click = [this] { SSCommand2_Click(); };
}

void FrmSplash::Form_Load() {
    lblVersion.Caption = "Version " + std::string(kVersion);
    lblProductName.Caption = "Tavrin";
    for (const std::string& line : releaseNotes())
        List1.AddItem(line);
}

void FrmSplash::SSCommand1_Click() {
    host_.UnloadForm(*this);
    showMain_();
}

void FrmSplash::SSCommand2_Click() { platform::endProgram(host_); }

const std::vector<std::string>& releaseNotes() {
    // Entries keep their blanks: the list shows them as they stand.
    static const std::vector<std::string> notes = {
        "First of all thanks for beta testing",
        "Tavrin. The current Version is BETA",
        "(build 034). This software is AS IS, meaning",
        "if it destroys your system...don't ask",
        "me about it. Tavrin seems to run",
        "stable though. I use it on a Pentium",
        "233 with 128 (upgraded) meg. The more memory you",
        "have...the better it will run.",
        "Processor speed is second.",
        "",
        "TIP: TO ZOOM OUT PRESS THE RIGHT MOUSE BUTTON IN ",
        "      ZOOM MODE.",
        "",
        "NEW in Build 034:",
        "1. Text: Any font on your system. Regular or mirrored.",
        "2. Eye-Dropper Tool activation changed. Now move the ",
        "   mouse while holding down the shift key AND the ",
        "   right hand mouse button.",
        "3. Gradient (Shaded) Rectangle Fill. ",
        "4. Font tools and print added to the tool-bar.",
        "",
        "",
        "NEW in Build 033:",
        "1. PSP Palette import. (PAL)",
        "2. Eye-Dropper Tool activated by moving the mouse and ",
        "   Holding down the shift key.",
        "3. More Speed improvements.",
        "4. Pop-Up Menus over Image Edit Area.",
        "5. Rectangles and Rectangle Fill",
        "",
        "NEW in Build 032:",
        "1. As promised, palette import. (.ACT Color Tables)",
        "2. Print and Print Preview",
        "3. Speed improvements.",
        "4. Undo (CTRL-Z)",
        "5. Image and Model Attributes.",
        "",
        "NEW in  Build 031:",
        "1. Color Replace BUG FIX. You can SAVE now.",
        "2. Memory requirements are much less.",
        "3. Clear Wireframe added.",
        "",
        "NEW in  Build 030:",
        "1. You can now import the palette from the PCX file.",
        "2. Diffuse Tool Bug fix.",
        "3. Save As Added.",
        "4. Default to .PCX extention on Save.",
        "5. Import Wireframe to Base PCX from .MD2 file",
        "   Click New Skin to do this.",
        "",
        "NEW Build 029 stuff",
        "BIG bug fixed...when you draw out side",
        "of the skin, some systems were crashing.",
        "I fixed this in 0.2.9, at least it's not ",
        "doing it on my system now.",
        "",
        "TIP: Hold the SHIFT KEY DOWN WHILE",
        "MOVING THE MOUSE TO PAN THE IMAGE!",
        "I don't mention that anywhere in the",
        "application.",
        "",
        "More feature will be available as I",
        "get them more user friendly, so keep",
        "tuned to the web site, for now:",
        "",
        "Limited BETA Feature set:",
        "",
        "Brushes:",
        "",
        "Airbrush",
        "Tinting brush",
        "Paintbrush",
        "Pencil",
        "Blurring brush",
        "",
        "Effects/Filters:",
        "",
        "Diffuse",
        "Emboss",
        "Blur",
        "Sharpen",
        "Tint",
        "Lighten",
        "Mask",
        "Color Replace",
        "Rectangle",
        "Filled Rectangle",
        "",
        "Addition Features:",
        "",
        ".ACT Adobe Color Table Import",
        ".PAL Paint Shop Pro Palette Import",
        "Pop-Up Menus",
        "PCX Version 5 (Quake 2) Import/Export",
        "MD2 Import to NEW skin",
        "Wireframe Over Skin Veiwing",
        "Two brush sizes (1 and 9 pixels)",
        "5 Tinting Values",
        "Color Options for Application and",
        "Wireframe",
        "Movable Toolbar And pallete",
        "Eyedropper",
        "Zoom",
        "Pan",
        "",
    };
    return notes;
}

} // namespace tavrin
