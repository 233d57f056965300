#include "cli/ppm_file.h"

#include "cli/script_error.h"

#include <fstream>

namespace tavrin::cli {

void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw DriverFailure("can't write " + path);
}

void writePpm(const std::string& path, int width, int height, const std::vector<uint32_t>& px) {
    std::string bytes = "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
    bytes.reserve(bytes.size() + px.size() * 3);
    for (uint32_t c : px) {
        bytes += static_cast<char>(c & 0xFF);         // red
        bytes += static_cast<char>((c >> 8) & 0xFF);  // green
        bytes += static_cast<char>((c >> 16) & 0xFF); // blue
    }
    writeFile(path, bytes);
}

} // namespace tavrin::cli
