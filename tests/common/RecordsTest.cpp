#include <catch2/catch.hpp>

#include "common/Records.h"

using zenqo::VariableNames;

namespace
{
std::shared_ptr<Dataset> WithVariable(char const* name)
{
    auto dataset = std::make_shared<Dataset>();
    dataset->varNames.Add("constant");
    dataset->varNames.Add(name);
    return dataset;
}
} // namespace

TEST_CASE("a dataset's variables are found by its name")
{
    DatasetMap const datasets{{"macro", WithVariable("gdp")}, {"z\xC3\xBCrich", WithVariable("rent")}};
    CHECK(VariableNames(datasets, "macro") == datasets.at("macro")->varNames);
    CHECK(VariableNames(datasets, "z\xC3\xBCrich") == datasets.at("z\xC3\xBCrich")->varNames);
    CHECK(VariableNames(datasets, "Macro").empty());
    CHECK(VariableNames(datasets, "").empty());
    CHECK(VariableNames({}, "macro").empty());
}

TEST_CASE("a dataset whose name is no text is found by the empty name that is shown for it")
{
    DatasetMap datasets{{"macro", WithVariable("gdp")}, {"bad \xFF", WithVariable("rent")}};
    CHECK(VariableNames(datasets, "").Last() == "rent");
    datasets[""] = WithVariable("wage");
    CHECK(VariableNames(datasets, "").Last() == "wage");
}
