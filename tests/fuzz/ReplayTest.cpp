#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fuzz/Target.h"

namespace fs = std::filesystem;

namespace
{

/// The kept inputs of the target, of that kind, by name.
std::vector<fs::path> inputs(const std::string& kind)
{
    std::vector<fs::path> files;
    std::error_code absent; // there need not have been a finding
    for (const auto& entry : fs::directory_iterator(fs::path(KEL_SOURCE_DIR) / "fuzz" / kind / KEL_FUZZ_TARGET, absent))
    {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<fs::path> all()
{
    std::vector<fs::path> files = inputs("seeds");
    const std::vector<fs::path> findings = inputs("findings");
    files.insert(files.end(), findings.begin(), findings.end());
    return files;
}

/// "seeds_getCtStatus_refused"
std::string nameOf(const fs::path& input)
{
    std::string name = input.parent_path().parent_path().filename().string() + "_" + input.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return std::isalnum(letter) == 0; }, '_');
    return name;
}

class ReplayTest : public ::testing::TestWithParam<fs::path>
{
};

TEST_P(ReplayTest, FindsNothing)
{
    std::ifstream file(GetParam(), std::ios::binary);
    ASSERT_TRUE(file.is_open());
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    EXPECT_NO_THROW(LLVMFuzzerTestOneInput(input.data(), input.size())) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Kept, ReplayTest, ::testing::ValuesIn(all()),
                         [](const auto& input) { return nameOf(input.param); });

TEST(ReplayedTest, ThereAreSeeds)
{
    EXPECT_FALSE(inputs("seeds").empty());
}

} // namespace
