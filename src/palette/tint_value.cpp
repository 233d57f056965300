// The tint value panel: the slider sets the tint's divisor and shows a sample of how
// strong a tint comes out. Slider positions 1 to 5 give divisors 5 down to 1.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <memory>

namespace tavrin {

namespace {

// The samples fill Picture13 as the panel lays it out.
constexpr int kSampleWidth = 28;
constexpr int kSampleHeight = 48;

// Left third: a grey ramp as it is. The rest: the same ramp tinted with a warm colour
// at the given divisor, the way the tint adds a share of the colour and only lightens.
platform::PictureHandle tintSample(int divisor) {
    auto r = std::make_shared<platform::Raster>(kSampleWidth, kSampleHeight, 0u);
    for (int y = 0; y < kSampleHeight; ++y) {
        const double grey = 24 + 160.0 * y / (kSampleHeight - 1);
        for (int x = 0; x < kSampleWidth; ++x) {
            double red = grey, green = grey, blue = grey;
            if (x >= kSampleWidth / 3) {
                red = std::min(255.0, grey + 255.0 / divisor);
                green = std::min(255.0, grey + 120.0 / divisor);
                blue = std::min(255.0, grey + 40.0 / divisor);
            }
            r->at(x, y) = static_cast<uint32_t>(vb::RGB(red, green, blue));
        }
    }
    return r;
}

} // namespace

// The five samples stand in boxes outside the panel's visible width; Picture13 starts
// with the one of position 1.
void FrmMain::makeTintSamples() {
    Picture8.Picture = tintSample(5);
    Picture10.Picture = tintSample(4);
    Picture11.Picture = tintSample(3);
    Picture9.Picture = tintSample(2);
    Picture12.Picture = tintSample(1);
    Picture13.Picture = Picture8.Picture;
}

// Position k gives the divisor 6 - k and the sample made for it; any other position
// changes nothing.
void FrmMain::Slider1_Change() {
    static constexpr PictureBox FrmMain::*samples[] = {&FrmMain::Picture8, &FrmMain::Picture10,
                                                       &FrmMain::Picture11, &FrmMain::Picture9,
                                                       &FrmMain::Picture12};
    const int position = Slider1.Value;
    if (position < 1 || position > 5) return;
    Tint_Value = 6 - position;
    Picture13.Picture = (this->*samples[position - 1]).Picture;
    Picture13.Refresh();
}

// Shows only: choosing it while the panel is open changes nothing.
void FrmMain::tValue_Click() { SSPanel16.Visible = true; }

void FrmMain::SSCommand39_Click() { SSPanel16.Visible = false; }

} // namespace tavrin
