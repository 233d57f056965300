#pragma once
// What the editor reads of an MD2 model, as functions of the file's bytes: the header's
// fields, the texture coordinates and the three coordinate indices of each triangle.
// Nothing checks that the bytes are a model; any bytes give data, and the tables hold
// records 0 to 10000 whatever the counts say.
#include "editor/records.h"
#include "platform/byte_window.h"
#include "platform/vb_array.h"

#include <cstdint>

namespace tavrin {

inline constexpr int64_t kMd2LastRecord = 10000;
inline constexpr int64_t kMd2HeaderBytes = 56; // up to ofs_tris, the last field read

struct Md2Header {
    int32_t ident = 0, skinWidth = 0, skinHeight = 0, numSt = 0, numTris = 0, ofsSkins = 0,
            ofsSt = 0, ofsTris = 0;
};

// The header's fields from the window over positions 1 to kMd2HeaderBytes. A field whose
// bytes run past the end of the file keeps the value it has in `header`.
void readMd2Header(const vb::ByteWindow& file, Md2Header& header);

// How many records a lump's loop visits before the tables run out: one past the last
// record, so that the loop fails there as it should.
int64_t md2RecordsVisited(int32_t count);

// The file positions that each lump's records take, first and last, for a reader that
// fetches only those.
struct PositionRange {
    int64_t first, last;
};
PositionRange md2StPositions(const Md2Header& header);
PositionRange md2TrisPositions(const Md2Header& header);

// Records 0 on of each lump into the table, a 16-bit value at a time; a value past the
// end of the file leaves the record's field as it was. Raises at the first record the
// table doesn't hold, or at a position that doesn't fit in 32 bits, with the records
// before it written.
void readMd2St(const vb::ByteWindow& lump, const Md2Header& header, vb::Array<UVRecord>& table);
void readMd2Tris(const vb::ByteWindow& lump, const Md2Header& header, vb::Array<TriRecord>& table);

} // namespace tavrin
