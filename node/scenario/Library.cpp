#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "node/scenario/Scenario.h"
#include "node/wording/InputError.h"

namespace fs = std::filesystem;

namespace node::scenario
{

namespace
{

fs::path folder()
{
    const char* const chosen = std::getenv("KEL_NODE_SCENARIOS");
    if (chosen != nullptr && *chosen != '\0')
    {
        return chosen;
    }
    std::error_code unknown;
    const fs::path program = fs::read_symlink("/proc/self/exe", unknown);
    return (program.parent_path() / KEL_SCENARIOS).lexically_normal();
}

std::string readFile(const std::string& fileName)
{
    errno = 0;
    std::ifstream file(fileName, std::ios::binary);
    std::ostringstream text;
    if (file.peek() != std::ifstream::traits_type::eof())
    {
        text << file.rdbuf();
    }
    if (!file.is_open() || file.bad() || text.bad())
    {
        throw wording::InputError(fileName, wording::foundInsteadOf("file", {errno, std::generic_category()}),
                                  "a scenario file");
    }
    return text.str();
}

} // namespace

std::vector<std::string> readyScenarios()
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder(), error); !error && entry != fs::directory_iterator();
         entry.increment(error))
    {
        const std::string name = entry->path().stem().string();
        if (entry->path().extension() == FileExtension && !name.ends_with(FileExtension)) // that would be a file's name
        {
            names.push_back(name);
        }
    }
    if (error)
    {
        throw wording::InputError(folder().string(), wording::foundInsteadOf("folder", error),
                                  "the folder of scenarios");
    }
    std::sort(names.begin(), names.end());
    return names;
}

Scenario load(const std::string& nameOrFile)
{
    if (nameOrFile.find('/') != std::string::npos || nameOrFile.ends_with(FileExtension))
    {
        return parse(readFile(nameOrFile), nameOrFile);
    }
    const std::vector<std::string> names = readyScenarios();
    if (std::find(names.begin(), names.end(), nameOrFile) == names.end())
    {
        throw wording::InputError("scenario", wording::quoted(nameOrFile),
                                  "a .toml file, or a name that \"listScenarios\" lists" +
                                      wording::didYouMean(nameOrFile, names));
    }
    const std::string fileName = (folder() / (nameOrFile + FileExtension)).string();
    return parse(readFile(fileName), fileName);
}

} // namespace node::scenario
