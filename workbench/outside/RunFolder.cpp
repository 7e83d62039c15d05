#include "workbench/outside/RunFolder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

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
constexpr char const* PREFIX = "zenqo-run-";

/// The folder opened and locked; -1 if it is none of this user's, or a run is at work in it.
int Lock(std::string const& path)
{
    int const descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status;
    if (descriptor >= 0 && fstat(descriptor, &status) == 0 && status.st_uid == geteuid()
        && flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    if (descriptor >= 0)
        close(descriptor);
    return -1;
}

void Remove(std::string const& path, int lock)
{
    std::error_code ignored;
    fs::remove_all(path, ignored);
    close(lock);
}

void RemoveLeftovers(fs::path const& parent)
{
    std::error_code error;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error))
        if (entry->path().filename().string().compare(0, std::string(PREFIX).size(), PREFIX) == 0)
            if (int const lock = Lock(entry->path().string()); lock >= 0)
                Remove(entry->path().string(), lock);
}
} // namespace

RunFolder::RunFolder()
{
    std::error_code error;
    auto const parent = fs::temp_directory_path(error);
    if (error)
        throw Error("there is no folder for temporary files: " + error.message());
    RemoveLeftovers(parent);
    // Until it is locked another run may take the folder for one left behind.
    while (m_lock < 0)
    {
        m_path = (parent / (std::string(PREFIX) + "XXXXXX")).string();
        if (!mkdtemp(m_path.data()))
            throw Error(SystemMessage(parent.string(), "used for temporary files", errno));
        m_lock = Lock(m_path);
    }
}

RunFolder::~RunFolder() { Remove(m_path, m_lock); }

void RunFolder::Write(std::string const& name, std::string const& content) const
{
    auto const path = Path(name);
    std::ofstream file(path, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file)
        throw Error(SystemMessage(path, "written", errno));
}
} // namespace workbench
