#pragma once

#include <memory>
#include <vector>

#include <Eigen/Core>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;

/// The observations of `dataset`, as rows of its data, in the order of the columns `keys`: smallest
/// first, by the first key, where that is equal by the second, and so on. Equal ones stay in their
/// order. A missing value comes behind all others; a column of text is taken by its labels, byte by
/// byte, which in UTF-8 is the order of the characters' numbers.
std::vector<Eigen::Index> SortedRows(Dataset const& dataset, std::vector<Eigen::Index> const& keys,
                                     Progress& progress);

/// A copy of `dataset` with its observations in that order. The levels of text come in the order of
/// first appearance again.
std::shared_ptr<Dataset> Sorted(Dataset const& dataset, std::vector<Eigen::Index> const& keys,
                                Progress& progress);
} // namespace workbench
