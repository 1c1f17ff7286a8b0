#include "node/terminal/StandardInput.h"

#include <array>
#include <cerrno>

#include <unistd.h>

namespace node::terminal
{

bool readInput(std::string& bytes)
{
    std::array<char, 4096> part{};
    const ssize_t size = read(STDIN_FILENO, part.data(), part.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN))
    {
        return true;
    }
    bytes.append(part.data(), static_cast<std::size_t>(size > 0 ? size : 0));
    return size > 0;
}

} // namespace node::terminal
