#pragma once
// A small skin open on the canvas with the game's palette, and the user's gestures.
#include "skinfiles/pcx_test_support.h"

namespace tavrin::test {

class CanvasTest : public EditorTest {
protected:
    // picture1 is two columns narrower and one row taller: 38 x 31 at zoom 1.
    static constexpr int kW = 40, kH = 30;
    static constexpr int kPicW = 38, kPicH = 31;
    static int skinIndex(int x, int y) { return 32 + (x + y) % 8; } // diagonal stripes

    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
        std::vector<uint8_t> px;
        for (int i = 0; i < kW * kH; ++i)
            px.push_back(static_cast<uint8_t>(skinIndex(i % kW, i / kW)));
        openSkin(host, frm, dir.write("skin.pcx", encodePcx(kW, kH, px, gamePalette())));
    }
    void down(float x, float y, int16_t b = 1, int16_t shift = 0) {
        frm.Picture7_MouseDown(b, shift, x, y);
    }
    void move(float x, float y, int16_t b = 1, int16_t shift = 0) {
        frm.Picture7_MouseMove(b, shift, x, y);
    }
    // A click on palette record n's cell.
    void pick(int n, int16_t button = 1) {
        const auto x = static_cast<float>(11 * (n % 16) + 5),
                   y = static_cast<float>(11 * (n / 16) + 5);
        frm.Picture2_MouseDown(button, 0, x, y);
        frm.Picture2_MouseUp(button, 0, x, y);
    }
    int16_t grid(int x, int y) { return frm.Skin_Grid(y * kW + x); }
    int32_t colourOf(int n) {
        const PalRecord& r = frm.Pal_Table(n);
        return packed(r.Red, r.Green, r.Blue);
    }
};

} // namespace tavrin::test
