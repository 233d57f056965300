// Diffuse through the driver: its scatter is the same at each start of the program and
// goes on within one.
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

TEST(DriverDiffuse, RepeatsAcrossStartsAndGoesOnWithinOne) {
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

} // namespace
} // namespace tavrin::test
