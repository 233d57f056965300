// Diffuse through the driver: its scatter is the same at each start of the program and
// goes on within one.
#include "cli/driver_run.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::test {
namespace {

const std::string kDiffuseBox = "click SSCommand43\nmouse down 1 0 20 20\nmouse move 1 0 90 70\n"
                                "mouse up 1 0 90 70\n";

std::string dumpTo(const TempDir& dir, const std::string& name) {
    return "dump grid " + scriptQuote(dir.file(name)) + "\n";
}

TEST(DriverDiffuse, RepeatsAcrossStartsAndGoesOnWithinOne) {
    TempDir dir;
    const DriverRun first = runDriver(kOpenTestSkin + kDiffuseBox + dumpTo(dir, "a"));
    const DriverRun again = runDriver(kOpenTestSkin + kDiffuseBox + dumpTo(dir, "b"));
    const DriverRun twice =
        runDriver(kOpenTestSkin + kDiffuseBox + "click Undo\n" + kDiffuseBox + dumpTo(dir, "c"));
    const DriverRun none = runDriver(kOpenTestSkin + dumpTo(dir, "d"));
    for (const DriverRun* r : {&first, &again, &twice, &none})
        ASSERT_EQ(r->status, 0) << r->err;
    const Bytes a = readFile(dir.file("a"));
    EXPECT_EQ(a, readFile(dir.file("b")));
    EXPECT_NE(a, readFile(dir.file("c")));
    EXPECT_NE(a, readFile(dir.file("d")));
}

} // namespace
} // namespace tavrin::test
