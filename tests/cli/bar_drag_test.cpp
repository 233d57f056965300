// The floating bars dragged by their grips through the driver's grip and drop: on the
// form, on the canvas, by a grip that counts in pixels, and the drops that move nothing.
#include "cli/driver_run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <sstream>
#include <string>

namespace tavrin::test {
namespace {

// NAME=NUMBER lines of the driver's output.
std::map<std::string, double> printed(const std::string& out) {
    std::map<std::string, double> values;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);)
        if (auto eq = line.find('='); eq != std::string::npos)
            values[line.substr(0, eq)] = std::strtod(line.c_str() + eq + 1, nullptr);
    return values;
}

// Controls stand at whole pixels, the half pixel going to the even one.
double atWholePixels(double twips) { return std::nearbyint(twips / 15.0) * 15.0; }

TEST(BarDrag, EachGripDragsItsBarToWhereItIsDropped) {
    struct Case {
        const char* grip;
        const char* bar;
        double gripX, gripY; // in the grip's units: twips, or pixels for Picture14
        const char* target;
        double x, y; // in the target's units: twips on the form, pixels on the canvas
    };
    const Case cases[] = {
        {"SSPanel14", "SSPanel13", 300, 120, "form", 4000, 3000}, // tool bar
        {"SSPanel8", "SSPanel1", 45, 90, "form", 600, 750},       // palette
        {"SSPanel12", "SSPanel11", 1000, 100, "Picture7", 10, 20},
        {"SSPanel9", "SSPanel7", 30, 60, "Picture7", -5, 130.5}, // off the canvas's corner
        {"SSPanel17", "SSPanel16", 200, 15, "form", 9000, 450},  // no release handler
        {"Picture14", "SSPanel15", 3, 10, "form", 1000, 7000},
        {"Picture14", "SSPanel15", 4, 33, "Picture7", 100, 50},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.grip) + " on " + c.target);
        std::ostringstream script;
        script << kOpenTestSkin << "print Picture7.Left\nprint Picture7.Top\n"
               << "grip " << c.grip << " " << c.gripX << " " << c.gripY << "\n"
               << "drop " << c.target << " " << c.x << " " << c.y << "\n"
               << "print " << c.bar << ".Left\nprint " << c.bar << ".Top\n"
               << "print " << c.grip << ".Left\nprint Drag_Offset_Y\n";
        DriverRun r = runDriver(script.str());
        ASSERT_EQ(r.status, 0) << r.err;
        auto v = printed(r.out);
        const bool canvas = std::string(c.target) == "Picture7";
        // On the canvas a pixel is 15 twips from the canvas's own corner.
        const double left = canvas ? v["Picture7.Left"] + c.x * 15 : c.x;
        const double top = canvas ? v["Picture7.Top"] + c.y * 15 : c.y;
        EXPECT_EQ(v[std::string(c.bar) + ".Left"], atWholePixels(left - c.gripX));
        EXPECT_EQ(v[std::string(c.bar) + ".Top"], atWholePixels(top - c.gripY));
        EXPECT_EQ(v["Drag_Offset_Y"], c.gripY);
        EXPECT_NE(v[std::string(c.grip) + ".Left"],
                  v[std::string(c.bar) + ".Left"]); // it rides along
    }
    // The worked numbers of the first and the last form case.
    DriverRun r = runDriver("grip SSPanel14 300 120\ndrop form 4000 3000\nprint SSPanel13.Left\n"
                            "grip Picture14 3 10\ndrop form 1000 7000\nprint SSPanel15.Top\n");
    EXPECT_EQ(r.out, "SSPanel13.Left=3705\nSSPanel15.Top=6990\n");
}

TEST(BarDrag, DropsWithoutADragOfABarMoveNothing) {
    const std::string where = "print SSPanel13.Left\nprint SSPanel13.Top\nprint SSPanel3.Left\n";
    const std::string before = runDriver(where).out;
    for (const char* drag : {
             "drop form 100 100\n",                                       // nothing gripped
             "grip SSPanel3 5 5\ndrop form 100 100\n",                    // a panel that is no grip
             "grip SSCommand19 5 5\ndrop form 100 100\n",                 // a button
             "grip SSPanel14 5 5\ndrop form 100 100\ndrop form 900 900\n" // the drag ended
         }) {
        SCOPED_TRACE(drag);
        DriverRun r = runDriver(drag + where);
        ASSERT_EQ(r.status, 0) << r.err;
        if (std::string(drag).rfind("grip SSPanel14", 0) == 0)
            EXPECT_EQ(r.out, "SSPanel13.Left=90\nSSPanel13.Top=90\nSSPanel3.Left=195\n");
        else
            EXPECT_EQ(r.out, before);
    }
}

} // namespace
} // namespace tavrin::test
