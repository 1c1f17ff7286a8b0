#include "node/plot/Program.h"

#include <cerrno>
#include <csignal>
#include <string_view>
#include <system_error>

#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "node/terminal/Descriptor.h"

namespace node::plot
{

namespace
{

void check(int error)
{
    if (error != 0)
    {
        throw std::system_error(error, std::generic_category());
    }
}

/// A file in memory, without a name. Unlike a pipe it never makes a program wait.
class MemoryFile
{
public:
    MemoryFile() : m_descriptor(memfd_create("stream", MFD_CLOEXEC))
    {
        check(m_descriptor.isOpen() ? 0 : errno);
    }

    int descriptor() const
    {
        return m_descriptor.get();
    }

    /// Whoever reads then begins at the text's beginning.
    void fill(std::string_view text) const
    {
        for (std::size_t written = 0; written < text.size();)
        {
            const ssize_t length =
                pwrite(descriptor(), text.data() + written, text.size() - written, static_cast<off_t>(written));
            check(length < 0 ? errno : 0);
            written += static_cast<std::size_t>(length);
        }
    }

    std::string content() const
    {
        std::string text(static_cast<std::size_t>(lseek(descriptor(), 0, SEEK_END)), '\0');
        for (std::size_t read = 0; read < text.size();)
        {
            const ssize_t length =
                pread(descriptor(), text.data() + read, text.size() - read, static_cast<off_t>(read));
            check(length < 0 ? errno : 0);
            read += static_cast<std::size_t>(length);
        }
        return text;
    }

private:
    terminal::Descriptor m_descriptor;
};

/// How a program starts: where its standard streams lead, and that no signal is kept from it, whatever is from us.
class Start
{
public:
    Start()
    {
        sigset_t none{};
        sigemptyset(&none);
        posix_spawn_file_actions_init(&m_streams);
        posix_spawnattr_init(&m_attributes);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK);
    }

    ~Start()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_streams);
    }

    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    void lead(int stream, const MemoryFile& file)
    {
        check(posix_spawn_file_actions_adddup2(&m_streams, file.descriptor(), stream));
    }

    pid_t start(char* const* words, char* const* variables) const
    {
        pid_t program = 0;
        check(posix_spawnp(&program, words[0], &m_streams, &m_attributes, words, variables));
        return program;
    }

private:
    posix_spawn_file_actions_t m_streams{};
    posix_spawnattr_t m_attributes{};
};

/// The texts as a program is given them, with a null behind the last. They point into `texts`.
std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
    {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

int statusOf(pid_t program)
{
    int status = 0;
    while (waitpid(program, &status, 0) < 0)
    {
        check(errno == EINTR ? 0 : errno);
    }
    return status;
}

} // namespace

Ended runProgram(std::vector<std::string> words, std::vector<std::string> variables, const std::string& input)
{
    // In the order of the streams that they become: none is replaced before its turn, even where we were started
    // without streams of our own.
    const MemoryFile in;
    const MemoryFile out;
    const MemoryFile err;
    in.fill(input);
    Start start;
    start.lead(STDIN_FILENO, in);
    start.lead(STDOUT_FILENO, out);
    start.lead(STDERR_FILENO, err);
    const int status = statusOf(start.start(pointersTo(words).data(), pointersTo(variables).data()));
    return {status, out.content(), err.content()};
}

} // namespace node::plot
