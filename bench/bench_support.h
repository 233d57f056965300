#pragma once
// Shared by the benchmarks: an editor loaded as at start, and a 1024 x 1024 skin.
#include "editor/frm_main.h"
#include "platform/scripted_host.h"

#include <memory>
#include <string>
#include <vector>

namespace tavrin::bench {

struct Editor {
    std::string folder;
    platform::ScriptedHost host;
    FrmMain frm;
    Editor();
    ~Editor();
    // Opens the 1024 x 1024 skin through the open command.
    void openBigSkin();
    // Zooms in with the zoom tool as the user does: left presses in the canvas's middle,
    // each doubling it.
    void zoomIn(int presses);
    // The pencil, as its menu item chooses it.
    void choosePencil();
};

// What a view of a box does after an event: paints what changed since it last looked,
// from the box's description, into a buffer as large as the canvas's visible part.
struct View {
    platform::PictureBox& box;
    std::vector<uint32_t> buffer = std::vector<uint32_t>(1920 * 1080);
    void show();
};

// A skin at zoom 8 with a tool chosen (the pencil unless told) and a stroke begun; both
// views up to date.
struct Stroke {
    Editor e;
    View canvas{e.frm.Picture7}, actual{e.frm.picture1};
    explicit Stroke(void (*choose)(Editor&) = nullptr);
    void press(float x, float y);
    void shown() {
        canvas.show();
        actual.show();
    }
    bool atZoom8() const { return e.frm.Zoom_Factor.num() == 8; }
    // The i-th position of a stroke wandering over the visible part of the canvas, a new
    // skin pixel each time.
    static float at(int64_t i, int extent) {
        return static_cast<float>(12 + (i * 8) % (extent - 24));
    }
    // The next move of the stroke, shown. False when the tool left nothing of the paint
    // colour at the pointer.
    void move(int64_t i);
    bool painted() const;
};

// A 1024 x 1024 PCX with the runs of a painted skin: a real skin repeated when the real
// files are there, else patches of one colour broken by noise. Written once per run,
// beside the program. Wider than the reader takes whole: its open ends in the failure
// path once the grid is decoded.
const std::string& bigSkinPath();
// The same pixels 440 x 1024: a skin that opens whole.
const std::string& tallSkinPath();

// What the program does as the child of a first open's benchmark: opens the skin at path
// once, in an editor made just before, and prints the wall and processor time of the open
// in nanoseconds.
int firstOpenChild(const char* path);

// The colours of a real skin if the real files are there, else of the big skin.
std::vector<int32_t> skinColours();

} // namespace tavrin::bench
