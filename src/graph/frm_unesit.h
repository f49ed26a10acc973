#pragma once

#include <optional>
#include <string_view>

#include "engine/evaluator.h"
#include "engine/text.h"
#include "forms/button.h"
#include "forms/label.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// Asks at which x graph mode is to draw a tangent.
class frmunesit final : public Window {
 public:
  static constexpr std::string_view class_name = "frmunesit";

  explicit frmunesit(Workbench& bench);

  /// Names the function of graph mode and goes back to the point 0.
  void refresh_prompt();

  Label Label1{*this, "Label1"};
  /// The point: a number, or an expression until it is taken.
  TextBox Text1{*this, "Text1", u"0"};
  Button Command1{*this, "Command1", u"OK"};
  Button Command2{*this, "Command2", u"Cancel"};

  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};
  Procedure osvezi{*this, "osvezi", &frmunesit::refresh_prompt};

 private:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void Text1_KeyDown(int& KeyCode, int Shift);
  void take_point();
  [[nodiscard]] Evaluator& evaluator();

  std::optional<Evaluator> evaluator_;
};

}  // namespace tarnmill
