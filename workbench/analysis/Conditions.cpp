#include "workbench/analysis/Conditions.h"

#include "workbench/analysis/MonteCarloError.h"
#include "workbench/engine/Expression.h"
#include "workbench/engine/InputFile.h"

namespace workbench
{
namespace
{
/// The draws of one model.
class DrawNames : public ExpressionNames
{
public:
    DrawNames(std::string const& name, Model const& model) : m_name(name), m_model(model) {}

    Eigen::Index Rows() const override { return m_model.draws.rows(); }

    Found Find(std::string const& owner, std::string_view rest) const override
    {
        if (owner != m_name)
            throw Error("the test is one of the model " + Quoted(m_name) + ", not of " + Quoted(owner));
        // Names of draws may have brackets and dots in them, and one may begin as another does.
        Found longest{nullptr, 0};
        for (std::size_t draw = 0; draw < m_model.drawNames.size(); ++draw)
        {
            auto const& name = m_model.drawNames[draw];
            if (name.size() > longest.length && rest.compare(0, name.size(), name) == 0
                && EndsIn(rest.substr(name.size())))
                longest = {m_model.draws.col(static_cast<Eigen::Index>(draw)).data(), name.size()};
        }
        if (longest.length == 0)
            throw Error("the model " + Quoted(m_name) + " has no draw " + Quoted(Written(rest)));
        return longest;
    }

    std::string Kind() const override { return "draw"; }
    std::string OwnerKind() const override { return "model"; }
    std::string Owner() const override { return m_name; }

private:
    /// Whether a name may end where `rest` begins.
    static bool EndsIn(std::string_view rest)
    {
        return LeadingName(rest).empty() && (rest.empty() || rest.front() != '[');
    }

    /// The name that begins `rest`, with its brackets.
    static std::string Written(std::string_view rest)
    {
        auto const name = LeadingName(rest);
        if (name.size() == rest.size() || rest[name.size()] != '[')
            return std::string(name);
        auto const close = rest.find(']');
        return std::string(rest.substr(0, close == rest.npos ? close : close + 1));
    }

    std::string const& m_name;
    Model const& m_model;
};
} // namespace

Condition EvaluateCondition(std::string const& text, std::string const& name, Model const& model,
                            Progress& progress)
{
    auto computed = Compute(text, DrawNames(name, model), "Testing the conditions", progress);
    if (computed.comparison.empty())
        throw ExpressionError("a condition compares two expressions with >, >=, ==, <=, < or ~=", 0);
    return {std::move(computed.values), std::move(computed.comparison)};
}

Verdict Judge(Eigen::ArrayXd const& holds, int chains)
{
    auto const missing = holds.isNaN();
    Verdict verdict;
    verdict.draws = holds.size() - missing.count();
    verdict.probability = missing.select(0.0, holds).sum() / static_cast<double>(verdict.draws);
    verdict.error = MonteCarloError(holds, chains);
    return verdict;
}

bool IsVainEquality(Condition const& condition, Verdict const& verdict)
{
    return (condition.comparison == "==" && verdict.probability == 0.0)
           || (condition.comparison == "!=" && verdict.probability == 1.0);
}
} // namespace workbench
