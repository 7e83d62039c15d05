#pragma once

#include <map>
#include <string>

#include <Eigen/Core>

namespace workbench
{
/// What a user wants of JAGS, as the dialog's getters tell it.
struct JagsWish
{
    std::string model;                                ///< The path of the model's file.
    std::string data;                                 ///< "mat1, mat2, dat1.var2", as typed.
    std::string monitors;                             ///< "mu", "beta[2:4]", as typed, quotes and all.
    std::map<std::string, std::string> initialValues; ///< As typed, under "chain1", "chain2", ...
    Eigen::VectorXd sampler;                          ///< Draws, burn-in, chains, thinning, seed.
    std::string name;                                 ///< Of the model to be stored; empty for none.
};

/// The statement that does it. What is typed with double quotes or on several lines, which the script
/// language has not within a string, is brought into the form in which the command takes it.
std::string JagsCall(JagsWish const& wish);

/// The statement by which `command`, "octave" or "rproject", runs a script: `handedOut` and `handedBack`
/// are lists of names as typed.
std::string BridgeCall(std::string const& command, std::string const& script,
                       std::string const& handedOut, std::string const& handedBack);
} // namespace workbench
