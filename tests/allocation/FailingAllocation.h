#pragma once

#include <cstddef>
#include <ostream>

/// Every operator new and delete of the program, those of its libraries too: counted, and failing on request.
namespace allocation
{

enum class Failing
{
    Once,       ///< memory is there again for the next allocation
    FromThenOn, ///< it stays away
};

inline std::ostream& operator<<(std::ostream& out, Failing failing)
{
    return out << (failing == Failing::Once ? "FailingOnce" : "FailingFromThenOn");
}

/// Makes allocation number `index` (counted from 0 and from now) throw std::bad_alloc, while the object lives.
class Failure
{
public:
    Failure(std::size_t index, Failing failing);
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;
    ~Failure();

    /// True when so many allocations were made that it struck.
    bool struck() const;
};

/// How many blocks are allocated and not released.
std::size_t blocksInUse();

/// False under a tool that brings its own operators: there is nothing to test then.
bool areOperatorsOurs();

} // namespace allocation
