#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include <unistd.h>

/// A folder of ready scenarios in place of the project's, for as long as a test runs.
class ScenarioFolderTest : public ::testing::Test
{
protected:
    ScenarioFolderTest()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "scenarios-XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
        setenv("KEL_NODE_SCENARIOS", m_folder.c_str(), 1);
    }

    ~ScenarioFolderTest() override
    {
        unsetenv("KEL_NODE_SCENARIOS");
        std::filesystem::remove_all(m_folder);
    }

    std::string pathOf(const std::string& name) const
    {
        return (m_folder / name).string();
    }

    void write(const std::string& name, const std::string& text) const
    {
        std::ofstream(pathOf(name), std::ios::binary) << text;
    }

    void makeFolder(const std::string& name) const
    {
        std::filesystem::create_directory(pathOf(name));
    }

private:
    std::filesystem::path m_folder;
};
