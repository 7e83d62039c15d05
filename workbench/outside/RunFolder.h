#pragma once

#include <string>

namespace workbench
{
/// A folder for the files of one run of an outside program, which nobody else may look into. It is
/// removed with all in it when this goes; what a process that was killed left behind is removed by
/// the next run.
class RunFolder
{
public:
    /// Throws an Error if there is no room for temporary files.
    RunFolder();
    ~RunFolder();
    RunFolder(RunFolder const&) = delete;
    RunFolder& operator=(RunFolder const&) = delete;

    std::string const& Path() const { return m_path; }

    /// The path of `name` in the folder.
    std::string Path(std::string const& name) const { return m_path + "/" + name; }

    /// Writes a file. Throws an Error if that fails.
    void Write(std::string const& name, std::string const& content) const;

private:
    std::string m_path;
    int m_lock = -1; ///< Held as long as the folder is in use.
};
} // namespace workbench
