#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/PageTable.h"

// docs/integration.md lists the platform's headers that the module includes, and the names of each that it uses.

namespace
{

namespace fs = std::filesystem;

using ::testing::IsSupersetOf;
using Names = std::set<std::string>;

const fs::path Platform = fs::path(KEL_SOURCE_DIR) / "platform";
const fs::path Module = fs::path(KEL_SOURCE_DIR) / "src/Device/KelDebugCmd";

/// Names that the module has of the standard library or of its own, and that happen to stand in the platform's too.
const Names OfBothByChance = {"append", "data", "end", "line", "nameOf", "resize", "size"};

/// A line without what is no code, and without names of the standard library.
std::string codeOf(const std::string& line)
{
    static const std::regex text(R"("(\\.|[^"\\])*"|'(\\.|[^'\\])')");
    static const std::regex standard(R"(\bstd(::\w+)+)");
    const std::string code = std::regex_replace(line, text, "");
    const auto directive = code.find('#');
    const auto comment = code.find("//");
    return std::regex_replace(code.substr(0, std::min(directive, comment)), standard, "");
}

/// The lines of all sources and headers below a folder, or of one of them.
std::vector<std::string> linesOf(const fs::path& place)
{
    std::vector<fs::path> files = {place};
    if (fs::is_directory(place))
    {
        files.assign(fs::recursive_directory_iterator(place), {});
    }
    std::vector<std::string> all;
    for (const fs::path& file : files)
    {
        if (file.extension() == ".h" || file.extension() == ".cpp")
        {
            std::ifstream lines(file);
            for (std::string line; std::getline(lines, line);)
            {
                all.push_back(line);
            }
        }
    }
    return all;
}

/// All words of a header, or of all headers below a folder.
Names wordsOf(const fs::path& place)
{
    static const std::regex word(R"([A-Za-z_]\w*)");
    Names words;
    for (const std::string& line : linesOf(place))
    {
        const std::string code = codeOf(line);
        words.insert(std::sregex_token_iterator(code.begin(), code.end(), word), {});
    }
    return words;
}

/// What the module names that may be somebody else's: types and enumerators, which begin with a capital, members, and
/// functions that it calls.
Names usedNames()
{
    static const std::regex word(R"((\.|->|::)?([A-Za-z_]\w*)(\()?)");
    Names names;
    for (const std::string& line : linesOf(Module))
    {
        const std::string code = codeOf(line);
        for (std::sregex_iterator found(code.begin(), code.end(), word), end; found != end; ++found)
        {
            const std::string name = (*found)[2];
            if ((*found)[1].matched || (*found)[3].matched || std::isupper(static_cast<unsigned char>(name[0])) != 0)
            {
                names.insert(name);
            }
        }
    }
    return names;
}

/// What the platform's headers and the module both name.
Names sharedNames()
{
    const Names words = wordsOf(Platform);
    const Names used = usedNames();
    Names shared;
    std::set_intersection(words.begin(), words.end(), used.begin(), used.end(), std::inserter(shared, shared.end()));
    for (const std::string& name : OfBothByChance)
    {
        EXPECT_EQ(1U, shared.erase(name)) << name << " is no name of both";
    }
    return shared;
}

/// The platform's headers that the module includes.
Names includedHeaders()
{
    static const std::regex directive(R"re(#include "(.*)")re");
    Names headers;
    for (const std::string& line : linesOf(Module))
    {
        std::smatch parts;
        if (std::regex_match(line, parts, directive) && fs::exists(Platform / parts[1].str()))
        {
            headers.insert(parts[1]);
        }
    }
    return headers;
}

std::vector<TableRow> listed()
{
    return tableOf("docs/integration.md", "## What your headers have to offer", "Header");
}

TEST(HeadersPageTest, ListsTheHeadersThatTheModuleIncludes)
{
    Names headers;
    for (const TableRow& row : listed())
    {
        headers.insert(namesIn(row.at(0)).at(0));
    }
    EXPECT_EQ(includedHeaders(), headers);
}

TEST(HeadersPageTest, ListsEveryNameThatTheModuleUsesAndNoOther)
{
    Names names;
    for (const TableRow& row : listed())
    {
        for (const std::string& name : namesIn(row.at(1)))
        {
            names.insert(name);
        }
    }
    EXPECT_EQ(sharedNames(), names);
}

TEST(HeadersPageTest, HasEachNameBesideItsHeader)
{
    for (const TableRow& row : listed())
    {
        EXPECT_THAT(wordsOf(Platform / namesIn(row.at(0)).at(0)), IsSupersetOf(namesIn(row.at(1)))) << row.at(0);
    }
}

} // namespace
