#pragma once

#include <exception>
#include <stdexcept>

namespace workbench
{
/// What went wrong, in words for the user. Whoever throws it has changed nothing.
struct Error : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The user pressed stop: thrown by `Progress::Update`, and passed on by all that reports progress.
struct Interrupted : std::exception
{
    char const* what() const noexcept override { return "interrupted"; }
};
} // namespace workbench
