#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// The slot of a virtual operation in its class's virtual table, counted from 0. `Signature` is the operation's own:
/// another one does not compile.
///
/// The destructor has two entries, one that destroys the object and one that deletes it as well, and no name to point
/// at: where it is declared first, the first operation has slot 2.
template <typename Signature, typename Class>
std::size_t slotOf(Signature Class::*operation)
{
    std::array<std::uintptr_t, 2> words{};
    static_assert(sizeof operation == sizeof words);
    std::memcpy(words.data(), &operation, sizeof words);
    // The first word is the offset in the table, most often marked as such by bit 0. Where code addresses need that bit
    // for themselves (ARM), the mark is in the second word. The address of an operation that is not virtual is no slot.
    return (words[0] & ~std::uintptr_t{1}) / sizeof(void*);
}

/// A class with one virtual operation more.
template <typename Class>
struct Successor : Class
{
    virtual void next() = 0;
};

/// How many slots the virtual table of `Class` has: the next operation would get that number.
template <typename Class>
std::size_t slotsOf()
{
    return slotOf<void()>(&Successor<Class>::next);
}
