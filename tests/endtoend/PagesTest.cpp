#include <cstddef>
#include <filesystem>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/PageExamples.h"
#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

// Pages whose examples are carried out at a shell, each page's in a folder of its own, one after the other.

namespace
{

struct Page
{
    std::string path;
    std::size_t examples; ///< how many it has
};

std::ostream& operator<<(std::ostream& out, const Page& page)
{
    return out << page.path;
}

class PagesTest : public ::testing::TestWithParam<Page>
{
};

TEST_P(PagesTest, EveryExampleShowsWhatItPrints)
{
    const TemporaryFolder folder;
    // The program that was just built, by its name and in the place of the script that builds it.
    const std::string programs = std::filesystem::path(KEL_NODE).parent_path().string();
    std::filesystem::create_directory(folder.pathOf("script"));
    std::filesystem::create_symlink(KEL_NODE, folder.pathOf("script/run"));
    // GNU parallel asks to be cited, until somebody has said that they will.
    const std::string around = "cd '" + folder.path() + "' && HOME='" + folder.path() + "' PATH='" + programs +
                               "':$PATH SHELL=/bin/sh && export HOME PATH SHELL && ";
    const auto examples = examplesOf(GetParam().path);
    EXPECT_EQ(GetParam().examples, examples.size());
    for (const Example& example : examples)
    {
        const ShellRun run = runShell(around + "{ " + example.command + "\n} 2>complaints");
        EXPECT_EQ(example.output, withoutSourceLines(run.output)) << example.command << "\n"
                                                                  << folder.read("complaints");
        EXPECT_EQ(expectedStatus(example), run.status) << example.command;
    }
}

INSTANTIATE_TEST_SUITE_P(Docs, PagesTest,
                         ::testing::Values(Page{"docs/json.md", 2}, Page{"docs/many-runs.md", 12},
                                           Page{"docs/simulated-node.md", 1}),
                         [](const auto& page)
                         {
                             std::string name = std::filesystem::path(page.param.path).stem().string();
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
