// The file and font tool bar, dispatched on the button's key.
#include "editor/frm_main.h"

namespace tavrin {

namespace {

// The text tool's preview font takes the style; the button shows it pressed while on.
void toggleFontStyle(platform::Toolbar& bar, const std::string& key, platform::Prop<bool>& style) {
    style = !style.get();
    bar.setValue(key, style ? 1 : 0);
}

} // namespace

// Guarded as one statement: a failure ends the click, nothing is shown.
void FrmMain::tbToolBar_ButtonClick(const std::string& Key) {
    vb::resume([&] {
        if (Key == "New")
            NewSkin_Click();
        else if (Key == "Open")
            pcxIm_Click();
        else if (Key == "Save")
            ex_Click();
        else if (Key == "Print")
            p_Click();
        else if (Key == "Cut" || Key == "Copy" || Key == "Paste")
            host_.MsgBox("Not Yet.", platform::kStyleOk);
        else if (Key == "Bold")
            toggleFontStyle(tbToolBar, Key, Picture25.Font.Bold);
        else if (Key == "Italic")
            toggleFontStyle(tbToolBar, Key, Picture25.Font.Italic);
        else if (Key == "Underline")
            toggleFontStyle(tbToolBar, Key, Picture25.Font.Underline);
        else if (Key == "Font") {
            CommonDialog1.Flags = 3; // screen and printer fonts
            platform::showFont(host_, CommonDialog1);
            Picture25.Font.Name = CommonDialog1.FontName;
        }
    });
}

} // namespace tavrin
