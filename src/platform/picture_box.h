#pragma once
// The picture box: the surface every tool draws on. A box with AutoRedraw keeps a
// raster. A box without it (the canvas) keeps no pixels at all: it remembers what was
// last painted on it (pictures stretched over a rectangle, lines drawn since) and
// answers Point and renders any exposed part from that description, so a canvas
// thousands of pixels wide costs no memory and a repaint costs nothing until shown.
// Such a box draws with the copy pen only: nothing draws on the canvas in XOR.
#include "platform/controls.h"
#include "platform/raster.h"

#include <array>
#include <cstdint>
#include <functional>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

class Host;

enum class ScaleUnit { Pixels, Twips, User };

inline constexpr int kLineKind = 6;       // Line (x1, y1)-(x2, y2)
inline constexpr int kBoxKind = 22;       // Line ..., B
inline constexpr int kFilledBoxKind = 38; // Line ..., BF
inline constexpr int kXorPen = 7;
inline constexpr int kCopyPen = 13;

// How render lays out a pixel: as the box keeps it (0x00BBGGRR), or as a screen's 32-bit
// image does (0xFFRRGGBB), so that a view draws the result without converting it.
enum class PixelOrder { Packed, Xrgb };

class PictureBox : public Control {
public:
    struct Design {
        ScaleUnit scale = ScaleUnit::Pixels;
        int borderPixels = 0; // what the border takes of Width and of Height, in pixels
        bool autoRedraw = true;
        int32_t backColor = 0;
    };
    PictureBox(Form* form, std::string name, Design design);

    // ScaleWidth / ScaleHeight: the inner size in the box's units. Writing one switches
    // the box to user units of that extent.
    class ScaleProp : public PropBase {
    public:
        ScaleProp(PictureBox* box, const char* name, bool across)
            : PropBase(box, name), box_(box), across_(across) {}
        ScaleProp& operator=(double units);
        operator double() const;
        std::string text() const override;

    private:
        PictureBox* box_;
        bool across_;
    };

    // Picture: the box's stored picture. Assigning redraws the box from it (an empty
    // handle clears it); reading gives the handle.
    class PictureProp {
    public:
        explicit PictureProp(PictureBox* box) : box_(box) {}
        PictureProp& operator=(const PictureHandle& picture);
        PictureProp& operator=(const PictureProp& other) {
            return &other == this ? *this : *this = other.get();
        }
        PictureHandle get() const;
        operator PictureHandle() const { return get(); }

    private:
        PictureBox* box_;
    };

    ScaleProp ScaleWidth{this, "ScaleWidth", true};
    ScaleProp ScaleHeight{this, "ScaleHeight", false};
    Prop<int> BackColor; // assigning clears the box to the new colour
    Prop<int> ForeColor{this, "ForeColor", 0};
    Prop<int> DrawMode{this, "DrawMode", kCopyPen};
    PictureProp Picture{this};
    // The font Print uses.
    struct FontProps {
        Prop<std::string> Name;
        Prop<double> Size;
        Prop<bool> Bold, Italic, Underline;
    };
    FontProps Font{{this, "Font.Name"},
                   {this, "Font.Size", 8.0},
                   {this, "Font.Bold"},
                   {this, "Font.Italic"},
                   {this, "Font.Underline"}};
    Prop<double> CurrentX{this, "CurrentX", 0.0}; // where Print starts, in the box's scale
    Prop<double> CurrentY{this, "CurrentY", 0.0};

    int32_t Point(double x, double y) const; // -1 outside the inner area
    void PSet(double x, double y, int32_t color);
    // count pixels of row y from column x on, as PSet would set them one by one, for a
    // box whose scale is its pixels (pixelScale()): tools that work row by row.
    void PSetRow(int64_t x, int64_t y, const int32_t* colors, int64_t count);
    bool pixelScale() const { return unitsPerPixel(true) == 1 && unitsPerPixel(false) == 1; }
    void Line(double x1, double y1, double x2, double y2, int32_t color, int kind);
    // Stretches the whole of picture over (x, y, w, h); a negative w or h mirrors it.
    void PaintPicture(const PictureHandle& picture, double x, double y, double w, double h);
    PictureHandle Image() const;
    void Cls();
    void Refresh();
    // Prints a line of text at CurrentX, CurrentY in ForeColor and Font, as the host's
    // fonts draw it, lighting only the text's own pixels; then the position goes to the
    // start of the next line. (picture_text.cpp)
    void Print(Host& host, const std::string& text);

