#pragma once

#include <functional>
#include <memory>

#include <Eigen/Core>

#include "workbench/estimation/SamplerSettings.h"

namespace workbench
{
class Progress;

/// One Markov chain.
class Chain
{
public:
    virtual ~Chain() = default;

    /// Goes one iteration on. Must not wait for anything.
    virtual void Step() = 0;

    /// Writes the present state into a row of the draws.
    virtual void Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>> row) const = 0;
};

/// Makes chain number `chain`, from 0. It is called on several threads at once, and what it makes shares
/// nothing with other chains that changes.
using MakeChain = std::function<std::unique_ptr<Chain>(int chain)>;

/// Runs all chains that `settings` ask for and gives the draws that are kept: `columns` numbers in each
/// row, the chains one below the other.
///
/// The chains run on threads of their own, at most `threads` of them at a time, or as many as the
/// machine can run if that is 0; a thread that is done with a chain takes the next. The draws do not
/// depend on the number of threads. The calling thread waits and reports progress; if that throws, which
/// is how the user stops a run, or a chain throws, all chains are stopped before the exception is passed
/// on.
///
/// Throws an Error if the draws would take more than a quarter of the machine's memory.
Eigen::MatrixXd RunChains(SamplerSettings const& settings, Eigen::Index columns, MakeChain const& make,
                          Progress& progress, unsigned threads = 0);
} // namespace workbench
