#pragma once

#include <numeric>

#include "dialogs/data/DialogChecks.h"

/// What the dialogs that work on estimated models have in common.
namespace model_checks
{
using namespace dialog_checks;

inline std::shared_ptr<Model> MakeModel(std::vector<std::string> drawNames)
{
    auto model = std::make_shared<Model>();
    model->drawNames = std::move(drawNames);
    return model;
}

/// Two models of wages and, between them, one without draws.
inline ModelMap ThreeModels()
{
    return {{"long_equation", MakeModel({"constant", "educ", "exper", "tenure", "tau"})},
            {"no_draws", MakeModel({})},
            {"wage_equation", MakeModel({"constant", "educ", "tau"})}};
}

inline std::vector<std::string> ThousandNames()
{
    std::vector<std::string> names;
    for (int i = 0; i < 1000; ++i)
        names.push_back("name_" + std::to_string(1000 + i));
    return names;
}

/// The numbers 0 to count-1.
inline std::vector<int> FirstOnes(int count)
{
    std::vector<int> ones(static_cast<std::size_t>(count));
    std::iota(ones.begin(), ones.end(), 0);
    return ones;
}

/// A dialog on models that belong to the test.
template <class Dialog>
struct Fixture
{
    explicit Fixture(ModelMap given = ThreeModels()) : models(std::move(given)) {}

    wxWindow* Run() { return dialog.FindWindow(wxID_OK); }

    Stage stage;
    ModelMap models;
    Dialog dialog{stage.Frame(), &models};
};
} // namespace model_checks
