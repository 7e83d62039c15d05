#pragma once

#include <memory>
#include <string>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;

/// What an import gives: a dataset, and a warning if its variable names are not the file's.
struct Import
{
    std::shared_ptr<Dataset> dataset;
    std::string warning; ///< Empty if there is nothing to warn of.
};

/// Reads a file of delimited text whose first line holds the variable names.
/// docs/file-formats.md has the rules. Throws an Error that names file, line and column.
Import ImportDelimited(std::string const& path, char delimiter, Progress& progress);

/// Writes `dataset` as delimited text, whole or not at all (see AtomicFile). What an import then
/// reads is equal to the last bit.
/// Throws an Error if the file cannot be written or could not bring the dataset back.
void ExportDelimited(Dataset const& dataset, std::string const& path, char delimiter,
                     Progress& progress);

/// Throws an Error if `delimiter` could be taken for a part of a number or a name, or for a quote.
void CheckDelimiter(char delimiter);

/// Writes the numbers of `matrix`, a line for each row and without names, whole or not at all. Each has
/// as few digits as bring it back; a missing one is NaN. Throws an Error if the file cannot be written or
/// the matrix has no elements. `name` is the matrix's, for messages.
void ExportMatrix(Eigen::MatrixXd const& matrix, std::string const& name, std::string const& path,
                  char delimiter, Progress& progress);
} // namespace workbench
