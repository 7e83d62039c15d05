#pragma once

#include <string>

#include "workbench/engine/Error.h"

/// A folder of its own for one test, which is removed with all in it at the test's end.
class Scratch
{
public:
    Scratch();
    ~Scratch();
    Scratch(Scratch const&) = delete;
    Scratch& operator=(Scratch const&) = delete;

    std::string const& Folder() const { return m_folder; }

    /// The path of `name` in the folder.
    std::string Path(std::string const& name) const { return m_folder + "/" + name; }

    /// Writes a file and gives its path.
    std::string Write(std::string const& name, std::string const& content) const;

    /// Writes a script of the shell that can be started as a program, and gives its path.
    std::string WriteProgram(std::string const& name, std::string const& script) const;

    /// The number of files and folders in the folder, hidden ones included.
    int CountFiles() const;

private:
    std::string m_folder;
};

/// The bytes of the file at `path`.
std::string ReadFile(std::string const& path);

/// The message of the workbench::Error that `action` throws; "(no error)" if it throws none.
template <class Action>
std::string ErrorOf(Action const& action)
{
    try
    {
        action();
    }
    catch (workbench::Error const& error)
    {
        return error.what();
    }
    return "(no error)";
}
