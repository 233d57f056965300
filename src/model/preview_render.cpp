#include "model/preview_render.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace tavrin {

namespace {

using Vec = std::array<double, 3>;

Vec sub(const Vec& a, const Vec& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
Vec cross(const Vec& a, const Vec& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double dot(const Vec& a, const Vec& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vec unit(const Vec& v) {
    const double n = std::sqrt(dot(v, v));
    return n > 0 ? Vec{v[0] / n, v[1] / n, v[2] / n} : Vec{0, 0, 0};
}

// A corner ready to rasterize: screen position, 1 / distance, and the texture
// coordinates and light divided by the distance, so that they interpolate straight.
struct Corner {
    double x, y, w, uw, vw, lw;
};

// The model as the viewer sees it: turned by yaw about the up axis (z), then tilted by
// pitch towards the viewer, who stands on the +x side. View x is towards the viewer,
// y to the viewer's right, z up.
struct Camera {
    Vec centre{};
    double cy, sy, cp, sp;
    Vec turn(const Vec& p) const {
        const double x1 = cy * p[0] - sy * p[1], y1 = sy * p[0] + cy * p[1];
        return {cp * x1 + sp * p[2], y1, -sp * x1 + cp * p[2]};
    }
};

// Light from the viewer's side, a little from above and the right. A normal is taken
// either way round: a vertex's faces may not all agree.
double lightOf(const Vec& normal) {
    static const Vec light = unit(Vec{1.0, 0.35, 0.6});
    return 0.35 + 0.65 * std::abs(dot(normal, light));
}

// The light in 256ths (rounded down), red and blue in one multiply and green in another:
// a channel times at most 256 fits the 16 bits its neighbour leaves it.
uint32_t shade(uint32_t c, double light) {
    const auto l = static_cast<uint32_t>(std::clamp(light, 0.0, 1.0) * 256);
    return (((c & 0xFF00FFu) * l >> 8) & 0xFF00FFu) | (((c & 0x00FF00u) * l >> 8) & 0x00FF00u);
}

uint32_t texel(const SkinTexture& skin, double u, double v) {
    // renderPreview has checked that the colours fill width x height.
    if (skin.width <= 0 || skin.height <= 0) return 0xFFFFFF;
    // Clamped as doubles: a coordinate far off (or not a number) must not reach the cast.
    auto cell = [](double c, int size) {
        return c >= 0 ? static_cast<int>(std::min(c, size - 1.0)) : 0; // truncation is floor here
    };
    const int x = cell(u, skin.width), y = cell(v, skin.height);
    return skin.px[static_cast<std::size_t>(y) * static_cast<std::size_t>(skin.width) +
                   static_cast<std::size_t>(x)];
}

struct Target {
    int width, height;
    std::vector<uint32_t>& px;
    std::vector<float>& depth; // 1 / distance; larger is nearer
    PreviewBuffers::Box& drawn;
};

// The buffers at width x height, background and nothing near: where the last picture of
// the same size drew is all that needs clearing.
void clearBuffers(PreviewBuffers& b, int width, int height, std::size_t pixels) {
    if (b.width == width && b.height == height && b.px.size() == pixels &&
        b.depth.size() == pixels) {
        for (int y = b.drawn.y0; y <= b.drawn.y1; ++y) {
            const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
            std::fill(b.px.begin() + static_cast<std::ptrdiff_t>(row + b.drawn.x0),
                      b.px.begin() + static_cast<std::ptrdiff_t>(row + b.drawn.x1 + 1),
                      kPreviewBackground);
            std::fill(b.depth.begin() + static_cast<std::ptrdiff_t>(row + b.drawn.x0),
                      b.depth.begin() + static_cast<std::ptrdiff_t>(row + b.drawn.x1 + 1), 0.0F);
        }
    } else {
        b.px.assign(pixels, kPreviewBackground);
        b.depth.assign(pixels, 0.0F);
    }
    b.width = width;
    b.height = height;
    b.drawn = {};
}

// Fills the triangle's pixels whose centres it covers, nearer than what stands there. The
// barycentric weights are edge functions stepped along each row rather than worked out
// anew at every pixel.
void fill(const Corner& a, const Corner& b, const Corner& c, bool flatLight, double faceLight,
          const SkinTexture& skin, Target& t) {
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    // A face turned away is hidden behind the model's front, and the game leaves it out
    // as well: a model's corners run clockwise on the screen (y down) seen from outside.
    if (!(area > 1e-12)) return;
    // The box of pixels the corners span, within the picture; floor and ceiling by casts of
    // values already brought inside it (a position that is no number spans nothing).
    auto lowest = [](double v, int last) {
        return v > 0 ? static_cast<int>(std::min(v, last + 1.0)) : 0;
    };
    auto highest = [](double v, int last) {
        if (!(v >= 0)) return -1;
        const double in = std::min(v, static_cast<double>(last));
        const auto whole = static_cast<int>(in);
        return whole < in ? whole + 1 : whole;
    };
    const int x0 = lowest(std::min({a.x, b.x, c.x}), t.width - 1);
    const int x1 = highest(std::max({a.x, b.x, c.x}), t.width - 1);
    const int y0 = lowest(std::min({a.y, b.y, c.y}), t.height - 1);
    const int y1 = highest(std::max({a.y, b.y, c.y}), t.height - 1);
    if (x0 > x1 || y0 > y1) return;
    if (t.drawn.x0 > t.drawn.x1) {
        t.drawn = {x0, y0, x1, y1};
    } else {
        t.drawn = {std::min(t.drawn.x0, x0), std::min(t.drawn.y0, y0), std::max(t.drawn.x1, x1),
                   std::max(t.drawn.y1, y1)};
    }
    // Weight of a corner at (px, py): the opposite edge's function over the area; it grows
    // by dx along a row and by dy down a column.
    struct Edge {
        double dx, dy, at0;
    };
    // floor(w0 / dx) given 1 / dx, kept within the box's width so that the cast is safe:
    // the pixels along a row before an edge's weight changes sign.
    const double span = x1 - x0 + 1;
    auto steps = [span](double w0, double perPixel) {
        const double n = std::clamp(w0 * perPixel, -span - 1, span + 1);
        const auto whole = static_cast<int>(n);     // towards zero
        return whole - static_cast<int>(n < whole); // floor, without a branch
    };
    auto edge = [&](const Corner& p, const Corner& q) {
        const double dx = (p.y - q.y) / area, dy = (q.x - p.x) / area;
        const double at0 =
            ((p.x - (x0 + 0.5)) * (q.y - (y0 + 0.5)) - (p.y - (y0 + 0.5)) * (q.x - (x0 + 0.5))) /
            area;
        return Edge{dx, dy, at0};
    };
    const Edge ea = edge(b, c), eb = edge(c, a);
    const Edge ec{-ea.dx - eb.dx, -ea.dy - eb.dy, 1 - ea.at0 - eb.at0};
    const double ldw = flatLight ? 0 : 1;
    const Edge edges[3] = {ea, eb, ec};
    // The change of each interpolated value from one pixel of a row to the next.
    struct Step {
        float w, uw, vw, lw;
    };
    const Step step{static_cast<float>(ea.dx * a.w + eb.dx * b.w + ec.dx * c.w),
                    static_cast<float>(ea.dx * a.uw + eb.dx * b.uw + ec.dx * c.uw),
                    static_cast<float>(ea.dx * a.vw + eb.dx * b.vw + ec.dx * c.vw),
                    static_cast<float>(ea.dx * a.lw + eb.dx * b.lw + ec.dx * c.lw)};
    // 1 / dx once a triangle rather than a division per edge and row.
    double perPixel[3];
    for (std::size_t k = 0; k < 3; ++k)
        perPixel[k] = edges[k].dx != 0 ? 1 / edges[k].dx : 0;
    for (int y = y0; y <= y1; ++y) {
        // The stretch of the row where every weight can be positive, found from the three
        // lines; the test below still decides each pixel at its ends.
        double from = x0, to = x1;
        for (std::size_t k = 0; k < 3; ++k) {
            const Edge& e = edges[k];
            const double w0 = e.at0 + (y - y0) * e.dy;
            if (e.dx > 0)
                from = std::max(from, x0 + static_cast<double>(steps(-w0, perPixel[k])));
            else if (e.dx < 0)
                to = std::min(to, x0 - static_cast<double>(steps(w0, perPixel[k])));
            else if (w0 < 0)
                to = from - 1;
        }
        if (!(from <= to)) continue;
        const int first = static_cast<int>(from), last = static_cast<int>(to);
        double wa = ea.at0 + (y - y0) * ea.dy + (first - x0) * ea.dx;
        double wb = eb.at0 + (y - y0) * eb.dy + (first - x0) * eb.dx;
        std::size_t at = static_cast<std::size_t>(y) * static_cast<std::size_t>(t.width) +
                         static_cast<std::size_t>(first);
        // What interpolates straight on the screen is stepped along the row.
        const double wc0 = 1 - wa - wb;
        // In single precision from here: a row is short, and the depth is kept so anyway.
        auto single = [](double v) { return static_cast<float>(v); };
        float w = single(wa * a.w + wb * b.w + wc0 * c.w),
              uw = single(wa * a.uw + wb * b.uw + wc0 * c.uw),
              vw = single(wa * a.vw + wb * b.vw + wc0 * c.vw),
              lw = single(wa * a.lw + wb * b.lw + wc0 * c.lw);
        for (int x = first; x <= last; ++x, ++at, wa += ea.dx, wb += eb.dx, w += step.w,
                 uw += step.uw, vw += step.vw, lw += step.lw) {
            if (wa < 0 || wb < 0 || 1 - wa - wb < 0) continue;
            if (w <= t.depth[at]) continue;
            t.depth[at] = w;
            const float toWorld = 1 / w;
            const double light = flatLight ? faceLight : lw * toWorld * ldw;
            t.px[at] = shade(texel(skin, uw * toWorld, vw * toWorld), light);
        }
    }
}

} // namespace

std::vector<uint32_t> renderPreview(const Md2Mesh& mesh, std::size_t frame, const SkinTexture& skin,
                                    const PreviewView& view, int width, int height) {
    PreviewBuffers buffers;
    renderPreview(mesh, frame, skin, view, width, height, buffers);
    return std::move(buffers.px);
}

void renderPreview(const Md2Mesh& mesh, std::size_t frame, const SkinTexture& skin,
                   const PreviewView& view, int width, int height, PreviewBuffers& buffers) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::vector<uint32_t>& out = buffers.px;
    clearBuffers(buffers, width, height, pixels);
    if (frame >= mesh.frames.size() || pixels == 0) return;
    const Md2Mesh::Frame& f = mesh.frames[frame];
    // A mesh made by hand may name corners it doesn't have: nothing is drawn of it.
    for (const auto& tri : mesh.triangles)
        for (const auto& corner : tri)
            if (corner.vertex >= f.vertices.size() || corner.st >= mesh.st.size()) return;
    SkinTexture blank;
    const SkinTexture& texture =
        skin.width > 0 && skin.height > 0 &&
                skin.px.size() >= static_cast<std::size_t>(skin.width) * skin.height
            ? skin
            : blank;
    // The coordinates count pixels of the skin size the model names; a skin of another
    // size is stretched over them, as the game does.
    const double toU = mesh.skinWidth > 0 && texture.width > 0
                           ? static_cast<double>(texture.width) / mesh.skinWidth
                           : 1.0;
    const double toV = mesh.skinHeight > 0 && texture.height > 0
                           ? static_cast<double>(texture.height) / mesh.skinHeight
                           : 1.0;

    // The camera is set on the first frame, so that an animation moves the model before a
    // still viewer, as the game shows it; a frame reaching further widens the view.
    auto positions = [&mesh](const Md2Mesh::Frame& from) {
        std::vector<Vec> made(from.vertices.size());
        for (std::size_t v = 0; v < made.size(); ++v) {
            const auto p = mesh.position(from, static_cast<uint16_t>(v));
            made[v] = {p[0], p[1], p[2]};
        }
        return made;
    };
    const std::vector<Vec> first = positions(mesh.frames.front());
    std::vector<Vec> at = frame == 0 ? first : positions(f);
    Vec lo{std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
           std::numeric_limits<double>::max()};
    Vec hi{-lo[0], -lo[1], -lo[2]};
    for (const Vec& p : first)
        for (std::size_t k = 0; k < 3; ++k) {
            lo[k] = std::min(lo[k], p[k]);
            hi[k] = std::max(hi[k], p[k]);
        }
    Camera cam;
    cam.centre = {(lo[0] + hi[0]) / 2, (lo[1] + hi[1]) / 2, (lo[2] + hi[2]) / 2};
    double radius = 0;
    for (const Vec& p : first) {
        const Vec d = sub(p, cam.centre);
        radius = std::max(radius, std::sqrt(dot(d, d)));
    }
    for (Vec& p : at) {
        p = sub(p, cam.centre);
        radius = std::max(radius, std::sqrt(dot(p, p)));
    }
    if (!(radius > 0) || !std::isfinite(radius)) radius = 1;
    // Angles and zoom from outside are kept finite and the zoom bounded, so that every
    // screen position is a number the fill can turn into a pixel.
    auto finite = [](double v) { return std::isfinite(v) ? v : 0.0; };
    const double yaw = std::fmod(finite(view.yaw), 360.0) * std::numbers::pi / 180,
                 pitch = std::fmod(finite(view.pitch), 360.0) * std::numbers::pi / 180;
    const double zoom = std::isfinite(view.zoom) ? std::clamp(view.zoom, 0.01, 100.0) : 1.0;
    cam.cy = std::cos(yaw), cam.sy = std::sin(yaw), cam.cp = std::cos(pitch),
    cam.sp = std::sin(pitch);

    // The viewer stands three radii away; the zoom changes the lens, never the distance, so
    // the model can't come behind the viewer.
    const double distance = 3 * radius;
    // The nearest point of the model is two radii off: at zoom 1 nothing reaches past
    // 0.475 of the picture's smaller side from the middle, however the model is turned.
    const double focal = std::min(width, height) * 0.95 * zoom;
    std::vector<Vec> turned(at.size());
    for (std::size_t v = 0; v < at.size(); ++v)
        turned[v] = cam.turn(at[v]);

    // Vertex normals: the sum of the faces round each vertex, weighted by their areas.
    std::vector<Vec> normals(view.smooth ? turned.size() : 0, Vec{0, 0, 0});
    if (view.smooth)
        for (const auto& tri : mesh.triangles) {
            const Vec n = cross(sub(turned[tri[1].vertex], turned[tri[0].vertex]),
                                sub(turned[tri[2].vertex], turned[tri[0].vertex]));
            for (const auto& corner : tri)
                for (std::size_t k = 0; k < 3; ++k)
                    normals[corner.vertex][k] += n[k];
        }

    Target target{width, height, out, buffers.depth, buffers.drawn};
    std::vector<double> vertexLight(normals.size());
    for (std::size_t v = 0; v < normals.size(); ++v)
        vertexLight[v] = lightOf(unit(normals[v]));
    // Each vertex on the screen once: x, y and 1 / distance.
    std::vector<Vec> screen(turned.size());
    for (std::size_t v = 0; v < turned.size(); ++v) {
        const Vec& p = turned[v];
        const double w = 1 / (distance - p[0]);
        screen[v] = {width / 2.0 + focal * p[1] * w, height / 2.0 - focal * p[2] * w, w};
    }
    for (const auto& tri : mesh.triangles) {
        const Vec &sa = screen[tri[0].vertex], &sb = screen[tri[1].vertex],
                  &sc = screen[tri[2].vertex];
        // Faces turned away go before any more is worked out for them (fill says why).
        if (!((sb[0] - sa[0]) * (sc[1] - sa[1]) - (sb[1] - sa[1]) * (sc[0] - sa[0]) > 1e-12))
            continue;
        Corner corners[3];
        for (std::size_t c = 0; c < 3; ++c) {
            const Vec& on = screen[tri[c].vertex];
            const double w = on[2];
            const auto& st = mesh.st[tri[c].st];
            corners[c] = {
                on[0],           on[1],           w,
                st[0] * toU * w, st[1] * toV * w, view.smooth ? vertexLight[tri[c].vertex] * w : 0};
        }
        const double faceLight =
            view.smooth ? 0
                        : lightOf(unit(cross(sub(turned[tri[1].vertex], turned[tri[0].vertex]),
                                             sub(turned[tri[2].vertex], turned[tri[0].vertex]))));
        fill(corners[0], corners[1], corners[2], !view.smooth, faceLight, texture, target);
    }
}

} // namespace tavrin
