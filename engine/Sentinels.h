#pragma once

/// Texts with a meaning of their own, agreed between engine, host and widgets.
namespace zenqo
{
/// Name of a placeholder dataset, which exists in the host's map and is not drawn.
inline constexpr char const* EMPTY_DATASET = "__ZenqoEmptyDataset__";

/// No value: an unset directory, or a separator in an argument list.
inline constexpr char const* DEFAULT_STRING = "__Zenqo_SYSTEM_DEFAULT_STRING___";
} // namespace zenqo
