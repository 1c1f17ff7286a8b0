#include "node/terminal/HistoryFile.h"

#include <array>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "node/terminal/Descriptor.h"
#include "node/terminal/Layout.h"

namespace node::terminal
{

namespace
{

constexpr mode_t OthersBits = S_IRWXG | S_IRWXO;

/// Makes a folder and those above it that are missing, for their owner alone.
void makeFolder(const std::filesystem::path& folder)
{
    std::filesystem::path made;
    for (const std::filesystem::path& name : folder)
    {
        made /= name;
        mkdir(made.c_str(), S_IRWXU); // one that is there stays as it is
    }
}

/// Opens the file and keeps other prompts from it until it is closed.
Descriptor openLocked(const std::filesystem::path& path, int flags)
{
    // Without O_NONBLOCK a pipe of this name would wait for somebody at its other end.
    Descriptor file(open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, S_IRUSR | S_IWUSR));
    struct stat status = {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        return Descriptor();
    }
    if ((status.st_mode & OthersBits) != 0 && fchmod(file.get(), S_IRUSR | S_IWUSR) != 0)
    {
        return Descriptor();
    }
    return flock(file.get(), LOCK_EX) == 0 ? std::move(file) : Descriptor();
}

std::string contentOf(const Descriptor& file)
{
    std::string content;
    std::array<char, 4096> part{};
    ssize_t size = 0;
    while ((size = ::read(file.get(), part.data(), part.size())) > 0)
    {
        content.append(part.data(), static_cast<std::size_t>(size));
    }
    return content;
}

/// Overwrites before it cuts: whoever is stopped half way leaves lines twice, and loses none.
void replaceContent(const Descriptor& file, const std::vector<std::string>& lines)
{
    std::string content;
    for (const std::string& line : lines)
    {
        content += line + '\n';
    }
    const auto size = static_cast<ssize_t>(content.size());
    if (pwrite(file.get(), content.data(), content.size(), 0) == size && ftruncate(file.get(), size) != 0)
    {
        return; // it holds the dropped lines still
    }
}

} // namespace

HistoryFile::HistoryFile(std::filesystem::path path, std::size_t size) : m_path(std::move(path)), m_size(size)
{
}

std::vector<std::string> HistoryFile::read() const
{
    const Descriptor writable = openLocked(m_path, O_RDWR);
    if (!writable.isOpen())
    {
        return {};
    }
    std::vector<std::string> lines = linesOf(contentOf(writable));
    if (lines.size() > m_size)
    {
        lines.erase(lines.begin(), std::prev(lines.end(), static_cast<std::ptrdiff_t>(m_size)));
        replaceContent(writable, lines);
    }
    return lines;
}

void HistoryFile::append(const std::string& line) const
{
    makeFolder(m_path.parent_path());
    const Descriptor file = openLocked(m_path, O_WRONLY | O_CREAT | O_APPEND);
    const std::string entry = line + '\n';
    if (!file.isOpen() || ::write(file.get(), entry.data(), entry.size()) < 0)
    {
        return; // typing goes on without a history
    }
}

} // namespace node::terminal
