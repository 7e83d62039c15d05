#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <Eigen/Core>

/// An estimated model, as far as the widgets look at it.
struct Model
{
    /// The names of the quantities of which the model holds posterior draws, in its own order.
    std::vector<std::string> drawNames;

    /// Named results. The widgets only ask whether "logML" (the log marginal likelihood) is there.
    std::map<std::string, Eigen::MatrixXd> results;
};

/// The workspace's models by name.
using ModelMap = std::map<std::string, std::shared_ptr<Model>>;

/// The workspace's matrices by name.
using MatrixMap = std::map<std::string, std::shared_ptr<Eigen::MatrixXd>>;
