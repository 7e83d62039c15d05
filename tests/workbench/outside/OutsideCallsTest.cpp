#include "workbench/app/OutsideCalls.h"

#include <catch2/catch.hpp>

#include "workbench/script/CallCheck.h"
#include "workbench/script/Parser.h"

using namespace workbench;

namespace
{
/// The strings of a statement that is one call, and which fits its command.
std::vector<std::string> StringsOf(std::string const& statement)
{
    auto const statements = ParseScript(statement);
    REQUIRE(statements.size() == 1);
    auto const& call = std::get<Call>(statements[0].value);
    CHECK_NOTHROW(CheckCall(call, statements[0].target.has_value()));
    std::vector<std::string> strings;
    for (auto const& argument : call.arguments)
        strings.push_back(argument.text);
    return strings;
}

Eigen::VectorXd const SAMPLER =
    (Eigen::VectorXd(5) << 20000, 10000, 2, 1, 9007199254740992.0).finished();
} // namespace

TEST_CASE("what the dialog of JAGS tells becomes a statement")
{
    auto const statement =
        JagsCall({"/models/my model.bug",
                  "mat1, mat2,\n dat1.var2, ",
                  "\"mu\", \"tau\", \"beta[2:4]\"",
                  {{"chain1", "beta = zeros(3,1),\ntau = 10"}, {"chain2", "tau = 1\n"}},
                  SAMPLER,
                  "m1"});
    CHECK(statement
          == "m1 = jags(\"/models/my model.bug\", \"mat1, mat2, dat1.var2\", \"mu, tau, beta[2:4]\", "
             "\"inits\"=\"beta = zeros(3,1), tau = 10 | tau = 1\", \"draws\"=20000, \"burnin\"=10000, "
             "\"chains\"=2, "
             "\"thin\"=1, \"seed\"=9007199254740992);");
    CHECK(StringsOf(statement)
          == std::vector<std::string>{"/models/my model.bug", "mat1, mat2, dat1.var2",
                                      "mu, tau, beta[2:4]"});
}

TEST_CASE("what is not stored, and what is not typed, is not in the statement")
{
    auto const statement = JagsCall({"", "", "", {}, SAMPLER, ""});
    CHECK(statement
          == "jags(\"\", \"\", \"\", \"draws\"=20000, \"burnin\"=10000, \"chains\"=2, \"thin\"=1, "
             "\"seed\"=9007199254740992);");
    CHECK(StringsOf(statement) == std::vector<std::string>{"", "", ""});
}
