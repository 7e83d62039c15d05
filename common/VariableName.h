#pragma once

#include <string>

namespace zenqo
{
/// Splits a variable's name at its last underscore into what stands before and what stands behind
/// it. Without an underscore all of the name is the stem and the suffix is empty.
void splitName(std::string const& full, std::string& stem, std::string& suffix);

/// True if `suffix` numbers a member of a family of variables: decimal digits and nothing else,
/// however many.
bool IsNumericSuffix(std::string const& suffix);

/// The stem of a member of a numbered family, as "income" of "income_3", in `stem`; false for the
/// name of any other variable.
bool FamilyOf(std::string const& full, std::string& stem);
} // namespace zenqo
