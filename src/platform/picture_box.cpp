#include "platform/picture_box.h"

#include "platform/vb_error.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

uint32_t rgb24(int32_t color) { return static_cast<uint32_t>(color) & 0xFFFFFFu; }

int64_t toDevice(double v) {
    if (!std::isfinite(v)) vb::raise(vb::Overflow);
    double r = vb::roundHalfEven(v);
    if (r < -2147483648.0 || r > 2147483647.0) vb::raise(vb::Overflow);
    return static_cast<int64_t>(r);
}

} // namespace

PictureBox::PictureBox(Form* form, std::string name, Design design)
    : Control(form, std::move(name), ControlKind::PictureBox),
      BackColor(this, "BackColor", design.backColor), design_(design), unit_(design.scale) {
    observerId_ = observe([this](const PropBase* p) {
        if (p == &BackColor) onBackColor();
    });
    resetImage();
}

// ---- scale ----

double PictureBox::unitsPerPixel(bool across) const {
    switch (unit_) {
    case ScaleUnit::Pixels:
        return 1.0;
    case ScaleUnit::Twips:
        return 15.0;
    case ScaleUnit::User: {
        int inner = across ? innerW_ : innerH_;
        double extent = across ? userW_ : userH_;
        return inner == 0 ? 1.0 : extent / inner;
    }
    }
    return 1.0;
}

// A scale of extent 0 has no point inside it: every coordinate lies outside (pixel -1),
// rather than all of them on pixel 0, where a scan for the edge would never end.
int64_t PictureBox::toPixelX(double x) const {
    double u = unitsPerPixel(true);
    return u == 0 ? -1 : toDevice(x / u);
}

int64_t PictureBox::toPixelY(double y) const {
    double u = unitsPerPixel(false);
    return u == 0 ? -1 : toDevice(y / u);
}

PictureBox::ScaleProp& PictureBox::ScaleProp::operator=(double units) {
    PictureBox& b = *box_;
    if (b.unit_ != ScaleUnit::User) {
        b.userW_ = b.innerW_ * b.unitsPerPixel(true);
        b.userH_ = b.innerH_ * b.unitsPerPixel(false);
        b.unit_ = ScaleUnit::User;
    }
    (across_ ? b.userW_ : b.userH_) = units;
    changed();
    return *this;
}

PictureBox::ScaleProp::operator double() const {
    const PictureBox& b = *box_;
    if (b.unit_ == ScaleUnit::User) return across_ ? b.userW_ : b.userH_;
    return (across_ ? b.innerW_ : b.innerH_) * b.unitsPerPixel(across_);
}

std::string PictureBox::ScaleProp::text() const { return propText(static_cast<double>(*this)); }

// ---- geometry ----

double PictureBox::checkGeometry(const TwipsProp& prop, double twips) {
    double kept = Control::checkGeometry(prop, twips);
    if (design_.autoRedraw && (&prop == &Width || &prop == &Height)) {
        auto inner = [this](double t) {
            return std::max<int64_t>(0, static_cast<int64_t>(t / 15.0) - design_.borderPixels);
        };
        int64_t w = &prop == &Width ? inner(kept) : innerW_;
        int64_t h = &prop == &Height ? inner(kept) : innerH_;
        vb::checkAllocation(static_cast<std::size_t>(w * h), sizeof(uint32_t));
    }
    return kept;
}

void PictureBox::geometryChanged(const TwipsProp& prop) {
    if (&prop != &Width && &prop != &Height) return;
    int w = std::max(0, Width.pixels() - design_.borderPixels);
    int h = std::max(0, Height.pixels() - design_.borderPixels);
    if (w == innerW_ && h == innerH_) return;
    // A scale of the caller's own keeps its units per pixel when the box is resized.
    if (unit_ == ScaleUnit::User) {
        if (innerW_ > 0) userW_ = userW_ / innerW_ * w;
        if (innerH_ > 0) userH_ = userH_ / innerH_ * h;
    }
    // What was drawn stays where there is room; a box with nothing drawn on it shows the
    // back colour and the picture, as its new pixels will.
    const std::shared_ptr<Raster> old = drawnOn_ ? image_ : nullptr;
    innerW_ = w;
    innerH_ = h;
    resetImage();
    const int cw = old ? std::min(old->width, w) : 0, ch = old ? std::min(old->height, h) : 0;
    if (cw > 0 && ch > 0) {
        raster();
        if (image_.use_count() > 1) image_ = std::make_shared<Raster>(*image_); // the picture's
        for (int y = 0; y < ch; ++y)
            std::copy_n(&old->px[static_cast<std::size_t>(y) * old->width], cw,
                        &image_->px[static_cast<std::size_t>(y) * w]);
        drawnOn_ = true;
    }
    if (!design_.autoRedraw) ops_.clear();
    changedPixels(inner());
}

