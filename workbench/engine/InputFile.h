#pragma once

#include <cstdint>
#include <string>

namespace workbench
{
/// `path` in double quotes, as messages name it.
std::string Quoted(std::string const& path);

/// "PATH cannot be DONE: REASON", the reason being what the system says of `error`.
std::string SystemMessage(std::string const& path, char const* done, int error);

/// An ordinary file, open for reading.
class InputFile
{
public:
    /// Throws an Error that says why `path` cannot be read: it is missing, a folder, ...
    explicit InputFile(std::string const& path);
    ~InputFile();
    InputFile(InputFile const&) = delete;
    InputFile& operator=(InputFile const&) = delete;

    std::string const& Path() const { return m_path; }
    std::uint64_t Size() const { return m_size; }

    /// Another descriptor of the open file, which the caller closes.
    int Duplicate() const;

    /// Reads up to `size` bytes that stand at `offset`, fewer only at the file's end.
    std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) const;

    /// All that is in it.
    std::string ReadAll() const;

private:
    std::string m_path;
    int m_descriptor = -1;
    std::uint64_t m_size = 0;
};
} // namespace workbench
