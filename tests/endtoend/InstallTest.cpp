#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "node/commands/TemporaryFolder.h"
#include "terminal/Terminal.h"

namespace
{

TEST(InstallTest, WhatIsInstalledWorksFromWhereItIs)
{
    const TemporaryFolder folder;
    const std::string install = "\"" KEL_CMAKE "\" --install \"" KEL_BUILD "\" --prefix " + folder.path();
    ASSERT_EQ(0, std::system((install + " >/dev/null").c_str()));
    for (const std::string file : {"share/man/man1/kel-node.1", "share/bash-completion/completions/kel-node",
                                   "share/kel-node/scenarios/rain-front.toml"})
    {
        EXPECT_TRUE(std::filesystem::is_regular_file(folder.pathOf(file))) << file;
    }
    // Only the installed folder has this one.
    std::filesystem::copy_file(folder.pathOf("share/kel-node/scenarios/clear-sky.toml"),
                               folder.pathOf("share/kel-node/scenarios/of-this-house.toml"));
    const std::string program = KEL_EMULATOR " " + folder.pathOf("bin/kel-node");
    const Terminal terminal({"/bin/sh", "-c", program + " -s of-this-house getXpicPreamble 1"});
    EXPECT_EQ("0\r\n", terminal.readToTheEnd());
}

} // namespace