// ---- content ----

// The box's pixels become the back colour and the picture. They are made when first
// needed, from what stands then, so that a box resized, cleared or given a picture several
// times over (a load does all three) makes them once; their memory counts from now.
void PictureBox::resetImage() {
    spares_ = {};
    drawnOn_ = false;
    image_.reset();
    unmade_ = vb::Reservation(); // the old pixels go before the new ones are counted
    if (!design_.autoRedraw) return;
    if (fillingPicture())
        makeImage(); // costs nothing
    else
        unmade_ = vb::Reservation(static_cast<std::size_t>(innerW_) * innerH_, sizeof(uint32_t));
}

bool PictureBox::fillingPicture() const {
    return picture_ && picture_->width == innerW_ && picture_->height == innerH_;
}

Raster& PictureBox::raster() const {
    if (!image_) makeImage();
    return *image_;
}

void PictureBox::makeImage() const {
    unmade_ = vb::Reservation(); // the raster counts its own bytes, or the picture's
    // A picture that fills the box is all the box shows: the box takes the picture's
    // raster and copies it only when something is drawn on it (writable), instead of now.
    if (fillingPicture()) {
        image_ = std::const_pointer_cast<Raster>(picture_);
        return;
    }
    auto r = std::make_shared<Raster>(innerW_, innerH_, rgb24(BackColor));
    if (picture_) {
        int cw = std::min(picture_->width, innerW_), ch = std::min(picture_->height, innerH_);
        for (int y = 0; cw > 0 && y < ch; ++y)
            std::copy_n(&picture_->px[static_cast<std::size_t>(y) * picture_->width], cw,
                        &r->px[static_cast<std::size_t>(y) * innerW_]);
    }
    image_ = std::move(r);
}

// A raster that a picture handle shares stays as its holders saw it; the box goes on in
// a copy. A view's picture holds the raster drawn before, so each event of a stroke would
// copy the whole picture: instead the box keeps the rasters it let go and, once nobody
// else holds one, takes it back, copying in only the pixels written since it was let go.
Raster& PictureBox::writable(const PixelRegion& touched) {
    raster();
    if (image_.use_count() > 1) {
        Spare* back = nullptr;
        for (Spare& s : spares_)
            if (s.raster && s.raster.use_count() == 1 && s.raster->width == image_->width &&
                s.raster->height == image_->height &&
                (!back || s.stale.area() < back->stale.area()))
                back = &s;
        std::shared_ptr<Raster> next;
        if (back) {
            for (const PixelRect& st :
                 back->stale.intersect(PixelRect{0, 0, image_->width, image_->height}))
                for (int64_t y = st.y0; y < st.y1; ++y) {
                    const auto at = static_cast<std::size_t>(y * image_->width + st.x0);
                    std::copy_n(&image_->px[at], st.x1 - st.x0, &back->raster->px[at]);
                }
            back->raster->lineage = image_->lineage; // now a copy with nothing written yet
            next = std::move(back->raster);
        } else {
            next = std::make_shared<Raster>(*image_);
            // An empty slot, else that of the spare that differs the most.
            back = &spares_[0];
            for (Spare& s : spares_)
                if (back->raster && (!s.raster || s.stale.area() > back->stale.area())) back = &s;
        }
        *back = Spare{std::move(image_), PixelRegion{}};
        image_ = std::move(next);
    }
    drawnOn_ = true;
    const PixelRegion t = touched.intersect(inner());
    image_->lineage.written.add(t);
    for (Spare& s : spares_)
        s.stale.add(t);
    changedPixels(t);
    return *image_;
}

uint32_t PictureBox::background(int64_t x, int64_t y) const {
    if (picture_ && x < picture_->width && y < picture_->height)
        return picture_->at(static_cast<int>(x), static_cast<int>(y));
    return rgb24(BackColor);
}

void PictureBox::plot(Raster& r, int64_t x, int64_t y, uint32_t color) const {
    uint32_t& p = r.at(static_cast<int>(x), static_cast<int>(y));
    p = DrawMode.get() == kXorPen ? (p ^ color) : color;
}

void PictureBox::onBackColor() { Cls(); }

void PictureBox::Cls() {
    ops_.clear();
    resetImage();
    changedPixels(inner());
}

void PictureBox::Refresh() {
    // A box that keeps nothing is repainted from its picture: what was drawn is gone.
    if (!design_.autoRedraw) {
        ops_.clear();
        changedPixels(inner());
    }
    notify(nullptr);
}

PictureHandle PictureBox::PictureProp::get() const { return box_->picture_; }

PictureBox::PictureProp& PictureBox::PictureProp::operator=(const PictureHandle& picture) {
    box_->picture_ = picture;
    box_->Cls();
    return *this;
}

