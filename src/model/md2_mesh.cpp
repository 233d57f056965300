#include "model/md2_mesh.h"

#include <cstring>

namespace tavrin {

namespace {

// Little-endian reads from a span whose size the caller has checked.
int32_t i32(std::span<const uint8_t> b, std::size_t at) {
    return static_cast<int32_t>(
        static_cast<uint32_t>(b[at]) | static_cast<uint32_t>(b[at + 1]) << 8 |
        static_cast<uint32_t>(b[at + 2]) << 16 | static_cast<uint32_t>(b[at + 3]) << 24);
}
int16_t i16(std::span<const uint8_t> b, std::size_t at) {
    return static_cast<int16_t>(b[at] | b[at + 1] << 8);
}
float f32(std::span<const uint8_t> b, std::size_t at) {
    const uint32_t bits = static_cast<uint32_t>(i32(b, at));
    float f = 0;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

// Whether count records of size bytes from offset lie inside the file.
bool inside(std::span<const uint8_t> file, int32_t offset, int64_t count, int64_t size) {
    return offset >= 0 && count >= 0 &&
           int64_t{offset} + count * size <= static_cast<int64_t>(file.size());
}

} // namespace

std::array<float, 3> Md2Mesh::position(const Frame& f, uint16_t vertex) const {
    const auto& v = f.vertices[vertex];
    return {f.scale[0] * v[0] + f.translate[0], f.scale[1] * v[1] + f.translate[1],
            f.scale[2] * v[2] + f.translate[2]};
}

Md2MeshRead readMd2Mesh(std::span<const uint8_t> file) {
    Md2MeshRead out;
    if (file.size() < 68) {
        out.problem = "The file is too short to be a model.";
        return out;
    }
    const int32_t skinWidth = i32(file, 8), skinHeight = i32(file, 12), frameSize = i32(file, 16),
                  numXyz = i32(file, 24), numSt = i32(file, 28), numTris = i32(file, 32),
                  numFrames = i32(file, 40), ofsSt = i32(file, 48), ofsTris = i32(file, 52),
                  ofsFrames = i32(file, 56);
    auto fail = [&out](std::string why) {
        out.problem = std::move(why);
        out.mesh = Md2Mesh{};
        return out;
    };
    if (numXyz < 1 || numXyz > kMd2MostVertices)
        return fail("The model has no usable vertex count.");
    if (numTris < 1 || numTris > kMd2MostTriangles)
        return fail("The model has no usable triangle count.");
    if (numFrames < 1 || numFrames > kMd2MostFrames)
        return fail("The model has no usable frame count.");
    if (numSt < 1 || numSt > kMd2MostSt)
        return fail("The model has no usable texture coordinates.");
    if (frameSize < 40 + 4 * numXyz)
        return fail("The model's frames are too small for its vertices.");
    if (!inside(file, ofsSt, numSt, 4))
        return fail("The texture coordinates lie outside the file.");
    if (!inside(file, ofsTris, numTris, 12)) return fail("The triangles lie outside the file.");
    if (!inside(file, ofsFrames, numFrames, frameSize))
        return fail("The frames lie outside the file.");

    Md2Mesh& m = out.mesh;
    m.skinWidth = skinWidth;
    m.skinHeight = skinHeight;
    m.st.resize(static_cast<std::size_t>(numSt));
    for (std::size_t k = 0; k < m.st.size(); ++k) {
        const std::size_t at = static_cast<std::size_t>(ofsSt) + 4 * k;
        m.st[k] = {i16(file, at), i16(file, at + 2)};
    }
    m.triangles.resize(static_cast<std::size_t>(numTris));
    for (std::size_t k = 0; k < m.triangles.size(); ++k) {
        const std::size_t at = static_cast<std::size_t>(ofsTris) + 12 * k;
        for (std::size_t c = 0; c < 3; ++c) {
            const auto vertex = static_cast<uint16_t>(i16(file, at + 2 * c));
            const auto st = static_cast<uint16_t>(i16(file, at + 6 + 2 * c));
            if (vertex >= numXyz || st >= numSt)
                return fail("Triangle " + std::to_string(k) +
                            " names a corner the model doesn't have.");
            m.triangles[k][c] = {vertex, st};
        }
    }
    m.frames.resize(static_cast<std::size_t>(numFrames));
    for (std::size_t k = 0; k < m.frames.size(); ++k) {
        const std::size_t at =
            static_cast<std::size_t>(ofsFrames) + static_cast<std::size_t>(frameSize) * k;
        Md2Mesh::Frame& f = m.frames[k];
        for (std::size_t c = 0; c < 3; ++c) {
            f.scale[c] = f32(file, at + 4 * c);
            f.translate[c] = f32(file, at + 12 + 4 * c);
            if (!(f.scale[c] > -1e6F && f.scale[c] < 1e6F) ||
                !(f.translate[c] > -1e6F && f.translate[c] < 1e6F))
                return fail("Frame " + std::to_string(k) + " has no usable scale.");
        }
        const auto* name = reinterpret_cast<const char*>(file.data() + at + 24);
        f.name.assign(name, strnlen(name, 16));
        f.vertices.resize(static_cast<std::size_t>(numXyz));
        for (std::size_t v = 0; v < f.vertices.size(); ++v) {
            const std::size_t p = at + 40 + 4 * v;
            f.vertices[v] = {file[p], file[p + 1], file[p + 2]};
        }
    }
    return out;
}

std::string frameGroup(const std::string& name) {
    std::size_t end = name.size();
    while (end > 0 && name[end - 1] >= '0' && name[end - 1] <= '9')
        --end;
    return name.substr(0, end);
}

} // namespace tavrin
