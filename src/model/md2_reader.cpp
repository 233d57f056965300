// What the editor reads of an MD2 model: the skin size, the texture coordinates and the
// three coordinate indices of each triangle. No vertex, no frame: the wireframe is the
// mesh unwrapped on the skin. Nothing checks that the file is a model; any bytes give
// data, and the tables hold records 0 to 10000 whatever the counts say.
#include "editor/frm_main.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace tavrin {

namespace {

constexpr int64_t kLastRecord = 10000;
constexpr int64_t kHeaderBytes = 56; // up to ofs_tris, the last field read

// A stretch of the file in memory. get() answers as a Get at that position would: a
// value that runs past the end of the file leaves its target as it was.
struct FileSpan {
    int64_t first = 1;      // file position of bytes[0]
    int64_t fileLength = 0;
    std::vector<uint8_t> bytes;

    template <class T> void get(int64_t position, T& target) const {
        // Positions are worked out in 32 bits; one that doesn't fit is an overflow.
        if (position > std::numeric_limits<int32_t>::max()) vb::raise(vb::Overflow);
        if (position < 1) vb::raise(vb::BadRecordNumber);
        if (position + static_cast<int64_t>(sizeof(T)) - 1 > fileLength) return;
        const int64_t at = position - first;
        if (at < 0 || at + static_cast<int64_t>(sizeof(T)) > static_cast<int64_t>(bytes.size()))
            vb::raise(vb::SubscriptOutOfRange); // outside what was fetched: a reader's slip
        uint64_t acc = 0;
        for (std::size_t k = 0; k < sizeof(T); ++k)
            acc |= static_cast<uint64_t>(bytes[static_cast<std::size_t>(at) + k]) << (8 * k);
        target = static_cast<T>(acc);
    }
};

// Positions from to last of file 1, clipped to the file, in one read.
FileSpan fetch(vb::FileTable& files, int64_t fileLength, int64_t from, int64_t last) {
    FileSpan span;
    span.fileLength = fileLength;
    span.first = std::max<int64_t>(from, 1);
    last = std::min(last, fileLength);
    if (last >= span.first)
        span.bytes = files.GetBytes(1, span.first, static_cast<std::size_t>(last - span.first + 1));
    return span;
}

// How many records a lump's loop visits before the tables run out: one past the last
// record, so that the loop fails there as it should.
int64_t recordsVisited(int32_t count) {
    return std::clamp<int64_t>(count, 0, kLastRecord + 2);
}

} // namespace

void FrmMain::readModel(bool sizePicture1) {
    Tri_Table.ReDim(0, kLastRecord);
    UV_Table.ReDim(0, kLastRecord);
    Wire_Loaded = 1;
    Files.OpenForRead(1, File_Name);
    // A failed reading closes its file, so that the next one can open it again.
    try {
        const int64_t length = Files.LOF(1);
        const FileSpan header = fetch(Files, length, 1, kHeaderBytes);
        header.get(1, MD2_Ident);
        header.get(9, MD2_Skin_Width);
        header.get(13, MD2_Skin_Height);
        header.get(29, MD2_Num_St);
        header.get(33, MD2_Num_Tris);
        header.get(45, MD2_Ofs_Skins);
        header.get(49, MD2_Ofs_St);
        header.get(53, MD2_Ofs_Tris);

        if (sizePicture1) { // twips: the box gets as many pixels as the skin
            picture1.Width = static_cast<double>(MD2_Skin_Width) * 15;
            picture1.Height = static_cast<double>(MD2_Skin_Height) * 15;
            picture1.ScaleWidth = MD2_Skin_Width;
            picture1.ScaleHeight = MD2_Skin_Height;
            picture1.Refresh();
        }

        // Each lump in one read, the records decoded from memory one 16-bit value at a
        // time, as the file would give them.
        const int64_t stCount = recordsVisited(MD2_Num_St);
        const int64_t trisCount = recordsVisited(MD2_Num_Tris);
        const FileSpan st = fetch(Files, length, int64_t{MD2_Ofs_St} + 1, int64_t{MD2_Ofs_St} + 4 * stCount);
        const FileSpan tris =
            fetch(Files, length, int64_t{MD2_Ofs_Tris} + 1, int64_t{MD2_Ofs_Tris} + 12 * trisCount);
        Files.CloseAll();

        for (int64_t i = 0; i < stCount; ++i) {
            const int64_t at = i * 4 + MD2_Ofs_St;
            st.get(at + 1, UV_Table(i).S);
            st.get(at + 3, UV_Table(i).T);
        }
        // The vertex indices at the start of each record aren't needed.
        for (int64_t i = 0; i < trisCount; ++i) {
            const int64_t at = i * 12 + MD2_Ofs_Tris;
            tris.get(at + 7, Tri_Table(i).A);
            tris.get(at + 9, Tri_Table(i).B);
            tris.get(at + 11, Tri_Table(i).C);
        }
    } catch (const vb::Error&) {
        vb::resume([&] { Files.Close(1); });
        throw;
    }
}

// For a new skin: picture1 takes the skin's size and the mesh in white.
void FrmMain::Get_Frame() {
    readModel(true);
    drawModelLines(picture1, 1, 0xFFFFFF);
}

// For the overlay: the mesh on the canvas only, at the zoom in force.
void FrmMain::Import_Frame() {
    readModel(false);
    drawModelLines(Picture7, Zoom_Factor, vb::CLng(Wire_Color));
}

} // namespace tavrin
