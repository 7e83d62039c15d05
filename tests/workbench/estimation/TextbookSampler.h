#pragma once

#include <functional>
#include <memory>

#include "workbench/estimation/ChainRunner.h"
#include "workbench/estimation/RandomStream.h"
#include "workbench/estimation/RegressionPosterior.h"

/// Makes a chain that begins with a tau; a draw is the coefficients and tau, perhaps more behind them.
using RegressionSampler = std::function<std::unique_ptr<workbench::Chain>(
    workbench::RegressionPosterior const& posterior, workbench::RandomStream const& random, double tau)>;

/// What may be wrong with a sampler.
enum class Fault
{
    None,
    Shape,     ///< The shape of tau's gamma distribution counts each observation as one, not a half.
    Weight,    ///< The precision of beta has X'X without tau in it.
    PriorMean, ///< The prior mean of beta is taken for zero.
    Residuals  ///< Tau is drawn as if beta were its conditional mean.
};

/// A sampler that is written as the textbooks have it, with a Cholesky decomposition for each draw.
RegressionSampler Textbook(Fault fault);

/// The sampler under test.
RegressionSampler OurSampler();
