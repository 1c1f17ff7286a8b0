#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "support/Shell.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

TEST(InstallTest, WhatIsInstalledWorksFromWhereItIs)
{
    const TemporaryFolder folder;
    const std::string install = "\"" KEL_CMAKE "\" --install \"" KEL_BUILD "\" --prefix " + folder.path();
    ASSERT_EQ(0, std::system((install + " >/dev/null").c_str()));
    for (const std::string file :
         {KEL_LIBRARIES "/libKelKelDebugCmd.so", KEL_LIBRARIES "/libKelKelDebugCmd.so." KEL_INTERFACE_VERSION,
          KEL_LIBRARIES "/libKelKelDebugCmd.so." KEL_VERSION, "include/kel-debug-cmd/platform/trace/VemTrace.h",
          "share/man/man1/kel-node.1", "share/bash-completion/completions/kel-node",
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

/// The number of the binary interface that a version has, and which other versions fit it.
std::string interfaceOf(const std::string& major, const std::string& minor)
{
    const TemporaryFolder folder;
    const std::string script =
        folder.write("script.cmake", "include(" KEL_SOURCE_DIR "/cmake/InterfaceVersion.cmake)\n"
                                     "message(\"${KEL_INTERFACE_VERSION} ${KEL_COMPATIBILITY}\")");
    return inShell(KEL_CMAKE " -DPROJECT_VERSION_MAJOR=" + major + " -DPROJECT_VERSION_MINOR=" + minor + " -P " +
                   shellWord(script))
        .output;
}

TEST(InstallTest, NumberOfTheInterfaceFollowsTheVersion)
{
    EXPECT_EQ("0.1 SameMinorVersion\n", interfaceOf("0", "1"));
    EXPECT_EQ("0.12 SameMinorVersion\n", interfaceOf("0", "12"));
    EXPECT_EQ("1 SameMajorVersion\n", interfaceOf("1", "0"));
    EXPECT_EQ("12 SameMajorVersion\n", interfaceOf("12", "3"));
}

} // namespace
