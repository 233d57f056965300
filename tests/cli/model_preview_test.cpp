// The model preview through the driver: a card of two faces whose texture coordinates are
// known (model/md2_files.h), wearing a skin of known colours, drawn by `preview` as the window
// draws it.
#include "cli/driver_run.h"
#include "model/md2_files.h"
#include "skinfiles/pcx_test_support.h"

#include <gtest/gtest.h>

namespace tavrin::test {
namespace {

// Colours 1 to 8 of the skin's own palette, pure enough to tell apart however lit.
const std::vector<std::string> kHues = {"", "r", "g", "b", "rg", "gb", "rb", "rgb", "r"};

Bytes palette() {
    Bytes p(768, 0);
    for (std::size_t i = 1; i < kHues.size(); ++i) {
        const std::string& h = kHues[i];
        p[3 * i] = h.find('r') != std::string::npos ? 250 : 0;
        p[3 * i + 1] = h.find('g') != std::string::npos ? 250 : 0;
        p[3 * i + 2] = h.find('b') != std::string::npos ? 250 : 0;
    }
    return p;
}

// Top left 2 x 2: 1 2 / 3 4; bottom right 2 x 2: 5 6 / 7 8.
const std::vector<uint8_t> kSkin = {1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 5, 6, 0, 0, 7, 8};

struct Picture {
    int width = 0;
    Bytes rgb;
    std::string hueAt(int x, int y) const {
        const std::size_t at = 3 * static_cast<std::size_t>(y * width + x);
        std::string h;
        if (rgb.at(at) > 40) h += "r";
        if (rgb.at(at + 1) > 40) h += "g";
        if (rgb.at(at + 2) > 40) h += "b";
        return h;
    }
    bool background(int x, int y) const {
        const std::size_t at = 3 * static_cast<std::size_t>(y * width + x);
        return rgb.at(at) == 0x3A && rgb.at(at + 1) == 0x3A && rgb.at(at + 2) == 0x3A;
    }
};

Picture readPpm(const std::string& path, int size) {
    const Bytes file = readFile(path);
    const std::string header =
        "P6\n" + std::to_string(size) + " " + std::to_string(size) + "\n255\n";
    EXPECT_EQ(std::string(file.begin(), file.begin() + static_cast<long>(header.size())), header);
    return Picture{size, Bytes(file.begin() + static_cast<long>(header.size()), file.end())};
}

struct PreviewDriver : ::testing::Test {
    TempDir dir;
    std::string model = dir.write("card.md2", previewCard().bytes());
    std::string skin = dir.write("card.pcx", encodePcx(4, 4, kSkin, palette()));
    // The skin opened with its palette, the card imported as the wireframe.
    std::string load() const {
        return "answer open " + scriptQuote(skin) + "\nanswer msgbox yes\nclick pcxIm\n" +
               "answer open " + scriptQuote(model) + "\nclick wF\n";
    }
    std::string preview(const std::string& args, const std::string& name,
                        const std::string& lighting = "") const {
        return "preview " + args + " " + scriptQuote(dir.file(name)) + lighting + "\n";
    }
};

TEST_F(PreviewDriver, FacesShowTheSkinAtTheirCoordinatesAndTheBackAfterAHalfTurn) {
    const DriverRun r = runDriver(load() + preview("0 0 0 64 64", "front.ppm") +
                                  preview("0 180 0 64 64", "back.ppm", " flat"));
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("preview 64 64 frame 0 of 2\npreview 64 64 frame 0 of 2\n"),
              std::string::npos)
        << r.out;
    const Picture front = readPpm(dir.file("front.ppm"), 64),
                  back = readPpm(dir.file("back.ppm"), 64);
    struct Case {
        const Picture& picture;
        int x, y;
        int colour; // of the skin's palette; -1 for the background
    };
    // From behind, the back's first column (s = 2) stands on the viewer's right.
    const Case cases[] = {{front, 24, 24, 1}, {front, 40, 24, 2}, {front, 24, 40, 3},
                          {front, 40, 40, 4}, {front, 2, 2, -1},  {front, 61, 32, -1},
                          {back, 40, 24, 5},  {back, 24, 24, 6},  {back, 40, 40, 7},
                          {back, 24, 40, 8},  {back, 32, 62, -1}};
    for (const Case& c : cases) {
        if (c.colour < 0)
            EXPECT_TRUE(c.picture.background(c.x, c.y)) << c.x << "," << c.y;
        else
            EXPECT_EQ(c.picture.hueAt(c.x, c.y), kHues[static_cast<std::size_t>(c.colour)])
                << c.x << "," << c.y << " should show colour " << c.colour;
    }
}

// A black pencil stroke over the skin's first pixel (the canvas shows the skin at zoom 1).
TEST_F(PreviewDriver, APaintedStrokeShowsOnTheModel) {
    const DriverRun r = runDriver(load() + preview("0 0 0 64 64", "before.ppm") +
                                  "click SSCommand4\nmouse down 1 0 0 0\nmouse move 1 0 0.5 0.5\n"
                                  "mouse up 1 0 0.5 0.5\n" +
                                  preview("0 0 0 64 64", "after.ppm"));
    ASSERT_EQ(r.status, 0) << r.err;
    const Picture before = readPpm(dir.file("before.ppm"), 64),
                  after = readPpm(dir.file("after.ppm"), 64);
    EXPECT_EQ(before.hueAt(24, 24), "r");
    EXPECT_EQ(after.hueAt(24, 24), "");
    EXPECT_EQ(after.hueAt(40, 24), "g"); // the next pixel is as it was
}

// What the editor makes of a model doesn't depend on its frames: the new skin's grid is
// the same, and only the preview says it can't show the model.
TEST_F(PreviewDriver, ADamagedModelStillMakesItsSkinAndThePreviewSaysWhy) {
    Md2 noFrames = previewCard();
    noFrames.frames.clear();
    Md2 badCorner = previewCard();
    badCorner.xyz[3] = {5, 7, 9};
    Bytes cut = previewCard().bytes();
    cut.resize(cut.size() - 3);
    const struct {
        Bytes file;
        std::string problem;
    } cases[] = {
        {noFrames.bytes(), "The model's frames are too small for its vertices."},
        {badCorner.bytes(), "Triangle 3 names a corner the model doesn't have."},
        {cut, "The frames lie outside the file."},
        {Bytes(20, 7), "The file is too short to be a model."},
    };
    const std::string grid = dir.file("grid");
    auto newSkin = [&](const std::string& path, const std::string& name) {
        return "answer open " + scriptQuote(path) + "\nclick NewSkin\ndump grid " +
               scriptQuote(dir.file(name)) + "\n" + preview("0 0 0 8 8", "p.ppm");
    };
    const DriverRun whole = runDriver(newSkin(model, "whole.grid"));
    ASSERT_EQ(whole.status, 0) << whole.err;
    for (const auto& c : cases) {
        const std::string path = dir.write("damaged.md2", c.file);
        const DriverRun r = runDriver(newSkin(path, "damaged.grid"));
        ASSERT_EQ(r.status, 0) << r.err;
        EXPECT_NE(r.out.find("preview \"This model can't be shown. " + c.problem + "\""),
                  std::string::npos)
            << r.out;
        // A model the editor reads gives the same skin as the whole one.
        if (c.file.size() > 100) {
            EXPECT_EQ(readFile(dir.file("damaged.grid")), readFile(dir.file("whole.grid")));
        }
    }
    const DriverRun none = runDriver(preview("0 0 0 8 8", "none.ppm"));
    EXPECT_EQ(none.out, "preview \"No model has been read: make a new skin from a model or "
                        "import a wireframe.\"\n");
}

} // namespace
} // namespace tavrin::test
