// The Help menu: two messages.
#include "editor/frm_main.h"

namespace tavrin {

void FrmMain::H_Click() {
    host_.MsgBox("Not Yet. Feel free to write some helpful documentation and send it to me. "
                 "Entries must be in MS Word format. You will get FULL credit for any portion "
                 "I use.",
                 platform::kStyleOk);
}

void FrmMain::About_Click() {
    host_.MsgBox("Limited Feature BETA Version Build 034 of Tavrin.", platform::kStyleOk);
}

} // namespace tavrin
