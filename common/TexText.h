#pragma once

#include <string>
#include <vector>

namespace zenqo
{
/// Console text as TeX source.
///
/// A line with tabs is a row of a table; rows that follow each other with the same number of tabs
/// are one `tabular`, its first column left-aligned, the others right-aligned. Every other line is
/// passed through. "%", "#", "&" and "_" are escaped, no other character is touched. Every line of
/// the result ends in a newline.
///
/// `ruleLines` holds the indices, within `selection` and rising, of lines that are horizontal
/// rules; each becomes "\hline".
std::string TextToTex(std::string const& selection, std::vector<int> const& ruleLines);
} // namespace zenqo
