#include "workbench/outside/Program.h"

namespace workbench
{
std::string Refusal(std::string const& name, Program const& instead)
{
    return "The workbench does not run " + name + ". What comes nearest of the programs that it runs is "
           + instead.name + "; where that is can be set among the paths to external programs.";
}
} // namespace workbench
