#pragma once

/// How many steps a random walk takes. The sanitizers, under which a step takes several times as long,
/// see in a fifth of the walk what there is to be seen of memory; its logic is the other build's.
#ifdef __SANITIZE_ADDRESS__
constexpr int WALK_STEPS = 2000;
#else
constexpr int WALK_STEPS = 10000;
#endif
