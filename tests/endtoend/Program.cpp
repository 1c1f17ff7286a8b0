#include "endtoend/Program.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

void check(bool done, const char* what)
{
    if (!done)
    {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

/// An empty file without a name.
File temporaryFile()
{
    File file(std::tmpfile(), std::fclose);
    check(file != nullptr, "tmpfile");
    return file;
}

std::string contentOf(std::FILE* file)
{
    std::rewind(file);
    std::string content;
    std::array<char, 4096> piece{};
    for (std::size_t length = 0; (length = std::fread(piece.data(), 1, piece.size(), file)) > 0;)
    {
        content.append(piece.data(), length);
    }
    return content;
}

/// A pipe that a text is written into while somebody reads it.
class FedPipe
{
public:
    explicit FedPipe(const std::string& text)
    {
        // Who reads it may end before all is written.
        std::signal(SIGPIPE, SIG_IGN);
        std::array<int, 2> ends{};
        check(pipe2(ends.data(), O_CLOEXEC) == 0, "pipe");
        m_readingEnd = ends[0];
        m_writer = std::jthread(
            [text, end = ends[1]]
            {
                std::size_t written = 0;
                while (written < text.size())
                {
                    const auto now = write(end, text.data() + written, text.size() - written);
                    if (now < 0)
                    {
                        break;
                    }
                    written += static_cast<std::size_t>(now);
                }
                close(end);
            });
    }

    FedPipe(const FedPipe&) = delete;
    FedPipe& operator=(const FedPipe&) = delete;

    ~FedPipe()
    {
        closeReadingEnd();
    }

    int readingEnd() const
    {
        return m_readingEnd;
    }

    /// Whoever writes learns it.
    void closeReadingEnd()
    {
        if (m_readingEnd >= 0)
        {
            close(std::exchange(m_readingEnd, -1));
        }
    }

private:
    int m_readingEnd = -1;
    std::jthread m_writer;
};

/// Waits for the program's end.
Finished endOf(pid_t program)
{
    int status = 0;
    rusage used{};
    check(wait4(program, &status, 0, &used) == program, "wait4");
    Finished finished;
    finished.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    finished.memory_KiB = used.ru_maxrss;
    return finished;
}

} // namespace

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

Finished finish(const Run& run)
{
    FedPipe input(run.input);
    const File output = temporaryFile();
    const File errors = temporaryFile();

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (run.inputFile.empty())
    {
        posix_spawn_file_actions_adddup2(&actions, input.readingEnd(), STDIN_FILENO);
    }
    else
    {
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, run.inputFile.c_str(), O_RDONLY, 0);
    }
    posix_spawn_file_actions_adddup2(&actions, fileno(errors.get()), STDERR_FILENO);
    if (run.outputFile == "-")
    {
        posix_spawn_file_actions_addclose(&actions, STDOUT_FILENO);
    }
    else if (!run.outputFile.empty())
    {
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, run.outputFile.c_str(), O_WRONLY, 0);
    }
    else
    {
        posix_spawn_file_actions_adddup2(&actions, fileno(output.get()), STDOUT_FILENO);
    }

    std::vector<std::string> words = {KEL_NODE};
    words.insert(words.end(), run.arguments.begin(), run.arguments.end());
    std::vector<std::string> environment = run.environment;
    pid_t program = 0;
    errno = posix_spawn(&program, KEL_NODE, &actions, nullptr, pointersTo(words).data(),
                        environment.empty() ? environ : pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    check(errno == 0, KEL_NODE);

    input.closeReadingEnd(); // the program has its own
    Finished finished = endOf(program);
    finished.output = contentOf(output.get());
    finished.errors = contentOf(errors.get());
    return finished;
}

Finished runCommand(const std::string& line)
{
    std::istringstream words(line);
    return finish({.arguments = {std::istream_iterator<std::string>(words), {}}});
}

Finished runScript(const std::string& lines)
{
    return finish({.arguments = {}, .input = lines});
}

Finished runScenario(const std::string& scenario, const std::string& lines)
{
    return finish({.arguments = {"--scenario", scenario}, .input = lines});
}

std::string traced(const std::string& function, const std::string& text, const std::string& time)
{
    return time + " [KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:LINE " + function + ": " +
           text + "\n";
}

std::string withoutSourceLines(const std::string& text)
{
    const std::string file = "private/KelDebugCmd:";
    std::string changed;
    std::size_t copied = 0;
    for (auto place = text.find(file); place != std::string::npos; place = text.find(file, copied))
    {
        const auto number = place + file.size();
        const auto end = std::min(text.find_first_not_of("0123456789", number), text.size());
        changed += text.substr(copied, number - copied) + (end > number ? "LINE" : "");
        copied = end;
    }
    return changed + text.substr(copied);
}
