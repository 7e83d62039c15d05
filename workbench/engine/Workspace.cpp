#include "workbench/engine/Workspace.h"

#include <algorithm>
#include <type_traits>

#include "common/Text.h"

namespace workbench
{
namespace
{
/// Writes what `map` holds under `name` to `object`, if anything.
template <class Map>
void Look(Map const& map, std::string const& name, Object& object)
{
    auto const found = map.find(name);
    if (found != map.end())
        object = found->second;
}

template <class Map>
void AppendNames(Map const& map, std::vector<std::string>& names)
{
    for (auto const& entry : map)
        names.push_back(entry.first);
}
} // namespace

void Workspace::NoteStored(std::string const& path)
{
    file = path;
    ++stored;
}

bool Workspace::SameObjects(Workspace const& other) const
{
    return datasets == other.datasets && matrices == other.matrices && models == other.models
           && structures == other.structures;
}

Object Workspace::Find(std::string const& name) const
{
    Object object;
    Look(datasets, name, object);
    Look(matrices, name, object);
    Look(models, name, object);
    return object;
}

void Workspace::Assign(std::string const& name, Object const& object)
{
    Remove(name);
    if (auto const* dataset = std::get_if<std::shared_ptr<Dataset>>(&object))
    {
        (*dataset)->name = zenqo::ToWide(name);
        datasets[name] = *dataset;
    }
    else if (auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&object))
        matrices[name] = *matrix;
    else if (auto const* model = std::get_if<std::shared_ptr<Model>>(&object))
        models[name] = *model;
}

void Workspace::Remove(std::string const& name)
{
    datasets.erase(name);
    matrices.erase(name);
    models.erase(name);
    structures.erase(name);
}

Structure Workspace::StructureOf(std::string const& name) const
{
    auto const found = structures.find(name);
    return found == structures.end() ? Structure() : found->second;
}

void Workspace::SetStructure(std::string const& name, Structure const& structure)
{
    if (structure.IsEmpty())
        structures.erase(name);
    else
        structures[name] = structure;
}

std::vector<std::string> Workspace::Names() const
{
    std::vector<std::string> names;
    AppendNames(datasets, names);
    AppendNames(matrices, names);
    AppendNames(models, names);
    std::sort(names.begin(), names.end());
    return names;
}

Object Copy(Object const& object)
{
    return std::visit(
        [](auto const& pointer) -> Object
        {
            using Pointer = std::decay_t<decltype(pointer)>;
            if constexpr (std::is_same_v<Pointer, std::monostate>)
                return {};
            else
                return std::make_shared<typename Pointer::element_type>(*pointer);
        },
        object);
}

std::shared_ptr<Dataset> MakeDataset(std::vector<std::string> const& names, Eigen::Index rows)
{
    auto dataset = std::make_shared<Dataset>();
    dataset->varNames.Alloc(names.size() + 1);
    dataset->varNames.Add(CONSTANT);
    for (auto const& name : names)
        dataset->varNames.Add(wxString::FromUTF8(name));
    dataset->data.resize(rows, static_cast<Eigen::Index>(names.size() + 1));
    dataset->data.col(0).setOnes();
    return dataset;
}
} // namespace workbench
