#include "common/ActionArguments.h"

#include "engine/Sentinels.h"

namespace zenqo
{
std::vector<std::string> EntriesFrom(std::vector<std::string> const& arguments, std::size_t first)
{
    if (arguments.size() <= first)
        return {};
    return {arguments.begin() + static_cast<std::ptrdiff_t>(first), arguments.end()};
}

NamesAndLabels ReadNamesAndLabels(std::vector<std::string> const& arguments, std::size_t first)
{
    NamesAndLabels read;
    auto* into = &read.names;
    for (std::string const& entry : EntriesFrom(arguments, first))
    {
        if (entry == DEFAULT_STRING)
            into = &read.labels;
        else
            into->push_back(entry);
    }
    return read;
}
} // namespace zenqo
