#pragma once
// The model preview's picture: a frame of an MD2 model wearing the skin, drawn by a small
// software rasterizer (perspective-correct texture, depth buffer, nearest texel), so that
// it needs no graphics stack and gives the same pixels on every machine. That is why it
// is ours rather than an OpenGL widget's: the headless driver and the tests get the very
// pixels the window shows, and the window runs where no GL is (Xvfb, the offscreen
// platform, remote desktops). A model of a few thousand triangles at 512 x 512 costs
// less than a repaint of the zoomed canvas (tavrin-bench).
#include "model/md2_mesh.h"

#include <cstdint>
#include <vector>

namespace tavrin {

// The skin as colours, one a skin pixel, packed 0x00BBGGRR, row by row.
struct SkinTexture {
    int width = 0, height = 0;
    std::vector<uint32_t> px;
};

struct PreviewView {
    double yaw = 0, pitch = 0; // degrees; yaw turns about the model's up axis
    double zoom = 1;           // 1: the whole model fits the picture
    bool smooth = true;        // lit by the vertex normals, else flat per triangle
};

inline constexpr uint32_t kPreviewBackground = 0x3A3A3A;

// The picture, width x height packed colours, row by row. A frame out of range draws
// nothing but the background.
std::vector<uint32_t> renderPreview(const Md2Mesh& mesh, std::size_t frame, const SkinTexture& skin,
                                    const PreviewView& view, int width, int height);

// The same into buffers kept from one picture to the next, as a window that draws
// often does: their memory is taken again rather than asked of the system anew.
struct PreviewBuffers {
    std::vector<uint32_t> px; // the picture
    std::vector<float> depth;
    // Where the last picture drew, so that the next clears no more than that.
    struct Box {
        int x0 = 0, y0 = 0, x1 = -1, y1 = -1;
    };
    int width = 0, height = 0;
    Box drawn;
};
void renderPreview(const Md2Mesh& mesh, std::size_t frame, const SkinTexture& skin,
                   const PreviewView& view, int width, int height, PreviewBuffers& buffers);

} // namespace tavrin