int32_t PictureBox::Point(double x, double y) const {
    int64_t px = toPixelX(x), py = toPixelY(y);
    if (!inner().contains(px, py)) return -1;
    if (design_.autoRedraw)
        return static_cast<int32_t>(raster().at(static_cast<int>(px), static_cast<int>(py)));
    for (auto it = ops_.rbegin(); it != ops_.rend(); ++it) {
        if (auto* line = std::get_if<LineOp>(&*it)) {
            if (line->seg.contains(px, py)) return static_cast<int32_t>(line->color);
        } else if (auto* fill = std::get_if<FillOp>(&*it)) {
            if (fill->rect.contains(px, py)) return static_cast<int32_t>(fill->color);
        } else {
            const auto& paint = std::get<PaintOp>(*it);
            if (paint.bounds().contains(px, py)) {
                PixelRect b = paint.bounds();
                int64_t sx = stretchSource(px - b.x0, paint.w, 0, paint.src->width);
                int64_t sy = stretchSource(py - b.y0, paint.h, 0, paint.src->height);
                return static_cast<int32_t>(
                    paint.src->at(static_cast<int>(sx), static_cast<int>(sy)));
            }
        }
    }
    return static_cast<int32_t>(background(px, py));
}

void PictureBox::PSet(double x, double y, int32_t color) {
    int64_t px = toPixelX(x), py = toPixelY(y);
    if (!inner().contains(px, py)) return;
    if (design_.autoRedraw) {
        // A pixel set to what it holds changes nothing: nothing to copy, nothing to
        // repaint (a stroke sets the same pixel at each move until the pointer leaves it).
        const uint32_t c = rgb24(color);
        const uint32_t now = raster().at(static_cast<int>(px), static_cast<int>(py));
        if ((DrawMode.get() == kXorPen ? (now ^ c) : c) == now) return;
        plot(writable(PixelRect{px, py, px + 1, py + 1}), px, py, c);
    } else {
        ops_.push_back(LineOp{LineSegment{static_cast<int32_t>(px), static_cast<int32_t>(py),
                                          static_cast<int32_t>(px), static_cast<int32_t>(py)},
                              rgb24(color)});
        changedPixels(PixelRect{px, py, px + 1, py + 1});
    }
}

void PictureBox::PSetRow(int64_t x, int64_t y, const int32_t* colors, int64_t count) {
    const PixelRect row = PixelRect{x, y, x + count, y + 1}.intersect(inner());
    if (row.empty()) return;
    const int32_t* from = colors + (row.x0 - x);
    if (design_.autoRedraw) {
        Raster& r = writable(row);
        uint32_t* to = &r.at(static_cast<int>(row.x0), static_cast<int>(y));
        const int64_t n = row.x1 - row.x0;
        if (DrawMode.get() == kXorPen) {
            for (int64_t i = 0; i < n; ++i)
                to[i] ^= rgb24(from[i]);
        } else {
            for (int64_t i = 0; i < n; ++i)
                to[i] = rgb24(from[i]);
        }
        return;
    }
    for (int64_t px = row.x0; px < row.x1; ++px) {
        const auto at = static_cast<int32_t>(px), down = static_cast<int32_t>(y);
        ops_.push_back(LineOp{LineSegment{at, down, at, down}, rgb24(*from++)});
    }
    changedPixels(row);
}

void PictureBox::Line(double x1, double y1, double x2, double y2, int32_t color, int kind) {
    int64_t ax = toPixelX(x1), ay = toPixelY(y1), bx = toPixelX(x2), by = toPixelY(y2);
    uint32_t c = rgb24(color);
    auto seg = [](int64_t sx, int64_t sy, int64_t ex, int64_t ey) {
        return LineSegment{static_cast<int32_t>(sx), static_cast<int32_t>(sy),
                           static_cast<int32_t>(ex), static_cast<int32_t>(ey)};
    };
    std::vector<LineSegment> segments;
    PixelRect filled;
    bool fill = false;
    if (kind == kFilledBoxKind || kind == kBoxKind) {
        int64_t l = std::min(ax, bx), r = std::max(ax, bx), t = std::min(ay, by),
                b = std::max(ay, by);
        if (kind == kFilledBoxKind) {
            fill = true;
            filled = PixelRect{l, t, r + 1, b + 1};
        } else { // each pixel of the outline once, so that an XOR box undoes itself
            segments.push_back(seg(l, t, r, t));
            if (b != t) segments.push_back(seg(l, b, r, b));
            if (b - t > 1) {
                segments.push_back(seg(l, t + 1, l, b - 1));
                if (r != l) segments.push_back(seg(r, t + 1, r, b - 1));
            }
        }
    } else {
        segments.push_back(seg(ax, ay, bx, by));
    }
    // An outline damages its sides and a slanting line a few boxes along it: a rubber
    // band dragged over a large area repaints what it crosses, not the whole area.
    PixelRegion touched = fill ? filled.intersect(inner()) : PixelRect{};
    for (const auto& s : segments)
        touched.add(s.pieces(inner()));
    if (design_.autoRedraw) {
        Raster& r = writable(touched);
        for (const auto& s : segments)
            s.forEach(inner(), [&](int64_t x, int64_t y) { plot(r, x, y, c); });
        if (fill) {
            PixelRect f = filled.intersect(inner());
            for (int64_t y = f.y0; y < f.y1; ++y)
                for (int64_t x = f.x0; x < f.x1; ++x)
                    plot(r, x, y, c);
        }
    } else {
        for (const auto& s : segments)
            ops_.push_back(LineOp{s, c});
        if (fill) ops_.push_back(FillOp{filled, c});
        changedPixels(touched);
    }
}

