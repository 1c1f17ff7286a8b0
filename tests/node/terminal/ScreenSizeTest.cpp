#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>

#include <gtest/gtest.h>

#include "node/terminal/Descriptor.h"
#include "node/terminal/Screen.h"

namespace
{

using node::terminal::Descriptor;

std::pair<int, int> columnsAndRowsOf(const Descriptor& descriptor)
{
    const node::terminal::Size size = node::terminal::sizeOf(descriptor.get());
    return {size.columns, size.rows};
}

TEST(ScreenSizeTest, IsWhatTheTerminalTells)
{
    const Descriptor terminal(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    for (const auto& [told, expected] : {std::pair(winsize{30, 100, 0, 0}, std::pair(100, 30)),
                                         {winsize{1, 1, 0, 0}, {1, 1}},
                                         {winsize{0, 0, 0, 0}, {80, 24}},
                                         {winsize{30, 0, 0, 0}, {80, 24}},
                                         {winsize{0, 100, 0, 0}, {80, 24}}})
    {
        ASSERT_EQ(0, ioctl(terminal.get(), TIOCSWINSZ, &told));
        EXPECT_EQ(expected, columnsAndRowsOf(terminal)) << told.ws_col << " by " << told.ws_row;
    }
}

TEST(ScreenSizeTest, IsTheUsualOneWhereThereIsNoTerminal)
{
    EXPECT_EQ(std::pair(80, 24), columnsAndRowsOf(Descriptor(open("/dev/null", O_RDONLY | O_CLOEXEC))));
}

} // namespace
