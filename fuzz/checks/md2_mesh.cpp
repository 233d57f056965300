// The whole model as the preview reads it: either a reason it can't be shown and no
// mesh, or a mesh whose every corner names a vertex and a texture coordinate it has,
// whose frames all hold every vertex, and whose positions are numbers.
#include "model/md2_mesh.h"
#include "fuzz/decoder_checks.h"

#include <cmath>

namespace tavrin::fuzz {

namespace {

std::string checkMesh(const Md2Mesh& m) {
    if (m.st.empty() || m.triangles.empty() || m.frames.empty()) return "a part is empty";
    if (m.st.size() > kMd2MostSt || m.triangles.size() > kMd2MostTriangles ||
        m.frames.size() > kMd2MostFrames)
        return "more records than a model may have";
    const std::size_t vertices = m.frames.front().vertices.size();
    if (vertices == 0 || vertices > kMd2MostVertices) return "no usable vertex count";
    for (const Md2Mesh::Frame& f : m.frames) {
        if (f.vertices.size() != vertices) return "frames of different sizes";
        if (f.name.size() > 16) return "a frame name longer than its field";
        for (std::size_t v = 0; v < vertices; ++v)
            for (float c : m.position(f, static_cast<uint16_t>(v)))
                if (!std::isfinite(c)) return "a position that is no number";
    }
    for (const auto& t : m.triangles)
        for (const Md2Mesh::Corner& c : t)
            if (c.vertex >= vertices || c.st >= m.st.size())
                return "a corner names what the model doesn't have";
    return "";
}

std::string checkMd2Mesh(std::span<const uint8_t> file) {
    const Md2MeshRead read = readMd2Mesh(file);
    if (read.problem.empty()) return checkMesh(read.mesh);
    const Md2Mesh& m = read.mesh;
    if (!m.st.empty() || !m.triangles.empty() || !m.frames.empty())
        return "a mesh kept beside the problem \"" + read.problem + "\"";
    return "";
}

const RegisterDecoder registered("md2_mesh", checkMd2Mesh);

} // namespace

} // namespace tavrin::fuzz
