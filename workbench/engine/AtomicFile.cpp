#include "workbench/engine/AtomicFile.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"

namespace fs = std::filesystem;

namespace workbench
{
namespace
{
constexpr int MAX_LINKS = 40;

/// The permissions that a new file gets from the process's mask.
mode_t DefaultMode()
{
    mode_t const mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// A name for the temporary file that leaves room for the suffix within the limit of 255 bytes.
std::string TemporaryPrefix(std::string const& name) { return "." + name.substr(0, 200) + ".saving-"; }
} // namespace

AtomicFile::AtomicFile(std::string const& path) : m_path(path), m_target(path)
{
    if (path.empty())
        throw Error("the path of the file to write is empty");
    if (path.find('\0') != std::string::npos)
        throw Error("the path of the file to write holds a NUL character");
    ResolveLinks();
    unsigned mode = DefaultMode();
    CheckTarget(mode);

    fs::path const target(m_target);
    m_folder = target.has_parent_path() ? target.parent_path().string() : ".";
    m_prefix = TemporaryPrefix(target.filename().string());
    RemoveLeftovers();
    CreateTemporary(mode);
}

AtomicFile::~AtomicFile()
{
    if (m_descriptor < 0)
        return;
    unlink(m_temporary.c_str());
    close(m_descriptor);
}

void AtomicFile::Fail(int error) const { throw Error(SystemMessage(m_path, "written", error)); }

void AtomicFile::ResolveLinks()
{
    std::error_code error;
    for (int i = 0; fs::is_symlink(fs::symlink_status(m_target, error)); ++i)
    {
        if (i == MAX_LINKS)
            Fail(ELOOP);
        auto const next = fs::read_symlink(m_target, error);
        if (error)
            Fail(error.value());
        m_target = (fs::path(m_target).parent_path() / next).string();
    }
}

void AtomicFile::CheckTarget(unsigned& mode) const
{
    struct stat status;
    if (stat(m_target.c_str(), &status) != 0)
    {
        if (errno != ENOENT)
            Fail(errno);
        if (m_target.back() == '/')
            Fail(EISDIR);
        return;
    }
    if (S_ISDIR(status.st_mode))
        throw Error(Quoted(m_path) + " cannot be written: it is a folder");
    if (!S_ISREG(status.st_mode))
        throw Error(Quoted(m_path) + " cannot be written: it is not an ordinary file");
    // A rename would replace a write-protected file without asking.
    if (access(m_target.c_str(), W_OK) != 0)
        Fail(errno);
    mode = status.st_mode & 07777;
}

void AtomicFile::RemoveLeftovers() const
{
    std::error_code error;
    for (fs::directory_iterator entry(m_folder, error), end; !error && entry != end;
         entry.increment(error))
    {
        auto const name = entry->path().filename().string();
        if (name.compare(0, m_prefix.size(), m_prefix) != 0 || name.size() != m_prefix.size() + 6)
            continue;
        int const descriptor =
            open(entry->path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        // A writer at work holds the lock of its file.
        if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0)
            unlink(entry->path().c_str());
        if (descriptor >= 0)
            close(descriptor);
    }
}

void AtomicFile::CreateTemporary(unsigned mode)
{
    m_temporary = m_folder + "/" + m_prefix + "XXXXXX";
    m_descriptor = mkostemp(m_temporary.data(), O_CLOEXEC);
    if (m_descriptor < 0)
        Fail(errno);
    flock(m_descriptor, LOCK_EX | LOCK_NB);
    fchmod(m_descriptor, mode);
}

void AtomicFile::Write(char const* data, std::size_t size)
{
    while (size > 0)
    {
        auto const written = pwrite(m_descriptor, data, size, static_cast<off_t>(m_offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            Fail(written < 0 ? errno : ENOSPC);
        data += written;
        size -= static_cast<std::size_t>(written);
        m_offset += static_cast<std::uint64_t>(written);
    }
}

void AtomicFile::Commit()
{
    if (fsync(m_descriptor) != 0 || rename(m_temporary.c_str(), m_target.c_str()) != 0)
        Fail(errno);
    close(m_descriptor);
    m_descriptor = -1;

    // The new name is on the disk once its folder is; not every file system can promise that.
    int const folder = open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0)
    {
        fsync(folder);
        close(folder);
    }
}
} // namespace workbench
