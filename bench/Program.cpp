#include "bench/Program.h"

#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench
{

namespace
{

struct Pipe
{
    Pipe()
    {
        // Closed when another program starts, but for the end that becomes its input.
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
        {
            throw std::runtime_error("no pipe is to be had");
        }
    }

    std::array<int, 2> ends{};
};

pid_t start(std::vector<std::string>& words, int input, const std::string& output)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t program = 0;
    const int error = posix_spawn(&program, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
    {
        throw std::runtime_error(words[0] + ": does not start");
    }
    return program;
}

/// As much as the program takes: what it did not want is seen in what it printed.
void send(const std::string& text, int pipe)
{
    std::size_t sent = 0;
    while (sent < text.size())
    {
        const ssize_t number = write(pipe, text.data() + sent, text.size() - sent);
        if (number <= 0)
        {
            return;
        }
        sent += static_cast<std::size_t>(number);
    }
}

std::string contents(const std::string& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

void run(std::vector<std::string> words, const std::string& input, const std::string& output)
{
    const Pipe pipe;
    const pid_t program = start(words, pipe.ends[0], output);
    close(pipe.ends[0]);
    send(input, pipe.ends[1]);
    close(pipe.ends[1]);
    int status = 0;
    if (waitpid(program, &status, 0) != program || status != 0)
    {
        throw std::runtime_error(words[0] + ": found that it failed, expected status 0");
    }
}

Done ask(std::vector<std::string> words, const std::string& input)
{
    const std::string output = KEL_BENCH_FILES "/output";
    const std::string memory = KEL_BENCH_FILES "/memory";
    // Asked here, the system would tell the most that this program held, or the other one, whichever is more.
    words.insert(words.begin(), {"/usr/bin/time", "--format=%M", "--output=" + memory});
    run(std::move(words), input, output);
    return {contents(output), std::stol(contents(memory))};
}

} // namespace bench
