// What the commands on datasets take, beside the same work written by hand.

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "benchmarks/Silence.h"
#include "workbench/engine/Expression.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"

namespace benchmarks
{
namespace
{
constexpr Eigen::Index ROWS = 1000000;

/// A dataset d of the variables x1, x2, ..., positive numbers.
std::shared_ptr<Dataset> Numbers(Eigen::Index columns)
{
    std::vector<std::string> names;
    for (Eigen::Index column = 1; column <= columns; ++column)
        names.push_back("x" + std::to_string(column));
    auto const dataset = workbench::MakeDataset(names, ROWS);
    std::mt19937_64 random(1);
    std::lognormal_distribution<double> distribution;
    for (auto& value : dataset->data.rightCols(columns).reshaped())
        value = distribution(random);
    return dataset;
}

/// The seconds that a statement takes on the dataset d.
double Statement(std::shared_ptr<Dataset> const& dataset, std::string const& statement)
{
    workbench::Workspace workspace;
    workspace.Assign("d", dataset);
    Silence output;
    workbench::Progress progress;
    workbench::Interpreter interpreter(workspace, output, progress);
    return Seconds([&] { interpreter.Run(statement, workbench::Interpreter::Echo::None); });
}

double checksum = 0.0; ///< Where results go, so that no compiler leaves the work out.

/// The seconds in which `expression` is computed, without the copy that a statement makes.
double Expression(DatasetMap const& datasets, std::string const& expression)
{
    workbench::Progress progress;
    return Seconds(
        [&] { checksum += workbench::Compute(expression, "d", datasets, progress).values[ROWS / 2]; });
}

void MeasureCreate(Table& table)
{
    Claim const plain{"an expression, 1,000,000 rows, + - * / sqrt: against Eigen", 3.0};
    Claim const functions{"an expression, 1,000,000 rows, exp log: against Eigen", 3.0};
    Claim const copied{"create, 1,000,000 x 3, + - * / sqrt: against Eigen, a copy", 3.0};
    Claim const whole{"create, 1,000,000 x 3, exp log: against Eigen, no copy", 3.0};
    if (!table.Wants(plain.name) && !table.Wants(functions.name) && !table.Wants(copied.name)
        && !table.Wants(whole.name))
        return;
    auto const dataset = Numbers(3);
    DatasetMap const datasets{{"d", dataset}};
    auto const column = [&](Eigen::Index index) { return dataset->data.col(index).array(); };
    std::string const plainText = "(d.x1 - d.x2) .* d.x3 / 2 + sqrt(d.x1 ^ 2 + d.x2 ^ 2)";
    std::string const functionsText = "log(d.x1) + exp(-d.x2) .* d.x3";
    auto const write = [&](auto&& values) {
        values
            = (column(1) - column(2)) * column(3) / 2 + (column(1).square() + column(2).square()).sqrt();
    };
    auto const writePlain = [&]
    {
        return Seconds(
            [&]
            {
                Eigen::ArrayXd y(ROWS);
                write(y);
                checksum += y[ROWS / 2];
            });
    };
    auto const writeCopy = [&]
    {
        return Seconds(
            [&]
            {
                Eigen::MatrixXd all(ROWS, 5);
                all.leftCols(4) = dataset->data;
                write(all.col(4).array());
                checksum += all(ROWS / 2, 4);
            });
    };
    auto const writeFunctions = [&]
    {
        return Seconds(
            [&]
            {
                Eigen::ArrayXd const y = column(1).log() + (-column(2)).exp() * column(3);
                checksum += y[ROWS / 2];
            });
    };
    table.Compare(plain, [&] { return Expression(datasets, plainText); }, writePlain);
    table.Compare(functions, [&] { return Expression(datasets, functionsText); }, writeFunctions);
    table.Compare(
        copied, [&] { return Statement(dataset, "create(d, \"y\", \"" + plainText + "\");"); },
        writeCopy);
    table.Compare(
        whole, [&] { return Statement(dataset, "create(d, \"y\", \"" + functionsText + "\");"); },
        writeFunctions);
}

void MeasureSort(Table& table)
{
    Claim const claim{"sort, 1,000,000 x 4 by two keys: against stable_sort", 1.5};
    if (!table.Wants(claim.name))
        return;
    auto const dataset = Numbers(4);
    // Groups of about a thousand, so that the second key has work to do.
    dataset->data.col(1) = (dataset->data.col(1).array() * 200).min(1000).floor();
    table.Compare(
        claim, [&] { return Statement(dataset, "sort(d, \"x1 x2\");"); },
        [&]
        {
            return Seconds(
                [&]
                {
                    auto const* const first = dataset->data.col(1).data();
                    auto const* const second = dataset->data.col(2).data();
                    std::vector<Eigen::Index> rows(ROWS);
                    std::iota(rows.begin(), rows.end(), 0);
                    std::stable_sort(rows.begin(), rows.end(),
                                     [&](Eigen::Index a, Eigen::Index b) {
                                         return first[a] != first[b] ? first[a] < first[b]
                                                                     : second[a] < second[b];
                                     });
                    Eigen::MatrixXd const sorted = dataset->data(rows, Eigen::all);
                    checksum += sorted(ROWS / 2, 2);
                });
        },
        5);
}

void MeasureSummarize(Table& table)
{
    Claim const claim{"summarize, 1,000,000 x 20: against a pass and nth_element", 3.0};
    if (!table.Wants(claim.name))
        return;
    auto const dataset = Numbers(20);
    std::string names;
    for (std::size_t column = 1; column < dataset->varNames.size(); ++column)
        names += " " + dataset->varNames[column].ToStdString();
    table.Compare(
        claim, [&] { return Statement(dataset, "summarize(d, \"" + names + "\");"); },
        [&]
        {
            return Seconds(
                [&]
                {
                    checksum += dataset->data.sum();
                    for (Eigen::Index column = 1; column < dataset->data.cols(); ++column)
                    {
                        Eigen::VectorXd values = dataset->data.col(column);
                        auto const quarter
                            = [&](Eigen::Index k) { return values.begin() + k * ROWS / 4; };
                        std::nth_element(values.begin(), quarter(2), values.end());
                        std::nth_element(values.begin(), quarter(1), quarter(2));
                        std::nth_element(quarter(2) + 1, quarter(3), values.end());
                        checksum += *quarter(1) + *quarter(3);
                    }
                });
        },
        3);
}
} // namespace

void MeasureData(Table& table)
{
    MeasureCreate(table);
    MeasureSort(table);
    MeasureSummarize(table);
    if (std::isnan(checksum))
        throw std::runtime_error("the peers of the data commands computed nothing");
}
} // namespace benchmarks
