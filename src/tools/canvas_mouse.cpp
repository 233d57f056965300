// The canvas's three mouse events: the frame that every painting tool runs in. Each
// event works out the paint colour anew, turns the pointer into a skin pixel through
// the scale, runs the branch of the tool word and repaints the canvas from picture1.
// A tool is only a word: each handler tests it in one chain, in its own order.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

#include <cmath>

namespace tavrin {

namespace {

// A canvas position over the scale, floored, so that a position left of the canvas
// gives a negative column. The pointer's position is single precision and so is the
// zoom's scale, which makes the quotient single precision too.
Variant skinPixel(float pos, const Variant& scale) {
    if (scale.kind() == Variant::Kind::Double) {
        const double s = scale.num();
        if (s == 0) vb::raise(pos == 0 ? vb::Overflow : vb::DivisionByZero);
        const double q = std::floor(pos / s);
        if (!std::isfinite(q)) vb::raise(vb::Overflow);
        return Variant(q);
    }
    const auto s = static_cast<float>(scale.num());
    if (s == 0) vb::raise(pos == 0 ? vb::Overflow : vb::DivisionByZero);
    const float q = std::floor(pos / s);
    if (!std::isfinite(q)) vb::raise(vb::Overflow);
    return Variant(q);
}

} // namespace

void FrmMain::workOutPaintColor() {
    Check_Color = vb::RGB(vb::CInt(Cur_R), vb::CInt(Cur_G), vb::CInt(Cur_B));
    Temp_Color_Check();
    Paint_Color = Check_Color;
}

void FrmMain::convertPosition(float X, float Y) {
    Cur_X = skinPixel(X, Scale_X);
    Cur_Y = skinPixel(Y, Scale_Y);
}

// The band's fixed corner, from the press's position as it was kept.
void FrmMain::convertBandStart() {
    Band_X = skinPixel(static_cast<float>(Start_X.num()), Scale_X);
    Band_Y = skinPixel(static_cast<float>(Start_Y.num()), Scale_Y);
}

// Only a press is tested: a stroke in progress paints right up to the edge and beyond.
bool FrmMain::pressNearCanvasEdge(float X, float Y) const {
    return Picture7.Point(X, Y) == -1 || Picture7.Point(X - 3, Y) == -1 ||
           Picture7.Point(X, Y - 3) == -1 || Picture7.Point(X + 3, Y) == -1 ||
           Picture7.Point(X, Y + 3) == -1;
}

// Pan_X, Pan_Y stay at the press: after the canvas has moved by the difference, the
// pointer is over the grabbed point again, at the same canvas coordinates.
void FrmMain::panCanvas(float X, float Y) {
    if (Pan_X == static_cast<double>(X) && Pan_Y == static_cast<double>(Y)) return;
    Picture7.Left += 15 * (X - Pan_X.num()); // the control's position is in twips
    Picture7.Top += 15 * (Y - Pan_Y.num());
    Refresh();
    repaintCanvas();
    host_.DoEvents();
}

// Any failure ends the press where it stands, without the repaint.
void FrmMain::Picture7_MouseDown(int16_t Button, int16_t Shift, float X, float Y) {
    try {
        if (Button == 2 && Shift == 1) {
            eyeDropperPick(X, Y);
            return;
        }
        // The zoom tool keeps the right button for zooming out.
        if (Button == 2 && Tool_Mode != "Zoom") {
            host_.PopupMenu(Pop);
            return;
        }
        takeGridSnapshot();
        // A pan press keeps only the grid half of the snapshot. Meant: undo after a pan
        // brings the old picture back over a grid that keeps the paint.
        if (Button == 1 && Shift == 1) {
            Pan_X = X;
            Pan_Y = Y;
            return;
        }
        if (Image_Missing == 1) {
            host_.MsgBox("Image not loaded.", platform::kStyleOk);
            return;
        }
        Picture6.Picture = picture1.Image(); // shares the raster; nothing is copied here
        workOutPaintColor();
        // Presses close to the edge stop here, after the snapshot: an undo then gives
        // back the state before this press.
        if (pressNearCanvasEdge(X, Y)) return;

        if (Tool_Mode == "Mask") {
            Cur_Color = Picture7.Point(X, Y);
            GetMask();
        } else if (Tool_Mode == "Extract") {
            eyeDropperPick(X, Y);
        } else if (Tool_Mode == "Line" || Tool_Mode == "Box") {
            Start_X = X;
            Start_Y = Y;
        } else if (Tool_Mode == "Zoom") {
            zoomStep(Button);
        } else if (Tool_Mode == "Draw") {
            convertPosition(X, Y);
            pencilAt(X, Y);
        } else if (Tool_Mode == "dPaint" || Tool_Mode == "lPaint") {
            // No conversion: the brush stands where the last move left Cur_X, Cur_Y.
            paintBrushAt(X, Y);
        } else if (Tool_Mode == "Blur") {
            convertPosition(X, Y);
            blurBrushAt();
        } else if (Tool_Mode == "Fill") {
            convertPosition(X, Y);
            fillAt();
        } else if (Tool_Mode == "Air") {
            convertPosition(X, Y);
            airBrushAt(X, Y);
        } else if (Tool_Mode == "dTtint") {
            convertPosition(X, Y);
            tintBrushAt();
        } else if (Tool_Mode == "Text") {
            convertPosition(X, Y);
            placeText();
        }

        if (Tool_Mode != "Zoom")
            repaintCanvas();
        else
            frmCenter();
    } catch (const vb::Error&) {
    }
}

// Any failure ends the move where it stands, without the repaint: a stroke that leaves
// the skin's grid leaves the canvas as it was until the pointer comes back.
void FrmMain::Picture7_MouseMove(int16_t Button, int16_t Shift, float X, float Y) {
    try {
        if (Button == 2 && Shift == 1) {
            eyeDropperPick(X, Y);
            return;
        }
        if (Button == 1 && Shift == 1) {
            panCanvas(X, Y);
            return;
        }
        workOutPaintColor();
        // X and Y follow the pointer with or without a button held.
        convertPosition(X, Y);
        Text5.Text = Cur_X.str();
        Text5.Refresh();
        Text4.Text = Cur_Y.str();
        Text4.Refresh();
        if (Button != 1) return;

        // No interpolation between events: a fast stroke leaves gaps. Meant.
        if (Tool_Mode == "Line" || Tool_Mode == "Box") {
            rubberBand();
        } else if (Tool_Mode == "Draw") {
            pencilAt(X, Y);
        } else if (Tool_Mode == "Blur") {
            blurBrushAt();
        } else if (Tool_Mode == "Air") {
            airBrushAt(X, Y);
        } else if (Tool_Mode == "dTtint") {
            tintBrushAt();
        } else if (Tool_Mode == "dPaint" || Tool_Mode == "lPaint") {
            paintBrushAt(X, Y);
        } else {
            return; // other words do nothing and repaint nothing
        }
        repaintCanvas();
    } catch (const vb::Error&) {
    }
}

bool FrmMain::isFilterWord() const {
    for (const char* word : {"Sharp", "Light", "Diffuse", "Emboss", "BlurA", "Tint"})
        if (Filter_Mode == word) return true;
    return false;
}

// The button and position don't matter here; every statement is guarded on its own.
void FrmMain::Picture7_MouseUp(int16_t, int16_t, float, float) {
    vb::resume([&] { Check_Color = vb::RGB(vb::CInt(Cur_R), vb::CInt(Cur_G), vb::CInt(Cur_B)); });
    vb::resume([&] { Temp_Color_Check(); });
    vb::resume([&] { Paint_Color = Check_Color; });
    // A finished box drag with a filter word runs the filter, and the release ends there:
    // the overlay stays off the canvas until something else brings it back.
    bool filtered = false;
    vb::resume([&] {
        if (isFilterWord() && Tool_Mode == "Box" && Drag_Active == 1) {
            filtered = true;
            runBoxFilter();
        }
    });
    if (filtered) return;
    vb::resume([&] {
        if (Tool_Mode == "Line" && Drag_Active == 1) finishLine();
    });
    vb::resume([&] {
        if (Tool_Mode == "Box" && Drag_Active == 1 && !isFilterWord()) finishRectangle();
    });
    // Every repaint wipes the overlay from the canvas; it comes back after a stroke of
    // any tool, and only here.
    vb::resume([&] {
        if (Wire_Shown == 1) Draw_Frame();
    });
}

} // namespace tavrin
