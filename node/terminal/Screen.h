#pragma once

namespace node::terminal
{

/// Whether colours may be written there: it is a terminal that has them, and NO_COLOR is not set.
/// @param descriptor  of an open file
bool hasColours(int descriptor);

/// Whether text can be drawn over what is there: it is a terminal, and no dumb one.
bool canRedraw(int descriptor);

/// Clears the rest of the line, from the cursor on.
inline constexpr const char* ClearToLineEnd = "\033[K";

/// Of the terminal, in letters.
struct Size
{
    int columns = 80;
    int rows = 24;
};

/// 80 by 24 where it is no terminal, or one that does not tell.
Size sizeOf(int descriptor);

} // namespace node::terminal
