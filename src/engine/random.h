#pragma once

#include <cstdint>

namespace tarnmill {

/// A repeatable sequence of uniform random numbers; every new one starts alike.
class RandomSequence {
 public:
  /// A number from 0 (included) to 1 (excluded). x above 0 gives the next number, 0 the last one again, below
  /// 0 the first number of the sequence that belongs to x.
  float NextRandom(double x);

 private:
  std::uint64_t state_ = 0x7A3E19C4D52B8F61U;
};

}  // namespace tarnmill
