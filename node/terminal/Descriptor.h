#pragma once

#include <utility>

#include <unistd.h>

namespace node::terminal
{

/// Owns a file descriptor.
class Descriptor
{
public:
    explicit Descriptor(int descriptor = -1) : m_descriptor(descriptor)
    {
    }

    Descriptor(Descriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    ~Descriptor()
    {
        if (isOpen())
        {
            close(m_descriptor);
        }
    }

    bool isOpen() const
    {
        return m_descriptor >= 0;
    }

    int get() const
    {
        return m_descriptor;
    }

private:
    int m_descriptor;
};

} // namespace node::terminal
