#include "platform/file_replace.h"

#include "platform/vb_error.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vb {

namespace {

[[noreturn]] void fail(const std::string& reason) { throw Error(PathFileAccess, reason); }
[[noreturn]] void failWithErrno(int error) { fail(std::strerror(error)); }

std::string folderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

// The target's state when it exists; nullopt-like false when it doesn't.
bool statTarget(const std::string& path, struct stat& st) {
    if (::stat(path.c_str(), &st) == 0) return true;
    if (errno != ENOENT) failWithErrno(errno);
    return false;
}

// A name beside target that no file of this folder is likely to hold: hidden, and made
// unique by the process and a counter.
std::string sideName(const std::string& target, const char* tag) {
    static std::atomic<unsigned> counter{0};
    const std::filesystem::path p(target);
    return (std::filesystem::path(folderOf(target)) /
            ("." + p.filename().string() + "." + tag + "-" + std::to_string(::getpid()) + "-" +
             std::to_string(counter++)))
        .string();
}

// A file descriptor closed (and its file removed) unless the write got through.
class NewFile {
public:
    explicit NewFile(const std::string& target) {
        for (int attempt = 0; attempt < 100; ++attempt) {
            path_ = sideName(target, "saving");
            // 0666 less the umask, as any new file gets; an existing target's own mode is
            // put on it before the rename.
            fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (fd_ >= 0) return;
            if (errno != EEXIST) failWithErrno(errno);
        }
        fail("No free name for the new file");
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (fd_ >= 0) ::close(fd_);
        if (!kept_) ::unlink(path_.c_str());
    }

    void write(std::span<const uint8_t> bytes) {
        while (!bytes.empty()) {
            const ssize_t n = ::write(fd_, bytes.data(), bytes.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) failWithErrno(n < 0 ? errno : ENOSPC);
            bytes = bytes.subspan(static_cast<std::size_t>(n));
        }
    }
    void takeModeOf(const struct stat& st) {
        if (::fchmod(fd_, st.st_mode & 07777) != 0) failWithErrno(errno);
        // Only root can give the file away; for anyone else the owner is already right.
        static_cast<void>(::fchown(fd_, st.st_uid, st.st_gid));
    }
    void close() {
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) failWithErrno(errno); // where a network disk reports a full disk
    }
    // Gives the file the target's name, which must be free by now.
    void renameTo(const std::string& target) {
        if (::rename(path_.c_str(), target.c_str()) != 0) failWithErrno(errno);
        kept_ = true;
    }

private:
    std::string path_;
    int fd_ = -1;
    bool kept_ = false;
};

} // namespace

void checkReplaceable(const std::string& path) {
    if (path.empty()) fail("No file name");
    struct stat st {};
    if (statTarget(path, st)) {
        if (S_ISDIR(st.st_mode)) failWithErrno(EISDIR);
        if (!S_ISREG(st.st_mode)) fail("Not a regular file");
        if (::access(path.c_str(), W_OK) != 0 || (st.st_mode & 0222) == 0) failWithErrno(EACCES);
    }
    const std::string folder = folderOf(path);
    struct stat dir {};
    if (::stat(folder.c_str(), &dir) != 0) failWithErrno(errno);
    if (!S_ISDIR(dir.st_mode)) failWithErrno(ENOTDIR);
    if (::access(folder.c_str(), W_OK) != 0) failWithErrno(errno);
}

void replaceFile(const std::string& path, std::span<const uint8_t> bytes) {
    // A file size limit must fail the write with EFBIG, not end the program.
    static const bool ignored = std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
    static_cast<void>(ignored);
    checkReplaceable(path);
    struct stat st {};
    const bool existed = statTarget(path, st);
    NewFile file(path);
    file.write(bytes);
    if (existed) file.takeModeOf(st);
    file.close();
    if (!existed) {
        file.renameTo(path);
        return;
    }
    // The old file steps aside, the new one takes its name, and only then is the old one
    // removed; a failure in between puts the old one back. Renamed straight over the old
    // file, the new one would be written out to the disk at once (ext4 does so, against
    // a crash before its data is there), which makes a save cost several times its write.
    const std::string aside = sideName(path, "old");
    if (::rename(path.c_str(), aside.c_str()) != 0) failWithErrno(errno);
    try {
        file.renameTo(path);
    } catch (const Error&) {
        static_cast<void>(::rename(aside.c_str(), path.c_str()));
        throw;
    }
    static_cast<void>(::unlink(aside.c_str()));
}

} // namespace vb
