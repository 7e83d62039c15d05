#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "workbench/engine/Workspace.h"
#include "workbench/script/Script.h"

namespace workbench
{
/// The arguments and options of one call, checked against the command's parameters.
///
/// A getter takes an argument's index from 0, or an option's key; what it asks for must be there,
/// see `Count` and `Has`. Each throws a ScriptError at the argument if what that names is not there.
class Arguments
{
public:
    /// One of the arguments, or one of the options.
    class Which
    {
    public:
        Which(int index) : m_index(static_cast<std::size_t>(index)) {}
        Which(std::size_t index) : m_index(index) {}
        Which(char const* key) : m_key(key) {}

    private:
        friend class Arguments;
        std::size_t m_index = 0;
        std::string m_key; ///< Empty for an argument.
    };

    /// Both must live as long as the arguments.
    Arguments(Call const& call, Workspace const& workspace) : m_call(call), m_workspace(workspace) {}

    std::size_t Count() const { return m_call.arguments.size(); }
    bool Has(std::string const& key) const { return FindOption(key) != nullptr; }

    /// Of a string or a name; empty for others.
    std::string const& Text(Which const& which) const { return At(which).text; }
    bool IsString(Which const& which) const { return At(which).kind == Argument::Kind::String; }
    Position PositionOf(Which const& which) const { return At(which).position; }

    /// The place in the script of a byte of a string.
    Position PlaceIn(Which const& which, std::size_t offset) const;

    char Delimiter(Which const& which) const;

    /// The names that stand in a string, with blanks between them.
    std::vector<std::string> Names(Which const& which) const;

    double Number(Which const& which) const { return At(which).matrix(0, 0); }

    /// The number of an option; `otherwise` if the option is not given.
    double NumberOr(char const* key, double otherwise) const;

    /// As `NumberOr`, for a whole number of at least `least` and at most 2^53.
    std::uint64_t WholeOr(char const* key, std::uint64_t otherwise, std::uint64_t least) const;

    /// Whether an option is given and true.
    bool Flag(char const* key) const { return Has(key) && Text(key) == "true"; }

    Object AnyObject(Which const& which) const;
    std::shared_ptr<Dataset> DatasetAt(Which const& which) const;
    std::shared_ptr<Model> ModelAt(Which const& which) const;

    /// The models whose names stand in a string, each once.
    std::vector<std::shared_ptr<Model>> ModelsAt(Which const& which) const;

    Eigen::MatrixXd MatrixAt(Which const& which) const;

private:
    Argument const* FindOption(std::string const& key) const;
    Argument const& At(Which const& which) const;

    Call const& m_call;
    Workspace const& m_workspace;
};

/// The object that `argument` names. Throws a ScriptError if there is none.
Object FindObject(Argument const& argument, Workspace const& workspace);
} // namespace workbench
