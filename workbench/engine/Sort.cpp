// Every key becomes an unsigned whole number that has its order. The observations are then
// distributed by the digits of that number, from the last digit of the last key to the first digit
// of the first one; each distribution keeps the order of what is equal.

#include "workbench/engine/Sort.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <string_view>
#include <unordered_map>

#include "workbench/engine/Progress.h"
#include "workbench/engine/Variables.h"

namespace workbench
{
namespace
{
using Ranks = std::vector<std::uint64_t>;

constexpr std::uint64_t LAST = std::numeric_limits<std::uint64_t>::max();

/// The digits of a rank: eleven bits, so that the counts fit the processor's first cache.
constexpr int DIGIT_BITS = 11;
constexpr int DIGITS = (64 + DIGIT_BITS - 1) / DIGIT_BITS;
constexpr std::size_t BUCKETS = std::size_t{1} << DIGIT_BITS;

constexpr std::size_t REPORT_EVERY = 32768;

/// Equal numbers have equal bits but for the two zeros; negative ones have all their bits the other
/// way round, and the sign bit makes the others the larger.
std::uint64_t RankOf(double value)
{
    if (std::isnan(value))
        return LAST;
    value += 0.0;
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

/// The places of the labels among all different ones; a missing label has the last.
Ranks RankLabels(LabelledColumn const& column, std::size_t rows, ProgressScope& scope)
{
    std::unordered_map<std::string_view, std::uint64_t> ranks;
    for (std::size_t row = 0; row < rows; ++row)
    {
        ranks.emplace(LabelAt(column, static_cast<Eigen::Index>(row)), 0);
        if (row % REPORT_EVERY == 0)
            scope.Update(0.0);
    }
    std::vector<std::string_view> labels;
    for (auto const& entry : ranks)
        labels.push_back(entry.first);
    std::sort(labels.begin(), labels.end());
    for (std::size_t i = 0; i < labels.size(); ++i)
        ranks[labels[i]] = labels[i].empty() ? LAST : i;
    Ranks result(rows);
    for (std::size_t row = 0; row < rows; ++row)
        result[row] = ranks[LabelAt(column, static_cast<Eigen::Index>(row))];
    return result;
}

Ranks RankColumn(Dataset const& dataset, Eigen::Index column, ProgressScope& scope)
{
    auto const rows = static_cast<std::size_t>(dataset.data.rows());
    auto const labelled = dataset.labelledColumns.find(static_cast<int>(column));
    if (labelled != dataset.labelledColumns.end())
        return RankLabels(labelled->second, rows, scope);
    Ranks ranks(rows);
    std::transform(dataset.data.col(column).begin(), dataset.data.col(column).end(), ranks.begin(),
                   RankOf);
    return ranks;
}

struct Item
{
    std::uint64_t rank;
    Eigen::Index row;
};

using Items = std::vector<Item>;

/// Orders `items` by their ranks; `other` is room for as many.
void Distribute(Items& items, Items& other, ProgressScope& scope, double from, double to)
{
    std::array<std::array<std::size_t, BUCKETS>, DIGITS> counts{};
    auto const digit
        = [](std::uint64_t rank, int place) { return (rank >> (place * DIGIT_BITS)) % BUCKETS; };
    for (auto const& item : items)
        for (int place = 0; place < DIGITS; ++place)
            ++counts[static_cast<std::size_t>(place)][digit(item.rank, place)];
    for (int place = 0; place < DIGITS; ++place)
    {
        scope.Update(from + (to - from) * place / DIGITS);
        auto& starts = counts[static_cast<std::size_t>(place)];
        // A digit that all have in common orders nothing.
        if (!items.empty() && starts[digit(items.front().rank, place)] == items.size())
            continue;
        std::exclusive_scan(starts.begin(), starts.end(), starts.begin(), std::size_t{0});
        for (auto const& item : items)
            other[starts[digit(item.rank, place)]++] = item;
        std::swap(items, other);
    }
}

/// Brings the levels into the order in which their numbers first appear in `values`, and numbers
/// them anew. A column whose numbers are not those of its levels stays as it is.
void OrderLevels(LabelledColumn& column, Eigen::Ref<Eigen::VectorXd> values)
{
    constexpr auto NONE = std::numeric_limits<std::size_t>::max();
    auto const count = column.levels.size();
    std::vector<std::size_t> places(count, NONE);
    std::vector<std::string> levels;
    for (double const value : values)
    {
        if (std::isnan(value))
            continue;
        if (!(value >= 0 && value < static_cast<double>(count)) || value != std::floor(value))
            return;
        auto& place = places[static_cast<std::size_t>(value)];
        if (place == NONE)
        {
            place = levels.size();
            levels.push_back(column.levels[static_cast<std::size_t>(value)]);
        }
    }
    for (std::size_t level = 0; level < count; ++level)
        if (places[level] == NONE)
            levels.push_back(column.levels[level]);
    for (auto& value : values)
        if (!std::isnan(value))
            value = static_cast<double>(places[static_cast<std::size_t>(value)]);
    column.levels = std::move(levels);
}

LabelledColumn Gathered(LabelledColumn const& column, std::vector<Eigen::Index> const& rows)
{
    LabelledColumn gathered{column.levels, {}};
    gathered.labels.reserve(rows.size());
    for (auto const row : rows)
        gathered.labels.emplace_back(LabelAt(column, row));
    return gathered;
}
} // namespace

std::vector<Eigen::Index> SortedRows(Dataset const& dataset, std::vector<Eigen::Index> const& keys,
                                     Progress& progress)
{
    ProgressScope scope(progress, "Sorting the observations");
    auto const count = static_cast<std::size_t>(dataset.data.rows());
    Items items(count);
    for (std::size_t i = 0; i < count; ++i)
        items[i].row = static_cast<Eigen::Index>(i);
    Items other(count);
    for (auto key = keys.size(); key-- > 0;)
    {
        auto const ranks = RankColumn(dataset, keys[key], scope);
        for (auto& item : items)
            item.rank = ranks[static_cast<std::size_t>(item.row)];
        auto const share = 1.0 / static_cast<double>(keys.size());
        auto const done = static_cast<double>(keys.size() - 1 - key) * share;
        Distribute(items, other, scope, done, done + share);
    }
    std::vector<Eigen::Index> rows(count);
    std::transform(items.begin(), items.end(), rows.begin(), [](Item const& item) { return item.row; });
    return rows;
}

std::shared_ptr<Dataset> Sorted(Dataset const& dataset, std::vector<Eigen::Index> const& keys,
                                Progress& progress)
{
    auto const rows = SortedRows(dataset, keys, progress);
    ProgressScope scope(progress, "Copying the dataset");
    auto const sorted = std::make_shared<Dataset>();
    sorted->name = dataset.name;
    sorted->varNames = dataset.varNames;
    sorted->data.resize(dataset.data.rows(), dataset.data.cols());
    for (Eigen::Index column = 0; column < dataset.data.cols(); ++column)
    {
        sorted->data.col(column) = dataset.data.col(column)(rows);
        auto const labelled = dataset.labelledColumns.find(static_cast<int>(column));
        if (labelled != dataset.labelledColumns.end())
        {
            auto& gathered = sorted->labelledColumns[static_cast<int>(column)];
            gathered = Gathered(labelled->second, rows);
            OrderLevels(gathered, sorted->data.col(column));
        }
        scope.Update(static_cast<std::uint64_t>(column + 1),
                     static_cast<std::uint64_t>(dataset.data.cols()));
    }
    return sorted;
}
} // namespace workbench
