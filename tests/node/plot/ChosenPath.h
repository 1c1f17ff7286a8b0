#pragma once

#include <cstdlib>
#include <string>

/// The PATH of the process, for as long as the object lives.
class ChosenPath
{
public:
    /// "" where there is none.
    static std::string current()
    {
        const char* const path = std::getenv("PATH");
        return path == nullptr ? "" : path;
    }

    explicit ChosenPath(const std::string& path) : m_before(current())
    {
        setenv("PATH", path.c_str(), 1);
    }

    ~ChosenPath()
    {
        setenv("PATH", m_before.c_str(), 1);
    }

    ChosenPath(const ChosenPath&) = delete;
    ChosenPath& operator=(const ChosenPath&) = delete;

private:
    std::string m_before;
};
