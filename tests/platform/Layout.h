#pragma once

#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

/// Counts the members of an aggregate: it can be made from that many values and from no more.
namespace member_count
{

struct AnyValue
{
    template <typename Type>
    operator Type() const;
};

template <typename Aggregate, typename... Values>
constexpr std::size_t of()
{
    if constexpr (requires { Aggregate{Values()..., AnyValue()}; })
    {
        return of<Aggregate, Values..., AnyValue>();
    }
    else
    {
        return sizeof...(Values);
    }
}

} // namespace member_count

/// Expects the members of a record at their places, with 64-bit and with 32-bit pointers (and strings of 32 and 24
/// bytes): one row per member in the record's order, and its size as the last row.
template <typename Record>
class Layout
{
public:
    /// Another type than the member's own does not compile, so every row tells the type as well.
    template <typename Member>
    Layout& member(const char* name, std::type_identity_t<Member> Record::*place, std::size_t on64, std::size_t on32)
    {
        const auto* const start = reinterpret_cast<const std::byte*>(&m_record);
        const auto* const found = reinterpret_cast<const std::byte*>(&(m_record.*place));
        EXPECT_EQ(static_cast<std::ptrdiff_t>(here(on64, on32)), found - start) << "offset of " << name;
        ++m_rows;
        return *this;
    }

    void size(std::size_t on64, std::size_t on32) const
    {
        EXPECT_EQ(here(on64, on32), sizeof(Record));
        if constexpr (std::is_aggregate_v<Record>)
        {
            EXPECT_EQ(m_rows, member_count::of<Record>()) << "a row for each member";
        }
    }

private:
    static constexpr std::size_t here(std::size_t on64, std::size_t on32)
    {
        static_assert(sizeof(void*) == 8 || sizeof(void*) == 4);
        return sizeof(void*) == 8 ? on64 : on32;
    }

    Record m_record{};
    std::size_t m_rows = 0;
};
