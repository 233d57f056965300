// The soft brushes, fill, Diffuse, Lighten Image and colour replace through the driver, as
// a user reaches them: Diffuse's scatter is the same at each start of the program and goes
// on within one.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::test {
namespace {

const std::string kOpen = "answer open " + scriptQuote(TAVRIN_TEST_DATA "/swirl-200x160.pcx") +
                          "\nanswer msgbox no\nclick pcxIm\n";
const std::string kDiffuseBox = "click SSCommand43\nmouse down 1 0 20 20\nmouse move 1 0 90 70\n"
                                "mouse up 1 0 90 70\n";

std::string dumpTo(const TempDir& dir, const std::string& name) {
    return "dump grid " + scriptQuote((dir.path() / name).string()) + "\n";
}

TEST(DriverSoftTools, DiffuseRepeatsAcrossStartsAndGoesOnWithinOne) {
    TempDir dir;
    const DriverRun first = runDriver(kOpen + kDiffuseBox + dumpTo(dir, "a"));
    const DriverRun again = runDriver(kOpen + kDiffuseBox + dumpTo(dir, "b"));
    const DriverRun twice =
        runDriver(kOpen + kDiffuseBox + "click Undo\n" + kDiffuseBox + dumpTo(dir, "c"));
    const DriverRun none = runDriver(kOpen + dumpTo(dir, "d"));
    for (const DriverRun* r : {&first, &again, &twice, &none})
        ASSERT_EQ(r->status, 0) << r->err;
    const Bytes a = readFile((dir.path() / "a").string());
    EXPECT_EQ(a, readFile((dir.path() / "b").string()));
    EXPECT_NE(a, readFile((dir.path() / "c").string()));
    EXPECT_NE(a, readFile((dir.path() / "d").string()));
}

TEST(DriverSoftTools, EachToolFromItsCommand) {
    struct Case {
        const char* name;
        std::string script, out; // out: the lines the script prints after the open
    };
    const Case cases[] = {
        {"air brush from the popup", "click aPop\nmouse down 1 0 50 50\nprint SSPanel3.Caption\n",
         "SSPanel3.Caption=\"Air Brush\"\n"},
        {"blur brush", "click BlurBrush\nmouse down 1 0 50 50\nprint Tool_Mode\n",
         "Tool_Mode=\"Blur\"\n"},
        {"tint brush leaves the position one higher",
         "click tPop\nmouse down 1 0 50 50\nprint Cur_X\nprint Cur_Y\n", "Cur_X=51\nCur_Y=51\n"},
        {"fill says so first", "click mFill\nprint Tool_Mode\n",
         "msgbox \"NEXT BETA!\" style=0 -> ok\nTool_Mode=\"Fill\"\n"},
        {"lighten image keeps the tool", "click pEdit\nclick liPop\nprint Tool_Mode\n",
         "Tool_Mode=\"Draw\"\n"},
        {"colour replace",
         "click SSCommand15\nmouse down 1 0 50 50\nprint SSPanel7.Visible\n"
         "print Mask.Checked\nprint SSCommand5.Caption\nclick SSCommand6\nclick SSCommand9\n"
         "print SSPanel7.Visible\n",
         "SSPanel7.Visible=True\nMask.Checked=True\nSSCommand5.Caption=\"&Apply Mask\"\n"
         "SSPanel7.Visible=False\n"},
    };
    for (const Case& c : cases) {
        const DriverRun r = runDriver(kOpen + c.script);
        EXPECT_EQ(r.status, 0) << c.name << ": " << r.err;
        EXPECT_NE(r.out.find(c.out), std::string::npos) << c.name << ":\n" << r.out;
    }
}

} // namespace
} // namespace tavrin::test
