#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <new>

/// A record as its declaration alone makes it, in memory that held something else before: a member that is given no
/// value shows it. A temporary would not do: it is cleared first where the record has no constructor of its own.
template <typename Record>
class Fresh
{
public:
    Fresh() = default;

    ~Fresh()
    {
        std::destroy_at(m_record);
    }

    Fresh(const Fresh&) = delete;
    Fresh& operator=(const Fresh&) = delete;

    Record* operator->()
    {
        return m_record;
    }

    const Record* operator->() const
    {
        return m_record;
    }

private:
    void* filledMemory()
    {
        m_memory.fill(std::byte{0xA5});
        return m_memory.data();
    }

    alignas(Record) std::array<std::byte, sizeof(Record)> m_memory{};
    Record* m_record = ::new (filledMemory()) Record;
};
