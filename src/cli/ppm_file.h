#pragma once
// Files the driver writes: bytes as they stand, and pictures as binary PPM.
#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::cli {

// Raises DriverFailure when the file can't be written.
void writeFile(const std::string& path, const std::string& bytes);
// width x height packed colours 0x00BBGGRR, row by row, as P6.
void writePpm(const std::string& path, int width, int height, const std::vector<uint32_t>& px);

} // namespace tavrin::cli