    // The mouse on the box, as the form's events give it: Button 1 left, 2 right, 4 middle
    // (in a move, the buttons held, summed); Shift 1 Shift, 2 Ctrl, 4 Alt, summed; X and
    // Y in the box's scale. Set by the editor; the view calls them.
    using MouseHandler = std::function<void(int16_t Button, int16_t Shift, float X, float Y)>;
    MouseHandler MouseDown, MouseMove, MouseUp;

    // A position in pixels of the inner area, in the box's scale.
    double scaleX(double pixels) const { return pixels * unitsPerPixel(true); }
    double scaleY(double pixels) const { return pixels * unitsPerPixel(false); }

    // ---- for views and tests ----
    bool autoRedraw() const { return design_.autoRedraw; }
    int borderPixels() const { return design_.borderPixels; }
    int innerWidth() const { return innerW_; }
    int innerHeight() const { return innerH_; }
    // The part of the inner area whose pixels may have changed since the last call: what
    // the one view of the box repaints.
    PixelRegion takeDamage() { return std::exchange(damage_, PixelRegion{}); }
    // Asked of every box after every event: cheaper than taking an empty region.
    bool damaged() const { return !damage_.empty(); }
    // Writes the inner area's pixels of region (clipped to the inner area) into dst,
    // whose first pixel is region's top left.
    void render(const PixelRect& region, uint32_t* dst, std::ptrdiff_t stride,
                PixelOrder order = PixelOrder::Packed) const;
    std::size_t displayListSize() const { return ops_.size(); }

    double checkGeometry(const TwipsProp& prop, double twips) override;
    void geometryChanged(const TwipsProp& prop) override;

private:
    struct PaintOp {
        PictureHandle src;
        int64_t x, y, w, h; // destination in pixels; negative w or h mirrors
        PixelRect bounds() const;
    };
    struct LineOp {
        LineSegment seg;
        uint32_t color;
    };
    struct FillOp {
        PixelRect rect;
        uint32_t color;
    };
    using Op = std::variant<PaintOp, LineOp, FillOp>;

    void onBackColor();
    int64_t toPixelX(double x) const;
    int64_t toPixelY(double y) const;
    double unitsPerPixel(bool across) const;
    PixelRect inner() const { return PixelRect{0, 0, innerW_, innerH_}; }
    uint32_t background(int64_t x, int64_t y) const;
    // The raster, unshared, about to change in touched (inside the inner area).
    Raster& writable(const PixelRegion& touched);
    void plot(Raster& r, int64_t x, int64_t y, uint32_t color) const;
    void resetImage();
    void makeImage() const;
    bool fillingPicture() const; // the picture is as large as the inner area
    Raster& raster() const;      // image_, made first if it is still to be made
    void changedPixels(const PixelRegion& area) { damage_.add(area.intersect(inner())); }
    PixelRegion repaintedArea(const PaintOp& cover) const;
    static PixelRect boundsOf(const Op& op);

    Design design_;
    ScaleUnit unit_;
    double userW_ = 0, userH_ = 0; // user scale extents
    int innerW_ = 0, innerH_ = 0;
    // AutoRedraw boxes: the pixels, or none until they are needed after a clear or a
    // resize, while unmade_ counts their memory.
    mutable std::shared_ptr<Raster> image_;
    mutable vb::Reservation unmade_;
    bool drawnOn_ = false; // image_ holds more than the back colour and picture_
    // Rasters the box let go to picture handles, each with the part where it may differ
    // from image_. Two, as the undo snapshot holds one of them for a whole stroke while
    // the box and the canvas's picture pass the other back and forth.
    struct Spare {
        std::shared_ptr<Raster> raster;
        PixelRegion stale;
    };
    std::array<Spare, 2> spares_;
    PictureHandle picture_;
    std::vector<Op> ops_; // boxes without AutoRedraw: what was drawn since the last clear
    PixelRegion damage_;
    int observerId_ = 0;
};

} // namespace platform
