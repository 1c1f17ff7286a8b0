#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "node/reference/ManPage.h"
#include "support/Shell.h"

namespace
{

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ManPageTest, IsBuiltWithTheProgramOfThisVersion)
{
    const std::string page = contentOf(KEL_MAN_PAGE);
    const std::string head = ".TH KEL\\-NODE 1 \"";
    ASSERT_TRUE(page.starts_with(head));
    const std::string date = page.substr(head.size(), std::string("2026-01-31").size());
    EXPECT_EQ(node::reference::manPage(KEL_VERSION, date), page);
}

TEST(ManPageTest, EachExampleDoesWhatItSays)
{
    const std::string path = "PATH=" + shellWord(std::filesystem::path(KEL_NODE).parent_path()) + ":$PATH; ";
    for (const auto& example : node::reference::shellExamples())
    {
        const Ended ended = inShell(path + example.line);
        EXPECT_EQ(0, ended.status) << example.line;
        EXPECT_NE("", ended.output) << example.line;
        EXPECT_EQ(std::string::npos, ended.output.find("kel-node: ")) << ended.output;
    }
}

} // namespace
