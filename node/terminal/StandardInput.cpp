#include "node/terminal/StandardInput.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

#include "node/terminal/Descriptor.h"

namespace node::terminal
{

bool readInput(std::string& bytes)
{
    std::array<char, 4096> part{};
    // Ctrl-C makes a terminal forget what was typed, also what poll() has told of already: reading would wait for more
    // then, and nobody would see the signal. Opened anew, for others share what says how standard input is read.
    const Descriptor unwaited(open("/proc/self/fd/0", O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    const ssize_t size = read(unwaited.isOpen() ? unwaited.get() : STDIN_FILENO, part.data(), part.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN))
    {
        return true;
    }
    bytes.append(part.data(), static_cast<std::size_t>(size > 0 ? size : 0));
    return size > 0;
}

} // namespace node::terminal
