#pragma once

#include <optional>
#include <string_view>

#include "engine/evaluator.h"
#include "forms/field.h"

namespace tarnmill {

/// A state field that holds an expression engine, made on first use. It has no value of its own that could
/// be read or written: readers take it for empty, and scripts reach the engine itself.
class EvaluatorField final : public FieldBase {
 public:
  EvaluatorField(Window& window, std::string_view name);

  /// The engine, made now when it is not there yet. It lives as long as the window.
  [[nodiscard]] Evaluator& get();

  /// The engine, or null when it has not been used yet.
  [[nodiscard]] Evaluator* made() { return evaluator_ ? &*evaluator_ : nullptr; }

  [[nodiscard]] Variant read() const override { return {}; }
  /// Raises Invalid-argument.
  void write(const Variant& value) override;

 private:
  Window& owner_;
  std::optional<Evaluator> evaluator_;
};

}  // namespace tarnmill
