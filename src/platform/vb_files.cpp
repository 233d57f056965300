#include "platform/vb_files.h"

#include "platform/file_replace.h"
#include "platform/vb_error.h"
#include "platform/vb_memory.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

namespace vb {

struct FileTable::OpenFile {
    std::string path;
    bool writing = false;
    bool input = false; // opened for Input: the text and its lines
    std::ifstream in;
    int64_t length = 0;
    bool eof = false;
    std::vector<uint8_t> out; // what a writer has put, written at Close
    Reservation textMemory;
    std::vector<uint8_t> text;
    TextLines lines;
};

FileTable::FileTable() : files_(kMaxNumber + 1) {}

FileTable::~FileTable() {
    try {
        CloseAll();
    } catch (...) {
    }
}

FileTable::OpenFile& FileTable::file(int number) const {
    if (number < 1 || number > kMaxNumber || !files_[static_cast<std::size_t>(number)])
        raise(BadFileNameOrNumber);
    return *files_[static_cast<std::size_t>(number)];
}

void FileTable::OpenForRead(int number, const std::string& path) {
    if (number < 1 || number > kMaxNumber) raise(BadFileNameOrNumber);
    auto& slot = files_[static_cast<std::size_t>(number)];
    if (slot) raise(FileAlreadyOpen);
    std::error_code ec;
    if (path.empty() || !std::filesystem::is_regular_file(path, ec)) raise(FileNotFound);
    auto f = std::make_unique<OpenFile>();
    f->path = path;
    f->in.open(path, std::ios::binary);
    if (!f->in) raise(PathFileAccess);
    f->length = static_cast<int64_t>(std::filesystem::file_size(path, ec));
    if (ec) raise(PathFileAccess);
    // An empty file is at its end before anything is read.
    f->eof = f->length == 0;
    slot = std::move(f);
}

void FileTable::OpenForInput(int number, const std::string& path) {
    OpenForRead(number, path);
    OpenFile& f = file(number);
    try {
        f.text = GetBytes(number, 1, static_cast<std::size_t>(f.length));
        f.textMemory = Reservation(f.text.size(), 1);
    } catch (const Error&) {
        files_[static_cast<std::size_t>(number)].reset(); // a failed Open leaves nothing open
        throw;
    }
    f.input = true;
    f.lines = TextLines(f.text);
}

void FileTable::OpenForWrite(int number, const std::string& path) {
    if (number < 1 || number > kMaxNumber) raise(BadFileNameOrNumber);
    auto& slot = files_[static_cast<std::size_t>(number)];
    if (slot) raise(FileAlreadyOpen);
    checkReplaceable(path);
    auto f = std::make_unique<OpenFile>();
    f->path = path;
    f->writing = true;
    slot = std::move(f);
}

void FileTable::Close(int number) {
    file(number);
    const std::unique_ptr<OpenFile> owned = std::move(files_[static_cast<std::size_t>(number)]);
    if (owned->writing) replaceFile(owned->path, owned->out);
}

void FileTable::CloseAll() {
    std::optional<Error> first;
    for (int n = 1; n <= kMaxNumber; ++n) {
        if (!files_[static_cast<std::size_t>(n)]) continue;
        try {
            Close(n);
        } catch (const Error& e) {
            if (!first) first = e;
        }
    }
    if (first) throw *first;
}

int64_t FileTable::LOF(int number) const {
    auto& f = file(number);
    return f.writing ? static_cast<int64_t>(f.out.size()) : f.length;
}

bool FileTable::EOF_(int number) const {
    const OpenFile& f = file(number);
    return f.input ? f.lines.atEnd() : f.eof;
}

std::string FileTable::LineInput(int number) {
    OpenFile& f = file(number);
    if (!f.input) raise(BadFileMode);
    return f.lines.LineInput();
}

std::size_t FileTable::read(int number, int64_t position, uint8_t* out, std::size_t count) {
    auto& f = file(number);
    if (position < 1) raise(BadRecordNumber);
    if (f.writing || f.input) raise(BadFileMode);
    int64_t start = position - 1;
    std::size_t available = start >= f.length ? 0
                                              : static_cast<std::size_t>(std::min<int64_t>(
                                                    f.length - start, static_cast<int64_t>(count)));
    if (available > 0) {
        f.in.clear();
        f.in.seekg(start);
        f.in.read(reinterpret_cast<char*>(out), static_cast<std::streamsize>(available));
        if (static_cast<std::size_t>(f.in.gcount()) != available) raise(PathFileAccess);
    }
    f.eof = available < count;
    return available;
}

std::vector<uint8_t> FileTable::GetBytes(int number, int64_t position, std::size_t count) {
    auto& f = file(number);
    if (position < 1) raise(BadRecordNumber);
    int64_t start = position - 1;
    std::size_t available = start >= f.length ? 0
                                              : static_cast<std::size_t>(std::min<int64_t>(
                                                    f.length - start, static_cast<int64_t>(count)));
    checkAllocation(available, 1);
    std::vector<uint8_t> bytes(available);
    read(number, position, bytes.data(), count > available ? available : count);
    f.eof = available < count;
    return bytes;
}

ByteWindow FileTable::GetWindow(int number, int64_t from, int64_t last,
                                std::vector<uint8_t>& storage) {
    const int64_t length = LOF(number);
    const int64_t first = std::max<int64_t>(from, 1);
    last = std::min(last, length);
    storage.clear();
    if (last >= first)
        storage = GetBytes(number, first, static_cast<std::size_t>(last - first + 1));
    return ByteWindow{first, length, storage};
}

void FileTable::Put(int number, int64_t position, const uint8_t* bytes, std::size_t count) {
    auto& f = file(number);
    if (position < 1) raise(BadRecordNumber);
    if (!f.writing) raise(BadFileMode);
    auto start = static_cast<std::size_t>(position - 1);
    checkAllocation(start + count, 1);
    if (f.out.size() < start + count) f.out.resize(start + count, 0);
    std::copy(bytes, bytes + count, f.out.begin() + static_cast<std::ptrdiff_t>(start));
}

void FileTable::Put(int number, int64_t position, std::vector<uint8_t>&& bytes) {
    auto& f = file(number);
    if (position == 1 && f.writing && f.out.empty()) {
        f.out = std::move(bytes);
        return;
    }
    Put(number, position, bytes.data(), bytes.size());
}

} // namespace vb
