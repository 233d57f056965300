#include "model/md2_format.h"

#include <algorithm>
#include <limits>

namespace tavrin {

namespace {

// Positions are worked out in 32 bits; one that doesn't fit is an overflow.
template <class T> void getAt(const vb::ByteWindow& w, int64_t position, T& target) {
    if (position > std::numeric_limits<int32_t>::max()) vb::raise(vb::Overflow);
    w.get(position, target);
}

} // namespace

void readMd2Header(const vb::ByteWindow& file, Md2Header& h) {
    getAt(file, 1, h.ident);
    getAt(file, 9, h.skinWidth);
    getAt(file, 13, h.skinHeight);
    getAt(file, 29, h.numSt);
    getAt(file, 33, h.numTris);
    getAt(file, 45, h.ofsSkins);
    getAt(file, 49, h.ofsSt);
    getAt(file, 53, h.ofsTris);
}

int64_t md2RecordsVisited(int32_t count) {
    return std::clamp<int64_t>(count, 0, kMd2LastRecord + 2);
}

PositionRange md2StPositions(const Md2Header& h) {
    return {int64_t{h.ofsSt} + 1, int64_t{h.ofsSt} + 4 * md2RecordsVisited(h.numSt)};
}

PositionRange md2TrisPositions(const Md2Header& h) {
    return {int64_t{h.ofsTris} + 1, int64_t{h.ofsTris} + 12 * md2RecordsVisited(h.numTris)};
}

namespace {

// Records 0 on of a lump of records `size` bytes long from `offset`, each read by one().
template <class Record, class ReadOne>
void readLump(int32_t count, int32_t offset, int64_t size, vb::Array<Record>& table, ReadOne one) {
    const int64_t visited = md2RecordsVisited(count);
    for (int64_t i = 0; i < visited; ++i)
        one(i * size + offset, table(i));
}

} // namespace

void readMd2St(const vb::ByteWindow& lump, const Md2Header& h, vb::Array<UVRecord>& table) {
    readLump(h.numSt, h.ofsSt, 4, table, [&](int64_t at, UVRecord& r) {
        getAt(lump, at + 1, r.S);
        getAt(lump, at + 3, r.T);
    });
}

// The vertex indices at the start of each record aren't needed.
void readMd2Tris(const vb::ByteWindow& lump, const Md2Header& h, vb::Array<TriRecord>& table) {
    readLump(h.numTris, h.ofsTris, 12, table, [&](int64_t at, TriRecord& r) {
        getAt(lump, at + 7, r.A);
        getAt(lump, at + 9, r.B);
        getAt(lump, at + 11, r.C);
    });
}

} // namespace tavrin
