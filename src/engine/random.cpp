#include "engine/random.h"

#include <bit>

namespace tarnmill {
namespace {

// The SplitMix64 generator of Steele, Lea and Flood: a counter of odd step and a mixing of its bits.
constexpr std::uint64_t counter_step = 0x9E3779B97F4A7C15U;

std::uint64_t mixed(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
  bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
  return bits ^ (bits >> 31U);
}

}  // namespace

float RandomSequence::NextRandom(double x) {
  if (x < 0) state_ = std::bit_cast<std::uint64_t>(x);
  if (x != 0) state_ += counter_step;
  // As many bits as a Single holds exactly, so that 1 is never reached by rounding.
  return static_cast<float>(mixed(state_) >> 40U) * 0x1p-24F;
}

}  // namespace tarnmill
