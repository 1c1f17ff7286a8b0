#pragma once

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

/// The cells of a table's row, without the blanks around them.
using TableRow = std::vector<std::string>;

/// The cells of a line such as "| one | two |".
inline TableRow cellsOf(const std::string& line)
{
    TableRow cells;
    std::size_t begin = 1;
    for (auto end = line.find('|', begin); end != std::string::npos; end = line.find('|', begin))
    {
        const std::string cell = line.substr(begin, end - begin);
        const auto first = cell.find_first_not_of(' ');
        cells.push_back(first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
        begin = end + 1;
    }
    return cells;
}

/// The rows of the first table that stands below a heading of a page and begins with that column; its head is left out.
/// @param page  from the top of the tree
/// @throws std::runtime_error where there is none
inline std::vector<TableRow> tableOf(const std::string& page, const std::string& heading, const std::string& column)
{
    std::ifstream lines(KEL_SOURCE_DIR "/" + page);
    bool isBelow = false;
    bool isInside = false;
    std::vector<TableRow> rows;
    for (std::string line; std::getline(lines, line);)
    {
        if (isInside && !line.starts_with('|'))
        {
            break;
        }
        if (isInside)
        {
            rows.push_back(cellsOf(line));
        }
        isBelow = isBelow || line == heading;
        isInside = isInside || (isBelow && line.starts_with("| " + column + " |"));
    }
    if (rows.size() < 2)
    {
        throw std::runtime_error(page + ": found no table of " + column + " below \"" + heading + "\"");
    }
    rows.erase(rows.begin()); // the line below the head
    return rows;
}

/// What stands in a cell as code, or else the cell.
inline std::vector<std::string> namesIn(const std::string& cell)
{
    std::vector<std::string> names;
    for (auto begin = cell.find('`'); begin != std::string::npos; begin = cell.find('`', begin))
    {
        const auto end = cell.find('`', begin + 1);
        if (end == std::string::npos)
        {
            throw std::runtime_error("found a single ` in \"" + cell + "\"");
        }
        names.push_back(cell.substr(begin + 1, end - begin - 1));
        begin = end + 1;
    }
    return names.empty() ? std::vector{cell} : names;
}
