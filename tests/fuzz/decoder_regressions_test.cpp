// The decoder-level fuzz checks, run over the inputs fuzzing kept for them in
// tests/data/regressions/<target>/ and over every test file and real file, whatever its
// kind: a decoder takes any bytes, and a check that refused a good file would make every
// input a finding.
#include "fuzz/decoder_checks.h"
#include "support/test_support.h"

#include <filesystem>

namespace tavrin::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesUnder(const fs::path& folder) {
    std::vector<fs::path> files;
    if (fs::is_directory(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file()) files.push_back(entry.path());
    return files;
}

TEST(DecoderRegressions, EveryCheckPassesItsFoundInputsAndTheTestFiles) {
    const fs::path data(TAVRIN_TEST_DATA);
    ASSERT_GE(fuzz::decoderTargets().size(), 4u);
    for (const fuzz::DecoderTarget& target : fuzz::decoderTargets()) {
        std::vector<fs::path> files = filesUnder(data / "regressions" / target.name);
        for (const auto& entry : fs::directory_iterator(data))
            if (entry.is_regular_file()) files.push_back(entry.path());
        files.push_back(TAVRIN_PALETTE_FILE);
        // Files made by other programs, when they are here.
        for (const fs::path& file : filesUnder(TAVRIN_REALDATA))
            if (file.extension() != ".png" && file.extension() != ".jpg") files.push_back(file);
        for (const fs::path& file : files) {
            const Bytes bytes = readFile(file.string());
            std::string fault;
            EXPECT_NO_THROW(fault = target.check(bytes)) << target.name << " " << file;
            EXPECT_EQ(fault, "") << target.name << " " << file;
            // Cut short, as a damaged copy would be.
            const Bytes cut(bytes.begin(), bytes.begin() + static_cast<long>(bytes.size() / 2));
            EXPECT_EQ(target.check(cut), "") << target.name << " " << file << " cut";
        }
    }
}

} // namespace
} // namespace tavrin::test
