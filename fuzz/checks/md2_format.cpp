// What the editor reads of a model: the header, then the texture coordinates and the
// triangles through the windows the reading command fetches for them. A lump whose
// reading failed is read again through a window over the whole file: the two must agree,
// so that no record lies outside the positions the command fetched.
#include "model/md2_format.h"
#include "fuzz/decoder_checks.h"

#include <algorithm>
#include <cstring>

namespace tavrin::fuzz {

namespace {

int32_t le32(std::span<const uint8_t> file, std::size_t at) {
    return static_cast<int32_t>(
        static_cast<uint32_t>(file[at]) | static_cast<uint32_t>(file[at + 1]) << 8 |
        static_cast<uint32_t>(file[at + 2]) << 16 | static_cast<uint32_t>(file[at + 3]) << 24);
}

// The header as plain reads give it: a field past the end of the file stays 0.
Md2Header plainHeader(std::span<const uint8_t> file) {
    auto field = [&](std::size_t at) { return at + 4 <= file.size() ? le32(file, at) : 0; };
    return {field(0), field(8), field(12), field(28), field(32), field(44), field(48), field(52)};
}

bool same(const Md2Header& a, const Md2Header& b) {
    return a.ident == b.ident && a.skinWidth == b.skinWidth && a.skinHeight == b.skinHeight &&
           a.numSt == b.numSt && a.numTris == b.numTris && a.ofsSkins == b.ofsSkins &&
           a.ofsSt == b.ofsSt && a.ofsTris == b.ofsTris;
}

template <class Record, class Read>
std::string compareLump(const char* what, std::span<const uint8_t> file, const Md2Header& h,
                        PositionRange positions, int32_t count, Read read) {
    // Made once and cleared for each input, as a reading ReDims them.
    static vb::Array<Record> fetched, whole;
    fetched.ReDim(0, kMd2LastRecord);
    const int fetchedError =
        errorOf([&] { read(windowOf(file, positions.first, positions.last), h, fetched); });
    // A reading that got through took every value from inside the window, which holds the
    // file's own bytes: only one that failed can differ from the file's.
    if (fetchedError == 0) return "";
    whole.ReDim(0, kMd2LastRecord);
    const int wholeError = errorOf([&] { read(vb::ByteWindow::whole(file), h, whole); });
    if (fetchedError != wholeError)
        return std::string(what) + ": error " + std::to_string(fetchedError) +
               " through the fetched window, " + std::to_string(wholeError) + " through the file";
    const int64_t records = std::min(md2RecordsVisited(count), kMd2LastRecord + 1);
    for (int64_t i = 0; i < records; ++i)
        if (std::memcmp(&fetched(i), &whole(i), sizeof(Record)) != 0)
            return std::string(what) + ": record " + std::to_string(i) + " differs from the file's";
    return "";
}

std::string checkMd2Format(std::span<const uint8_t> file) {
    Md2Header h;
    readMd2Header(windowOf(file, 1, kMd2HeaderBytes), h);
    if (!same(h, plainHeader(file))) return "the header is misread";
    std::string fault = compareLump<UVRecord>("texture coordinates", file, h, md2StPositions(h),
                                              h.numSt, readMd2St);
    if (fault.empty())
        fault = compareLump<TriRecord>("triangles", file, h, md2TrisPositions(h), h.numTris,
                                       readMd2Tris);
    return fault;
}

const RegisterDecoder registered("md2_format", checkMd2Format);

} // namespace

} // namespace tavrin::fuzz
