// What the estimation of a linear regression takes, beside the random numbers that it cannot do without.

#include <boost/random/gamma_distribution.hpp>
#include <boost/random/normal_distribution.hpp>

#include <Eigen/Cholesky>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/estimation/EstimateRegression.h"
#include "workbench/estimation/PosteriorSummary.h"
#include "workbench/estimation/RegressionChain.h"

namespace benchmarks
{
namespace
{
constexpr Eigen::Index ROWS = 10000;
constexpr Eigen::Index COEFFICIENTS = 10;
constexpr std::int64_t DRAWS = 200000;

double checksum = 0.0; ///< Where results go, so that no compiler leaves the work out.

/// A dataset of y and the variables x1, x2, ...
std::shared_ptr<Dataset> MakeData(Eigen::Index rows)
{
    std::vector<std::string> names{"y"};
    for (Eigen::Index column = 1; column < COEFFICIENTS; ++column)
        names.push_back("x" + std::to_string(column));
    auto const dataset = workbench::MakeDataset(names, rows);
    auto random = workbench::MakeRandomStream(1, 0);
    boost::random::normal_distribution<double> normal;
    for (auto& value : dataset->data.rightCols(COEFFICIENTS).reshaped())
        value = normal(random);
    dataset->data.col(1) += dataset->data.rightCols(COEFFICIENTS - 1).rowwise().sum();
    return dataset;
}

workbench::RegressionTerms Terms()
{
    workbench::RegressionTerms terms{"y", {}};
    for (Eigen::Index column = 1; column < COEFFICIENTS; ++column)
        terms.independent.push_back("x" + std::to_string(column));
    return terms;
}

workbench::RegressionData Reduce(Dataset const& dataset)
{
    workbench::Progress progress;
    auto const terms = Terms();
    auto const design = workbench::MakeDesignMatrix(dataset, terms.dependent, terms.independent, {});
    return workbench::ReduceRegression(design, true, progress);
}

/// The seconds of `chains` chains of so many draws each on `threads` threads.
double Sample(workbench::RegressionPosterior const& posterior, int chains = 1, unsigned threads = 1,
              std::int64_t thin = 1)
{
    workbench::Progress progress;
    auto const make = [&](int chain)
    {
        return std::make_unique<workbench::RegressionChain>(posterior,
                                                            workbench::MakeRandomStream(7, chain));
    };
    auto const run = [&]
    {
        return workbench::RunChains({DRAWS, 0, chains, thin, 7},
                                    workbench::RegressionChain::Columns(COEFFICIENTS), make, progress,
                                    threads);
    };
    return Seconds([&] { checksum += run().mean(); });
}

/// The seconds of as many random numbers, and of a Cholesky decomposition for each draw if `decompose`.
double Peer(workbench::RegressionPosterior const& posterior, bool decompose)
{
    auto random = workbench::MakeRandomStream(7, 0);
    boost::random::normal_distribution<double> normal;
    boost::random::gamma_distribution<double> gamma(posterior.TauShape());
    Eigen::MatrixXd const cross = posterior.Data().factor.transpose() * posterior.Data().factor;
    Eigen::LLT<Eigen::MatrixXd> llt(COEFFICIENTS);
    auto const work = [&]
    {
        for (std::int64_t draw = 0; draw < DRAWS; ++draw)
        {
            for (Eigen::Index i = 0; i < COEFFICIENTS; ++i)
                checksum += normal(random);
            checksum += gamma(random);
            if (decompose)
                checksum += llt.compute(cross).matrixLLT()(0, 0);
        }
    };
    return Seconds(work);
}

/// The seconds of the whole estimation, with the usual number of draws.
double Estimate(Dataset const& dataset)
{
    workbench::Progress progress;
    auto const work = [&]
    {
        auto const model = workbench::EstimateRegression(
            dataset, Terms(), workbench::DefaultRegressionPrior(COEFFICIENTS), {20000, 10000, 1, 1, 7},
            progress);
        checksum += workbench::SummarizeDraws(*model, progress)[0].mean;
    };
    return Seconds(work);
}
} // namespace

void MeasureEstimation(Table& table)
{
    Claim const draws{"regression, 10,000 x 10, draws: against numbers and LLT", 2.0};
    Claim const bare{"regression, 10,000 x 10, draws: against numbers alone", 3.0};
    Claim const threads{"regression, two chains, two threads: against one", 1.0 / 1.7};
    Claim const drawsTwice{"regression, draws, 20,000 x 10: against 10,000", 1.2};
    Claim const whole{"regression, whole, 400,000 x 10: against 200,000", 2.2};
    if (!table.Wants(draws.name) && !table.Wants(bare.name) && !table.Wants(threads.name)
        && !table.Wants(drawsTwice.name) && !table.Wants(whole.name))
        return;
    auto const posterior = [](Eigen::Index rows)
    {
        return workbench::RegressionPosterior(Reduce(*MakeData(rows)),
                                              workbench::DefaultRegressionPrior(COEFFICIENTS));
    };
    auto const once = posterior(ROWS);
    auto const twice = posterior(2 * ROWS);
    auto const sample = [&] { return Sample(once); };
    table.Compare(draws, sample, [&] { return Peer(once, true); });
    table.Compare(bare, sample, [&] { return Peer(once, false); });
    table.Compare(
        threads, [&] { return Sample(once, 2, 2, 10); }, [&] { return Sample(once, 2, 1, 10); });
    table.Compare(
        drawsTwice, [&] { return Sample(twice); }, sample);
    auto const small = MakeData(20 * ROWS);
    auto const large = MakeData(40 * ROWS);
    table.Compare(
        whole, [&] { return Estimate(*large); }, [&] { return Estimate(*small); });
}
} // namespace benchmarks
