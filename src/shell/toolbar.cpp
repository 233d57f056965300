// The file and font tool bar, dispatched on the button's key.
#include "editor/frm_main.h"

namespace tavrin {

// Guarded as one statement: a failure ends the click, nothing is shown.
void FrmMain::tbToolBar_ButtonClick(const std::string& Key) {
    vb::resume([&] {
        if (Key == "New")
            NewSkin_Click();
        else if (Key == "Open")
            pcxIm_Click();
        else if (Key == "Save")
            ex_Click();
        else if (Key == "Cut" || Key == "Copy" || Key == "Paste")
            host_.MsgBox("Not Yet.", platform::kStyleOk);
        // Print and the font buttons come with the commands they run.
    });
}

} // namespace tavrin
