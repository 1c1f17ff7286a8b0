#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

/// The dynamic part of a shared library or a program, as readelf shows it. C++ names are demangled and written the
/// short way: "std::string", no ABI tags.
class ElfFile
{
public:
    /// @throws std::runtime_error when readelf cannot read the file
    explicit ElfFile(const std::string& path);

    /// Names that the library offers to others.
    const std::set<std::string>& defined() const;

    /// Names that others have to offer; those with a version come with it, as "name@GLIBC_2.2.5". Weak ones, which may
    /// stay without anyone to offer them, are left out.
    const std::set<std::string>& undefined() const;

    /// What kind of file it is, such as "DYN (Shared object file)".
    const std::string& type() const;

    /// Values of the dynamic section's entries of that tag, such as "NEEDED".
    std::vector<std::string> dynamic(const std::string& tag) const;

    /// Flags of the segments of that type, such as "GNU_STACK": "RW", "R E".
    std::vector<std::string> segments(const std::string& type) const;

    /// True when the library was built with a sanitizer: it then wants the sanitizer's names and libraries as well.
    bool isInstrumented() const;

private:
    std::string m_type;
    std::set<std::string> m_defined;
    std::set<std::string> m_undefined;
    std::vector<std::pair<std::string, std::string>> m_dynamic;
    std::vector<std::pair<std::string, std::string>> m_segments;
};
