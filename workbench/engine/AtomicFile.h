#pragma once

#include <cstdint>
#include <string>

namespace workbench
{
/// A file that is written whole or not at all.
///
/// The bytes go to a hidden file beside the target. `Commit` brings them to the disk and renames
/// that file to the target, so that at any moment, and after a crash, the target is the old file or
/// the new one. Without a `Commit` nothing is left behind. What a process that was killed left
/// behind is removed by the next writer of the same target.
///
/// A target that is a symbolic link stays one: the file it leads to is replaced. An existing file
/// keeps its permissions.
class AtomicFile
{
public:
    /// Throws an Error that says why `path` cannot be written.
    explicit AtomicFile(std::string const& path);
    ~AtomicFile();
    AtomicFile(AtomicFile const&) = delete;
    AtomicFile& operator=(AtomicFile const&) = delete;

    /// Writes at the current position, behind the bytes written before.
    void Write(char const* data, std::size_t size);

    void Seek(std::uint64_t offset) { m_offset = offset; }
    std::uint64_t Tell() const { return m_offset; }

    /// Makes the new file the target. Nothing may be written afterwards.
    void Commit();

private:
    [[noreturn]] void Fail(int error) const;
    void ResolveLinks();
    void CheckTarget(unsigned& mode) const;
    void RemoveLeftovers() const;
    void CreateTemporary(unsigned mode);

    std::string m_path;   ///< As the caller wrote it.
    std::string m_target; ///< Where it leads.
    std::string m_folder;
    std::string m_prefix; ///< With what the names of the target's temporary files begin.
    std::string m_temporary;
    int m_descriptor = -1;
    std::uint64_t m_offset = 0;
};
} // namespace workbench
