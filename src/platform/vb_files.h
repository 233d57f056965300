#pragma once
// Files opened by number, as the runtime's Open/Get/Put/Close gave them. Positions are
// 1-based. A read that runs past the end leaves its target unchanged and only then
// does EOF turn true. Readers may take a whole range in one call (GetBytes) and decode
// from memory; writers collect their bytes and the file is written once, at Close, as a
// whole new file put in the old one's place (platform/file_replace.h).
#include "platform/byte_window.h"
#include "platform/text_lines.h"

#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace vb {

class FileTable {
public:
    static constexpr int kMaxNumber = 255;

    FileTable();
    ~FileTable();
    FileTable(const FileTable&) = delete;
    FileTable& operator=(const FileTable&) = delete;

    // Open path For Binary As #number, to read: the file must exist.
    void OpenForRead(int number, const std::string& path);
    // Open path For Input As #number: a text file, read in one go and then taken a line
    // at a time (LineInput; EOF_ once the last line is taken). The file must exist.
    void OpenForInput(int number, const std::string& path);
    // Open path For Binary As #number, to write a new file that replaces whatever stands
    // at path when it is closed. The old file is never read: a save replaces it whole.
    // Raises, with the reason, when path can't be replaced.
    void OpenForWrite(int number, const std::string& path);

    // A writer's Close puts its file in place; a failure raises PathFileAccess with the
    // system's reason and leaves the old file as it was.
    void Close(int number);
    void CloseAll(); // Close with no number; raises the first writer's failure

    int64_t LOF(int number) const;
    bool EOF_(int number) const;

    // Get #number, position, variable: little-endian, sizeof(T) bytes.
    template <class T> void Get(int number, int64_t position, T& variable) {
        uint8_t bytes[sizeof(T)];
        if (read(number, position, bytes, sizeof(T)) < sizeof(T)) return;
        uint64_t acc = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            acc |= static_cast<uint64_t>(bytes[i]) << (8 * i);
        variable = static_cast<T>(acc);
    }

    // Line Input #number: the next line of a file opened for Input (text_lines.h);
    // "Input past end of file" when every line has been taken.
    std::string LineInput(int number);

    // The bytes from position on, up to count of them (fewer at the end of the file).
    // Sets EOF like a Get that ran short when fewer came back.
    std::vector<uint8_t> GetBytes(int number, int64_t position, std::size_t count);
    // Positions from to last, clipped to the file, in one read into storage: a window
    // that the format readers decode as if they read the file itself.
    ByteWindow GetWindow(int number, int64_t from, int64_t last, std::vector<uint8_t>& storage);

    // Put #number, position, bytes.
    void Put(int number, int64_t position, const uint8_t* bytes, std::size_t count);
    // The same for a whole file built in memory: taken over without a copy when nothing
    // stands in the file yet.
    void Put(int number, int64_t position, std::vector<uint8_t>&& bytes);

private:
    struct OpenFile;
    OpenFile& file(int number) const;
    std::size_t read(int number, int64_t position, uint8_t* out, std::size_t count);

    std::vector<std::unique_ptr<OpenFile>> files_;
};

} // namespace vb
