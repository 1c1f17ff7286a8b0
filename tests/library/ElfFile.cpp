#include "library/ElfFile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace
{

std::string outputOf(const std::string& command)
{
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
    {
        throw std::runtime_error("cannot run " + command);
    }
    std::string output;
    std::array<char, 4096> piece{};
    for (std::size_t length = 0; (length = fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    {
        output.append(piece.data(), length);
    }
    if (pclose(pipe) != 0)
    {
        throw std::runtime_error("failed: " + command);
    }
    return output;
}

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (auto place = text.find(from); place != std::string::npos; place = text.find(from, place))
    {
        text.replace(place, from.size(), to);
    }
}

std::string shortName(std::string name)
{
    replaceAll(name, "> >", ">>");
    replaceAll(name, "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char>>", "std::string");
    replaceAll(name, "[abi:cxx11]", "");
    return name;
}

} // namespace

ElfFile::ElfFile(const std::string& path)
{
    std::istringstream table(outputOf(KEL_READELF " -W -d --dyn-syms -C '" + path + "'"));
    // "12: 0000000000001139 42 FUNC GLOBAL DEFAULT 12 name", the name of an undefined one with its version's number
    const std::regex symbol(R"(\s*\d+: [0-9a-f]+ +\w+ \w+ +(\w+) +\w+ +(?:\[.*\] +)?(\w+) (.+?)(?: \(\d+\))?)");
    // " 0x0000000000000001 (NEEDED)   Shared library: [libc.so.6]"
    const std::regex entry(R"(\s*0x[0-9a-f]+ \((\w+)\) +(?:.*\[(.*)\]|(.*)))");
    std::smatch part;
    for (std::string line; std::getline(table, line);)
    {
        if (std::regex_match(line, part, symbol))
        {
            const bool isDefined = part[2] != "UND";
            const bool counts = isDefined ? part[1] != "LOCAL" : part[1] == "GLOBAL";
            if (counts)
            {
                (isDefined ? m_defined : m_undefined).insert(shortName(part[3]));
            }
        }
        else if (std::regex_match(line, part, entry))
        {
            m_dynamic.emplace_back(part[1], part[2].matched ? part[2] : part[3]);
        }
    }
}

const std::set<std::string>& ElfFile::defined() const
{
    return m_defined;
}

const std::set<std::string>& ElfFile::undefined() const
{
    return m_undefined;
}

std::vector<std::string> ElfFile::dynamic(const std::string& tag) const
{
    std::vector<std::string> values;
    for (const auto& [entryTag, value] : m_dynamic)
    {
        if (entryTag == tag)
        {
            values.push_back(value);
        }
    }
    return values;
}

bool ElfFile::isInstrumented() const
{
    const std::regex sanitizer("__(asan|ubsan|tsan|msan|lsan|sanitizer)_.*");
    return std::any_of(m_undefined.begin(), m_undefined.end(),
                       [&](const std::string& name) { return std::regex_match(name, sanitizer); });
}
