#include "node/terminal/StateFolder.h"

#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace
{

/// Sets a variable of the environment, or takes it away, for as long as it lives.
class Variable
{
public:
    Variable(const char* name, const char* value) : m_name(name)
    {
        if (const char* const before = std::getenv(name))
        {
            m_before = before;
        }
        set(value);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable()
    {
        set(m_before ? m_before->c_str() : nullptr);
    }

private:
    void set(const char* value) const
    {
        value == nullptr ? unsetenv(m_name) : setenv(m_name, value, 1);
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

std::string stateFolderWith(const char* state, const char* home)
{
    const Variable stateHome("XDG_STATE_HOME", state);
    const Variable userHome("HOME", home);
    return node::terminal::stateFolder("program");
}

TEST(StateFolderTest, ItIsWhereTheUserKeepsState)
{
    EXPECT_EQ("/state/program", stateFolderWith("/state", "/home/me"));
    EXPECT_EQ("/state/program", stateFolderWith("/state", nullptr));
}

TEST(StateFolderTest, WithoutSuchAPlaceItIsAtHome)
{
    EXPECT_EQ("/home/me/.local/state/program", stateFolderWith(nullptr, "/home/me"));
    EXPECT_EQ("/home/me/.local/state/program", stateFolderWith("", "/home/me"));
    EXPECT_EQ("/home/me/.local/state/program", stateFolderWith("not/absolute", "/home/me"));
}

TEST(StateFolderTest, WithoutAHomeThereIsNone)
{
    EXPECT_EQ("", stateFolderWith(nullptr, nullptr));
    EXPECT_EQ("", stateFolderWith("not/absolute", ""));
}

} // namespace
