#pragma once

#include <string>

#include "engine/Engine.h"

/// The workspace from which the gallery's widgets are filled: the workbench's sample data, and what
/// a user might have made of them.
struct Shelf
{
    /// Loads the sample workspace from the folder of samples.
    explicit Shelf(std::string const& samples);

    DatasetMap datasets;
    MatrixMap matrices;
    ModelMap models;

    /// A survey of travellers, with a numbered variable for each of three ways to travel.
    DatasetMap surveys;
};

/// The posterior of a linear model under a flat prior.
struct Posterior
{
    std::vector<std::string> names;
    Eigen::MatrixXd moments; ///< One row for each name: mean, standard deviation.
    double sigma;            ///< The root of the posterior mean of the error variance.
};

/// Regresses a dataset's variable `dependent` on a constant and all its other variables.
Posterior Regress(Dataset const& dataset, std::string const& dependent);
