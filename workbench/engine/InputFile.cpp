#include "workbench/engine/InputFile.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "workbench/engine/Error.h"

namespace workbench
{
std::string Quoted(std::string const& path) { return "\"" + path + "\""; }

std::string SystemMessage(std::string const& path, char const* done, int error)
{
    return Quoted(path) + " cannot be " + done + ": " + std::strerror(error);
}

InputFile::InputFile(std::string const& path) : m_path(path)
{
    if (path.empty())
        throw Error("the path of the file to read is empty");
    if (path.find('\0') != std::string::npos)
        throw Error("the path of the file to read holds a NUL character");
    // Non-blocking, since opening a pipe would wait for its other end; a file does not care.
    m_descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (m_descriptor < 0)
        throw Error(SystemMessage(path, "read", errno));

    struct stat status;
    char const* reason = nullptr;
    if (fstat(m_descriptor, &status) != 0)
        reason = std::strerror(errno);
    else if (S_ISDIR(status.st_mode))
        reason = "it is a folder";
    else if (!S_ISREG(status.st_mode))
        reason = "it is not an ordinary file";
    if (reason)
    {
        close(m_descriptor);
        throw Error(Quoted(path) + " cannot be read: " + reason);
    }
    m_size = static_cast<std::uint64_t>(status.st_size);
}

InputFile::~InputFile() { close(m_descriptor); }

int InputFile::Duplicate() const
{
    int const descriptor = fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    if (descriptor < 0)
        throw Error(SystemMessage(m_path, "read", errno));
    return descriptor;
}

std::size_t InputFile::ReadAt(std::uint64_t offset, char* buffer, std::size_t size) const
{
    std::size_t done = 0;
    while (done < size)
    {
        auto const got =
            pread(m_descriptor, buffer + done, size - done, static_cast<off_t>(offset + done));
        if (got == 0)
            break;
        if (got > 0)
            done += static_cast<std::size_t>(got);
        else if (errno != EINTR)
            throw Error(SystemMessage(m_path, "read", errno));
    }
    return done;
}

std::string InputFile::ReadAll() const
{
    std::string text(m_size, '\0');
    text.resize(ReadAt(0, text.data(), text.size()));
    return text;
}
} // namespace workbench
