#include <cstdlib>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "endtoend/PageExamples.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

// Projects outside of this one: a node that loads the installed library, and a platform whose headers are its own.

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

std::string quoted(const std::string& text)
{
    return "'" + text + "'";
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
    std::string complaintOf(const std::string& command) const
    {
        const std::string log = m_folder.pathOf("log");
        return std::system(("{ " + command + "; } >" + quoted(log) + " 2>&1").c_str()) == 0 ? "" : m_folder.read("log");
    }

    std::string configured(const std::string& source, const std::string& build, const std::string& options) const
    {
        const std::string toolchain = KEL_TOOLCHAIN;
        return quoted(KEL_CMAKE) + " -G Ninja -S " + quoted(source) + " -B " + quoted(m_folder.pathOf(build)) + " " +
               options + (toolchain.empty() ? "" : " --toolchain " + quoted(toolchain));
    }

    std::string installed() const
    {
        return m_folder.pathOf("installed");
    }

    void install() const
    {
        ASSERT_EQ("", complaintOf(quoted(KEL_CMAKE) + " --install " + quoted(KEL_BUILD) + " --prefix " +
                                  quoted(installed())));
    }

    /// Configures a project that looks for what is installed.
    std::string configuredWithTheInstalled(const std::string& source, const std::string& build,
                                           const std::string& options) const
    {
        return configured(source, build,
                          "-DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH -DCMAKE_PREFIX_PATH=" + quoted(installed()) + " " +
                              options);
    }

    /// What the example prints, built by CMake with what is installed; what went wrong where something did.
    std::string reportOfANodeByCMake(const std::string& flags) const
    {
        const std::string options = "-DCMAKE_CXX_FLAGS=" + quoted(flags);
        const std::string complaint = complaintOf(configuredWithTheInstalled(Node, "node", options) + " && " +
                                                  quoted(KEL_CMAKE) + " --build " + quoted(m_folder.pathOf("node")));
        return complaint.empty() ? outputOf(KEL_EMULATOR " " + quoted(m_folder.pathOf("node/node"))) : complaint;
    }

    /// The same by pkg-config and the compiler alone.
    std::string reportOfANodeByPkgConfig(const std::string& flags) const
    {
        const std::string libraries = installed() + "/" KEL_LIBRARIES;
        const std::string program = quoted(m_folder.pathOf("program"));
        const std::string complaint =
            complaintOf("export PKG_CONFIG_PATH=" + quoted(libraries + "/pkgconfig") + "; " KEL_CXX " -std=c++20 " +
                        flags + " " + quoted(Node) + "/*.cpp $(pkg-config --cflags --libs kel-debug-cmd) -Wl,-rpath," +
                        quoted(libraries) + " -o " + program);
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
    ASSERT_EQ(
        "", complaintOf("sed -i 's/modulationAndCodeName/nameInTheirWords/' " + quoted(headers) + "/kel_top_api/*.h"));
    // By the commands of the page, in a copy of what they need of the tree, for they build below it.
    const std::string tree = m_folder.pathOf("tree");
    std::filesystem::create_directory(tree);
    for (const std::string part : {"CMakeLists.txt", "CMakePresets.json", "cmake", "src"})
    {
        std::filesystem::copy(KEL_SOURCE_DIR "/" + part, m_folder.pathOf("tree/" + part),
                              std::filesystem::copy_options::recursive);
    }
    const std::string toolchain = KEL_TOOLCHAIN;
    // Ninja tells what was read.
    const std::string around = "cd " + quoted(tree) + " && export CMAKE_GENERATOR=Ninja" +
                               (toolchain.empty() ? "" : " && export CMAKE_TOOLCHAIN_FILE=" + quoted(toolchain)) +
                               " && ";
    const auto examples = examplesOf("docs/integration.md");
    EXPECT_EQ(3U, examples.size());
    for (const Example& example : examples)
    {
        const std::string command = replaced(example.command, "/path/to/headers", quoted(headers));
        ASSERT_EQ("", complaintOf(around + replaced(command, "/where/it/goes", quoted(installed())))) << command;
    }

    const std::string read = outputOf("ninja -C " + quoted(tree + "/build/mine") + " -t deps");
    EXPECT_THAT(read, HasSubstr(headers + "/framework/ModuleInterface.h"));
    EXPECT_THAT(read, HasSubstr(tree + "/src/Device/KelDebugCmd/KelDebugCmd.h"));
    EXPECT_THAT(read, Not(HasSubstr(KEL_SOURCE_DIR "/platform/")));

    // Without the platform's headers, which are somebody else's, and which a node adds by itself.
    EXPECT_TRUE(m_folder.has("installed/include/kel-debug-cmd/KelDebugCmd.h"));
    EXPECT_FALSE(m_folder.has("installed/include/kel-debug-cmd/platform"));
    EXPECT_THAT(m_folder.read("installed/" KEL_LIBRARIES "/pkgconfig/kel-debug-cmd.pc"), Not(HasSubstr("platform")));
    EXPECT_EQ(Report, reportOfANodeByCMake("-I" + headers));
    EXPECT_EQ(Report, reportOfANodeByPkgConfig("-I" + quoted(headers)));
}

} // namespace
