#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/DataDesk.h"
#include "workbench/analysis/ModelComparison.h"
#include "workbench/analysis/ModelMaking.h"

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

/// Models whose probabilities are in the proportion 1 : 2 : 4 by Lewis and Raftery, far from the range
/// of numbers; by Chib and Jeliazkov a and b are in the proportion 1 : 3.
struct CompareDesk : DataDesk
{
    CompareDesk()
    {
        workspace.Assign("a", ModelOfLogML(-5000, -4000));
        workspace.Assign("b", ModelOfLogML(-5000 + std::log(2), -4000 + std::log(3)));
        workspace.Assign("c", ModelOfLogML(-5000 + std::log(4), NA));
        workspace.Assign("onlyCJ", ModelOfLogML(NA, -7));
        workspace.Assign("none", ModelOfLogML(NA, NA));
        workspace.Assign("bare", std::make_shared<Model>());
    }

    /// The error of a comparison of a and b with these options.
    std::string Refusal(std::string const& options) { return Failure("compare(\"a b\"" + options + ");"); }
};
} // namespace

TEST_CASE("models are compared by prior and marginal likelihood")
{
    CompareDesk desk;
    CHECK(desk.Run("p = compare(\"a b  c\");")
          == "\nComparison of 3 models; Bayes factors against c\n"
             "model\tapproximation\t   log-ML\t    prior\tposterior\tBayes factor\n"
             "a    \tLewis-Raftery\t    -5000\t 0.333333\t 0.142857\t        0.25\n"
             "b    \tLewis-Raftery\t -4999.31\t 0.333333\t 0.285714\t         0.5\n"
             "c    \tLewis-Raftery\t -4998.61\t 0.333333\t 0.571429\t           1\n");
    auto const& p = *desk.workspace.matrices.at("p");
    REQUIRE(p.rows() == 3);
    REQUIRE(p.cols() == 1);
    CHECK(p(0) == Approx(1.0 / 7).epsilon(1e-12));
    CHECK(p(1) == Approx(2.0 / 7).epsilon(1e-12));
    CHECK(p(2) == Approx(4.0 / 7).epsilon(1e-12));
    CHECK(desk.output.warnings.empty());

    // 0.6 : 0.3 * 2 : 0.1 * 4
    desk.Run("p = compare(\"a b c\", \"priors\"=[0.6; 0.3; 0.1]);");
    CHECK((*desk.workspace.matrices.at("p"))(0) == Approx(6.0 / 16).epsilon(1e-12));
    CHECK((*desk.workspace.matrices.at("p"))(2) == Approx(4.0 / 16).epsilon(1e-12));
    desk.Run("w = [0.6, 0.3, 0.1]; compare(\"a b c\", \"priors\"=w, \"approximation\"=\"LR\");");
    CHECK(desk.Run("p = compare(\"b\");").find("Comparison of 1 model;") != std::string::npos);
    CHECK((*desk.workspace.matrices.at("p"))(0) == 1.0);
}

TEST_CASE("Chib and Jeliazkov's approximation is used where there is one")
{
    CompareDesk desk;
    CHECK(desk.Run("compare(\"a b\", \"approximation\"=\"CJ\");")
          == "\nComparison of 2 models; Bayes factors against b\n"
             "model\tapproximation \t log-ML\tprior\tposterior\tBayes factor\n"
             "a    \tChib-Jeliazkov\t  -4000\t  0.5\t     0.25\t    0.333333\n"
             "b    \tChib-Jeliazkov\t-3998.9\t  0.5\t     0.75\t           1\n");
    auto const mixed = desk.Run("compare(\"c onlyCJ\", \"approximation\"=\"CJ\");");
    CHECK(mixed.find("c     \tLewis-Raftery \t -4998.61\t  0.5\t        0\t           0\n")
          != std::string::npos);
    CHECK(mixed.find("onlyCJ\tChib-Jeliazkov\t       -7\t  0.5\t        1\t           1\n") != std::string::npos);
}

