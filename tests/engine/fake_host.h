#pragma once

#include <string>
#include <vector>

#include "engine/evaluator_host.h"
#include "engine/random.h"

namespace tarnmill::testing {

/// A host without windows: everything it gives is a field to set, everything it is told a line in `calls`.
class FakeHost : public EvaluatorHost {
 public:
  ExponentHint graph;
  ExponentHint keypad;
  Regional settings;
  DateTime moment{.year = 2024, .month = 2, .day = 29, .weekday = 5, .hour = 13, .minute = 45, .second = 59};
  float seconds = 49559.5F;
  bool keypad_is_visible = false;
  std::vector<std::string> calls;

  ExponentHint graph_hint() override {
    calls.emplace_back("graph_hint");
    return graph;
  }
  ExponentHint keypad_hint() override {
    calls.emplace_back("keypad_hint");
    return keypad;
  }
  void Boje2() override { calls.emplace_back("Boje2"); }
  void Boje3() override { calls.emplace_back("Boje3"); }
  void show_message(TextView text, TextView title, Icon icon) override {
    calls.push_back((icon == Icon::critical ? "critical|" : "information|") + to_utf8(title) + "|" +
                    to_utf8(text));
  }
  bool keypad_visible() override { return keypad_is_visible; }
  void show_keypad_result(TextView text) override { calls.push_back("result|" + to_utf8(text)); }
  float NextRandom(double x) override { return randoms_.NextRandom(x); }
  float SecondsSinceMidnight() override { return seconds; }
  DateTime now() override { return moment; }
  const Regional& regional() override { return settings; }

 private:
  RandomSequence randoms_;
};

}  // namespace tarnmill::testing
