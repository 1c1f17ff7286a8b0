#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "endtoend/PageExamples.h"
#include "support/Shell.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

// Projects outside of this one: a node that loads the installed library, and a platform whose headers are its own.

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

/// The text with a value behind it; nothing without a value.
std::string option(const std::string& text, const std::string& value)
{
    return value.empty() ? "" : text + shellWord(value);
}

/// The text with something else in each place of `what`.
std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    for (auto place = text.find(what); place != std::string::npos; place = text.find(what, place + with.size()))
    {
        text.replace(place, what.size(), with);
    }
    return text;
}

class ConsumerTest : public ::testing::Test
{
protected:
    /// Runs a command of the shell to its end; what it said where it failed.
    static std::string complaintOf(const std::string& command)
    {
        const Ended ended = inShell(command);
        return ended.status == 0 ? "" : ended.output;
    }

    std::string configured(const std::string& source, const std::string& build, const std::string& options) const
    {
        return shellWord(KEL_CMAKE) + " -G Ninja -S " + shellWord(source) + " -B " + shellWord(m_folder.pathOf(build)) +
               " " + options + option(" --toolchain ", KEL_TOOLCHAIN);
    }

    std::string installed() const
    {
        return m_folder.pathOf("installed");
    }

    void install() const
    {
        ASSERT_EQ("", complaintOf(shellWord(KEL_CMAKE) + " --install " + shellWord(KEL_BUILD) + " --prefix " +
                                  shellWord(installed())));
    }

    /// Configures a project that looks for what is installed.
    std::string configuredWithTheInstalled(const std::string& source, const std::string& build,
                                           const std::string& options) const
    {
        return configured(source, build,
                          "-DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH -DCMAKE_PREFIX_PATH=" + shellWord(installed()) +
                              " " + options);
    }

    /// What the example prints, built by CMake with what is installed; what went wrong where something did.
    std::string reportOfANodeByCMake(const std::string& flags) const
    {
        const std::string options = "-DCMAKE_CXX_FLAGS=" + shellWord(flags);
        const std::string complaint =
            complaintOf(configuredWithTheInstalled(Node, "node", options) + " && " + shellWord(KEL_CMAKE) +
                        " --build " + shellWord(m_folder.pathOf("node")));
        return complaint.empty() ? outputOf(KEL_EMULATOR " " + shellWord(m_folder.pathOf("node/node"))) : complaint;
    }

    /// The same by pkg-config and the compiler alone.
    std::string reportOfANodeByPkgConfig(const std::string& flags) const
    {
        const std::string libraries = installed() + "/" KEL_LIBRARIES;
        const std::string program = shellWord(m_folder.pathOf("program"));
        const std::string complaint = complaintOf("export PKG_CONFIG_PATH=" + shellWord(libraries + "/pkgconfig") +
                                                  "; " KEL_CXX " -std=c++20 " + flags + " " + shellWord(Node) +
                                                  "/*.cpp $(pkg-config --cflags --libs kel-debug-cmd) -Wl,-rpath," +
                                                  shellWord(libraries) + " -o " + program);
        return complaint.empty() ? outputOf(KEL_EMULATOR " " + program) : complaint;
    }

    /// What configuring says of a project that asks for a version; "" where it is found.
    std::string complaintOfAskingFor(const std::string& version) const
    {
        m_folder.write("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\nproject(Other LANGUAGES CXX)\n"
                                         "find_package(KelDebugCmd " +
                                             version + " REQUIRED)\n");
        return complaintOf(configuredWithTheInstalled(m_folder.path(), "other", "--fresh"));
    }

    static std::string outputOf(const std::string& command)
    {
        return Terminal({"/bin/sh", "-c", command}).readToTheEnd();
    }

    static constexpr auto Node = KEL_SOURCE_DIR "/examples/node";

    TemporaryFolder m_folder;
};

constexpr auto Report = "PPS hop length time[nsec]: 16678\r\n";

TEST_F(ConsumerTest, ANodeFindsTheInstalledLibraryByCMake)
{
    install();
    EXPECT_EQ(Report, reportOfANodeByCMake(KEL_SANITIZERS));
}

TEST_F(ConsumerTest, ANodeFindsTheInstalledLibraryByPkgConfig)
{
    install();
    EXPECT_EQ(Report, reportOfANodeByPkgConfig(KEL_SANITIZERS));
}

TEST_F(ConsumerTest, OnlyAVersionOfTheSameInterfaceIsFound)
{
    install();
    EXPECT_EQ("", complaintOfAskingFor(KEL_VERSION));
    EXPECT_EQ("", complaintOfAskingFor(KEL_INTERFACE_VERSION));
    EXPECT_THAT(complaintOfAskingFor("99"), HasSubstr("compatible with requested version"));
}

TEST_F(ConsumerTest, TheModuleIsBuiltWithTheHeadersOfAnotherPlatform)
{
    const std::string headers = m_folder.pathOf("closed");
    std::filesystem::copy(KEL_SOURCE_DIR "/platform", headers, std::filesystem::copy_options::recursive);
    // What the records have in common is their own affair.
    ASSERT_EQ("", complaintOf("sed -i 's/modulationAndCodeName/nameInTheirWords/' " + shellWord(headers) +
                              "/kel_top_api/*.h"));
    // By the commands of the page, in a copy of what they need of the tree, for they build below it.
    const std::string tree = m_folder.pathOf("tree");
    std::filesystem::create_directory(tree);
    for (const std::string part : {"CMakeLists.txt", "CMakePresets.json", "cmake", "src"})
    {
        std::filesystem::copy(KEL_SOURCE_DIR "/" + part, m_folder.pathOf("tree/" + part),
                              std::filesystem::copy_options::recursive);
    }
    // Ninja tells what was read.
    const std::string around = "cd " + shellWord(tree) + " && export CMAKE_GENERATOR=Ninja" +
                               option(" && export CMAKE_TOOLCHAIN_FILE=", KEL_TOOLCHAIN) + " && ";
    const auto examples = examplesOf("docs/integration.md");
    EXPECT_EQ(3U, examples.size());
    for (const Example& example : examples)
    {
        const std::string command = replaced(example.command, "/path/to/headers", shellWord(headers));
        ASSERT_EQ("", complaintOf(around + replaced(command, "/where/it/goes", shellWord(installed())))) << command;
    }

    const std::string read = outputOf("ninja -C " + shellWord(tree + "/build/mine") + " -t deps");
    EXPECT_THAT(read, HasSubstr(headers + "/framework/ModuleInterface.h"));
    EXPECT_THAT(read, HasSubstr(tree + "/src/Device/KelDebugCmd/KelDebugCmd.h"));
    EXPECT_THAT(read, Not(HasSubstr(KEL_SOURCE_DIR "/platform/")));

    // Without the platform's headers, which are somebody else's, and which a node adds by itself.
    EXPECT_TRUE(m_folder.has("installed/include/kel-debug-cmd/KelDebugCmd.h"));
    EXPECT_FALSE(m_folder.has("installed/include/kel-debug-cmd/platform"));
    EXPECT_THAT(m_folder.read("installed/" KEL_LIBRARIES "/pkgconfig/kel-debug-cmd.pc"), Not(HasSubstr("platform")));
    EXPECT_EQ(Report, reportOfANodeByCMake("-I" + headers));
    EXPECT_EQ(Report, reportOfANodeByPkgConfig("-I" + shellWord(headers)));
}

} // namespace
