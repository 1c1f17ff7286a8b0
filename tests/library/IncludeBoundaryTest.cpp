#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::UnorderedElementsAreArray;

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
    {"startup", "node/startup", {"module", "services", "framework", "radio", "platform"}, NodeRoots},
    {"scenario", "node/scenario", {"startup", "services", "radio", "wording"}, NodeRoots},
    {"terminal", "node/terminal", {}, NodeRoots},
    {"report", "node/report", {"wording"}, NodeRoots},
    {"plot", "node/plot", {"terminal"}, NodeRoots},
    {"commands",
     "node/commands",
     {"scenario", "startup", "services", "radio", "platform", "trace", "wording", "terminal", "report", "plot"},
     NodeRoots},
    {"output", "node/output", {"commands", "radio", "platform", "trace", "wording", "terminal"}, NodeRoots},
    {"reference", "node/reference", {"commands", "scenario", "wording", "terminal"}, NodeRoots},
    {"cli",
     "node/cli",
     {"reference", "output", "commands", "scenario", "startup", "radio", "wording", "terminal"},
     NodeRoots},
    {"doubles", "tests/doubles", {"platform"}, TestRoots, true},
    {"support", "tests/support", {"output", "scenario", "services"}, TestRoots},
    // Written a second time: it must not know the first.
    {"expected", "fuzz/expected", {"platform", "doubles"}, TestRoots, true},
    {"fuzz",
     "fuzz",
     {"expected", "doubles", "support", "cli", "output", "commands", "scenario", "startup", "services", "radio",
      "module", "platform", "trace", "wording"},
     TestRoots},
    {"bench", "bench", {"doubles", "trace", "module", "platform"}, TestRoots},
    {"tests",
     "tests",
     {"doubles",  "support",   "bench",   "fuzz",     "cli",      "reference", "output",
      "commands", "scenario",  "startup", "services", "radio",    "module",    "module_private",
      "platform", "framework", "trace",   "wording",  "terminal", "report",    "plot"},
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

struct Include
{
    std::string place; ///< file, line number and line, for a message
    fs::path source;
    bool isPlain = false; ///< no macro
    bool isQuoted = false;
    std::string name;
};

/// The sources and headers of a room, without those of rooms inside it.
std::vector<fs::path> sourcesOf(const Room& room)
{
    auto sources = sourcesBelow(Top / room.directory);
    std::erase_if(sources, [&](const fs::path& source) { return roomOf(source) != room.name; });
    return sources;
}

std::vector<Include> includesOf(const Room& room)
{
    const std::regex directive(R"(\s*#\s*include\b\s*(.*))");
    const std::regex header(R"((["<])([^">]+)[">].*)");
    std::vector<Include> includes;
    for (const fs::path& source : sourcesOf(room))
    {
        std::ifstream lines(source);
        int number = 0;
        for (std::string line; std::getline(lines, line);)
        {
            ++number;
            std::smatch directiveParts;
            if (std::regex_match(line, directiveParts, directive))
            {
                const std::string rest = directiveParts[1];
                std::smatch parts;
                const bool isPlain = std::regex_match(rest, parts, header);
                includes.push_back({source.string() + ":" + std::to_string(number) + ": " + line, source, isPlain,
                                    isPlain && parts[1] == "\"", isPlain ? parts[2].str() : ""});
            }
        }
    }
    return includes;
}

class IncludeBoundaryTest : public ::testing::TestWithParam<Room>
{
};

TEST_P(IncludeBoundaryTest, EveryIncludeStaysWithinTheDoors)
{
    const Room& room = GetParam();
    ASSERT_TRUE(fs::is_directory(Top / room.directory));
    EXPECT_FALSE(sourcesOf(room).empty());
    for (const Include& include : includesOf(room))
    {
        EXPECT_TRUE(include.isPlain) << include.place;
        EXPECT_EQ("", objection(room, include.source, include.isQuoted, include.name)) << include.place;
    }
}

