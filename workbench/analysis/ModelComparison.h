#pragma once

#include <memory>
#include <string>
#include <vector>

#include <Eigen/Core>

#include "engine/Model.h"

namespace workbench
{
/// The approximations of the logarithm of the marginal likelihood, in the order of the model's record.
enum class Approximation
{
    LewisRaftery,
    ChibJeliazkov
};

/// Their names, as they are printed.
char const* NameOf(Approximation approximation);

/// What is known of one of the models that are compared.
struct Candidate
{
    std::string name;
    double logML = 0.0;
    Approximation approximation = Approximation::LewisRaftery;
};

/// The log-ML of the model called `name`: by `wanted`, or, if Chib and Jeliazkov's is wanted and not
/// there, that of Lewis and Raftery. Throws an Error if there is none.
Candidate CandidateOf(std::string const& name, Model const& model, Approximation wanted);

/// The prior probabilities of `count` models that are given as `priors`, a row or a column, scaled to
/// sum to one to the last digit. Throws an Error if their number is another, one is not positive, or
/// they do not sum to one as far as six digits of each can tell.
Eigen::VectorXd CheckedPriors(Eigen::MatrixXd const& priors, std::size_t count);

/// The probabilities of models given the data: proportional to prior times marginal likelihood.
Eigen::VectorXd PosteriorProbabilities(Eigen::VectorXd const& logML, Eigen::VectorXd const& priors);

/// Says, a sentence for each, in what the models differ that must be the same if their probabilities
/// are to mean something: the dependent variable, the dataset, the number of observations.
/// What a model's record does not tell is not compared.
std::vector<std::string> Differences(std::vector<std::shared_ptr<Model>> const& models);
} // namespace workbench
