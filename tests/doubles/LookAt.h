#pragma once

#include <cstddef>
#include <string>

namespace doubles
{

/// Looks at every byte of a value that left the module. Under valgrind, with its memcheck.h included by the build, a
/// byte that was never set is reported; elsewhere nothing happens. Records come member by member: padding is nobody's.
template <typename Value>
void lookAt([[maybe_unused]] const Value& value)
{
#ifdef VALGRIND_CHECK_MEM_IS_DEFINED
    (void)VALGRIND_CHECK_MEM_IS_DEFINED(&value, sizeof value);
#endif
}

inline void lookAt([[maybe_unused]] const char* data, [[maybe_unused]] std::size_t length)
{
#ifdef VALGRIND_CHECK_MEM_IS_DEFINED
    (void)VALGRIND_CHECK_MEM_IS_DEFINED(data, length);
#endif
}

/// Looks at its letters, for a short string has room that is not used.
inline void lookAt(const std::string& text)
{
    lookAt(text.data(), text.size());
}

} // namespace doubles
