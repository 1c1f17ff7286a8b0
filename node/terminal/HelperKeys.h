#pragma once

#include <optional>
#include <string>

#include "node/terminal/LineEditor.h"
#include "node/terminal/ShownLine.h"

namespace node::terminal
{

/// What the keys do that ask the helper. They answer libedit as its own functions do.
class HelperKeys
{
public:
    /// @param line  borrowed
    HelperKeys(Helper helper, ShownLine& line);

    /// A new line begins.
    void begin();

    /// Inserts the one candidate, or what all of them begin with. Where there is nothing to insert it beeps, and lists
    /// the candidates the second time.
    unsigned char complete();

    /// Tells what may come next; where nothing is told, '?' is a letter.
    unsigned char explain();

private:
    Helper m_helper;
    ShownLine& m_line;
    std::optional<std::string> m_ambiguous; ///< a line up to the cursor: completing it once more lists the candidates
};

} // namespace node::terminal
