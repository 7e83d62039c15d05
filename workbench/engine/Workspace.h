#pragma once

#include <string>
#include <variant>
#include <vector>

#include "engine/Engine.h"
#include "workbench/engine/Structure.h"

namespace workbench
{
/// The name of a dataset's hidden first column, a column of ones.
inline constexpr char const* CONSTANT = "constant";

/// One thing of a workspace, or nothing.
///
/// Objects in a workspace may be shared with whoever reads them: a command that changes one makes
/// a new object and puts it in the old one's place.
using Object = std::variant<std::monostate, std::shared_ptr<Dataset>, std::shared_ptr<Eigen::MatrixXd>,
                            std::shared_ptr<Model>>;

/// What the user works on. A name stands for one object, whatever kind it is of: putting an object
/// under a name takes away what had the name, in any of the maps.
struct Workspace
{
    DatasetMap datasets;
    MatrixMap matrices;
    ModelMap models;

    /// The structures of the datasets that have one, by the datasets' names.
    std::map<std::string, Structure> structures;

    std::string file;         ///< Where it was last loaded from or saved to; empty if nowhere.
    unsigned long stored = 0; ///< How often it was loaded or saved.

    /// Notes that `path` holds this workspace.
    void NoteStored(std::string const& path);

    /// True if both hold the same objects under the same names, and the datasets are structured
    /// alike. A changed object is a new object, so this looks at no values.
    bool SameObjects(Workspace const& other) const;

    /// The object called `name`, or nothing.
    Object Find(std::string const& name) const;

    /// Puts `object` under `name`; a dataset takes the name over, and has no structure.
    void Assign(std::string const& name, Object const& object);

    void Remove(std::string const& name);

    /// The structure of the dataset `name`; an empty one if it has none.
    Structure StructureOf(std::string const& name) const;

    /// Gives the dataset `name` a structure that fits it, in place of the one it had; an empty one
    /// takes that away.
    void SetStructure(std::string const& name, Structure const& structure);

    /// All names, sorted.
    std::vector<std::string> Names() const;
};

/// A copy that shares nothing with `object`.
Object Copy(Object const& object);

/// A dataset without values: `rows` observations on the hidden first column, all ones, and on the
/// variables called `names`.
std::shared_ptr<Dataset> MakeDataset(std::vector<std::string> const& names, Eigen::Index rows);
} // namespace workbench
