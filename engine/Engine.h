#pragma once

/// All that the widgets ask of engine and host: records, globals, functions, the event, sentinels.
/// Declarations only. The library leaves these symbols undefined; the host's executable or the
/// engine's own libraries define them.

#include "engine/Dataset.h"
#include "engine/Events.h"
#include "engine/Export.h"
#include "engine/Functions.h"
#include "engine/Globals.h"
#include "engine/Model.h"
#include "engine/Sentinels.h"
