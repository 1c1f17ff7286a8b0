#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

/// A folder of its own for a test; gone with the test.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "kel-node-test.XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
        {
            throw std::system_error(errno, std::generic_category(), name);
        }
        m_path = name;
    }

    ~TemporaryFolder()
    {
        std::error_code leftBehind; // a destructor does not complain
        std::filesystem::remove_all(m_path, leftBehind);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const
    {
        return m_path.string();
    }

    std::string pathOf(const std::string& name) const
    {
        return (m_path / name).string();
    }

    /// Writes a file. @return its path
    std::string write(const std::string& name, const std::string& content) const
    {
        std::ofstream(m_path / name, std::ios::binary) << content;
        return pathOf(name);
    }

    bool has(const std::string& name) const
    {
        return std::filesystem::exists(m_path / name);
    }

    std::string read(const std::string& name) const
    {
        std::ifstream file(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path m_path;
};
