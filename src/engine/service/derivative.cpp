#include "engine/service/derivative.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <vector>

#include "engine/checked.h"

namespace tarnmill {
namespace {

// The ratio of the steps is the number farthest from all simple fractions: with halves, when one step is near
// a whole turn of a periodic function, all those before it are, and agree on a wrong result.
constexpr double golden_ratio = 1.6180339887498949;
constexpr double first_step = 0.30901699437494742;

constexpr int most_steps = 92;  // down to about 1E-20
constexpr std::size_t most_columns = 8;

// The steps for a point far from 0 begin with this share of it at least, so that they count beside it.
constexpr double first_relative_step = 0x1p-30;

// Below this share of the point, rounding the steps would change their ratio.
constexpr double least_relative_step = 0x1p-46;

// A result with less than this error, against its size or 1, is not sought again.
constexpr double precise = 1e-10;

// Below this size of the point, or of 1, a step may be lost in the rounding of the function.
constexpr double lost_step = 1e-9;

// How many times its error a result may lie from another one that confirms it.
constexpr double confirmation = 10;

// The differences between neighbours that rounding alone may make, in units of its size.
constexpr double rounding_allowance = 4;

// A result whose neighbours differ by more than this, against its size or 1, is none.
constexpr double greatest_discrepancy = 1e-3;
constexpr double greatest_rounding = 100;

double against_one(double value) { return std::max(1.0, std::fabs(value)); }

struct Candidate {
  double value = 0;
  double discrepancy = std::numeric_limits<double>::infinity();
  double rounding = 0;

  [[nodiscard]] double error() const { return discrepancy + rounding; }
  [[nodiscard]] double relative_error() const { return error() / against_one(value); }
};

bool confirms(const Candidate& first, const Candidate& other) {
  return std::fabs(other.value - first.value) <= confirmation * first.error();
}

// Rows of extrapolated quotients, one row for each step; only the last two are kept.
class Extrapolation {
 public:
  // Takes the quotient of the next, smaller step and the size of the rounding in it.
  void take(double quotient, double rounding) {
    only_zeros_ = quotient == 0 && (is_first_ || only_zeros_);
    is_first_ = false;
    std::vector<double> row{quotient};
    double factor = 1;
    for (std::size_t column = 0; column < last_row_.size(); ++column) {
      consider(row, column, rounding);
      factor *= golden_ratio * golden_ratio;
      if (column + 1 < most_columns) {
        row.push_back(row[column] + (row[column] - last_row_[column]) / (factor - 1));
      }
    }
    last_row_ = std::move(row);
  }

  // Whether equal values on both sides only show that the function can't tell the step from the point any
  // more: the best result is no zero, or the step is `tiny` and wider ones were not all equal as well.
  [[nodiscard]] bool expects_difference(bool tiny) const {
    return std::fabs(best_.value) > confirmation * best_.error() || (tiny && !only_zeros_);
  }

  // The size by which the rounding of a value is told. A value that is small only beside those of wider steps
  // may be what is left of terms about as large as these, which 1 stands for.
  [[nodiscard]] double size_for(double value) {
    largest_ = std::max(largest_, value);
    return std::max(value, std::min(largest_, 1.0));
  }

  // Forgets the rows, so that what follows is not compared with what went before.
  void interrupt() { last_row_.clear(); }

  [[nodiscard]] const Candidate& best() const { return best_; }

  [[nodiscard]] bool is_done() const { return best_.discrepancy <= rounding_allowance * best_.rounding; }

 private:
  void consider(const std::vector<double>& row, std::size_t column, double rounding) {
    Candidate candidate{
        .value = row[column],
        .discrepancy = std::fabs(row[column] - last_row_[column]),
        .rounding = rounding,
    };
    if (column > 0) {
      candidate.discrepancy =
          std::max(std::fabs(row[column] - row[column - 1]), std::fabs(row[column] - last_row_[column - 1]));
    }
    if (candidate.relative_error() < best_.relative_error()) best_ = candidate;
  }

  std::vector<double> last_row_;
  Candidate best_;
  double largest_ = 0;
  bool is_first_ = true;
  bool only_zeros_ = false;
};

bool is_settled(const Candidate& candidate) {
  const double greatest = greatest_discrepancy * against_one(candidate.value);
  return candidate.discrepancy <= std::max(greatest, greatest_rounding * candidate.rounding);
}

bool is_precise(const Candidate& candidate) { return candidate.relative_error() <= precise; }

void take_quotient(const RealFunction& function, double x, double step, Extrapolation& extrapolation) {
  const double right = function(x + step);
  const double left = function(x - step);
  const double difference = subtract(right, left);
  if (difference == 0 && extrapolation.expects_difference(step < lost_step * against_one(x))) return;
  const double size = extrapolation.size_for(std::max(std::fabs(left), std::fabs(right)));
  extrapolation.take(divide(difference, 2 * step),
                     finite(std::numeric_limits<double>::epsilon() * size / step));
}

// The best candidate of all steps from the wanted one downwards. When there is none, the fault of the last.
Candidate best_candidate(const RealFunction& function, double x, double wanted_step) {
  Extrapolation extrapolation;
  std::exception_ptr last_fault;
  const double size = std::fabs(x);
  for (int i = 0; i < most_steps && !extrapolation.is_done(); ++i) {
    // Rounded so that the point and the step add up exactly.
    const double step = (size + wanted_step) - size;
    if (step <= least_relative_step * size) break;
    wanted_step /= golden_ratio;
    try {
      take_quotient(function, x, step, extrapolation);
    } catch (const Fault&) {
      last_fault = std::current_exception();
      extrapolation.interrupt();
    }
  }
  if (std::isinf(extrapolation.best().discrepancy) && last_fault) std::rethrow_exception(last_fault);
  return extrapolation.best();
}

}  // namespace

double derivative(const RealFunction& function, double x) {
  finite(function(x));
  const double size = std::fabs(x);
  Candidate best = best_candidate(function, x, first_step * std::max(1.0, size * first_relative_step));
  if (size > 1 && !is_precise(best)) {
    const Candidate wide = best_candidate(function, x, first_step * size);
    if (wide.error() < best.error() && confirms(best, wide)) best = wide;
  }
  if (!is_settled(best)) throw Fault{FaultCode::DivisionByZero};
  return finite(best.value);
}

}  // namespace tarnmill
