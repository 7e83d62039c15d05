#pragma once

#include <map>
#include <string>
#include <vector>

#include <Eigen/Core>

namespace workbench
{
/// What JAGS knows under a name: a number, a vector (a matrix of one column), or a matrix.
struct JagsValue
{
    std::string name;
    Eigen::MatrixXd value;
};

/// A file of data, or of initial values, as JAGS reads it: each number with as few digits as bring it
/// back, a missing value as NA. Throws an Error if a value is empty or infinite, or a name stands twice.
std::string JagsFile(std::vector<JagsValue> const& values);

/// Throws an Error if `monitor` is none, as mu, beta[2:4] or x[1,2:3].
void CheckMonitor(std::string const& monitor);

/// Reads the initial values of the chains, which have bars between them; in each chain assignments with
/// commas between them: "beta = zeros(3,1), tau = 10 | beta = [1; 2; 3]". A value is a number,
/// zeros(r,c), ones(r,c), or a matrix in brackets, of which one with a single row is a vector, too.
/// Throws an Error that quotes what it can't read.
std::vector<std::vector<JagsValue>> ReadInitialValues(std::string const& text);

/// The initial values as `ReadInitialValues` takes them, on one line, of what a user typed for each
/// chain under "chain1", "chain2" and so on.
std::string InitialValuesText(std::map<std::string, std::string> const& chains);
} // namespace workbench
