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
