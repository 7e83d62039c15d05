#pragma once

#include <cstdint>

#include <boost/random/mersenne_twister.hpp>

namespace workbench
{
/// The random numbers of one chain. The Mersenne twister and Boost's distributions are told to the last
/// step, which the standard's distributions are not, so a seed gives the same numbers with every
/// compiler: M. Matsumoto and T. Nishimura, "Mersenne Twister: A 623-Dimensionally Equidistributed
/// Uniform Pseudo-Random Number Generator", ACM Transactions on Modeling and Computer Simulation 8
/// (1998), 3-30, here with words of 64 bits.
using RandomStream = boost::random::mt19937_64;

/// The stream of chain `chain`, from 0, of a run with `seed`. The state is filled by a seed sequence
/// from three words of 32 bits: the seed's lower and upper half, and the chain's number. So the streams
/// of two chains, or of two neighbouring seeds, have nothing in common that could be seen.
RandomStream MakeRandomStream(std::uint64_t seed, int chain);
} // namespace workbench
