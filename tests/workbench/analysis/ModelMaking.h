#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/Model.h"

/// A model that is known by nothing but its draws, a column for each of `names`.
inline std::shared_ptr<Model> ModelOfDraws(std::vector<std::string> const& names,
                                           Eigen::MatrixXd const& draws, int chains = 1)
{
    auto const model = std::make_shared<Model>();
    model->drawNames = names;
    model->draws = draws;
    model->chains = chains;
    return model;
}

/// A model of which the log marginal likelihood is known, by Lewis and Raftery and by Chib and Jeliazkov.
inline std::shared_ptr<Model> ModelOfLogML(double lewisRaftery, double chibJeliazkov)
{
    auto const model = std::make_shared<Model>();
    model->results["logML"] = Eigen::RowVector2d(lewisRaftery, chibJeliazkov);
    return model;
}

/// A linear regression on the dataset d: `draws` has a column for each of `regressors`, and two more for
/// tau and sigma.
inline std::shared_ptr<Model> RegressionOfDraws(std::string const& dependent,
                                                std::vector<std::string> const& regressors,
                                                Eigen::MatrixXd const& draws)
{
    auto names = regressors;
    names.insert(names.end(), {"tau", "sigma"});
    auto const model = ModelOfDraws(names, draws);
    model->type = "linear regression";
    model->dataset = "d";
    model->dependent = dependent;
    model->independent = regressors;
    return model;
}
