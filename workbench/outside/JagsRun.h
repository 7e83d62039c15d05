#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/Model.h"
#include "workbench/estimation/SamplerSettings.h"
#include "workbench/outside/JagsText.h"

namespace workbench
{
class Output;
class Progress;

/// What JAGS is asked to do.
struct JagsRun
{
    std::string model; ///< The path of the file that holds the model.
    std::vector<JagsValue> data;
    std::vector<std::string> monitors;                 ///< What comes back: mu, beta[2:4].
    std::vector<std::vector<JagsValue>> initialValues; ///< Of the first chains; JAGS finds the others.
    SamplerSettings sampler;
};

/// The seed of the generator of chain `chain`, from 1.
std::uint64_t JagsSeed(std::uint64_t seed, int chain);

/// Throws an Error if something is asked that can't be, as far as that shows before the files are read.
void CheckJagsRun(JagsRun const& run);

/// Runs JAGS in a private folder and gives a model of the draws. Its own words go to `output`. Throws an
/// Error if something is asked that can't be, or JAGS is not there, or fails.
std::shared_ptr<Model> RunJags(JagsRun const& run, Output& output, Progress& progress);
} // namespace workbench
