#pragma once

#include <string>
#include <vector>

/// How the dialogs that ask about an action on an estimated model read the list of texts that the host
/// gives them.
namespace zenqo
{
/// The entries from position `first` on; none if the list is not that long.
std::vector<std::string> EntriesFrom(std::vector<std::string> const& arguments, std::size_t first);

/// Names of variables, and the labels that follow them in a list of arguments.
struct NamesAndLabels
{
    std::vector<std::string> names;
    std::vector<std::string> labels;
};

/// Reads from position `first` on. DEFAULT_STRING stands between the names and the labels; it is
/// neither, wherever it stands.
NamesAndLabels ReadNamesAndLabels(std::vector<std::string> const& arguments, std::size_t first);
} // namespace zenqo
