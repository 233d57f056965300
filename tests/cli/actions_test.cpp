// What the user's commands do to the window: keys, procedures by name, the mouse.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

TEST(DriverActions, KeysTypeAtTheEndAndBackspaceDeletes) {
    // Text5 shows the pointer's column: nothing handles its keys.
    DriverRun r = runDriver("type Text5 \"ab\"\nkey Text5 67\nkey Text5 8\nkey Text5 8\nkey Text5 13\n"
                            "print Text5.Text\ntype Text5 \"\"\nkey Text5 8\nprint Text5.Text\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Text5.Text=\"a\"\nText5.Text=\"\"\n");
    EXPECT_EQ(runDriver("key Text5 256\n").status, 2);
}

TEST(DriverActions, CallRunsProceduresOfTheMainFormByName) {
    DriverRun r = runDriver("call SSCommand8_Click\nprint SSPanel1.Visible\nprint PALE.Checked\n"
                            "answer msgbox no\ncall Form_Unload\ncall Erase_Array\nbounds UV_Table\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "SSPanel1.Visible=False\nPALE.Checked=False\n"
                     "msgbox \"Exit Tavrin?\" style=4 -> no\nUV_Table=unallocated\n");
}

TEST(DriverActions, MouseEventsReachTheCanvasAndThePalette) {
    DriverRun r = runDriver("mouse move 0 0 3 4\nprint Text5.Text\nprint Text4.Text\n"
                            "palette down 1 0 58 3\nprint Cur_Color\n");
    EXPECT_EQ(r.status, 0) << r.err;
    Bytes pal = gamePalette(); // the cell at (58, 3) is record 5's
    EXPECT_EQ(r.out, "Text5.Text=\"3\"\nText4.Text=\"4\"\nCur_Color=" +
                         std::to_string(packed(pal[15], pal[16], pal[17])) + "\n");
}

} // namespace
} // namespace tavrin::test
