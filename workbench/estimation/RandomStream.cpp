#include "workbench/estimation/RandomStream.h"

#include <boost/random/seed_seq.hpp>

namespace workbench
{
RandomStream MakeRandomStream(std::uint64_t seed, int chain)
{
    boost::random::seed_seq words{static_cast<std::uint32_t>(seed),
                                  static_cast<std::uint32_t>(seed >> 32),
                                  static_cast<std::uint32_t>(chain)};
    return RandomStream(words);
}
} // namespace workbench