TEST_CASE("probabilities that were rounded to six digits sum to one")
{
    using workbench::CheckedPriors;
    CHECK(CheckedPriors(Eigen::VectorXd::Constant(6, 0.166667), 6) == Eigen::VectorXd::Constant(6, 1.0 / 6));
    CHECK(CheckedPriors(Eigen::RowVectorXd::Constant(3, 0.333333), 3).sum() == Approx(1).epsilon(1e-15));
}

TEST_CASE("models that can't be compared are warned of")
{
    CompareDesk desk;
    auto const tell = [&](char const* name, char const* dependent, char const* dataset, double observations)
    {
        auto& model = *desk.workspace.models.at(name);
        model.dependent = dependent;
        model.dataset = dataset;
        model.results["observations"] = Eigen::RowVector2d(observations, 0);
    };
    tell("a", "y", "d", 16);
    tell("b", "y", "d", 16);
    desk.Run("compare(\"a b c\");"); // of c nothing is known
    CHECK(desk.output.warnings.empty());
    tell("c", "z", "e", 17);
    desk.Run("compare(\"a b c\");");
    std::string const behind
        = ", and only models of one dependent variable on one set of observations can be compared.";
    CHECK(desk.output.warnings
          == std::vector<std::string>{"The models differ in the dependent variable (y, z)" + behind,
                                      "The models differ in the dataset (d, e)" + behind,
                                      "The models differ in the number of observations (16, 17)" + behind});
}

TEST_CASE("a comparison that can't be made is one error with its place")
{
    CompareDesk desk;
    CHECK(desk.Failure("compare(\"\");") == "Line 1, column 9: no model is named");
    CHECK(desk.Failure("compare(\"a a\");") == "Line 1, column 9: the model \"a\" is given twice");
    CHECK(desk.Failure("compare(\"a zz\");")
          == "Line 1, column 9: there is nothing called \"zz\" in the workspace; the names are: a, b, bare, c, "
             "none, onlyCJ");
    desk.Run("m = [1];");
    CHECK(desk.Failure("compare(\"a m\");")
          == "Line 1, column 9: expected the name of a model, but \"m\" is none");
    CHECK(desk.Failure("compare(\"a bare\");")
          == "Line 1, column 1: the model \"bare\" has no log marginal likelihood");
    CHECK(desk.Failure("compare(\"none\", \"approximation\"=\"CJ\");")
          == "Line 1, column 1: the model \"none\" has no log marginal likelihood");
    CHECK(desk.Failure("compare(\"a onlyCJ\");")
          == "Line 1, column 1: the model \"onlyCJ\" has no log marginal likelihood by Lewis and Raftery; "
             "there is one with \"approximation\"=\"CJ\"");
    CHECK(desk.Refusal(", \"priors\"=[1]") == "Line 1, column 25: there are 1 prior probabilities for 2 models");
    CHECK(desk.Refusal(", \"priors\"=[]") == "Line 1, column 25: there are 0 prior probabilities for 2 models");
    CHECK(desk.Refusal(", \"priors\"=[1, 0]") == "Line 1, column 25: prior probabilities are positive");
    CHECK(desk.Refusal(", \"priors\"=[1.5, -0.5]") == "Line 1, column 25: prior probabilities are positive");
    CHECK(desk.Refusal(", \"priors\"=[nan, 1]") == "Line 1, column 25: prior probabilities are positive");
    CHECK(desk.Refusal(", \"priors\"=[0.5, 0.6]")
          == "Line 1, column 25: prior probabilities sum to one, but these to 1.1");
    CHECK(desk.Refusal(", \"priors\"=[0.5, 0.500003]")
          == "Line 1, column 25: prior probabilities sum to one, but these to 1");
    CHECK(desk.Refusal(", \"priors\"=[inf, 1]")
          == "Line 1, column 25: prior probabilities sum to one, but these to inf");
    CHECK(desk.Refusal(", \"approximation\"=\"BIC\"")
          == "Line 1, column 32: expected \"LR\" or \"CJ\" as the approximation, but found \"BIC\"");
    CHECK(desk.Refusal(", \"prior\"=[1, 0]")
          == "Line 1, column 16: \"compare\" has no option \"prior\"; did you mean \"priors\"?");
    CHECK(desk.output.text.empty());
}
