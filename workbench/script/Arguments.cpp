#include "workbench/script/Arguments.h"

#include <cmath>
#include <iterator>
#include <set>
#include <sstream>
#include <string_view>

#include "workbench/engine/Utf8.h"
#include "workbench/script/Nearest.h"

namespace workbench
{
namespace
{
/// Up to here every whole number is a double.
constexpr std::uint64_t LARGEST_WHOLE = std::uint64_t{1} << 53;

/// The object of the kind `Wanted` that `argument` names.
template <class Wanted>
std::shared_ptr<Wanted> ObjectOf(Argument const& argument, Workspace const& workspace,
                                 std::string const& expected)
{
    auto const object = FindObject(argument, workspace);
    if (auto const* found = std::get_if<std::shared_ptr<Wanted>>(&object))
        return *found;
    throw ScriptError("expected " + expected + ", but \"" + argument.text + "\" is none",
                      argument.position);
}
} // namespace

Object FindObject(Argument const& argument, Workspace const& workspace)
{
    auto object = workspace.Find(argument.text);
    if (std::holds_alternative<std::monostate>(object))
        throw ScriptError("there is nothing called \"" + argument.text + "\" in the workspace"
                              + Suggestion(argument.text, workspace.Names(), "names"),
                          argument.position);
    return object;
}

Argument const* Arguments::FindOption(std::string const& key) const
{
    for (auto const& option : m_call.options)
        if (option.key == key)
            return &option.value;
    return nullptr;
}

Argument const& Arguments::At(Which const& which) const
{
    return which.m_key.empty() ? m_call.arguments.at(which.m_index) : *FindOption(which.m_key);
}

Position Arguments::PlaceIn(Which const& which, std::size_t offset) const
{
    // A string stands on one line, behind its quote.
    auto place = PositionOf(which);
    auto const before = std::string_view(Text(which)).substr(0, offset);
    place.column += 1 + static_cast<int>(CountCharacters(before));
    return place;
}

char Arguments::Delimiter(Which const& which) const
{
    auto const& text = Text(which);
    return text == "\\t" ? '\t' : text.front();
}

std::vector<std::string> Arguments::Names(Which const& which) const
{
    std::istringstream stream(Text(which));
    return {std::istream_iterator<std::string>(stream), {}};
}

double Arguments::NumberOr(char const* key, double otherwise) const
{
    return Has(key) ? Number(key) : otherwise;
}

std::uint64_t Arguments::WholeOr(char const* key, std::uint64_t otherwise, std::uint64_t least) const
{
    if (!Has(key))
        return otherwise;
    double const number = Number(key);
    if (!(number >= static_cast<double>(least)) || number > static_cast<double>(LARGEST_WHOLE)
        || number != std::floor(number))
        throw ScriptError(std::string("\"") + key + "\" is a whole number of at least "
                              + std::to_string(least),
                          PositionOf(key));
    return static_cast<std::uint64_t>(number);
}

Object Arguments::AnyObject(Which const& which) const { return FindObject(At(which), m_workspace); }

std::shared_ptr<Dataset> Arguments::DatasetAt(Which const& which) const
{
    return ObjectOf<Dataset>(At(which), m_workspace, "the name of a dataset");
}

std::shared_ptr<Model> Arguments::ModelAt(Which const& which) const
{
    return ObjectOf<Model>(At(which), m_workspace, "the name of a model");
}

std::vector<std::shared_ptr<Model>> Arguments::ModelsAt(Which const& which) const
{
    auto argument = At(which);
    std::set<std::string> seen;
    std::vector<std::shared_ptr<Model>> models;
    for (auto const& name : Names(which))
    {
        argument.text = name;
        if (!seen.insert(name).second)
            throw ScriptError("the model \"" + name + "\" is given twice", argument.position);
        models.push_back(ObjectOf<Model>(argument, m_workspace, "the name of a model"));
    }
    if (models.empty())
        throw ScriptError("no model is named", argument.position);
    return models;
}

Eigen::MatrixXd Arguments::MatrixAt(Which const& which) const
{
    auto const& argument = At(which);
    if (argument.kind != Argument::Kind::Name)
        return argument.matrix;
    return *ObjectOf<Eigen::MatrixXd>(argument, m_workspace, "a matrix");
}
} // namespace workbench
