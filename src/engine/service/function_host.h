#pragma once

#include "engine/evaluator_host.h"
#include "engine/random.h"

namespace tarnmill {

/// What the shared functions find around them in a statement: the random numbers of the program and nothing
/// else. A statement knows no windows, so colours and messages go nowhere, and no word of its notation asks
/// for the clock.
class FunctionHost final : public EvaluatorHost {
 public:
  /// The sequence must outlive the host.
  explicit FunctionHost(RandomSequence& random) : random_{random} {}

  ExponentHint graph_hint() override { return {}; }
  ExponentHint keypad_hint() override { return {}; }
  void Boje2() override {}
  void Boje3() override {}
  void show_message(TextView /*text*/, TextView /*title*/, Icon /*icon*/) override {}
  bool keypad_visible() override { return false; }
  void show_keypad_result(TextView /*text*/) override {}
  float NextRandom(double x) override { return random_.NextRandom(x); }
  float SecondsSinceMidnight() override { return 0; }
  DateTime now() override { return {}; }
  const Regional& regional() override { return regional_; }

 private:
  RandomSequence& random_;
  Regional regional_;
};

}  // namespace tarnmill
