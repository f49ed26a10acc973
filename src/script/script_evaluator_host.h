#pragma once

#include "engine/evaluator_host.h"

namespace tarnmill {

class Session;

/// Hands the needs of an evaluator that a script holds to the program that runs at the moment, so that the
/// evaluator outlives a restart.
class ScriptEvaluatorHost final : public EvaluatorHost {
 public:
  explicit ScriptEvaluatorHost(Session& session) : session_{session} {}

  ExponentHint graph_hint() override { return host().graph_hint(); }
  ExponentHint keypad_hint() override { return host().keypad_hint(); }
  void Boje2() override { host().Boje2(); }
  void Boje3() override { host().Boje3(); }
  void show_message(TextView text, TextView title, Icon icon) override {
    host().show_message(text, title, icon);
  }
  bool keypad_visible() override { return host().keypad_visible(); }
  void show_keypad_result(TextView text) override { host().show_keypad_result(text); }
  float NextRandom(double x) override { return host().NextRandom(x); }
  float SecondsSinceMidnight() override { return host().SecondsSinceMidnight(); }
  DateTime now() override { return host().now(); }
  const Regional& regional() override { return host().regional(); }

 private:
  [[nodiscard]] EvaluatorHost& host();

  Session& session_;
};

}  // namespace tarnmill
