// Saving never costs the file that stood there: the new file is written beside the
// target and takes its place once whole; targets that are no writable regular file are refused
// without being opened. (That a huge old file is not read is checked through the save command.)
#include "platform/file_replace.h"
#include "platform/vb_error.h"
#include "support/test_support.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::test {
namespace {

namespace fs = std::filesystem;

// What replaceFile raised, or "" when it got through.
std::string replaceError(const std::string& path, const Bytes& bytes) {
    try {
        vb::replaceFile(path, bytes);
        return "";
    } catch (const vb::Error& e) {
        return e.what();
    }
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(folder))
        names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(FileReplace, ReplacesTheWholeFileKeepingItsPermissions) {
    TempDir dir;
    const std::string target = dir.write("skin.PCX", Bytes(5000, 0xAA));
    ::chmod(target.c_str(), 0640);
    EXPECT_EQ(replaceError(target, Bytes{1, 2, 3}), "");
    EXPECT_EQ(readFile(target), (Bytes{1, 2, 3}));
    EXPECT_EQ(fs::status(target).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"skin.PCX"});
    // A new name is made as any new file is.
    EXPECT_EQ(replaceError(dir.file("new.PCX"), Bytes{7}), "");
    EXPECT_EQ(readFile(dir.file("new.PCX")), Bytes{7});
}

TEST(FileReplace, RefusesTargetsThatAreNoWritableRegularFileWithoutOpeningThem) {
    TempDir dir;
    const std::string fifo = dir.file("pipe.PCX"), zero = dir.file("zero.PCX");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
    fs::create_symlink("/dev/zero", zero);
    const std::string readOnly = dir.write("kept.PCX", Bytes{9, 9});
    ::chmod(readOnly.c_str(), 0444);
    fs::create_directory(dir.file("folder.PCX"));
    // A pipe would block an open for writing; /dev/zero would never end a read.
    EXPECT_EQ(replaceError(fifo, Bytes{1}), "Not a regular file");
    EXPECT_EQ(replaceError(zero, Bytes{1}), "Not a regular file");
    // No write permission at all counts as read-only, for root too.
    EXPECT_EQ(replaceError(readOnly, Bytes{1}), "Permission denied");
    EXPECT_EQ(readFile(readOnly), (Bytes{9, 9}));
    EXPECT_EQ(replaceError(dir.file("folder.PCX"), Bytes{1}), "Is a directory");
    EXPECT_EQ(replaceError(dir.file("no/such/place.PCX"), Bytes{1}), "No such file or directory");
    EXPECT_EQ(replaceError("", Bytes{1}), "No file name");
    EXPECT_TRUE(fs::is_fifo(fifo));
    EXPECT_TRUE(fs::is_symlink(zero));
    EXPECT_EQ(namesIn(dir.path()),
              (std::vector<std::string>{"folder.PCX", "kept.PCX", "pipe.PCX", "zero.PCX"}));
}

// A full disk, as a file size limit gives it: the write fails part way.
TEST(FileReplace, AWriteThatFailsLeavesTheOldFileAndNoPartOfTheNewOne) {
    TempDir dir;
    const Bytes old(100, 0x55);
    const std::string target = dir.write("skin.PCX", old);
    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &saved), 0);
    rlimit small = saved;
    small.rlim_cur = 4096;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string error = replaceError(target, Bytes(100000, 1));
    const std::string fresh = replaceError(dir.file("fresh.PCX"), Bytes(100000, 1));
    ::setrlimit(RLIMIT_FSIZE, &saved);
    EXPECT_EQ(error, "File too large");
    EXPECT_EQ(fresh, "File too large");
    EXPECT_EQ(readFile(target), old);
    EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"skin.PCX"});
}

// A writable file in a folder that can't take a new file: the old file stays whole
// rather than being overwritten in place.
TEST(FileReplace, AFolderThatTakesNoNewFileLeavesTheOldOne) {
    TempDir dir;
    const fs::path folder = dir.path() / "locked";
    fs::create_directory(folder);
    const std::string target = (folder / "skin.PCX").string();
    { std::ofstream(target, std::ios::binary) << "old skin"; }
    ::chmod(folder.c_str(), 0555);
    // Root ignores the folder's mode; an immutable folder stops it too, where the file
    // system has the flag.
    int fd = -1, flags = 0;
    if (::access(folder.c_str(), W_OK) == 0) {
        fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
        if (fd < 0 || ::ioctl(fd, FS_IOC_GETFLAGS, &flags) != 0) flags = -1;
        int locked = flags | FS_IMMUTABLE_FL;
        if (flags == -1 || ::ioctl(fd, FS_IOC_SETFLAGS, &locked) != 0) {
            if (fd >= 0) ::close(fd);
            ::chmod(folder.c_str(), 0755);
            GTEST_SKIP() << "no way to make a folder read-only here";
        }
    }
    const std::string error = replaceError(target, Bytes{1, 2, 3});
    if (fd >= 0) {
        ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
        ::close(fd);
    }
    ::chmod(folder.c_str(), 0755);
    EXPECT_NE(error, "");
    const Bytes kept = readFile(target);
    EXPECT_EQ(std::string(kept.begin(), kept.end()), "old skin");
    EXPECT_EQ(namesIn(folder), std::vector<std::string>{"skin.PCX"});
}

} // namespace
} // namespace tavrin::test