PixelRect PictureBox::PaintOp::bounds() const {
    int64_t l = w < 0 ? x + w : x, t = h < 0 ? y + h : y;
    return PixelRect{l, t, l + (w < 0 ? -w : w), t + (h < 0 ? -h : h)};
}

void PictureBox::PaintPicture(const PictureHandle& picture, double x, double y, double w,
                              double h) {
    if (!picture) vb::raise(vb::InvalidCall);
    PaintOp op{picture, toPixelX(x), toPixelY(y), toPixelX(w), toPixelY(h)};
    if (picture->width == 0 || picture->height == 0 || op.w == 0 || op.h == 0) return;
    if (design_.autoRedraw) {
        PixelRect area = op.bounds().intersect(inner());
        Raster& r = writable(area);
        PixelRect b = op.bounds();
        for (int64_t py = area.y0; py < area.y1; ++py) {
            int64_t sy = stretchSource(py - b.y0, op.h, 0, picture->height);
            for (int64_t px = area.x0; px < area.x1; ++px) {
                int64_t sx = stretchSource(px - b.x0, op.w, 0, picture->width);
                r.at(static_cast<int>(px), static_cast<int>(py)) =
                    picture->at(static_cast<int>(sx), static_cast<int>(sy));
            }
        }
    } else {
        PixelRect b = op.bounds();
        PixelRegion changed = b.intersect(inner());
        // Nothing under a picture that covers the whole box can show again.
        if (b.x0 <= 0 && b.y0 <= 0 && b.x1 >= innerW_ && b.y1 >= innerH_) {
            changed = repaintedArea(op);
            ops_.clear();
        }
        ops_.push_back(std::move(op));
        changedPixels(changed);
    }
}

// What a picture covering the whole box changes of what it shows. Repainting a later
// copy of the picture underneath, over the same rectangle, changes only what was
// written into the copy and what was drawn over the old one.
PixelRegion PictureBox::repaintedArea(const PaintOp& cover) const {
    const auto* under = ops_.empty() ? nullptr : std::get_if<PaintOp>(&ops_.front());
    if (!under || under->x != cover.x || under->y != cover.y || under->w != cover.w ||
        under->h != cover.h || under->src->width != cover.src->width ||
        under->src->height != cover.src->height)
        return inner();
    const Lineage& now = cover.src->lineage;
    PixelRegion area;
    if (under->src != cover.src) {
        if (now.parent != under->src->lineage.serial) return inner();
        for (const PixelRect& r : now.written)
            area.add(stretchedArea(r, cover.src->width, cover.src->height, cover.x, cover.y,
                                   cover.w, cover.h)
                         .intersect(inner()));
    }
    for (std::size_t i = 1; i < ops_.size(); ++i) {
        if (const auto* line = std::get_if<LineOp>(&ops_[i]))
            area.add(line->seg.pieces(inner()));
        else
            area.add(boundsOf(ops_[i]).intersect(inner()));
    }
    return area;
}

PixelRect PictureBox::boundsOf(const Op& op) {
    if (const auto* line = std::get_if<LineOp>(&op)) {
        const LineSegment& s = line->seg;
        return PixelRect{std::min(s.x1, s.x2), std::min(s.y1, s.y2),
                         int64_t{std::max(s.x1, s.x2)} + 1, int64_t{std::max(s.y1, s.y2)} + 1};
    }
    if (const auto* fill = std::get_if<FillOp>(&op)) return fill->rect;
    return std::get<PaintOp>(op).bounds();
}

PictureHandle PictureBox::Image() const {
    if (design_.autoRedraw) {
        raster();
        return image_;
    }
    auto r = std::make_shared<Raster>(innerW_, innerH_, 0u);
    render(inner(), r->px.data(), innerW_);
    return r;
}

} // namespace platform
