#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

/// A part of the tree, and the parts that its files may include.
struct Room
{
    std::string name;
    std::string directory;
    std::vector<std::string> doors;   ///< rooms that it may enter, besides itself
    std::vector<std::string> roots;   ///< where its includes are looked for, relative to the top of the tree
    bool onlyStandardHeaders = false; ///< of the headers that are not ours
};

std::ostream& operator<<(std::ostream& out, const Room& room)
{
    return out << room.directory;
}

const std::vector<std::string> NodeRoots = {".", "platform", "src/Device/KelDebugCmd"};
const std::vector<std::string> TestRoots = {".", "platform", "src/Device/KelDebugCmd", "tests"};

const std::vector<Room> Rooms = {
    {"platform", "platform", {}, {"platform"}, true},
    {"module", "src/Device/KelDebugCmd", {"platform"}, {"src/Device/KelDebugCmd", "platform"}, true},
    {"module_private",
     "src/Device/KelDebugCmd/private",
     {"module", "platform"},
     {"src/Device/KelDebugCmd", "platform"},
     true},
    {"wording", "node/wording", {}, NodeRoots},
    {"framework", "node/framework", {"platform"}, NodeRoots},
    {"trace", "node/trace", {"platform"}, NodeRoots},
    {"radio", "node/radio", {}, NodeRoots},
    {"services", "node/services", {"platform", "radio"}, NodeRoots},
    {"startup", "node/startup", {"module", "services", "framework", "trace", "radio", "platform"}, NodeRoots},
    {"scenario", "node/scenario", {"startup", "services", "radio", "platform", "wording"}, NodeRoots},
    {"terminal", "node/terminal", {}, NodeRoots},
    {"report", "node/report", {"wording"}, NodeRoots},
    {"plot", "node/plot", {"terminal"}, NodeRoots},
    {"commands",
     "node/commands",
     {"scenario", "startup", "services", "radio", "platform", "trace", "wording", "terminal", "report", "plot"},
     NodeRoots},
    {"output", "node/output", {"commands", "radio", "platform", "trace", "wording", "terminal", "report"}, NodeRoots},
    {"reference", "node/reference", {"commands", "scenario", "wording", "terminal"}, NodeRoots},
    {"cli",
     "node/cli",
     {"reference", "output", "commands", "scenario", "startup", "services", "radio", "module", "platform", "framework",
      "trace", "wording", "terminal", "report", "plot"},
     NodeRoots},
    {"doubles", "tests/doubles", {"platform"}, TestRoots, true},
    // Written a second time: it must not know the first.
    {"expected", "fuzz/expected", {"platform", "doubles"}, TestRoots, true},
    {"fuzz",
     "fuzz",
     {"expected", "doubles", "tests", "cli", "output", "commands", "scenario", "startup", "services", "radio", "module",
      "platform", "trace", "wording"},
     TestRoots},
    {"bench", "bench", {"doubles", "trace", "module", "platform"}, TestRoots},
    {"tests",
     "tests",
     {"doubles", "bench",    "fuzz",   "cli",    "reference",      "output",   "commands",  "scenario",
      "startup", "services", "radio",  "module", "module_private", "platform", "framework", "trace",
      "wording", "terminal", "report", "plot"},
     TestRoots},
};

const fs::path Top = KEL_SOURCE_DIR;

bool contains(const std::vector<std::string>& names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The innermost room of the table that holds the file; "" outside of all.
std::string roomOf(const fs::path& file)
{
    const Room* found = nullptr;
    for (const Room& room : Rooms)
    {
        const bool holds = file.generic_string().starts_with((Top / room.directory).generic_string() + "/");
        if (holds && (found == nullptr || room.directory.size() > found->directory.size()))
        {
            found = &room;
        }
    }
    return found == nullptr ? "" : found->name;
}

/// The sources and headers below a directory.
std::vector<fs::path> sourcesBelow(const fs::path& directory)
{
    std::vector<fs::path> sources;
    for (const auto& entry : fs::recursive_directory_iterator(directory))
    {
        const std::string kind = entry.path().extension().string();
        if (kind == ".h" || kind == ".cpp")
        {
            sources.push_back(entry.path());
        }
    }
    return sources;
}

/// The file of ours that an include names.
std::optional<fs::path> resolve(const Room& room, const fs::path& includer, const std::string& name)
{
    std::vector<fs::path> places = {includer.parent_path()};
    for (const std::string& root : room.roots)
    {
        places.push_back(Top / root);
    }
    for (const fs::path& place : places)
    {
        if (fs::is_regular_file(place / name))
        {
            return (place / name).lexically_normal();
        }
    }
    return std::nullopt;
}

/// Why `room` must not hold this include; "" when it may.
std::string objection(const Room& room, const fs::path& includer, bool quoted, const std::string& name)
{
    if (const auto file = resolve(room, includer, name))
    {
        const std::string entered = roomOf(*file);
        const bool allowed = entered == room.name || contains(room.doors, entered);
        return allowed ? "" : "no door leads there: " + fs::relative(*file, Top).generic_string();
    }
    if (quoted)
    {
        return "names no file";
    }
    const bool standard = name.find_first_of("./") == std::string::npos;
    return standard || !room.onlyStandardHeaders ? "" : "is no header of the standard library";
}

class IncludeBoundaryTest : public ::testing::TestWithParam<Room>
{
};

TEST_P(IncludeBoundaryTest, EveryIncludeStaysWithinTheDoors)
{
    const Room& room = GetParam();
    if (!fs::is_directory(Top / room.directory))
    {
        GTEST_SKIP() << "there is no such room yet";
    }
    auto sources = sourcesBelow(Top / room.directory);
    std::erase_if(sources, [&](const fs::path& source) { return roomOf(source) != room.name; });
    EXPECT_FALSE(sources.empty());

    const std::regex directive(R"(\s*#\s*include\b\s*(.*))");
    const std::regex header(R"((["<])([^">]+)[">].*)");
    for (const fs::path& source : sources)
    {
        std::ifstream lines(source);
        int number = 0;
        for (std::string line; std::getline(lines, line);)
        {
            ++number;
            std::smatch directiveParts;
            if (!std::regex_match(line, directiveParts, directive))
            {
                continue;
            }
            const std::string rest = directiveParts[1];
            std::smatch parts;
            const std::string reason = std::regex_match(rest, parts, header)
                                           ? objection(room, source, parts[1] == "\"", parts[2])
                                           : "is not plain";
            EXPECT_EQ("", reason) << source.string() << ":" << number << ": " << line;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rooms, IncludeBoundaryTest, ::testing::ValuesIn(Rooms),
                         [](const auto& room) { return room.param.name; });

TEST(IncludeBoundaryRoomsTest, NoSourceOfTheNodeStandsOutsideTheRooms)
{
    if (!fs::is_directory(Top / "node"))
    {
        GTEST_SKIP() << "there is no node yet";
    }
    for (const fs::path& source : sourcesBelow(Top / "node"))
    {
        EXPECT_NE("", roomOf(source)) << source;
    }
}

} // namespace
