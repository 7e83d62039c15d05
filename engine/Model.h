#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <Eigen/Core>

/// An estimated model. The widgets look at `drawNames`, and at whether `results` has "logML"; all else
/// is for engine and host.
struct Model
{
    /// The names of the quantities of which the model holds posterior draws, in its own order.
    std::vector<std::string> drawNames;

    /// Named results. The widgets only ask whether "logML" (the log marginal likelihood) is there.
    std::map<std::string, Eigen::MatrixXd> results;

    /// The posterior draws that were kept: a row for each draw, the chains one below the other, and a
    /// column for each of `drawNames`.
    Eigen::MatrixXd draws;

    /// The number of chains, all of the same length; 0 without draws.
    int chains = 0;

    /// What kind of model it is, in the engine's words; empty if only the draws are known.
    std::string type;

    std::string dataset;   ///< The name of the dataset on which it was estimated; may be empty.
    std::string dependent; ///< The dependent variable; may be empty.

    /// The regressors in the order of their coefficients.
    std::vector<std::string> independent;
};

/// The workspace's models by name.
using ModelMap = std::map<std::string, std::shared_ptr<Model>>;

/// The workspace's matrices by name.
using MatrixMap = std::map<std::string, std::shared_ptr<Eigen::MatrixXd>>;
