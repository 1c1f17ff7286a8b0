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

std::vector<std::string> valuesOf(const std::vector<std::pair<std::string, std::string>>& rows, const std::string& name)
{
    std::vector<std::string> values;
    for (const auto& [rowName, value] : rows)
    {
        if (rowName == name)
        {
            values.push_back(value);
        }
    }
    return values;
}

} // namespace

ElfFile::ElfFile(const std::string& path)
{
    std::istringstream table(outputOf(KEL_READELF " -W -l -d --dyn-syms -C '" + path + "'"));
    // "12: 0000000000001139 42 FUNC GLOBAL DEFAULT 12 name", the name of an undefined one with its version's number
    const std::regex symbol(R"(\s*\d+: [0-9a-f]+ +\w+ \w+ +(\w+) +\w+ +(?:\[.*\] +)?(\w+) (.+?)(?: \(\d+\))?)");
    // " 0x0000000000000001 (NEEDED)   Shared library: [libc.so.6]"
    const std::regex entry(R"(\s*0x[0-9a-f]+ \((\w+)\) +(?:.*\[(.*)\]|(.*)))");
    // "  GNU_STACK      0x000000 0x0000000000000000 0x0000000000000000 0x000000 0x000000 RW  0x10"
    const std::regex segment(R"(\s*(\w+) +(?:0x[0-9a-f]+ +){5}([RWE ]+?) +(?:0x)?[0-9a-f]+)");
    const std::string type = "Elf file type is ";
    std::smatch part;
    for (std::string line; std::getline(table, line);)
    {
        if (line.starts_with(type))
        {
            m_type = line.substr(type.size());
        }
        else if (std::regex_match(line, part, symbol))
        {
            const bool isDefined = part[2] != "UND";
            const bool counts = isDefined ? part[1] != "LOCAL" : part[1] == "GLOBAL";
            if (counts)
            {
                (isDefined ? m_defined : m_undefined).insert(shortName(part[3]));
            }
        }
        else if (std::regex_match(line, part, segment))
        {
            m_segments.emplace_back(part[1], part[2]);
        }
        else if (std::regex_match(line, part, entry))
        {
            m_dynamic.emplace_back(part[1], part[2].matched ? part[2] : part[3]);
        }
    }
}

const std::string& ElfFile::type() const
{
    return m_type;
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
    return valuesOf(m_dynamic, tag);
}

std::vector<std::string> ElfFile::segments(const std::string& type) const
{
    return valuesOf(m_segments, type);
}

bool ElfFile::isInstrumented() const
{
    const std::regex sanitizer("__(asan|ubsan|tsan|msan|lsan|sanitizer)_.*");
    return std::any_of(m_undefined.begin(), m_undefined.end(),
                       [&](const std::string& name) { return std::regex_match(name, sanitizer); });
}
