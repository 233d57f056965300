#pragma once
// MD2 files written by the tests, and an editor ready to make skins and overlays of them.
#include "support/test_support.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tavrin::test {

struct Md2 {
    int32_t skinWidth = 16, skinHeight = 16;
    std::vector<std::array<int16_t, 2>> st{};   // s, t
    std::vector<std::array<int16_t, 3>> tris{}; // texture coordinate indices
    int32_t numSt = -1, numTris = -1;           // -1: as many as st and tris hold
    // For the whole model: each triangle's vertex indices, and frames of packed vertices
    // (x, y, z bytes) with their scale, translation and name. Without frames the header
    // names none that could be read.
    std::vector<std::array<int16_t, 3>> xyz{};
    struct Frame {
        std::array<float, 3> scale{1, 1, 1}, translate{};
        std::string name;
        std::vector<std::array<uint8_t, 3>> vertices;
    };
    std::vector<Frame> frames{};

    // Header, a skin name of zeros, then the coordinates, then the triangles: no table
    // starts where the header ends, so a reader must follow the offsets.
    Bytes bytes() const {
        const std::size_t stAt = 68 + 64, trisAt = stAt + 4 * st.size();
        const std::size_t framesAt = trisAt + 12 * tris.size();
        const std::size_t vertices = frames.empty() ? 0 : frames[0].vertices.size();
        const std::size_t frameSize = 40 + 4 * vertices;
        Bytes out(framesAt + frames.size() * frameSize);
        auto put = [&](std::size_t at, int32_t v, int width) {
            for (int k = 0; k < width; ++k)
                out[at + k] = static_cast<uint8_t>(v >> (8 * k));
        };
        const bool whole = !frames.empty();
        const int32_t header[17] = {0x32504449,
                                    8,
                                    skinWidth,
                                    skinHeight,
                                    whole ? int32_t(frameSize) : 0,
                                    1,
                                    whole ? int32_t(vertices) : 3,
                                    numSt >= 0 ? numSt : static_cast<int32_t>(st.size()),
                                    numTris >= 0 ? numTris : static_cast<int32_t>(tris.size()),
                                    0,
                                    whole ? int32_t(frames.size()) : 1,
                                    68,
                                    int32_t(stAt),
                                    int32_t(trisAt),
                                    whole ? int32_t(framesAt) : 68,
                                    68,
                                    int32_t(out.size())};
        for (int k = 0; k < 17; ++k)
            put(4 * k, header[k], 4);
        for (std::size_t i = 0; i < st.size(); ++i)
            put(stAt + 4 * i, st[i][0], 2), put(stAt + 4 * i + 2, st[i][1], 2);
        for (std::size_t i = 0; i < tris.size(); ++i)
            for (int k = 0; k < 3; ++k) {
                put(trisAt + 12 * i + 6 + 2 * k, tris[i][k], 2);
                if (i < xyz.size()) put(trisAt + 12 * i + 2 * k, xyz[i][k], 2);
            }
        for (std::size_t f = 0; f < frames.size(); ++f) {
            const std::size_t at = framesAt + f * frameSize;
            for (int k = 0; k < 3; ++k) {
                std::memcpy(&out[at + 4 * k], &frames[f].scale[k], 4);
                std::memcpy(&out[at + 12 + 4 * k], &frames[f].translate[k], 4);
            }
            std::memcpy(&out[at + 24], frames[f].name.data(),
                        std::min<std::size_t>(16, frames[f].name.size()));
            for (std::size_t v = 0; v < frames[f].vertices.size(); ++v)
                std::copy_n(frames[f].vertices[v].begin(), 3,
                            out.begin() + static_cast<long>(at + 40 + 4 * v));
        }
        return out;
    }
};

// A card of two faces a little apart, two frames alike: the front (x = 128) maps the top
// left 2 x 2 pixels of a 4 x 4 skin, the back (x = 120) the bottom right ones; y runs to
// the front viewer's right, z up. Each face's corners run clockwise seen from its side.
inline Md2 previewCard() {
    Md2 m;
    m.skinWidth = m.skinHeight = 4;
    m.st = {{0, 0}, {2, 0}, {0, 2}, {2, 2}, {2, 2}, {4, 2}, {2, 4}, {4, 4}};
    // Vertices: front top left (y 0, z 255), front top right, front bottom left, front
    // bottom right, then the same four at the back.
    m.xyz = {{0, 1, 2}, {1, 3, 2}, {4, 6, 5}, {5, 6, 7}};
    m.tris = {{0, 1, 2}, {1, 3, 2}, {4, 6, 5}, {5, 6, 7}};
    Md2::Frame f;
    f.name = "stand01";
    f.vertices = {{128, 0, 255}, {128, 255, 255}, {128, 0, 0}, {128, 255, 0},
                  {120, 0, 255}, {120, 255, 255}, {120, 0, 0}, {120, 255, 0}};
    m.frames = {f, f};
    m.frames[1].name = "run1";
    return m;
}

inline const std::string kLoadProblem =
    "There was a problem loading the file. Check the filename and/or format.";

struct ModelTest : EditorTest {
    void SetUp() override {
        installGamePalette();
        frm.Form_Load();
    }
    std::string write(const Md2& model, const std::string& name = "model.md2") {
        return dir.write(name, model.bytes());
    }
    void newSkin(const std::string& path) {
        host.answerOpen(path);
        frm.NewSkin_Click();
    }
    const std::string& lastMessage() { return host.messages().back().text; }
    std::vector<int> sizeBytes() {
        return {frm.PCX_Header(9), frm.PCX_Header(10), frm.PCX_Header(11), frm.PCX_Header(12)};
    }
};

} // namespace tavrin::test
