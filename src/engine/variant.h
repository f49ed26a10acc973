#pragma once

#include <compare>
#include <concepts>
#include <utility>

#include "engine/regional.h"
#include "engine/text.h"

namespace tarnmill {

/// A dynamically typed value: nothing, a number, a text or a truth value, converted where it is used.
class Variant {
 public:
  /// The empty value: 0 in arithmetic, "" in text work.
  Variant() = default;

  // Implicit, so that an assignment reads as the assignment of the value.
  // NOLINTBEGIN(google-explicit-constructor)
  Variant(double number) : kind_{Kind::number}, number_{number} {}
  template <std::integral Whole>
  requires(!std::same_as<Whole, bool>) Variant(Whole number) : Variant{static_cast<double>(number)} {}
  Variant(std::same_as<bool> auto truth) : kind_{Kind::truth}, number_{truth ? true_as_number : 0} {}
  Variant(Text text) : kind_{Kind::text}, text_{std::move(text)} {}
  Variant(TextView text) : Variant{Text{text}} {}
  Variant(const char16_t* text) : Variant{Text{text}} {}
  // NOLINTEND(google-explicit-constructor)

  [[nodiscard]] bool is_empty() const { return kind_ == Kind::empty; }
  [[nodiscard]] bool is_number() const { return kind_ == Kind::number; }
  [[nodiscard]] bool is_text() const { return kind_ == Kind::text; }
  [[nodiscard]] bool is_bool() const { return kind_ == Kind::truth; }

  /// The value in arithmetic: empty is 0, True is -1, text is read strictly. Type-mismatch for text that is
  /// no number, Overflow for one beyond the range.
  [[nodiscard]] double to_number(const Regional& regional) const;

  /// The value in text work: empty is "", a truth value "True" or "False", a number by NumberToText.
  [[nodiscard]] Text to_text(const Regional& regional) const;

 private:
  friend std::partial_ordering compare(const Variant& left, const Variant& right);

  enum class Kind { empty, number, text, truth };
  static constexpr double true_as_number = -1;

  Kind kind_ = Kind::empty;
  double number_ = 0;  // of a truth value its arithmetic value
  Text text_;
};

/// Compares with a number of fixed type. Text that reads as a number counts as that number; any other text is
/// greater than every number, without a fault. Unordered only for a value that is not a number in the IEEE
/// sense.
std::partial_ordering compare(const Variant& left, double right, const Regional& regional);

/// Compares two dynamic values. Of a number and a text the number is the smaller, unconverted; two texts
/// compare by code unit; an empty value is 0 beside a number and "" beside a text.
std::partial_ordering compare(const Variant& left, const Variant& right);

}  // namespace tarnmill
