#pragma once
// The whole of an MD2 model, for the model preview: the frames' vertices besides what the
// editor reads for its wireframe. A pure function of the file's bytes that checks every
// count and offset against the file before it allocates, and says why a damaged model
// can't be shown rather than showing part of it.
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tavrin {

struct Md2Mesh {
    struct Corner {
        uint16_t vertex; // into a frame's vertices
        uint16_t st;     // into st
    };
    struct Frame {
        std::array<float, 3> scale{}, translate{};
        std::string name;
        std::vector<std::array<uint8_t, 3>> vertices; // packed: scale * v + translate
    };

    int32_t skinWidth = 0, skinHeight = 0;
    std::vector<std::array<int16_t, 2>> st; // texture coordinates in skin pixels
    std::vector<std::array<Corner, 3>> triangles;
    std::vector<Frame> frames;

    // A frame's vertex in model units.
    std::array<float, 3> position(const Frame& f, uint16_t vertex) const;
};

struct Md2MeshRead {
    Md2Mesh mesh;
    std::string problem; // empty when the model can be shown
};

// Limits beyond any model a game loads, so that a hostile header can't ask for more.
inline constexpr int32_t kMd2MostVertices = 8192, kMd2MostTriangles = 32768, kMd2MostFrames = 1024,
                         kMd2MostSt = 32768;

Md2MeshRead readMd2Mesh(std::span<const uint8_t> file);

// The group a frame belongs to: its name less the digits at its end ("run3" is "run").
std::string frameGroup(const std::string& name);

} // namespace tavrin
