#pragma once

#include <string>
#include <vector>

#include "engine/Engine.h"

/// The names about which the engine was asked so far.
extern std::vector<std::string> g_checkedIds;
