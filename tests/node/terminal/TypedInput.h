#pragma once

#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "node/terminal/Descriptor.h"

/// Standard input whose bytes come from the test, through a pipe, for as long as it lives.
class TypedInput
{
public:
    TypedInput()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0 || dup2(ends[0], STDIN_FILENO) < 0)
        {
            throw std::system_error(errno, std::generic_category(), "pipe");
        }
        close(ends[0]);
        m_keys.emplace(ends[1]);
    }

    TypedInput(const TypedInput&) = delete;
    TypedInput& operator=(const TypedInput&) = delete;

    ~TypedInput()
    {
        dup2(m_before.get(), STDIN_FILENO);
    }

    void type(const std::string& keys) const
    {
        EXPECT_EQ(static_cast<ssize_t>(keys.size()), write(m_keys->get(), keys.data(), keys.size()));
    }

    void end()
    {
        m_keys.reset();
    }

private:
    node::terminal::Descriptor m_before{dup(STDIN_FILENO)};
    std::optional<node::terminal::Descriptor> m_keys;
};