TEST_P(IncludeBoundaryTest, EveryDoorIsUsed)
{
    const Room& room = GetParam();
    std::set<std::string> entered;
    for (const Include& include : includesOf(room))
    {
        if (const auto file = resolve(room, include.source, include.name))
        {
            entered.insert(roomOf(*file));
        }
    }
    EXPECT_THAT(entered, IsSupersetOf(room.doors));
}

INSTANTIATE_TEST_SUITE_P(Rooms, IncludeBoundaryTest, ::testing::ValuesIn(Rooms),
                         [](const auto& room) { return room.param.name; });

std::string textOf(const fs::path& file)
{
    std::ifstream stream(Top / file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(RoomsTest, NoDoorLeadsBack)
{
    std::vector<std::string> before;
    for (const Room& room : Rooms)
    {
        EXPECT_THAT(before, IsSupersetOf(room.doors)) << room;
        before.push_back(room.name);
    }
}

TEST(RoomsPageTest, ListsEveryDoor)
{
    std::string table = "| Room | Enters |\n|---|---|\n";
    for (const Room& room : Rooms)
    {
        std::string doors;
        for (const std::string& door : room.doors)
        {
            doors += (doors.empty() ? "`" : ", `") + door + "`";
        }
        table += "| `" + room.name + "` | " + (doors.empty() ? "nothing of ours" : doors) + " |\n";
    }
    EXPECT_THAT(textOf("docs/architecture.md"), HasSubstr(table));
}

using Arrows = std::multimap<std::string, std::string>;

const std::regex DescribedArrow(R"((\w+) -> (\w+))");
const std::regex DrawnArrow(R"(<title>(\w+)&#45;&gt;(\w+)</title>)");

/// Where the arrows of a picture lead from and to.
Arrows arrowsOf(const fs::path& picture, const std::regex& arrow)
{
    const std::string text = textOf(picture);
    Arrows arrows;
    for (std::sregex_iterator found(text.begin(), text.end(), arrow), end; found != end; ++found)
    {
        arrows.emplace((*found)[1], (*found)[2]);
    }
    return arrows;
}

/// The rooms that the arrows lead to from that one, and what is behind them.
std::set<std::string> reached(const Arrows& arrows, const std::string& room)
{
    std::set<std::string> rooms;
    for (auto [arrow, end] = arrows.equal_range(room); arrow != end; ++arrow)
    {
        rooms.insert(arrow->second);
        rooms.merge(reached(arrows, arrow->second));
    }
    return rooms;
}

TEST(RoomsPictureTest, ShowsEveryDoorOfTheNodeAndNoOther)
{
    const Arrows arrows = arrowsOf("docs/pictures/rooms.dot", DescribedArrow);
    for (const Room& room : Rooms)
    {
        if (room.directory.starts_with("node/") || room.name == "module" || room.name == "platform")
        {
            EXPECT_THAT(reached(arrows, room.name), IsSupersetOf(room.doors)) << room;
            for (auto [door, end] = arrows.equal_range(room.name); door != end; ++door)
            {
                EXPECT_TRUE(contains(room.doors, door->second)) << room << " -> " << door->second;
            }
        }
    }
}

TEST(RoomsPictureTest, IsDrawnAsItIsDescribed)
{
    for (const std::string picture : {"rooms", "road"})
    {
        const fs::path path = "docs/pictures/" + picture;
        const Arrows described = arrowsOf(path.string() + ".dot", DescribedArrow);
        EXPECT_FALSE(described.empty());
        EXPECT_THAT(arrowsOf(path.string() + ".svg", DrawnArrow), UnorderedElementsAreArray(described)) << picture;
    }
}

TEST(IncludeBoundaryRoomsTest, NoSourceOfTheNodeStandsOutsideTheRooms)
{
    const std::vector<fs::path> sources = sourcesBelow(Top / "node");
    EXPECT_FALSE(sources.empty());
    for (const fs::path& source : sources)
    {
        EXPECT_NE("", roomOf(source)) << source;
    }
}

} // namespace
